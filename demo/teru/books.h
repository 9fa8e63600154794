// The books of the firm that the stand-in shows and exports: a joinery of our invention and its business year 2005.
// The same rows at each start, so that tests know what to expect.
#pragma once

#include <string>
#include <vector>

namespace teru {

struct Firm {
  std::string consultant, number, name, year;
};

struct Table {
  std::string file;               // name of the exported file
  std::string heading;            // column names, joined by semicolons
  std::vector<std::string> rows;  // fields joined by semicolons
};

const Firm& OurFirm();
Table Accounts();
Table Customers();
Table Postings();

// The fields of a row.
std::vector<std::string> Fields(const std::string& row);

}  // namespace teru
