#include "automation/window_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

bool WaitForWindow(const std::string& window, const std::string& exact, const std::string& text, const std::string& cls,
                   const std::string& id) {
  return Standard("WaitForWindow", [&] {
    bool found = false;
    do {
      std::int32_t hWindow = 0;
      std::int32_t hControl = 0;
      found = SearchWindow(window, hWindow, exact == "1", text, cls, id, "", hControl);
      platform::Sleep(500);
    } while (!found && !run.StopRun);
    LogWrite(Text(TextId::WindowFound));
    return true;
  });
}

bool MaximizeWindow() {
  platform::WINDOWPLACEMENT placement;
  Skip([&] { platform::GetWindowPlacement(frame.MainWindow, placement); });
  placement.showCmd = platform::SW_SHOWMAXIMIZED;
  Skip([&] { platform::SetWindowPlacement(frame.MainWindow, placement); });
  LogWrite(Text(TextId::WindowMaximized));
  return true;
}

bool CloseWindow(const std::string& window, const std::string& exact) {
  if (platform::SendMessageA(FindAddressedWindow({window, exact}), platform::WM_CLOSE, 0, 0) != 0)
    return Fail(Text(TextId::WindowNotClosed));
  LogWrite(Text(TextId::WindowClosed));
  return true;
}

}  // namespace basMain
