// Combo boxes: an edit field or a fixed text over a list of entries.
#include <algorithm>

#include "platform/class_names.h"
#include "platform/simulated/controls.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

using runtime::EqualIgnoringCase;

constexpr std::int32_t kError = -1;

bool HasEntry(const Window& combo, std::int32_t index) {
  return index >= 0 && static_cast<std::size_t>(index) < combo.entries.size();
}

const std::string& Entry(const Window& combo, std::int32_t index) {
  return combo.entries[static_cast<std::size_t>(index)];
}

bool BeginsWith(std::string_view text, std::string_view start) {
  return EqualIgnoringCase(text.substr(0, start.size()), start);
}

// The system finds an entry in brackets also without them, since it names drives and folders so.
bool Fits(std::string_view entry, std::string_view start) {
  return BeginsWith(entry, start) || (entry.starts_with('[') && BeginsWith(entry.substr(1), start)) ||
         (entry.starts_with("[-") && BeginsWith(entry.substr(2), start));
}

std::int32_t FindEntry(const Window& combo, std::int32_t start, const std::string& text) {
  const auto count = static_cast<std::int32_t>(combo.entries.size());
  if (text.empty()) return kError;
  std::int32_t index = start + 1 < count ? std::max(0, start + 1) : 0;
  for (std::int32_t i = 0; i < count; ++i, index = (index + 1) % count)
    if (Fits(Entry(combo, index), text)) return index;
  return kError;
}

std::int32_t Select(Window& combo, std::int32_t index) {
  if (index != kError && !HasEntry(combo, index)) return kError;
  combo.selection = index;
  combo.text = index == kError ? "" : Entry(combo, index);
  return index;
}

std::int32_t CopyEntry(const std::string& entry, TextBuffer& buffer) {
  const std::size_t count = std::min(entry.size(), buffer.bytes.size());
  std::copy_n(entry.begin(), count, buffer.bytes.begin());
  if (count < buffer.bytes.size()) buffer.bytes[count] = '\0';
  return static_cast<std::int32_t>(entry.size());
}

}  // namespace

bool IsComboBox(const Window& window) {
  return EqualIgnoringCase(window.className, "ComboBox") || EqualIgnoringCase(window.className, kComboBoxClass);
}

std::optional<std::int32_t> ComboBoxProcedure(std::int32_t hWnd, const Message& message, TextBuffer* buffer) {
  Window& combo = At(hWnd);
  const std::int32_t index = message.wParam;
  switch (message.number) {
    case CB_GETCOUNT:
      return static_cast<std::int32_t>(combo.entries.size());
    case CB_GETCURSEL:
      return combo.selection;
    case CB_GETLBTEXT:
      return HasEntry(combo, index) && buffer != nullptr ? CopyEntry(Entry(combo, index), *buffer) : kError;
    case CB_GETLBTEXTLEN:
      return HasEntry(combo, index) ? static_cast<std::int32_t>(Entry(combo, index).size()) : kError;
    case CB_FINDSTRING:
      return FindEntry(combo, index, message.text);
    case CB_SETCURSEL:
      return Select(combo, index);
    case WM_SETTEXT:
      if ((combo.style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST) return kError;
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace platform::simulated
