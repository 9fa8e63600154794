#include "automation/list_views.h"

#include <array>
#include <limits>

#include "automation/SharedMemory.h"
#include "automation/control_address.h"
#include "automation/state.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/process_memory.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/code_page.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;
using SharedMemory::AllocateForeign;
using SharedMemory::AllocateShared;
using SharedMemory::FreeForeign;
using SharedMemory::FreeShared;

const std::string kListClass = "SysListView32";
const std::string kUnknown = "<unbekannt>";

// The record of the messages.
struct ListItem {
  std::uint32_t mask = 0;
  std::int32_t iItem = 0;
  std::int32_t iSubItem = 0;
  std::uint32_t state = 0;
  std::uint32_t stateMask = 0;
  std::int32_t pszText = 0;
  std::int32_t cchTextMax = 0;
  std::int32_t iImage = 0;
  std::int32_t lParam = 0;
  std::int32_t iIndent = 0;
};
static_assert(sizeof(ListItem) == 40);

constexpr std::uint32_t kTextWanted = 1;
constexpr std::uint32_t kFocusedAndSelected = 3;

// The text buffer: 80 characters, of two bytes in the NT family's list and of one byte in the 9x family's.
constexpr std::int32_t kCharacters = 80;
using WideBuffer = std::array<char16_t, kCharacters>;
using NarrowBuffer = std::array<char, kCharacters>;

std::uint32_t ProcessOf(std::int32_t hWnd) {
  std::uint32_t process = 0;
  platform::GetWindowThreadProcessId(hWnd, process);
  return process;
}

void Write(std::int32_t hProcess, std::int32_t address, const void* data, std::size_t size) {
  std::uint32_t written = 0;
  platform::WriteProcessMemory(hProcess, address, data, static_cast<std::uint32_t>(size), written);
}

std::int32_t CountRows(std::int32_t list) { return platform::SendMessageA(list, platform::LVM_GETITEMCOUNT, 0, 0); }

// A record and a text buffer inside the list's process.
class ForeignCell {
 public:
  explicit ForeignCell(std::int32_t list)
      : list_(list),
        record_(AllocateForeign(ProcessOf(list), sizeof(ListItem), recordProcess_)),
        text_(AllocateForeign(ProcessOf(list), sizeof(WideBuffer), textProcess_)) {}

  std::string Read(std::int32_t row, std::int32_t column) {
    const ListItem item = {
        .mask = kTextWanted, .iItem = row, .iSubItem = column, .pszText = text_, .cchTextMax = kCharacters};
    WideBuffer buffer = {};
    Write(recordProcess_, record_, &item, sizeof item);
    Write(textProcess_, text_, buffer.data(), sizeof buffer);
    // The row stands in the record alone. The 0 is deliberate: the message is the one that goes by the record.
    platform::SendMessageA(list_, platform::LVM_GETITEMTEXTW, 0, record_);
    std::uint32_t read = 0;
    platform::ReadProcessMemory(textProcess_, text_, buffer.data(), sizeof buffer, read);
    // Only the first 80 of the 160 bytes count.
    return StripNull(runtime::FromUtf16({buffer.data(), kCharacters / 2}));
  }

  void Free() {
    FreeForeign(recordProcess_, record_, sizeof(ListItem));
    FreeForeign(textProcess_, text_, sizeof(WideBuffer));
  }

 private:
  std::int32_t list_;
  std::int32_t recordProcess_ = 0;
  std::int32_t textProcess_ = 0;
  std::int32_t record_;
  std::int32_t text_;
};

// A record and a text buffer that every process sees. They are filled once, so the column is always the first and a row
// that has gone leaves the text of the row before it.
class SharedCell {
 public:
  explicit SharedCell(std::int32_t list)
      : list_(list),
        record_(AllocateShared(sizeof(ListItem), recordMapping_)),
        text_(AllocateShared(sizeof(NarrowBuffer), textMapping_)) {
    // Larger than the buffer behind it; the program sets it so.
    constexpr std::int32_t kStatedCharacters = 800;
    const ListItem item = {.pszText = text_, .cchTextMax = kStatedCharacters};
    const NarrowBuffer buffer = {};
    platform::RtlMoveMemory(record_, &item, sizeof item);
    platform::RtlMoveMemory(text_, buffer.data(), sizeof buffer);
  }

