#include "automation/combo_boxes.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/state.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

// No list holds more; a count beyond that is none.
constexpr std::int32_t kMostEntries = 1000000;

// The control of all three; no direct child has precedence here.
std::int32_t FindComboBox(const ControlAddress& address) {
  return FindDescendant(FindAddressedWindow(address), address);
}

bool SelectIndex(std::int32_t combo, std::int32_t index) {
  return platform::SendMessageA(combo, platform::CB_SETCURSEL, index, 0) == index;
}

// The search begins behind the entry 0 and comes to that one at the end.
bool SelectPrefix(std::int32_t combo, const std::string& prefix) {
  const std::int32_t index = platform::SendMessageA(combo, platform::CB_FINDSTRING, 0, prefix);
  return index != -1 && SelectIndex(combo, index);
}

void NotifyParent(std::int32_t combo, std::int32_t id, std::int16_t notification) {
  const std::int32_t command = MakeLong(runtime::ToInteger(static_cast<double>(id)), notification);
  platform::SendMessageA(platform::GetParent(combo), platform::WM_COMMAND, command, combo);
}

// Faults: InvalidCall for a length of -1, as that of an entry that does not exist; OutOfMemory for one that no list
// holds.
std::string EntryText(std::int32_t combo, std::int32_t index) {
  const std::int32_t length = platform::SendMessageA(combo, platform::CB_GETLBTEXTLEN, index, 0);
  if (length < 0) throw runtime::Fault(runtime::FaultNumber::InvalidCall);
  if (length > platform::kLongestEntry) throw runtime::Fault(runtime::FaultNumber::OutOfMemory);
  platform::TextBuffer buffer(static_cast<std::size_t>(length));
  const std::int32_t copied = platform::SendMessageA(combo, platform::CB_GETLBTEXT, index, buffer);
  return runtime::Left(buffer.bytes, copied);
}

}  // namespace

bool SelectCombo(bool indexMode, const std::string& value, const std::string& id, const std::string& window,
                 const std::string& exact, const std::string& text, const std::string& cls) {
  return Standard("SelectCombo", [&] {
    const std::int32_t number = NumberOrZero(id);
    const std::int32_t index = indexMode ? NumberOrZero(value) : 0;
    const std::int32_t combo = FindComboBox({window, exact, text, cls.empty() ? "ComboBox" : cls, id});
    LogWrite("Select Combo-> HWNDCTL: " + std::to_string(combo) +
             "Parent: " + std::to_string(platform::GetParent(combo)));
    const bool selected = combo != 0 && (indexMode ? SelectIndex(combo, index) : SelectPrefix(combo, value));
    if (!selected) return Fail(Text(TextId::ComboNotSelected) + " Sel: " + value);
    NotifyParent(combo, number, platform::CBN_SELCHANGE);
    NotifyParent(combo, number, platform::CBN_SELENDOK);
    LogWrite(Text(TextId::ComboSelected) + " Sel: " + value);
    return true;
  });
}

bool ReadCombo(const std::string& id, const std::string& cls, const std::string& window, const std::string& exact,
               const std::string& text, const std::string& frameId) {
  return Standard("ReadCombo", [&] {
    automation.ComboItems.clear();
    const std::int32_t combo = FindComboBox({window, exact, text, cls, id, frameId});
    if (combo == 0) return Fail(Text(TextId::ComboNotSelected));
    const std::int32_t count = platform::SendMessageA(combo, platform::CB_GETCOUNT, 0, 0);
    if (count > kMostEntries) throw runtime::Fault(runtime::FaultNumber::OutOfMemory);
    for (std::int32_t i = 0; i < count; ++i) automation.ComboItems += EntryText(combo, i) + ";";
    LogWrite(Text(TextId::ComboSelected) + " " + automation.ComboItems.substr(0, 50) + "...");
    return true;
  });
}

bool ReadComboText(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
                   const std::string& text) {
  return Standard("ReadComboText", [&] {
    const std::int32_t combo = FindComboBox({window, exact, text, cls, id});
    if (combo == 0) return Fail(Text(TextId::ComboTextNotRead));
    const std::int32_t index = platform::SendMessageA(combo, platform::CB_GETCURSEL, 0, 0);
    automation.LastReadText = EntryText(combo, index);
    LogWrite(Text(TextId::ComboTextRead) + " " + automation.LastReadText);
    return true;
  });
}

}  // namespace basMain
