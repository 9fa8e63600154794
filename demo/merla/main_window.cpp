#include "main_window.h"

#include <commctrl.h>

#include "asset_export.h"
#include "firm.h"
#include "journal.h"
#include "list_view.h"
#include "look.h"
#include "options.h"
#include "posting_export.h"
#include "year_dialog.h"

namespace merla {

using namespace standin;

namespace {

void AddMenu(HMENU bar, const char* title, std::initializer_list<std::pair<int, const char*>> entries) {
  HMENU menu = CreatePopupMenu();
  for (const auto& [id, text] : entries) AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(id), text);
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), title);
}

HMENU MainMenu() {
  HMENU bar = CreateMenu();
  AddMenu(bar, "&Datei", {{kIdMenuQuit, "&Beenden"}});
  AddMenu(bar, "&Stammdaten", {{kIdMenuYear, "&Wirtschaftsjahr wechseln..."}});
  AddMenu(bar, "&Export", {{kIdMenuAssets, "&Anlagen..."}, {kIdMenuPostings, "&Buchungen..."}});
  return bar;
}

void AddLabelled(HWND window, const char* label, const std::string& text, int id, int y, int width) {
  AddControl(window, "Static", label, 0, -1, 14, y + 4, 70, 16);
  AddControl(window, kTextBoxClass, text.c_str(), ES_READONLY | ES_AUTOHSCROLL | WS_TABSTOP, id, 88, y, width, 22);
}

// The business years in a table, for the user's eye.
void AddYears(HWND window) {
  HWND list = AddControl(window, WC_LISTVIEWA, "", LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, -1, 14, 80,
                         492, 124);
  AddColumn(list, "Wirtschaftsjahr", 150);
  AddColumn(list, "Beginn", 110);
  AddColumn(list, "Ende", 110);
  AddColumn(list, "Währung", 90);
  for (const BusinessYear& year : BusinessYears()) AddRow(list, {year.name, year.first, year.last, year.currency});
}

void Command(HWND window, int id) {
  switch (id) {
    case kIdMenuQuit:
      Journal("Menü: Beenden");
      DestroyWindow(window);
      break;
    case kIdMenuYear:
      Journal("Menü: Wirtschaftsjahr wechseln");
      OpenYearDialog(options.version);
      break;
    case kIdMenuAssets:
      Journal("Menü: Anlagen");
      OpenAssetDialog();
      break;
    case kIdMenuPostings:
      Journal("Menü: Buchungen");
      OpenPostingDialog();
      break;
  }
}

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      Command(window, LOWORD(wParam));
      return 0;
    case WM_DESTROY:
      Journal("Ende");
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

HWND OpenMainWindow() {
  HWND window = CreateForm(options.caption.c_str(), WS_OVERLAPPEDWINDOW, 60, 80, 520, 218, MainMenu(), MainProcedure);
  AddLabelled(window, "Mandant:", OurClient().number, kIdClientNumber, 14, 90);
  AddLabelled(window, "Name:", OurClient().name, kIdClientName, 44, 418);
  AddYears(window);
  ShowWindow(window, SW_SHOWNORMAL);
  return window;
}

}  // namespace merla