  std::string Read(std::int32_t row) {
    NarrowBuffer buffer = {};
    platform::SendMessageA(list_, platform::LVM_GETITEMTEXTA, row, record_);
    platform::RtlMoveMemory(buffer.data(), text_, sizeof buffer);
    return StripNull({buffer.data(), buffer.size()});
  }

  void Free() {
    FreeShared(recordMapping_, record_);
    FreeShared(textMapping_, text_);
  }

 private:
  std::int32_t list_;
  std::int32_t recordMapping_ = 0;
  std::int32_t textMapping_ = 0;
  std::int32_t record_;
  std::int32_t text_;
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
void SendWithBytes(std::int32_t hWnd, std::uint32_t message, std::int32_t wParam, const void* bytes,
                   std::int32_t size) {
  if (SharedMemory::IsWindowsNT()) {
    std::int32_t process = 0;
    const std::int32_t address = AllocateForeign(ProcessOf(hWnd), size, process);
    Write(process, address, bytes, static_cast<std::size_t>(size));
    platform::SendMessageA(hWnd, message, wParam, address);
    FreeForeign(process, address, size);
  } else {
    std::int32_t mapping = 0;
    const std::int32_t address = AllocateShared(size, mapping);
    platform::RtlMoveMemory(address, bytes, static_cast<std::uint32_t>(size));
    platform::SendMessageA(hWnd, message, wParam, address);
    FreeShared(mapping, address);
  }
}

}  // namespace

bool SelectList(const std::string& id, const std::string& window, const std::string& exact, const std::string& text) {
  return Standard("SelectList", [&] {
    const ControlAddress address{window, exact, text, kListClass, id};
    const std::int32_t hWindow = FindAddressedWindow(address);
    const std::int32_t list = FindDescendant(hWindow, address);
    if (list == 0) {
      run.LastError = Text(TextId::ListNotSelected) + " " + std::to_string(hWindow);
      return false;
    }
    const std::int32_t mark = platform::SendMessageA(list, platform::LVM_GETSELECTIONMARK, 0, 0);
    const std::int32_t count = CountRows(list);
    if (count <= 0) return false;
    constexpr std::int32_t kCurrentClientOnly = 2;
    if (clients.InputState == kCurrentClientOnly) automation.ListIndex = mark;
    const ListItem item = {
        .iItem = automation.ListIndex, .state = kFocusedAndSelected, .stateMask = kFocusedAndSelected};
    SendWithBytes(list, platform::LVM_SETITEMSTATE, automation.ListIndex, &item, sizeof item);
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
    if (list == 0) {
      run.LastError = Text(TextId::ValueNotInList, value);
      return false;
    }
    // The list sees the question; the answer is not used.
    platform::SendMessageA(list, platform::LVM_GETSELECTEDCOUNT, 0, 0);
    const std::int32_t count = CountRows(list);
    if (count <= 0) return false;
    if (!FindValue(list, count, value)) {
      run.LastError = Text(TextId::ValueNotInList, value);
      return false;
    }
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
    // No NUL is counted: the cleared page ends the path.
    const auto length = static_cast<std::int32_t>(path.size());
    // A block that nobody uses or frees; the program keeps it so. The 9x family, which has none to give, goes on.
    std::int32_t givenUp = 0;
    runtime::Skip([&] { AllocateForeign(ProcessOf(hWindow), length, givenUp); });
    constexpr std::int32_t kIsPath = -1;
    SendWithBytes(hWindow, platform::BFFM_SETSELECTIONA, kIsPath, path.data(), length);
    result = runtime::TruthText(true);
    return true;
  });
  return result;
}

}  // namespace basMain
