#include "payments.h"

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

#include "books.h"
#include "clipboard.h"
#include "journal.h"
#include "list_view.h"
#include "look.h"
#include "statements.h"

namespace teru {

using namespace standin;

namespace {

HWND payments = nullptr;
HWND statement = nullptr;
HWND focus = nullptr;  // the control that had it when its window was left
std::size_t shownAccount = 0;

const BankAccount& AccountOf(HWND window) { return BankAccounts()[window == payments ? shownAccount : 1]; }

bool Held(int key) { return GetKeyState(key) < 0; }

std::string Modifiers() {
  return std::string(Held(VK_SHIFT) ? "+" : "") + (Held(VK_CONTROL) ? "^" : "") + (Held(VK_MENU) ? "%" : "");
}

bool IsModifier(WPARAM key) { return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU; }

// The field for the search: what it is sent as a text it refuses.
LRESULT CALLBACK SearchProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTALLKEYS;
    case WM_SETTEXT:
      Journal("Text abgewiesen");
      return 0;
    case WM_SETFOCUS:
      Journal("Suche: Fokus");
      break;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (!IsModifier(wParam)) Journal("Suche: Taste " + Modifiers() + std::to_string(wParam));
      break;
    case WM_CHAR:
      Journal("Suche: Zeichen " + std::to_string(wParam & 0xFF));
      break;
  }
  return TextBoxProcedure(field, message, wParam, lParam);
}

void NextAccount();

// The list of the statement: Ctrl+C copies the whole table, whatever is selected; F6 shows the next account.
LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  if (message == WM_KEYDOWN && wParam == VK_F6 && GetParent(list) == payments) {
    NextAccount();
    return 0;
  }
  if (message == WM_KEYDOWN && wParam == 'C' && Held(VK_CONTROL)) {
    PutOnClipboard(list, StatementText(AccountOf(GetParent(list))));
    return 0;
  }
  return DefSubclassProc(list, message, wParam, lParam);
}

void FillStatement(HWND window) {
  HWND list = GetDlgItem(window, kIdStatement);
  SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
  for (const std::string& row : AccountOf(window).rows) AddRow(list, Fields(row));
}

void ShowAccount() {
  const BankAccount& account = AccountOf(payments);
  const std::string caption =
      "TeRu Zahlungsverkehr [" + account.bank + " " + account.bankCode + " " + account.number + " EUR]";
  SetWindowTextA(payments, caption.c_str());
  FillStatement(payments);
  Journal("Konto: " + account.number);
}

void AddStatementList(HWND window, int height) {
  HWND list = AddControl(window, WC_LISTVIEWA, "", LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP,
                         kIdStatement, 12, 12, 716, height);
  SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  constexpr int kWidths[] = {78, 260, 138, 82, 76, 78};
  const int* width = kWidths;
  for (const std::string& title : Fields(kStatementHeading)) AddColumn(list, title, *width++);
  SetWindowSubclass(list, ListProcedure, 0, 0);
}

void AddPaymentControls() {
  AddStatementList(payments, 160);
  AddControl(payments, "Static", "&Suche:", 0, -1, 12, 188, 60, 16);
  HWND search = AddControl(payments, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdSearch, 76, 184, 250, 22);
  SubclassTextBox(search, SearchProcedure);
  AddControl(payments, kButtonClass, "&Nächstes Konto", WS_TABSTOP, kIdNextAccount, 496, 182, 128, 26);
  AddControl(payments, kButtonClass, "S&chließen", WS_TABSTOP, kIdPaymentsClose, 632, 182, 96, 26);
}

void NextAccount() {
  shownAccount = (shownAccount + 1) % BankAccounts().size();
  ShowAccount();
}

void JournalClick(HWND window, const char* button, LPARAM place) {
  POINT point{static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
  ClientToScreen(window, &point);
  Journal(std::string("Klick ") + button + ": " + std::to_string(point.x) + "/" + std::to_string(point.y));
}

void KeepFocus(HWND window) {
  if (IsChild(window, GetFocus())) focus = GetFocus();
}

LRESULT CALLBACK PaymentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == kIdNextAccount) NextAccount();
      if (LOWORD(wParam) == kIdPaymentsClose || LOWORD(wParam) == IDCANCEL) SendMessageA(window, WM_CLOSE, 0, 0);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      JournalClick(window, message == WM_LBUTTONDOWN ? "links" : "rechts", lParam);
      break;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) KeepFocus(window);
      break;
    case WM_SETFOCUS:
      SetFocus(IsChild(window, focus) ? focus : GetDlgItem(window, kIdStatement));
      return 0;
    case WM_DESTROY:
      Journal(window == payments ? "Zahlungsverkehr geschlossen" : "Umsätze geschlossen");
      (window == payments ? payments : statement) = nullptr;
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

void BringUp(HWND window) {
  ShowWindow(window, SW_SHOWNORMAL);
  SetForegroundWindow(window);
}

constexpr DWORD kStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU;

}  // namespace

void ActivatePayments() {
  if (payments == nullptr) {
    payments = CreateForm("", kStyle, 60, 200, 740, 220, nullptr, PaymentProcedure);
    AddPaymentControls();
    ShowAccount();
  }
  BringUp(payments);
}

void ActivateStatement() {
  if (statement == nullptr) {
    const BankAccount& account = BankAccounts()[1];
    const std::string title = "Umsätze BLZ: " + account.bankCode + " Kto: " + account.number + " EUR";
    statement = CreateForm(title.c_str(), kStyle, 70, 440, 740, 150, nullptr, PaymentProcedure);
    AddStatementList(statement, 126);
    FillStatement(statement);
  }
  BringUp(statement);
}

}  // namespace teru
