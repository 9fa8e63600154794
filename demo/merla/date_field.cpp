#include "date_field.h"

#include "look.h"

namespace merla {

using namespace standin;

HWND AddDateField(HWND parent, int id, int x, int y, bool withDay) {
  constexpr DWORD kBox = ES_NUMBER | ES_CENTER | WS_TABSTOP;
  HWND field = AddControl(parent, kUserControlClass, "", 0, id, x, y, 118, 22);
  HWND day = AddControl(field, kTextBoxClass, "", kBox, kIdDayBox, 0, 0, 28, 22);
  HWND dot = AddControl(field, "Static", ".", SS_CENTER, -1, 28, 5, 8, 16);
  if (!withDay) {
    ShowWindow(day, SW_HIDE);
    ShowWindow(dot, SW_HIDE);
  }
  AddControl(field, kTextBoxClass, "", kBox, kIdMonthBox, 36, 0, 28, 22);
  AddControl(field, "Static", ".", SS_CENTER, -1, 64, 5, 8, 16);
  AddControl(field, kTextBoxClass, "", kBox, kIdYearBox, 72, 0, 44, 22);
  return field;
}

void SetDate(HWND field, const std::string& date) {
  // The form itself need not be shown yet, so the box's own style tells.
  bool withDay = (GetWindowLongA(GetDlgItem(field, kIdDayBox), GWL_STYLE) & WS_VISIBLE) != 0;
  if (withDay) SetDlgItemTextA(field, kIdDayBox, date.substr(0, 2).c_str());
  SetDlgItemTextA(field, kIdMonthBox, date.substr(3, 2).c_str());
  SetDlgItemTextA(field, kIdYearBox, date.substr(6).c_str());
}

Date DateIn(HWND field) {
  return {TextOf(GetDlgItem(field, kIdDayBox)), TextOf(GetDlgItem(field, kIdMonthBox)),
          TextOf(GetDlgItem(field, kIdYearBox))};
}

}  // namespace merla
