#include "automation/list_views.h"

#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "automation/control_address.h"
#include "automation/foreign_block.h"
#include "automation/state.h"
#include "automation/windows_version.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "resources/texts.h"
#include "runtime/code_page.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

const std::string kListClass = "SysListView32";
const std::string kUnknown = "<unbekannt>";

constexpr std::uint32_t kFocusedAndSelected = platform::LVIS_FOCUSED | platform::LVIS_SELECTED;

// The text buffer: 80 characters, of two bytes in the NT family's list and of one byte in the 9x family's.
constexpr std::int32_t kCharacters = 80;
using WideBuffer = std::array<char16_t, kCharacters>;
using NarrowBuffer = std::array<char, kCharacters>;

template <class Record>
std::span<const std::byte> BytesOf(const Record& record) {
  return std::as_bytes(std::span(&record, 1));
}

std::int32_t CountRows(std::int32_t list) { return platform::SendMessageA(list, platform::LVM_GETITEMCOUNT, 0, 0); }

// A record and a text buffer inside the list's process.
class ForeignCell {
 public:
  explicit ForeignCell(std::int32_t list)
      : list_(list), record_(true, list, sizeof(platform::LVITEM)), text_(true, list, sizeof(WideBuffer)) {}

  std::string Read(std::int32_t row, std::int32_t column) const {
    const platform::LVITEM item = {.mask = platform::LVIF_TEXT,
                                   .iItem = row,
                                   .iSubItem = column,
                                   .pszText = text_.Address(),
                                   .cchTextMax = kCharacters};
    WideBuffer buffer = {};
    record_.Write(BytesOf(item));
    text_.Write(BytesOf(buffer));
    // The row stands in the record alone. The 0 is deliberate: the message is the one that goes by the record.
    platform::SendMessageA(list_, platform::LVM_GETITEMTEXTW, 0, record_.Address());
    text_.Read(std::as_writable_bytes(std::span(buffer)));
    // Only the first 80 of the 160 bytes count.
    return StripNull(runtime::FromUtf16({buffer.data(), kCharacters / 2}));
  }

  void Free() const {
    record_.Free();
    text_.Free();
  }

 private:
  std::int32_t list_;
  ForeignBlock record_;
  ForeignBlock text_;
};

// A record and a text buffer that every process sees. They are filled once, so the column is always the first and a row
// that has gone leaves the text of the row before it.
class SharedCell {
 public:
  explicit SharedCell(std::int32_t list)
      : list_(list), record_(false, list, sizeof(platform::LVITEM)), text_(false, list, sizeof(NarrowBuffer)) {
    // Larger than the buffer behind it; the program sets it so.
    constexpr std::int32_t kStatedCharacters = 800;
    record_.Write(BytesOf(platform::LVITEM{.pszText = text_.Address(), .cchTextMax = kStatedCharacters}));
    text_.Write(BytesOf(NarrowBuffer{}));
  }

  std::string Read(std::int32_t row) const {
    NarrowBuffer buffer = {};
    platform::SendMessageA(list_, platform::LVM_GETITEMTEXTA, row, record_.Address());
    text_.Read(std::as_writable_bytes(std::span(buffer)));
    return StripNull({buffer.data(), buffer.size()});
  }

  void Free() const {
    record_.Free();
    text_.Free();
  }

 private:
  std::int32_t list_;
  ForeignBlock record_;
  ForeignBlock text_;
};

// True when the text of some row is the value. The row number is 16 bits wide.
template <class ReadRow>
bool AnyRow(std::int32_t count, const std::string& value, ReadRow readRow) {
  const std::int32_t last = runtime::ToInteger(count - 1.0);
  for (std::int32_t row = 0; row <= last; ++row)
    if (readRow(row) == value) return true;
  return false;
}

bool FindValue(std::int32_t list, std::int32_t count, const std::string& value) {
  bool found = false;
  if (SharedMemory::IsWindowsNT()) {
    ForeignCell cell(list);
    found = AnyRow(count, value, [&](std::int32_t row) { return cell.Read(row, 0); });
    cell.Free();
  } else {
    SharedCell cell(list);
    found = AnyRow(count, value, [&](std::int32_t row) {
      const std::string text = cell.Read(row);
      LogWrite("ReadListItem " + text);
      return text;
    });
    cell.Free();
  }
  return found;
}

std::string ReadCell(std::int32_t list, std::int32_t row, std::int32_t column) {
  std::string text;
  if (SharedMemory::IsWindowsNT()) {
    ForeignCell cell(list);
    text = cell.Read(row, column);
    LogWrite("GetListItemText " + text + "(" + std::to_string(row) + ")");
    cell.Free();
  } else {
    SharedCell cell(list);
    text = cell.Read(row);
    cell.Free();
  }
  return text;
}

