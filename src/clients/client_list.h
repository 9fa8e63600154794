// The walk over the client list: the target's dialog "Mandant öffnen" holds the clients, and the macro steps through
// its rows. The current row is the one that "SELECTLIST" or "VERIFYLIST" stepped onto last.
#pragma once

#include <string>

namespace basMain {

// "$MANDANTNAME": second column of the current row; "<unbekannt>" when the cell is empty or there is no list, and the
// empty text when the list has no rows.
std::string GetMandantName();

// "$MANDANTNUMMER": the same for the client's number: the fifth column when the setting "Basisnummer" of section
// "Einkommensteuer" is "1", else the fourth.
std::string GetMandantNummer();

// "IF VERTIFYMANDANTNR", spelled so: whether the current client lies in the range that the user gave, both ends
// included; true when the user gave none. A number that cannot be read counts as 0. Logs what it compares.
bool VertifyMandantNr();

// "VERIFYLIST": steps to the next client, where the years of the present one are used up, if the user chose all
// clients, a range, or the marked client; after the latter "LOOP UNTIL COUNT" ends. Always true, but for a fault.
bool VerifyList(const std::string& id, const std::string& window, const std::string& exact, const std::string& text);

// "IF BASISNUMMER": whether the setting equals the value.
bool IfBasisnummer(const std::string& value);

}  // namespace basMain
