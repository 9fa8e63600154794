#include "automation/focus_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/frmMain.h"
#include "frame/log.h"
#include "frame/state.h"
#include "input/key_delivery.h"
#include "platform/input.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

namespace {

// An empty list has all its rows selected: its line of success is written all the same, and then it fails.
bool VerifySelection(std::int32_t list) {
  const std::int32_t selected = platform::SendMessageA(list, platform::LVM_GETSELECTEDCOUNT, 0, 0);
  const std::int32_t count = platform::SendMessageA(list, platform::LVM_GETITEMCOUNT, 0, 0);
  if (selected == count) LogWrite(Text(TextId::ListSelected, std::to_string(count)));
  else run.LastError = Text(TextId::ListNotSelected);
  if (count == 0) run.LastError = Text(TextId::ListEmpty);
  return selected == count && count != 0;
}

}  // namespace

bool SelectAll(const std::string& listId, const std::string& window, const std::string& exact,
               const std::string& parentId) {
  return Standard("SelectAll", [&] {
    const std::int32_t id = NumberOrZero(listId);
    const std::int32_t parent = NumberOrZero(parentId);
    std::int32_t hWindow = FindAddressedWindow({window, exact});
    if (!parentId.empty()) hWindow = FindFrame(hWindow, parent);
    const std::int32_t list = platform::GetDlgItem(hWindow, id);
    if (list == 0) {
      run.LastError = Text(TextId::ListNotSelected);
      return false;
    }
    DeliverKeys(hWindow, hWindow, list, "^{a}");
    return VerifySelection(list);
  });
}

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
