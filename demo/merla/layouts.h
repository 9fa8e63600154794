// Where the controls of "Wirtschaftsjahr wechseln" are. The application's versions differ in it.
#pragma once

#include <string>

namespace merla {

struct Layout {
  int yearCombo;
  int yearFrame;
  int currencyFrame, currency;
  int checkFrame, taxLaw, calculation, commercialLaw, iasIfrs;
};

// The layout of versions 260 and 280, of 2100, or for any other version that of the old releases.
const Layout& LayoutOf(const std::string& version);

}  // namespace merla
