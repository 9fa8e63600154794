// The desktop file: the windows that a rehearsed macro meets, and how they react. docs/makrun.md describes the format.
#pragma once

#include <string>

namespace makrun {

// Sets the simulated desktop up as the file says; its windows live as long as that desktop. Faults: FileError with
// file, line and what was expected.
void LoadDesktopFile(const std::string& path);

}  // namespace makrun
