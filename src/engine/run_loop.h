// The run loop: walks the line table by line index and hands each line, as text, to MakroAction. Every visit to a line
// parses it again, so a variable has the value of the moment in which the line is reached.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// Runs the loaded macro from `startLine` to its end; 0 is a fresh run, anything else a resume, which keeps the state of
// an open loop. True when the run completed or was stopped, false when it failed.
bool ProcessMakro(std::int32_t startLine);

// Handles one line: comment, declaration, assignment or command.
void MakroAction(std::string line);

}  // namespace basMain
