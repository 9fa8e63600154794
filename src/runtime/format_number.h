// Numbers in the notation of formats.
#pragma once

#include <string>

#include "runtime/format_notation.h"

namespace runtime {

// True for a sign that only a number has.
bool IsNumberSign(const Sign& sign);

// The number as it stands, with 15 digits at most and a decimal comma.
std::string NumberText(double number);

// Sections: for all numbers; or for those from 0 on, and below 0; or above, below and at 0. A section that is missing
// or empty gives way to the first.
std::string FormatNumber(double number, const Notation& notation);

}  // namespace runtime
