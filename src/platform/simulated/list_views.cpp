// List views in report form: rows of columns, each row with its state. The record of a message lies in the memory of
// the list's own process; one that lies elsewhere is not answered.
#include <algorithm>

#include "platform/simulated/controls.h"
#include "platform/simulated/memory.h"
#include "runtime/code_page.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

std::optional<LVITEM> RecordOf(const Window& list, std::int32_t address) {
  LVITEM record;
  if (!ReadMemory(list.process, address, &record, sizeof record)) return std::nullopt;
  return record;
}

bool HasRow(const Window& list, std::int32_t row) {
  return row >= 0 && static_cast<std::size_t>(row) < list.rows.size();
}

std::string CellText(const Window& list, std::int32_t row, std::int32_t column) {
  const auto& columns = list.rows[static_cast<std::size_t>(row)].columns;
  return column >= 0 && static_cast<std::size_t>(column) < columns.size() ? columns[static_cast<std::size_t>(column)]
                                                                          : "";
}

// Puts the text, cut to the record's room, and a NUL into the record's buffer.
template <class Text>
bool GiveText(const Window& list, const LVITEM& record, Text text) {
  if (record.cchTextMax <= 0) return false;
  text = text.substr(0, static_cast<std::size_t>(record.cchTextMax) - 1);
  return WriteMemory(list.process, record.pszText, text.c_str(), (text.size() + 1) * sizeof(text[0]));
}

bool GetItemW(const Window& list, std::int32_t parameter, const LVITEM& record) {
  const std::int32_t row = list.rowFromParameter ? parameter : record.iItem;
  if (!HasRow(list, row)) return false;
  return (record.mask & LVIF_TEXT) == 0 ||
         GiveText(list, record, runtime::ToUtf16(CellText(list, row, record.iSubItem)));
}

std::int32_t GetItemTextA(const Window& list, std::int32_t row, const LVITEM& record) {
  if (!HasRow(list, row)) return 0;
  const std::string text = CellText(list, row, record.iSubItem);
  if (!GiveText(list, record, text)) return 0;
  return std::min(static_cast<std::int32_t>(text.size()), record.cchTextMax - 1);
}

void TakeStateFromAll(Window& list, std::uint32_t state) {
  for (ListRow& row : list.rows) row.state &= ~state;
}

void ChangeState(ListRow& row, const LVITEM& record) {
  row.state = (row.state & ~record.stateMask) | (record.state & record.stateMask);
}

bool IsSelected(const ListRow& row) { return (row.state & LVIS_SELECTED) != 0; }

bool SetStateOfAll(Window& list, const LVITEM& record) {
  const std::uint32_t set = record.state & record.stateMask;
  const bool single = (list.style & LVS_SINGLESEL) != 0;
  if ((set & LVIS_FOCUSED) != 0 || (single && (set & LVIS_SELECTED) != 0)) return false;
  for (ListRow& row : list.rows) ChangeState(row, record);
  return true;
}

// One row can have the focus, and in a list of single selection one can be selected. The first selection is marked;
// later ones move the mark only when the user makes them.
bool SetStateOfRow(Window& list, std::int32_t row, const LVITEM& record) {
  if (!HasRow(list, row)) return false;
  const std::uint32_t set = record.state & record.stateMask;
  const bool single = (list.style & LVS_SINGLESEL) != 0;
  TakeStateFromAll(list, single ? set : set & LVIS_FOCUSED);
  ChangeState(list.rows[static_cast<std::size_t>(row)], record);
  if (list.selectionMark == -1 && (set & LVIS_SELECTED) != 0) list.selectionMark = row;
  return true;
}

bool SetItemState(Window& list, std::int32_t row, const LVITEM& record) {
  return row == -1 ? SetStateOfAll(list, record) : SetStateOfRow(list, row, record);
}

std::int32_t CountSelected(const Window& list) {
  return static_cast<std::int32_t>(std::ranges::count_if(list.rows, IsSelected));
}

}  // namespace

bool IsListView(const Window& window) {
  return runtime::EqualIgnoringCase(window.className, "SysListView32") || !window.rows.empty();
}

std::optional<std::int32_t> ListViewProcedure(std::int32_t hWnd, const Message& message) {
  Window& list = At(hWnd);
  const auto record = RecordOf(list, message.lParam);
  switch (message.number) {
    case LVM_GETITEMCOUNT:
      return static_cast<std::int32_t>(list.rows.size());
    case LVM_GETSELECTEDCOUNT:
      return CountSelected(list);
    case LVM_GETSELECTIONMARK:
      return list.selectionMark;
    case LVM_SETITEMSTATE:
      return record && SetItemState(list, message.wParam, *record);
    case LVM_GETITEMTEXTA:
      return record ? GetItemTextA(list, message.wParam, *record) : 0;
    case LVM_GETITEMTEXTW:
      return record && GetItemW(list, message.wParam, *record);
    default:
      return std::nullopt;
  }
}

}  // namespace platform::simulated
