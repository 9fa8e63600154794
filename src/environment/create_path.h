// Making directories.
#pragma once

#include <string>

namespace basAPI {

// Makes all missing directories of the path. True when they are there; each success logs text 1012 and the path with a
// trailing backslash, also when nothing had to be made. A refusal is not reported; a fault goes to LastError.
bool CreatePath(const std::string& path);

}  // namespace basAPI
