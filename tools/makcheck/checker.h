// Checking one macro.
#pragma once

#include <string>
#include <vector>

#include "finding.h"

namespace makcheck {

// What is found in a macro given as the bytes of its file, in the order of lines and columns. A file in another
// encoding is told and then read as what it is.
std::vector<Finding> CheckFile(const std::string& bytes);

// The same for a text in the code page.
std::vector<Finding> CheckMacro(const Macro& macro);

}  // namespace makcheck
