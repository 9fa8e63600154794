// The rules, by what they look at. Each adds what it finds; the order is put right at the end (checker.h).
#pragma once

#include <vector>

#include "finding.h"
#include "macro.h"

namespace makcheck {

using Findings = std::vector<Finding>;

// What a line is: verbs, assignments, blanks, quotes, comments.
void CheckShapes(const Macro& macro, Findings& findings);
// What stands in the arguments of a known verb.
void CheckArguments(const Macro& macro, Findings& findings);
// Variables, "$" words and marks.
void CheckNames(const Macro& macro, Findings& findings);
// Conditions, loops, jumps, and what should have happened before a line.
void CheckFlow(const Macro& macro, Findings& findings);
// What it names of the target, against the windows of a desktop file.
class Desktop;
void CheckDesktop(const Macro& macro, const Desktop& desktop, Findings& findings);

// What the rules share.

// The built-in variable whose name stands at this place of a text; empty for none.
std::string_view BuiltInAt(std::string_view text, std::size_t at);
// Whether the value of an argument is only known in a run.
bool IsComputed(const Macro& macro, std::size_t line, const Argument& argument);
// Whether a line decides a condition, and whether it ends a loop.
bool IsCondition(const Line& line);
bool IsLoopEnd(const Line& line);

}  // namespace makcheck
