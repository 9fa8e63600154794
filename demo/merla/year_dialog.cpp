#include "year_dialog.h"

#include <windows.h>

#include "date_field.h"
#include "firm.h"
#include "journal.h"
#include "layouts.h"
#include "look.h"

namespace merla {

using namespace standin;

namespace {

constexpr int kIdFirst = 1;
constexpr int kIdLast = 2;

HWND dialog = nullptr;
Layout layout;

struct Controls {
  HWND years, first, last, currency, taxLaw, calculation, commercialLaw, iasIfrs;
} controls;

void SetCheck(HWND box, bool set) { SendMessageA(box, BM_SETCHECK, set ? BST_CHECKED : BST_UNCHECKED, 0); }

void ShowSelectedYear() {
  auto selected = static_cast<std::size_t>(SendMessageA(controls.years, CB_GETCURSEL, 0, 0));
  if (selected >= BusinessYears().size()) return;
  const BusinessYear& year = BusinessYears()[selected];
  SetDate(controls.first, year.first);
  SetDate(controls.last, year.last);
  SendMessageA(controls.currency, CB_SELECTSTRING, static_cast<WPARAM>(-1),
               reinterpret_cast<LPARAM>(year.currency.c_str()));
  SetCheck(controls.taxLaw, year.taxLaw);
  SetCheck(controls.calculation, year.calculation);
  SetCheck(controls.commercialLaw, year.commercialLaw);
  SetCheck(controls.iasIfrs, year.iasIfrs);
  Journal("Wirtschaftsjahr: " + year.name);
}

HWND AddCombo(HWND parent, int id, int x, int y, int width) {
  constexpr int kDroppedHeight = 140;
  return AddControl(parent, kComboBoxClass, "", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, id, x, y, width,
                    kDroppedHeight);
}

void AddEntry(HWND combo, const std::string& text) {
  SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

HWND AddCheckBox(HWND frame, const char* text, int id, int x, int y) {
  return AddControl(frame, kCheckBoxClass, text, BS_AUTOCHECKBOX | WS_TABSTOP, id, x, y, 130, 18);
}

void AddControls() {
  AddControl(dialog, "Static", "&Wirtschaftsjahr:", 0, -1, 14, 16, 96, 16);
  controls.years = AddCombo(dialog, layout.yearCombo, 112, 12, 200);

  HWND period = AddControl(dialog, kFrameClass, "Bearbeitungsjahr", 0, layout.yearFrame, 14, 46, 412, 56);
  AddControl(period, "Static", "von", 0, -1, 14, 27, 24, 16);
  controls.first = AddDateField(period, kIdFirst, 44, 23);
  AddControl(period, "Static", "bis", 0, -1, 206, 27, 24, 16);
  controls.last = AddDateField(period, kIdLast, 236, 23);

  HWND money = AddControl(dialog, kFrameClass, "Währung", 0, layout.currencyFrame, 14, 112, 120, 82);
  controls.currency = AddCombo(money, layout.currency, 14, 26, 90);

  HWND valuation = AddControl(dialog, kFrameClass, "Bewertung", 0, layout.checkFrame, 146, 112, 280, 82);
  controls.taxLaw = AddCheckBox(valuation, "&Steuerrecht", layout.taxLaw, 14, 24);
  controls.calculation = AddCheckBox(valuation, "&Kalkulation", layout.calculation, 148, 24);
  controls.commercialLaw = AddCheckBox(valuation, "&Handelsrecht", layout.commercialLaw, 14, 50);
  controls.iasIfrs = AddCheckBox(valuation, "&IAS/IFRS", layout.iasIfrs, 148, 50);

  AddControl(dialog, kButtonClass, "&Übernehmen", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdYearOk, 222, 208, 98, 26);
  AddControl(dialog, kButtonClass, "S&chließen", WS_TABSTOP, kIdYearClose, 328, 208, 98, 26);
}

void Fill() {
  for (const BusinessYear& year : BusinessYears()) AddEntry(controls.years, year.name);
  for (const char* currency : {"DEM", "EUR"}) AddEntry(controls.currency, currency);
  SendMessageA(controls.years, CB_SETCURSEL, BusinessYears().size() - 1, 0);
  ShowSelectedYear();
}

void Command(HWND window, int id, int notification) {
  if (id == layout.yearCombo && notification == CBN_SELCHANGE) ShowSelectedYear();
  if (notification != BN_CLICKED) return;
  if (id == kIdYearOk) {
    Journal("Schaltfläche: Übernehmen");
    DestroyWindow(window);
  } else if (id == kIdYearClose || id == IDCANCEL) {
    Journal("Schaltfläche: Schließen");
    DestroyWindow(window);
  }
}

LRESULT CALLBACK YearProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      Command(window, LOWORD(wParam), HIWORD(wParam));
      return 0;
    case WM_DESTROY:
      dialog = nullptr;
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

void OpenYearDialog(const std::string& version) {
  if (dialog == nullptr) {
    layout = LayoutOf(version);
    dialog = CreateForm(kYearTitle, WS_CAPTION | WS_SYSMENU, 240, 200, 440, 246, nullptr, YearProcedure);
    AddControls();
    Fill();
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
  SetForegroundWindow(dialog);
  SetFocus(controls.years);
}

}  // namespace merla
