// Starting programs.
#pragma once

#include <string>

namespace basMain {

// "EXEC" and its other forms: starts the command line in a normal focused window without waiting. True when it started:
// logs text 1039 and the command. Otherwise LastError is text 1040 and the command.
bool ExecuteProgram(const std::string& command);

}  // namespace basMain
