// Checking one macro.
#pragma once

#include <string>
#include <vector>

#include "desktop.h"
#include "finding.h"

namespace makcheck {

// What is found in a macro given as the bytes of its file, in the order of lines and columns. A file in another
// encoding is told and then read as what it is.
// Each macro is checked against the windows of a desktop file where one is given.
std::vector<Finding> CheckFile(const std::string& bytes, const Desktop* desktop = nullptr);

// The same for a text in the code page.
std::vector<Finding> CheckMacro(const Macro& macro, const Desktop* desktop = nullptr);

// Findings in the order of lines and columns.
void Sort(std::vector<Finding>& findings);

}  // namespace makcheck
