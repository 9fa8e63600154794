// Formatting values in the notation that macros use. docs/formats.md tells what is covered; outside it the text of the
// format stands.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "runtime/dates.h"

namespace runtime {

using Value = std::variant<std::string, double, DateTime>;

struct FormatRules {
  WeekRule weeks;
  int presentYear = 0;  // for a text that is a day without a year
};

// The format's kind follows from its name or its first sign with a meaning. A value of another kind is converted to it:
// a number to the date with that number and back, anything to text. A text that cannot be converted stays as it is, and
// so does any value for an empty format. Faults: Overflow for a number that is to be a date and has none.
std::string FormatValue(const Value& value, std::string_view format, const FormatRules& rules = {});

}  // namespace runtime
