// One rehearsal: sets the simulated desktop up, runs the macro on it, and tells how that ended. Trace and reports of
// single lines come on standard error meanwhile.
#pragma once

#include <string>
#include <vector>

#include "options.h"

namespace makrun {

enum class Outcome { Completed, Failed, Stopped };

struct Rehearsal {
  Outcome outcome = Outcome::Completed;
  std::vector<std::string> log;    // code page 1252
  std::vector<std::string> notes;  // what the user would have seen, and answers that nobody asked for; in UTF-8
};

// Faults: FileError.
Rehearsal Rehearse(const Options& options);

}  // namespace makrun
