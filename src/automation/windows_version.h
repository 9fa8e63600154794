// Which Windows this is; the two families differ in how memory of another process is reached.
#pragma once

#include <string>

namespace SharedMemory {

// "IF ISOSNT": asked anew each time.
bool IsWindowsNT();

// "WINVERSION": major and minor version joined by a point; empty when the system does not tell.
std::string GetWindowsVersion();

}  // namespace SharedMemory
