#include "asset_hint.h"

#include "journal.h"
#include "look.h"

namespace teru {

using namespace standin;

namespace {

HWND hint = nullptr;

// An answered hint stays among the windows, unseen and without a title: somebody who walks through them may just be
// standing on it.
void Hide() {
  Journal("Antwort: OK");
  EnableWindow(GetWindow(hint, GW_OWNER), TRUE);
  ShowWindow(hint, SW_HIDE);
  SetWindowTextA(hint, "");
}

LRESULT CALLBACK HintProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) Hide();
      return 0;
    case WM_CLOSE:
      Hide();
      return 0;
    case WM_DESTROY:
      hint = nullptr;
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

void MakeHint(HWND form) {
  constexpr int kWidth = 400, kHeight = 96;
  hint = CreateForm("", WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, kWidth, kHeight, nullptr, HintProcedure, form);
  AddControl(hint, "Static", "", SS_NOPREFIX, kIdHintText, 14, 14, kWidth - 28, 34);
  AddControl(hint, "Button", "OK", BS_DEFPUSHBUTTON | WS_TABSTOP, IDOK, (kWidth - 92) / 2, 58, 92, 26);
}

}  // namespace

void ShowAssetHint(HWND form, const std::string& text) {
  Journal("Meldung: " + text);
  if (hint == nullptr) MakeHint(form);
  SetWindowTextA(hint, kHintTitle);
  SetDlgItemTextA(hint, kIdHintText, text.c_str());
  RECT place{};
  GetWindowRect(form, &place);
  SetWindowPos(hint, HWND_TOP, place.left + Scaled(40), place.top + Scaled(60), 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
  EnableWindow(form, FALSE);
  SetFocus(GetDlgItem(hint, IDOK));
}

}  // namespace teru
