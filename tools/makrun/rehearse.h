// One rehearsal: sets the simulated desktop up, runs the macro on it, and tells how that ended.
#pragma once

#include <string>
#include <vector>

#include "options.h"

namespace makrun {

// A file that cannot be read, or that says something wrong; the text names it.
struct FileError {
  std::string text;
};

enum class Outcome { Completed, Failed, Stopped };

struct Rehearsal {
  Outcome outcome = Outcome::Completed;
  std::vector<std::string> log;    // code page 1252
  std::string reason;              // why it failed or was given up; empty otherwise
  std::vector<std::string> notes;  // what the user would have seen, and answers that nobody asked for
};

// Faults: FileError.
Rehearsal Rehearse(const Options& options);

}  // namespace makrun
