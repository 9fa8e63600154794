#include "list_view.h"

#include <commctrl.h>

#include "journal.h"
#include "look.h"

namespace standin {

namespace {

LRESULT CALLBACK KeyProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == WM_KEYDOWN && wParam == 'A' && GetKeyState(VK_CONTROL) < 0) {
    Journal("Liste " + std::to_string(GetDlgCtrlID(list)) + ": Strg+A");
    LVITEMA selected{};
    selected.state = selected.stateMask = LVIS_SELECTED;
    SendMessageA(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&selected));
    return 0;
  }
  return DefSubclassProc(list, message, wParam, lParam);
}

LRESULT CALLBACK ParameterProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == LVM_GETITEMW) reinterpret_cast<LVITEMW*>(lParam)->iItem = static_cast<int>(wParam);
  return DefSubclassProc(list, message, wParam, lParam);
}

}  // namespace

void AddColumn(HWND list, std::string title, int width) {
  LVCOLUMNA description{};
  description.mask = LVCF_TEXT | LVCF_WIDTH;
  description.pszText = title.data();
  description.cx = Scaled(width);
  HWND header = reinterpret_cast<HWND>(SendMessageA(list, LVM_GETHEADER, 0, 0));
  LRESULT end = SendMessageA(header, HDM_GETITEMCOUNT, 0, 0);
  SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(end), reinterpret_cast<LPARAM>(&description));
}

void AddRow(HWND list, const std::vector<std::string>& fields) {
  LVITEMA item{};
  item.mask = LVIF_TEXT;
  item.iItem = static_cast<int>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
  for (std::string text : fields) {
    item.pszText = text.data();
    SendMessageA(list, item.iSubItem == 0 ? LVM_INSERTITEMA : LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    ++item.iSubItem;
  }
}

std::string CellText(HWND list, int row, int column) {
  char text[260] = "";
  LVITEMA item{};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = sizeof text;
  SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return text;
}

void SelectAllByKey(HWND list) { SetWindowSubclass(list, KeyProcedure, 0, 0); }

void GoByFirstParameter(HWND list) { SetWindowSubclass(list, ParameterProcedure, 0, 0); }

}  // namespace standin
