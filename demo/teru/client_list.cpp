#include "client_list.h"

#include <commctrl.h>

#include <vector>

#include "books.h"
#include "income_tax_export.h"
#include "journal.h"
#include "list_view.h"
#include "look.h"
#include "message_boxes.h"

namespace teru {

int clientCount = 0;

using namespace standin;

namespace {

constexpr int kNameColumn = 1;
constexpr int kNumberColumn = 3;
constexpr int kLastClient = 2;

constexpr const char* kClients[] = {
    "ALTHOFF;Althoff, Margarete;München;99;5099",         "HOEFNER;Höfner, Dr. Jürgen;Landshut;100;5100",
    "LOEWE;Löwe, Änne und Karl;Starnberg;120;5110",       "MOESLANG;Möslang, Xaver;Bad Tölz;150;5120",
    "ROESSLER;Rößler, Ludwig;Würzburg;180;5130",          "UEBEL;Übelacker, Franziska;Augsburg;200;5140",
    "WOESSNER;Wößner, Erbengemeinschaft;Dachau;201;5150", "ZIRNGIBL;Zirngibl, Bartholomäus;Ingolstadt;350;5160",
};

HWND dialog = nullptr;
HWND list = nullptr;

void Fill() {
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  if (clientCount == 0) {
    for (const char* client : kClients) AddRow(list, Fields(client));
  }
  for (int i = 0; i < clientCount; ++i) {
    std::string number = std::to_string(10000 + i);
    AddRow(list, {"M" + number, "Mandant Nr. " + number, "München", number, std::to_string(50000 + i)});
  }
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

// The client worked on last is marked, as a click would mark it.
void MarkLastClient() {
  ListView_SetItemState(list, kLastClient, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  ListView_SetSelectionMark(list, kLastClient);
}

void OpenClient() {
  int row = ListView_GetNextItem(list, -1, LVNI_SELECTED);
  if (row < 0) {
    Report(dialog, "Bitte wählen Sie einen Mandanten.", MB_ICONWARNING);
    return;
  }
  std::string number = CellText(list, row, kNumberColumn);
  Journal("Mandant: " + number);
  OpenIncomeTaxExport(number, CellText(list, row, kNameColumn));
}

void AddControls() {
  list = AddControl(dialog, WC_LISTVIEWA, "", LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP,
                    kIdClientList, 12, 12, 540, 200);
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT);
  AddColumn(list, "Kurzname", 96);
  AddColumn(list, "Name", 190);
  AddColumn(list, "Ort", 90);
  AddColumn(list, "Mandant", 68);
  AddColumn(list, "Basisnr.", 68);
  Fill();
  MarkLastClient();
  AddControl(dialog, kButtonClass, "Ö&ffnen", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdOpenClient, 340, 224, 102, 26);
  AddControl(dialog, kButtonClass, "&Schließen", WS_TABSTOP, kIdCloseClientList, 450, 224, 102, 26);
}

LRESULT CALLBACK ClientListProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wParam) != BN_CLICKED) return 0;
      if (LOWORD(wParam) == kIdOpenClient) {
        Journal("Schaltfläche: Öffnen");
        OpenClient();
      } else if (LOWORD(wParam) == kIdCloseClientList || LOWORD(wParam) == IDCANCEL) {
        Journal("Schaltfläche: Schließen");
        DestroyWindow(window);
      }
      return 0;
    case WM_DESTROY:
      dialog = nullptr;
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

void ActivateClientList() {
  if (dialog == nullptr) {
    dialog = CreateForm(kClientListTitle, WS_CAPTION | WS_SYSMENU, 120, 150, 564, 262, nullptr, ClientListProcedure);
    AddControls();
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
  SetForegroundWindow(dialog);
  SetFocus(list);
}

}  // namespace teru
