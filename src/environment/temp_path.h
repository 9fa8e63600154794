// Where temporary files go.
#pragma once

#include <string>

namespace basMain {

// The directory for temporary files by the environment variable "temp", else "tmp", with its short names made long
// where that is possible. Not made and not tested. A fault is logged.
std::string GetTemp();

}  // namespace basMain
