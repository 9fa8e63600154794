// Tables as they lie on the clipboard, cells separated by tabs, turned into the semicolon files of this program: from
// text to text, in one pass. A line ends at a carriage return, with or without a line feed behind it; a bare line feed
// is part of its line. Quotes inside a cell are left as they are.
#pragma once

#include <string>
#include <string_view>

namespace clipboard_tables {

// Puts each cell in quotes, with a semicolon behind it. A line without a tab stays as it is. Lines end in CR LF.
std::string QuoteCells(std::string_view table);

// Turns the account statements of the payment module into records and drops the header, the first line. Cell 1, the
// purpose, becomes the fields of TextFields; cell 3, the amount, loses its dots; the others are put in quotes. Each
// record ends in two semicolons, the account, a semicolon and the bank code, without quotes. Faults: InputPastEnd for
// a text without any line.
std::string StatementRecords(std::string_view table, std::string_view konto, std::string_view blz);

// Appends a purpose text to a record, cut into the lines of a bank record, 27 characters each: quoted fields, the last
// one with what remains, and bare semicolons up to 12 fields. Of 13 or more whole lines the first 12 are kept and
// nothing else; 12 whole lines give 13 fields, for the remainder is kept as well.
void AppendTextFields(std::string& record, std::string_view purpose);

}  // namespace clipboard_tables
