// One rehearsal: sets the simulated desktop up, runs the macro on it, and tells how that ended.
#pragma once

#include <string>
#include <vector>

#include "options.h"

namespace makrun {

enum class Outcome { Completed, Failed, Stopped };

struct Rehearsal {
  Outcome outcome = Outcome::Completed;
  std::vector<std::string> log;    // code page 1252
  std::string reason;              // why it failed or was given up; empty otherwise; this and the notes in UTF-8
  std::vector<std::string> notes;  // what the user would have seen, and answers that nobody asked for
};

// Faults: FileError.
Rehearsal Rehearse(const Options& options);

}  // namespace makrun
