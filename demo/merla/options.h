// What the command line chose.
#pragma once

#include <string>

namespace merla {

struct Options {
  std::string version = "2100";  // of the application that the stand-in plays
  std::string caption;           // of the main window
  std::string log;               // the journal
  bool monthsOnly = false;       // date fields of exports show month and year only
  unsigned tick = 300;           // milliseconds in front of each file of an export
};

extern Options options;

}  // namespace merla
