// Whoever follows a run line by line, such as a rehearsal that traces it. In the program itself nobody does.
//
// A visit to a line is Visited, then Parsed where the line has a verb, then Done. What throws a fault that is none of
// the run's own leaves a visit without its end. Between Visited and Done of one line a nested run visits its own lines.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "engine/parser.h"

namespace basMain {

struct LineWatch {
  // Before a line runs; also comments and empty lines. `index` counts from 0.
  std::function<void(std::int32_t index, const std::string& line)> Visited;
  // Before its verb is carried out: the verb in upper case, known or not, and its arguments after substitution.
  // `passedOver`: the line stands on the skipped side of a condition, and the verb has no effect there.
  std::function<void(const std::string& verb, const Arguments& a, bool passedOver)> Parsed;
  // Behind a line. The flags of the run and LastError tell what came of it.
  std::function<void(std::int32_t index)> Done;
};

extern LineWatch lineWatch;

}  // namespace basMain
