// Reading a macro into the line table.
#pragma once

#include <string>

namespace basMain {

// Replaces the macro in memory, and with it all variables, by the file at `path`. A line ends at CR LF, LF or CR; it is
// trimmed of blanks and then loses its tabs. A file that cannot be read leaves the whole lines read so far and an error
// text in LastError; one that memory does not hold leaves none (MakroTooLarge). The result is false in every case.
bool LoadFile(const std::string& path);

}  // namespace basMain
