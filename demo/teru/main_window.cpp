#include "main_window.h"

#include <commctrl.h>

#include "asset_accounting.h"
#include "books.h"
#include "client_list.h"
#include "client_record.h"
#include "export_dialog.h"
#include "journal.h"
#include "list_view.h"
#include "look.h"
#include "payments.h"

namespace teru {

using namespace standin;

namespace {

HMENU MainMenu() {
  HMENU file = CreatePopupMenu();
  AppendMenuA(file, MF_STRING, kIdMenuQuit, "&Beenden");
  HMENU client = CreatePopupMenu();
  AppendMenuA(client, MF_STRING, kIdMenuClientList, "Ö&ffnen...");
  AppendMenuA(client, MF_STRING, kIdMenuClientRecord, "&Stammdaten...");
  HMENU exports = CreatePopupMenu();
  AppendMenuA(exports, MF_STRING, kIdMenuExport, "&GDPdU-Export...");
  AppendMenuA(exports, MF_STRING, kIdMenuAssets, "&Anlagenbuchhaltung...");
  HMENU payments = CreatePopupMenu();
  AppendMenuA(payments, MF_STRING, kIdMenuPayments, "&Konten...");
  AppendMenuA(payments, MF_STRING, kIdMenuStatement, "&Umsätze...");
  HMENU bar = CreateMenu();
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), "&Datei");
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(client), "&Mandant");
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(exports), "&Export");
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(payments), "&Zahlungsverkehr");
  return bar;
}

void FillPostings(HWND list) {
  Table postings = Postings();
  constexpr int kWidths[] = {66, 76, 66, 44, 52, 74, 60, 168};
  const int* width = kWidths;
  for (const std::string& title : Fields(postings.heading)) AddColumn(list, title, *width++);
  for (const std::string& posting : postings.rows) AddRow(list, Fields(posting));
}

void AddControls(HWND window) {
  const Firm& firm = OurFirm();
  AddControl(window, "Static", ("Mandant:  " + firm.number + "  " + firm.name).c_str(), SS_NOPREFIX, -1, 12, 10, 420,
             16);
  AddControl(window, "Static", ("Berater:  " + firm.consultant).c_str(), 0, -1, 12, 30, 120, 16);
  AddControl(window, "Static", ("Wirtschaftsjahr:  01.01." + firm.year + " bis 31.12." + firm.year).c_str(), 0, -1, 140,
             30, 300, 16);
  HWND list = AddControl(window, WC_LISTVIEWA, "", LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, kIdPostings,
                         12, 56, 630, 320);
  SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  FillPostings(list);
}

// The caption ends in the module that the user works in.
void ShowModule(HWND window, const std::string& name) {
  const std::string caption = TextOf(window);
  SetWindowTextA(window, (caption.substr(0, caption.rfind('/') + 1) + name).c_str());
}

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == kIdMenuExport) {
        Journal("Menü: GDPdU-Export");
        ActivateExportDialog();
      } else if (LOWORD(wParam) == kIdMenuAssets) {
        Journal("Menü: Anlagenbuchhaltung");
        ShowModule(window, kAssetTitle);
        ActivateAssetAccounting(window);
      } else if (LOWORD(wParam) == kIdMenuClientRecord) {
        Journal("Menü: Stammdaten");
        ActivateClientRecord();
      } else if (LOWORD(wParam) == kIdMenuClientList) {
        Journal("Menü: Mandant öffnen");
        ActivateClientList();
      } else if (LOWORD(wParam) == kIdMenuPayments) {
        Journal("Menü: Zahlungsverkehr");
        ActivatePayments();
      } else if (LOWORD(wParam) == kIdMenuStatement) {
        Journal("Menü: Umsätze");
        ActivateStatement();
      } else if (LOWORD(wParam) == kIdMenuQuit) {
        Journal("Menü: Beenden");
        DestroyWindow(window);
      }
      return 0;
    case WM_DESTROY:
      Journal("Ende");
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

HWND OpenMainWindow(const std::string& caption) {
  HWND window = CreateForm(caption.c_str(), WS_OVERLAPPEDWINDOW, 30, 64, 654, 390, MainMenu(), MainProcedure);
  AddControls(window);
  ShowWindow(window, SW_SHOWNORMAL);
  return window;
}

}  // namespace teru
