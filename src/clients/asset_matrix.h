// The table of a client's business years in the asset accounting, read out of the target's dialog.
#pragma once

#include <string>

namespace basMain {

// "CREATEMATRIX": selects every entry of the area combo box in turn, reads the years that it offers, and makes them the
// sorted rows of Matrix: each year once, with the area that offered it first, ending the day before the next one
// begins. `years` and `areas` are control ids, the rest is the address of the dialog. Logs "Matrix erfolgreich
// aufgebaut".
//
// False only when the areas cannot be read. Any other fault leaves its text in LastError and the work goes on behind
// the statement that failed; so the result can be true without a usable row.
bool CreateMatrix(const std::string& years, const std::string& areas, const std::string& window,
                  const std::string& exact, const std::string& text);

// Checks the rows whose year, as text, is not less than the first year that the target's settings name, and logs it.
// Checked rows stay so. False without such a setting, and after a fault, which ends the work.
bool SelectMatrixYear();

// "$MATRIXJAHR" ("JAHR": first day of the current row) and "$MATRIXBEREICH" ("BEREICH"); any other selector, and a row
// that does not exist, yield the empty text. Logs the value, the row and the selector.
std::string GetMatrixValue(const std::string& selector);

}  // namespace basMain
