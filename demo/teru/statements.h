// The account statements of the joinery, of our invention like its books.
#pragma once

#include <string>
#include <vector>

namespace teru {

struct BankAccount {
  std::string bank, bankCode, number;
  std::vector<std::string> rows;  // fields joined by semicolons
};

// Column names, joined by semicolons.
extern const char* const kStatementHeading;

const std::vector<BankAccount>& BankAccounts();

// The statement as a table for the clipboard: cells between tabs, lines ended by CR LF, the heading first.
std::string StatementText(const BankAccount& account);

}  // namespace teru
