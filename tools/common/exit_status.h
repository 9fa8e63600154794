// What every tool's exit status means.
#pragma once

namespace tools {

enum ExitStatus : int {
  kFine = 0,
  kFound = 1,    // what the tool looks for was found, or what it ran has failed
  kGivenUp = 2,  // stopped, cancelled or given up
  kWrongUsage = 64,
  kUnreadable = 66,  // a file or folder cannot be read or written, or says something wrong
};

}  // namespace tools
