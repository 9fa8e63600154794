// The dialog "Wirtschaftsjahr wechseln": dates, currency and valuation flags of the year that is selected in its combo
// box.
#pragma once

#include <string>

namespace merla {

constexpr char kYearTitle[] = "Wirtschaftsjahr wechseln";

constexpr int kIdYearOk = 1001;
constexpr int kIdYearClose = 1002;

// Opens the dialog with the layout of a version and brings it to the front; an open one stays as it is.
void OpenYearDialog(const std::string& version);

}  // namespace merla