// Sends a message whose second parameter is the address of these bytes, in memory that the window's process can reach.
void SendWithBytes(std::int32_t hWnd, std::uint32_t message, std::int32_t wParam, std::span<const std::byte> bytes) {
  const ForeignBlock block(SharedMemory::IsWindowsNT(), hWnd, bytes.size());
  block.Write(bytes);
  platform::SendMessageA(hWnd, message, wParam, block.Address());
  block.Free();
}

}  // namespace

bool SelectList(const std::string& id, const std::string& window, const std::string& exact, const std::string& text) {
  return Standard("SelectList", [&] {
    const ControlAddress address{window, exact, text, kListClass, id};
    const std::int32_t hWindow = FindAddressedWindow(address);
    const std::int32_t list = FindDescendant(hWindow, address);
    if (list == 0) return Fail(Text(TextId::ListNotSelected) + " " + std::to_string(hWindow));
    const std::int32_t mark = platform::SendMessageA(list, platform::LVM_GETSELECTIONMARK, 0, 0);
    const std::int32_t count = CountRows(list);
    if (count <= 0) return false;
    constexpr std::int32_t kCurrentClientOnly = 2;
    if (clients.InputState == kCurrentClientOnly) automation.ListIndex = mark;
    const platform::LVITEM item = {
        .iItem = automation.ListIndex, .state = kFocusedAndSelected, .stateMask = kFocusedAndSelected};
    SendWithBytes(list, platform::LVM_SETITEMSTATE, automation.ListIndex, BytesOf(item));
    automation.ListCount = count;
    if (automation.ListIndex == std::numeric_limits<std::int32_t>::max())
      throw runtime::Fault(runtime::FaultNumber::Overflow);
    ++automation.ListIndex;
    LogWrite("SelectList " + std::to_string(automation.ListIndex));
    return true;
  });
}

bool ReadListItem(const std::string& value, const std::string& id, const std::string& window,
                  const std::string& exact) {
  return Standard("ReadListItem", [&] {
    const ControlAddress address{window, exact, "", kListClass, id};
    const std::int32_t list = FindDescendant(FindAddressedWindow(address), address);
    if (list == 0) return Fail(Text(TextId::ValueNotInList, value));
    // The list sees the question; the answer is not used.
    platform::SendMessageA(list, platform::LVM_GETSELECTEDCOUNT, 0, 0);
    const std::int32_t count = CountRows(list);
    if (count <= 0) return false;
    if (!FindValue(list, count, value)) return Fail(Text(TextId::ValueNotInList, value));
    LogWrite(Text(TextId::ValueInList, value));
    return true;
  });
}

std::string GetListItemText(std::int32_t column, const std::string& id, const std::string& window,
                            const std::string& exact, const std::string& cls) {
  std::string result;
  Standard("GetListItemText", [&] {
    const ControlAddress address{window, exact, "", cls.empty() ? kListClass : cls, id};
    const std::int32_t list = FindDescendant(FindAddressedWindow(address), address);
    if (list == 0) {
      run.LastError = "GetListItemText: Steuerelement konnte nicht gefunden werden.";
      result = kUnknown;
      return false;
    }
    if (CountRows(list) <= 0) return true;
    const std::string text = ReadCell(list, automation.ListIndex - 1, column);
    result = text.empty() ? kUnknown : text;
    return true;
  });
  return result;
}

bool GetAnlList(const std::string& column, const std::string& id, const std::string& window, const std::string& cls) {
  runtime::Skip([&] { LogWrite(GetListItemText(runtime::ToLong(column), id, window, "", cls)); });
  return true;
}

std::string SetFolderPath(const std::string& window, const std::string& exact, const std::string& path) {
  std::string result;
  Standard("SetFolderPath", [&] {
    const std::int32_t hWindow = FindAddressedWindow({window, exact});
    LogWrite(path);
    // A block that nobody uses or frees; the program keeps it so. The 9x family, which has none to give, goes on.
    runtime::Skip([&] { ForeignBlock(true, hWindow, path.size()); });
    constexpr std::int32_t kIsPath = -1;
    // No NUL is counted: the cleared page ends the path.
    SendWithBytes(hWindow, platform::BFFM_SETSELECTIONA, kIsPath, std::as_bytes(std::span(path)));
    result = runtime::TruthText(true);
    return true;
  });
  return result;
}

}  // namespace basMain
