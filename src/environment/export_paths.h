// The directories of the export tree, named after the confirmed client and year or, without them, after the target's
// caption.
#pragma once

#include <string>

namespace basMain {

// The export directory of a module, made on the way: "ANL", "GDPDU" or "FIBU" exactly, any other text counts as none.
// Empty when client or year is missing for "GDPDU" and "FIBU"; "FIBU" knows only those that were confirmed.
std::string GetExportPath(const std::string& module);

// "ANLTEMP" and the client of the target's caption, trimmed, also when another one is confirmed; without a client and a
// year in the caption "ANLTEMP" alone.
std::string GetAnlTempName();

// The module's export directory with the client's folder of the applications in the place of the year at its end: field
// 17, counted from 0, of the second line of the file Mandanten.txt there, or of the first where it is the only one.
// Empty after any fault, such as a missing file or fewer fields; nothing is logged or stored.
std::string GetMandantPath(const std::string& module);

}  // namespace basMain
