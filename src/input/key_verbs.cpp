#include "input/key_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "forms/form.h"
#include "frame/log.h"
#include "frame/state.h"
#include "input/key_delivery.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

namespace {

bool Sent(const std::string& keys) {
  constexpr std::int32_t kTimeToAct = 100;
  Skip([&] { platform::Sleep(kTimeToAct); });
  LogWrite(Text(TextId::KeySent) + keys);
  return true;
}

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

bool SendKey(const std::string& keys) {
  Skip([&] { forms::Pump(); });
  PressKeys(keys);
  return Sent(keys);
}

bool SendKeyToControl(const std::string& keys, const std::string& id, const std::string& window, const std::string& cls,
                      const std::string& text) {
  std::int32_t hWindow = 0;
  std::int32_t control = 0;
  Skip([&] { SearchWindow(window, hWindow, false, text, cls, id, "", control); });
  if (hWindow != 0) Skip([&] { control = SearchControl(hWindow, text, cls, runtime::ToLong(id)); });
  Skip([&] { forms::Pump(); });
  if (control == 0) return false;
  DeliverKeys(frame.MainWindow, hWindow, control, keys);
  return Sent(keys);
}

bool SendKeyToWindow(const std::string& keys, const std::string& window) {
  std::int32_t hWindow = 0;
  Skip([&] { hWindow = FindAddressedWindow({.window = window}); });
  Skip([&] { forms::Pump(); });
  DeliverKeys(frame.MainWindow, hWindow, 0, keys);
  return Sent(keys);
}

bool SelectAll(const std::string& listId, const std::string& window, const std::string& exact,
               const std::string& parentId) {
  return Standard("SelectAll", [&] {
    const std::int32_t id = NumberOrZero(listId);
    const std::int32_t parent = NumberOrZero(parentId);
    std::int32_t hWindow = FindAddressedWindow({window, exact});
    if (!parentId.empty()) hWindow = FindFrame(hWindow, parent);
    const std::int32_t list = platform::GetDlgItem(hWindow, id);
    if (list == 0) return Fail(Text(TextId::ListNotSelected));
    DeliverKeys(hWindow, hWindow, list, "^{a}");
    return VerifySelection(list);
  });
}

}  // namespace basMain
