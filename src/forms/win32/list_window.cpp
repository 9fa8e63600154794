#include "forms/win32/list_window.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <vector>

#include "forms/win32/dialog_font.h"
#include "forms/win32/message_loop.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"
// Behind them, on which it stands.
#include <commctrl.h>

namespace forms::win32 {

namespace {

HWND WindowOf(const ListView& list) { return platform::HandleOf<HWND>(list.now.handle); }

int Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return static_cast<int>(::SendMessageA(window, message, wParam, lParam));
}

const std::string& TextOf(const ListItem& item, std::size_t column) {
  return column == 0 ? item.text : item.subItems[column - 1];
}

// What the system keeps free.
int SpaceBesideText() { return 2 * TheDialogFont().averageWidth; }

int WidestText(const ListView& list, std::size_t column) {
  int widest = WidthOfText(list.columns[column]);
  for (const ListItem& item : list.Items()) widest = std::max(widest, WidthOfText(TextOf(item, column)));
  const int box = column == 0 ? ::GetSystemMetrics(SM_CXSMICON) : 0;
  return box + widest + SpaceBesideText();
}

// Widths that the columns of the lists on show ask for, in pixels. Measuring takes a while where there are many items.
std::map<const ListView*, std::vector<int>> wantedWidths;

// Beside the bar that scrolls through the items, whether it is there already or comes up with them.
int RoomForColumns(const ListView& list) {
  const HWND window = WindowOf(list);
  RECT room = {};
  ::GetClientRect(window, &room);
  const bool hasBar = (::GetWindowLongA(window, GWL_STYLE) & WS_VSCROLL) != 0;
  const bool getsBar = static_cast<int>(list.Items().size()) > Ask(window, LVM_GETCOUNTPERPAGE);
  return room.right - (getsBar && !hasBar ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
}

// The widest columns give way to the others, so that all can be seen; what is left over the last one takes.
std::vector<int> FittedTo(int room, std::vector<int> widths) {
  std::vector<int> ascending = widths;
  std::sort(ascending.begin(), ascending.end());
  int left = std::max(room, 0);
  int columns = static_cast<int>(widths.size());
  for (const int width : ascending) {
    const int share = left / columns--;
    if (width > share) {
      for (int& each : widths) each = std::min(each, share);
      break;
    }
    left -= width;
  }
  widths.back() += std::max(room - std::accumulate(widths.begin(), widths.end(), 0), 0);
  return widths;
}

// What the list shows in one cell.
void FillCell(const ListView& list, LVITEMA& cell) {
  const auto row = static_cast<std::size_t>(cell.iItem);
  const auto column = static_cast<std::size_t>(cell.iSubItem);
  if (row >= list.Items().size() || column >= list.columns.size()) return;
  const ListItem& item = list.Items()[row];
  if ((cell.mask & LVIF_TEXT) != 0) ::lstrcpynA(cell.pszText, TextOf(item, column).c_str(), cell.cchTextMax);
  if ((cell.mask & LVIF_STATE) != 0) cell.state = INDEXTOSTATEIMAGEMASK(item.checked ? 2 : 1);
}

void Toggle(ListView& list, int item) {
  if (item >= 0) Raise([&list, item] { list.ToggleByUser(static_cast<std::size_t>(item)); });
}

// The item whose box is at this point, or -1.
int BoxAt(HWND window, LPARAM point) {
  LVHITTESTINFO hit = {};
  hit.pt = {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
  const int item = Ask(window, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON ? item : -1;
}

WNDPROC originalProcedure = nullptr;

// A list that holds no items leaves its boxes to us. Two quick clicks on a box are two clicks.
LRESULT CALLBACK ListProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  ListView& list = *platform::HandleOf<ListView*>(::GetWindowLongA(window, GWL_USERDATA));
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (const int item = BoxAt(window, lParam); item >= 0) {
        ::SetFocus(window);
        Toggle(list, item);
        return 0;
      }
      break;
    case WM_KEYDOWN:
      if (wParam != VK_SPACE) break;
      Toggle(list, Ask(window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
      return 0;
    case WM_CHAR:  // would look for an item that begins so
      return 0;
    default:
      break;
  }
  return ::CallWindowProcA(originalProcedure, window, message, wParam, lParam);
}

void SetState(HWND window, std::size_t item, UINT state) {
  LVITEMA change = {};
  change.state = change.stateMask = state;
  Ask(window, LVM_SETITEMSTATE, item, reinterpret_cast<LPARAM>(&change));
}

}  // namespace

void PrepareList(ListView& list) {
  wantedWidths.erase(&list);  // of a window that has gone
  const HWND window = WindowOf(list);
  ::SetWindowLongA(window, GWL_USERDATA, platform::NumberOf(&list));
  originalProcedure =
      platform::HandleOf<WNDPROC>(::SetWindowLongA(window, GWL_WNDPROC, platform::NumberOf(ListProcedure)));
  constexpr LPARAM kStyle = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT;
  Ask(window, LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  Ask(window, LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
  for (std::size_t i = 0; i < list.columns.size(); ++i) {
    std::string heading = list.columns[i];
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = heading.data();
    column.iSubItem = static_cast<int>(i);
    Ask(window, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
  }
}

Extent ExtentOfList(const ListView& list, int characters, int lines) {
  const int line =
      std::max(TheDialogFont().lineHeight, ::GetSystemMetrics(SM_CYSMICON)) + ::GetSystemMetrics(SM_CYEDGE);
  RECT headings = {};
  ::GetWindowRect(platform::HandleOf<HWND>(Ask(WindowOf(list), LVM_GETHEADER)), &headings);
  const int headingHeight = std::max<int>(headings.bottom - headings.top, line);
  return {
      characters * TheDialogFont().averageWidth + ::GetSystemMetrics(SM_CXVSCROLL) + 2 * ::GetSystemMetrics(SM_CXEDGE),
      headingHeight + lines * line + 2 * ::GetSystemMetrics(SM_CYEDGE)};
}

void ShowItems(const ListView& list) {
  Ask(WindowOf(list), LVM_SETITEMCOUNT, list.Items().size());
  std::vector<int>& wanted = wantedWidths[&list];
  wanted.clear();
  for (std::size_t i = 0; i < list.columns.size(); ++i) wanted.push_back(WidestText(list, i));
  FitColumns(list);
  if (!list.Items().empty()) SetState(WindowOf(list), 0, LVIS_FOCUSED);  // where the keys begin
}

void FitColumns(const ListView& list) {
  const auto wanted = wantedWidths.find(&list);
  if (wanted == wantedWidths.end()) return;
  const std::vector<int> widths = FittedTo(RoomForColumns(list), wanted->second);
  for (std::size_t i = 0; i < widths.size(); ++i) Ask(WindowOf(list), LVM_SETCOLUMNWIDTH, i, MAKELPARAM(widths[i], 0));
}

void ShowItemCount(const ListView& list) {
  if (::IsWindowVisible(WindowOf(list))) Ask(WindowOf(list), LVM_SETITEMCOUNT, list.Items().size(), LVSICF_NOSCROLL);
}

void ShowItem(const ListView& list, std::size_t item) {
  const HWND window = WindowOf(list);
  if (!::IsWindowVisible(window)) return;
  // A change of all items must not cost a message to the system for each.
  const int row = static_cast<int>(item);
  const int first = Ask(window, LVM_GETTOPINDEX);
  if (row < first || row > first + Ask(window, LVM_GETCOUNTPERPAGE)) return;
  Ask(window, LVM_REDRAWITEMS, item, static_cast<LPARAM>(item));
}

void ShowSelection(const ListView& list, std::size_t item) {
  SetState(WindowOf(list), item, LVIS_SELECTED | LVIS_FOCUSED);
}

void ScrollToItem(const ListView& list, std::size_t item) { Ask(WindowOf(list), LVM_ENSUREVISIBLE, item, FALSE); }

void OnListNotification(ListView& list, void* record) {
  switch (static_cast<NMHDR*>(record)->code) {
    case LVN_GETDISPINFOA:
      FillCell(list, static_cast<NMLVDISPINFOA*>(record)->item);
      break;
    case LVN_ITEMCHANGED: {
      const auto& change = *static_cast<NMLISTVIEW*>(record);
      const bool selected = (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
      const int item = change.iItem;
      if (selected && item >= 0) Raise([&list, item] { list.SelectByUser(static_cast<std::size_t>(item)); });
      break;
    }
    case NM_DBLCLK:
      if (list.events.DblClick) Raise(list.events.DblClick);
      break;
    default:
      break;
  }
}

bool ColumnsFit(const ListView& list) {
  RECT room = {};
  ::GetClientRect(WindowOf(list), &room);
  int left = room.right;
  for (std::size_t i = 0; i < list.columns.size(); ++i) {
    const int width = Ask(WindowOf(list), LVM_GETCOLUMNWIDTH, i);
    if (width < WidestText(list, i)) return false;
    left -= width;
  }
  return left >= 0;
}

}  // namespace forms::win32
