// The built-in variables: names that are replaced as text anywhere in a line, by a value computed at that moment.
#pragma once

#include <span>
#include <string>

namespace basMain {

struct BuiltInVariable {
  const char* name;
  std::string (*value)();
};

// In the order of substitution.
std::span<const BuiltInVariable> BuiltInVariables();

// "$WJ": the assessment year at YearIndex in the list "Veranlagungsjahr" of the settings; the present year when the
// list is empty or has no number there. Sets YearUpper when there is a list.
std::string AssessmentYear();

}  // namespace basMain
