// What a line of a macro is, told by the line alone. Nothing is replaced and no verb but "MARK" is known here.
#pragma once

#include <string>
#include <string_view>

namespace basMain {

enum class LineForm {
  Empty,
  Comment,      // begins with "REM", in any case
  Declaration,  // begins with "DIM", in any case
  Statement,    // a command, or an assignment where AssignedName is a variable's name
};

LineForm FormOf(std::string_view line);

// The name behind the fourth character of a declaration; empty when nothing stands there.
std::string DeclaredName(const std::string& line);

// What stands in front of the first "=", the whole line when there is none.
std::string AssignedName(const std::string& line);

// The command of an assignment: what stands behind the first "=". All further "=" are dropped, every "(" becomes "="
// and every ")" goes.
std::string AssignedCommand(const std::string& line);

// A line of the file as the line table holds it: trimmed of blanks first and rid of tabs after it, so that a line that is
// indented with a tab and then blanks keeps the blanks.
std::string NormalisedLine(std::string_view line);

// The form in which a jump compares "MARK=" and a name with the lines of the table.
std::string MarkKey(std::string_view line);

// Whether a jump can find the line, given as its key.
bool IsMark(std::string_view key);

}  // namespace basMain
