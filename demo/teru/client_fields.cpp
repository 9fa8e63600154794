#include "client_fields.h"

#include <cctype>

#include "books.h"
#include "journal.h"
#include "look.h"

namespace teru {

using namespace standin;

namespace {

struct Button {
  int id;
  const char* windowClass;
  const char* text;
  DWORD style;
};

LRESULT CALLBACK LockedProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETTEXT) {
    Journal("Text " + IdPath(box) + " abgelehnt: " + reinterpret_cast<const char*>(lParam));
    return FALSE;
  }
  return TextBoxProcedure(box, message, wParam, lParam);
}

LRESULT CALLBACK CountingProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = TextBoxProcedure(box, message, wParam, lParam);
  return message == WM_SETTEXT ? GetWindowTextLengthA(box) : answer;
}

// A tax number has its groups parted by strokes: 143/284/70216.
std::string InGroups(const std::string& text) {
  std::string digits;
  for (char c : text) {
    if (std::isdigit(static_cast<unsigned char>(c))) digits += c;
  }
  if (digits.size() > 6) digits.insert(6, "/");
  if (digits.size() > 3) digits.insert(3, "/");
  return digits;
}

LRESULT CALLBACK GroupingProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_SETTEXT) return TextBoxProcedure(box, message, wParam, lParam);
  std::string grouped = InGroups(reinterpret_cast<const char*>(lParam));
  TextBoxProcedure(box, message, wParam, reinterpret_cast<LPARAM>(grouped.c_str()));
  return FALSE;
}

HWND AddLabelled(HWND frame, const char* label, const std::string& text, int id, int y, DWORD style = 0) {
  AddControl(frame, "Static", label, 0, -1, 12, y + 3, 100, 16);
  return AddControl(frame, kTextBoxClass, text.c_str(), style | ES_AUTOHSCROLL | WS_TABSTOP, id, 116, y, 372, 22);
}

template <std::size_t count>
void AddButtons(HWND frame, const Button (&buttons)[count], int rows, int width) {
  int place = 0;
  for (const Button& button : buttons) {
    AddControl(frame, button.windowClass, button.text, button.style, button.id, 12 + place / rows * (width + 8),
               20 + place % rows * 22, width, 20);
    ++place;
  }
}

}  // namespace

void AddAddressFrame(HWND form, int x, int y) {
  HWND frame = AddControl(form, kFrameClass, "Anschrift", 0, kIdAddressFrame, x, y, 500, 208);
  AddLabelled(frame, "&Name:", OurFirm().name, kIdName, 20);
  AddLabelled(frame, "&Straße:", "Hobelgasse 7", kIdStreet, 46);
  AddLabelled(frame, "&Ort:", "80469 München", kIdPlace, 72);
  SubclassTextBox(AddLabelled(frame, "S&teuernummer:", "143/284/70216", kIdTaxNumber, 98), GroupingProcedure);
  SubclassTextBox(AddLabelled(frame, "Be&merkung:", "", kIdNote, 124), CountingProcedure);
  SubclassTextBox(AddLabelled(frame, "Mandant:", OurFirm().number, kIdNumber, 150, ES_READONLY), LockedProcedure);
  AddControl(frame, kCheckBoxClass, "Post geht an den &Berater", BS_AUTOCHECKBOX | WS_TABSTOP, kIdMailToConsultant, 116,
             178, 252, 20);
}

void AddLegalFormFrame(HWND form, int x, int y) {
  constexpr Button kButtons[] = {
      {kIdSoleTrader, kOptionButtonClass, "Einzelunternehmen", BS_AUTORADIOBUTTON | WS_GROUP},
      {kIdPartnership, kOptionButtonClass, "Personengesellschaft", BS_AUTORADIOBUTTON},
      {kIdCorporation, kOptionButtonClass, "Kapitalgesellschaft", BS_AUTORADIOBUTTON},
      {kIdFoundation, kOptionButtonClass, "Stiftung (nicht zugelassen)", BS_RADIOBUTTON},
  };
  HWND frame = AddControl(form, kFrameClass, "Rechtsform", 0, kIdLegalFormFrame, x, y, 254, 116);
  AddButtons(frame, kButtons, 4, 230);
  CheckDlgButton(frame, kIdCorporation, BST_CHECKED);
}

void AddProfitFrame(HWND form, int x, int y) {
  constexpr Button kButtons[] = {
      {kIdBalanceSheet, "Button", "Betriebsvermögensvergleich", BS_AUTORADIOBUTTON | WS_GROUP},
      {kIdCashBasis, "Button", "Einnahmenüberschussrechnung", BS_AUTORADIOBUTTON},
  };
  HWND frame = AddControl(form, kFrameClass, "Gewinnermittlung", 0, kIdProfitFrame, x, y, 254, 84);
  AddButtons(frame, kButtons, 2, 230);
  CheckDlgButton(frame, kIdBalanceSheet, BST_CHECKED);
}

void AddFeatureFrame(HWND form, int x, int y) {
  constexpr Button kButtons[] = {
      {kIdSalesTax, kCheckBoxClass, "Umsatzsteuerpflicht", BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP},
      {kIdPayroll, kCheckBoxClass, "Lohnbuchhaltung", BS_AUTOCHECKBOX | WS_TABSTOP},
      {kIdAudit, kCheckBoxClass, "Prüfung angeordnet", BS_AUTO3STATE | WS_TABSTOP},
      {kIdClosed, kCheckBoxClass, "Jahr abgeschlossen", BS_CHECKBOX | WS_TABSTOP},
      {kIdExtension, "Button", "Dauerfristverlängerung", BS_AUTOCHECKBOX | WS_TABSTOP},
      {kIdElectronic, "Button", "Kontoauszug elektronisch", BS_AUTOCHECKBOX | WS_TABSTOP},
  };
  HWND frame = AddControl(form, kFrameClass, "Merkmale", 0, kIdFeatureFrame, x, y, 500, 96);
  AddButtons(frame, kButtons, 3, 232);
  CheckDlgButton(frame, kIdSalesTax, BST_CHECKED);
  CheckDlgButton(frame, kIdAudit, BST_INDETERMINATE);
}

bool ReceiveFromField(int id, int notification, HWND control) {
  if (id < kIdAddressFrame || id > kIdElectronic) return false;
  bool isTextBox = id >= kIdName && id <= kIdNumber;
  if (isTextBox && notification == EN_SETFOCUS) Journal("Fokus " + std::to_string(id));
  if (!isTextBox && notification == BN_CLICKED) {
    LRESULT state = SendMessageA(control, BM_GETCHECK, 0, 0);
    Journal("Geklickt " + std::to_string(id) + ": " + std::to_string(state));
  }
  return true;
}

}  // namespace teru
