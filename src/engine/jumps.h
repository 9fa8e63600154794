// Jumps to a mark.
#pragma once

#include <string>

namespace basMain {

// The verb "GOTO": jumps to the first line "MARK=name", whatever its case. Logs the mark and its line index. Fails for
// an unknown mark.
bool GoToLine(const std::string& name);

}  // namespace basMain
