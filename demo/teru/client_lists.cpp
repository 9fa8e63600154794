#include "client_lists.h"

#include <commctrl.h>

#include <vector>

#include "books.h"
#include "journal.h"
#include "list_view.h"
#include "look.h"

namespace teru {

using namespace standin;

namespace {

constexpr const char* kYears[] = {"2005", "2004", "2004 Rumpfjahr", "2003", "2002"};
constexpr const char* kCurrencies[] = {"EUR", "EUR in Tausend", "DEM"};

constexpr const char* kPartners[] = {
    "Grünbärtl, Xaver;Geschäftsführer;60,00",
    "Grünbärtl, Veronika;Prokuristin;20,00",
    "Grünbärtl, Änne;Gesellschafterin;10,00",
    // Longer than the 40 characters that are seen of a cell from outside.
    "Erbengemeinschaft Balthasar Grünbärtl, Tölz;Gesellschafter;7,50",
    "Rößler, Ludwig;Stiller Gesellschafter;2,50",
};

constexpr const char* kBankAccounts[] = {
    "Hausbank München;4711 0815",
    "Sparkasse Tölz;1 200 345",
    "Postbank;98 76 54 - 800",
};

HWND AddCombo(HWND frame, const char* windowClass, const char* label, int id, int y) {
  AddControl(frame, "Static", label, 0, -1, 12, y + 3, 84, 16);
  return AddControl(frame, windowClass, "", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, id, 100, y, 142, 160);
}

template <std::size_t count>
void AddEntries(HWND combo, const char* const (&entries)[count], int selected) {
  for (const char* entry : entries) SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
  SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

HWND AddList(HWND parent, int id, int x, int y, int width, int height, DWORD style) {
  HWND list = AddControl(parent, WC_LISTVIEWA, "", style | LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, id,
                         x, y, width, height);
  SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  return list;
}

HWND Partners(HWND form) { return GetDlgItem(form, kIdPartners); }
HWND BankAccounts(HWND form) { return GetDlgItem(GetDlgItem(form, kIdAccountFrame), kIdBankAccounts); }

std::string SelectedEntry(HWND combo) {
  char text[80] = "";
  GetWindowTextA(combo, text, sizeof text);
  return text;
}

void ShowPeriod(HWND frame) {
  std::string year = SelectedEntry(GetDlgItem(frame, kIdYear)).substr(0, 4);
  std::string period = year.empty() ? "" : "01.01." + year + " bis 31.12." + year;
  SetDlgItemTextA(frame, kIdPeriod, period.c_str());
}

}  // namespace

void AddYearFrame(HWND form, int x, int y) {
  HWND frame = AddControl(form, kFrameClass, "Wirtschaftsjahr", 0, kIdYearFrame, x, y, 254, 128);
  AddEntries(AddCombo(frame, "ComboBox", "&Jahr:", kIdYear, 20), kYears, 0);
  AddEntries(AddCombo(frame, kComboBoxClass, "&Währung:", kIdCurrency, 47), kCurrencies, 0);
  AddCombo(frame, kComboBoxClass, "&Zweigstelle:", kIdBranch, 74);
  AddControl(frame, "Static", "Zeitraum:", 0, -1, 12, 103, 64, 16);
  AddControl(frame, "Static", "", 0, kIdPeriod, 80, 103, 168, 16);
  ShowPeriod(frame);
}

void AddPartners(HWND form, int x, int y) {
  AddControl(form, "Static", "&Gesellschafter:", 0, -1, x, y, 500, 16);
  HWND list = AddList(form, kIdPartners, x, y + 20, 500, 116, 0);
  AddColumn(list, "Name", 286);
  AddColumn(list, "Stellung", 146);
  AddColumn(list, "Anteil %", 64);
  SelectAllByKey(list);
}

void AddBankAccounts(HWND form, int x, int y) {
  HWND frame = AddControl(form, kFrameClass, "Bankverbindungen", 0, kIdAccountFrame, x, y, 254, 136);
  HWND list = AddList(frame, kIdBankAccounts, 12, 22, 230, 102, 0);
  AddColumn(list, "Bank", 120);
  AddColumn(list, "Konto", 108);
  SelectAllByKey(list);
  GoByFirstParameter(list);
}

void FillLists(HWND form) {
  ClearLists(form);
  for (const char* partner : kPartners) AddRow(Partners(form), Fields(partner));
  for (const char* account : kBankAccounts) AddRow(BankAccounts(form), Fields(account));
}

void ClearLists(HWND form) {
  SendMessageA(Partners(form), LVM_DELETEALLITEMS, 0, 0);
  SendMessageA(BankAccounts(form), LVM_DELETEALLITEMS, 0, 0);
}

std::string PartnersAsText(HWND form) {
  HWND list = Partners(form);
  std::string text;
  int rows = static_cast<int>(SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
  for (int row = 0; row < rows; ++row) {
    text += CellText(list, row, 0) + "\t" + CellText(list, row, 1) + "\t" + CellText(list, row, 2) + "\r\n";
  }
  return text;
}

bool ReceiveFromList(HWND form, int id, int notification, HWND control) {
  if (id < kIdYear || id > kIdBranch) return false;
  if (notification != CBN_SELCHANGE && notification != CBN_SELENDOK) return true;
  Journal("Auswahl " + std::to_string(id) + ", Mitteilung " + std::to_string(notification) + ": " +
          SelectedEntry(control));
  if (id == kIdYear && notification == CBN_SELENDOK) ShowPeriod(GetDlgItem(form, kIdYearFrame));
  return true;
}

void ReceiveFromListView(const NMHDR* notification) {
  if (notification->code == static_cast<UINT>(NM_SETFOCUS)) Journal("Fokus " + std::to_string(notification->idFrom));
  if (notification->code != static_cast<UINT>(LVN_ITEMCHANGED)) return;
  auto* change = reinterpret_cast<const NMLISTVIEW*>(notification);
  bool selected = (change->uNewState & LVIS_SELECTED) && !(change->uOldState & LVIS_SELECTED);
  if (!selected) return;
  Journal("Liste " + std::to_string(notification->idFrom) + ": " + CellText(notification->hwndFrom, change->iItem, 0));
}

}  // namespace teru
