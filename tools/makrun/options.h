// The command line of makrun.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/dates.h"

namespace makrun {

// What the user does in a dialog: sets a control, or presses a button when the control's name begins with "cmd".
struct Answer {
  std::string form;
  std::string control;
  std::string text;
};

struct Options {
  std::string macro;
  std::string desktop;  // empty: one main window
  std::string caption = "TeRu - 0012 / 4711 / 2005 / Probelauf";
  std::string ini;        // empty: QUMAEXP.INI beside the macro, if it is there
  std::string drive;      // empty: a temporary folder
  std::string clipboard;  // empty: nothing is on the clipboard
  bool press = false;
  std::vector<Answer> answers;
  int resumes = 0;
  runtime::DateTime now{2006, 3, 14, 9, 30, 0};
  bool nt = true;
  std::int32_t timeLimit = 3600;        // simulated seconds
  std::int64_t lineLimit = 10'000'000;  // visited lines
  bool realTime = false;
  bool trace = false;
  bool listVerbs = false;
  bool help = false;
};

// Reads the arguments behind the program's name. Faults: UsageError.
Options ReadOptions(const std::vector<std::string>& arguments);

}  // namespace makrun
