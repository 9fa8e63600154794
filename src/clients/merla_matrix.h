// The table of business years of the second application. Its dialog "Wirtschaftsjahr wechseln" shows what belongs to a
// year only once the year is selected, and the positions of its controls depend on the application's version: the
// setting "Version" of section "MERLA". For version 2100 they are settings themselves, control paths.
#pragma once

#include <string>

namespace basMain {

// "CREATEMERLAMATRIX": selects each entry of the year combo box in turn and reads the dialog into a row of MerMatrix,
// in the order of the entries. False only when the entries cannot be read; MerMatrix then keeps its rows. An entry that
// cannot be selected and a currency that cannot be read are logged. Any fault goes to LastError, and the next step is
// made: the result is true all the same, and what the failed step should have filled stays as it was.
bool CreateMerlaMatrix(const std::string& id, const std::string& window, const std::string& exact,
                       const std::string& cls, const std::string& text);

// The two dates that the dialog's year frame shows, the earlier one first; in the order of the fields when one of them
// is no date. Faults go to LastError, and the next step is made.
void GetMerJahrVonBis(std::string& from, std::string& to);

// "$MERMATRIXJAHRBIS", "$MERMATRIXPATH": last day and export directory of the current row. Faults: OutOfRange without
// such a row.
std::string GetMerMatrixJahrBis();
std::string GetMerMatrixPath();

}  // namespace basMain
