#include "statements.h"

#include <algorithm>

namespace teru {

const char* const kStatementHeading = "Datum;Verwendungszweck;Art;Betrag;Währung;Valuta";

const std::vector<BankAccount>& BankAccounts() {
  static const std::vector<BankAccount> accounts = {
      {"Stadtsparkasse",
       "30060010",
       "2005114",
       {"03.01.2005;Miete Werkstatt Januar;Dauerauftrag;-1.480,00;EUR;03.01.2005",
        "10.01.2005;Rechnung 2005-0007 vom 04.01.2005 Kundennummer 10014 Treppe Buche massiv geölt;Gutschrift;"
        "12.345,67;EUR;10.01.2005",
        "17.01.2005;Holzhandel Brandt Re. 48815;Lastschrift;-3.208,90;EUR;18.01.2005",
        "31.01.2005;Löhne und Gehälter 01/2005;Sammelüberweisung;-18.764,12;EUR;31.01.2005",
        "31.01.2005;;Kontoführung;-14,50;EUR;31.01.2005"}},
      {"Volksbank",
       "20070024",
       "771203",
       {"05.01.2005;Einlage Gesellschafter;Gutschrift;5.000,00;EUR;05.01.2005",
        "20.01.2005;Umsatzsteuer IV/2004 Finanzamt Steuernummer 0815/4711;Lastschrift;-6.120,00;EUR;20.01.2005"}}};
  return accounts;
}

std::string StatementText(const BankAccount& account) {
  std::string text = std::string(kStatementHeading) + "\r\n";
  for (const std::string& row : account.rows) text += row + "\r\n";
  std::replace(text.begin(), text.end(), ';', '\t');
  return text;
}

}  // namespace teru
