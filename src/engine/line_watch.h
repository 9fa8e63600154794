// Whoever follows a run line by line, such as a rehearsal that traces it. In the program itself nobody does.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "engine/parser.h"

namespace basMain {

struct LineWatch {
  // Before a line runs; also comments and empty lines. `index` counts from 0.
  std::function<void(std::int32_t index, const std::string& line)> Visited;
  // The line's verb, in upper case, and its arguments after substitution, also in a skipped branch.
  std::function<void(const std::string& verb, const Arguments& a)> Parsed;
};

extern LineWatch lineWatch;

}  // namespace basMain
