#include "automation/focus_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "frame/frmMain.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/input.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

bool SetFocusCtl(const std::string& cls, const std::string& text, const std::string& id) {
  if ((text + cls).empty()) return false;
  std::int32_t hWindow = 0;
  std::int32_t control = 0;
  std::uint32_t target = 0;
  std::uint32_t own = 0;
  Skip([&] { hWindow = platform::GetForegroundWindow(); });
  Skip([&] { control = FindDescendant(hWindow, {.text = text, .cls = cls, .id = id}); });
  Skip([&] { target = ThreadOf(hWindow); });
  Skip([&] { own = ThreadOf(frmMain.Window()); });
  Skip([&] { platform::AttachThreadInput(target, own, true); });
  Skip([&] { platform::SetFocus(control); });
  Skip([&] { platform::AttachThreadInput(target, own, false); });
  LogWrite(Text(TextId::ControlFocused, std::to_string(control)));
  return true;
}

bool SetFocusWindow(const std::string& window) {
  const std::int32_t hWindow = window.empty() ? frame.MainWindow : FindAddressedWindow({window, ""});
  if (window.empty() || hWindow != 0) Skip([&] { platform::SetForegroundWindow(hWindow); });
  LogWrite(Text(TextId::WindowFocused));
  return true;
}

}  // namespace basMain
