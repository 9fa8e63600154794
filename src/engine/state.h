// The state of a run. All of it is module-level, exists once and survives the run, since a failed run is resumed from
// it. Whatever pumps can start a nested run that replaces it, so nobody keeps a reference into it across a pump.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "engine/user_variables.h"

namespace basMain {

struct RunState {
  // Where each run begins, see reset.h.
  void Begin(std::int32_t startLine);

  // The macro: its normalised lines and one empty line more. Replaced by LoadFile.
  std::vector<std::string> MakroLines = {""};
  std::int32_t LineCount = 0;
  // First line of each jump mark, by the whole line folded to upper case, so that a GOTO need not read the macro.
  std::unordered_map<std::string, std::int32_t> Marks;
  UserVariableTable UserVariables;
  bool MakroTooLarge = false;  // memory does not hold the file: there are no lines, and every run fails

  std::int32_t CurrentLine = 0;  // index of the running line; after a line that of the next one
  bool ExecEnabled = false;      // false: inside the skipped side of a condition
  bool StopRun = false;          // the run is to end at the next line, not as a failure
  bool RunFailed = false;        // a command has failed; the run ends at the next line and can be resumed
  std::string LastError;         // the one error text of the run
  std::int32_t GotoLine = 0;     // pending jump; 0: none
  std::int32_t LoopStart = 0;    // line of the open DO; 0: no loop is open
  bool LoopBack = false;         // the next line to run is LoopStart
  bool DialogHidden = false;     // the macro has hidden the status dialog
  std::int16_t YearIndex = 0;    // into the list of assessment years; no run resets it
  std::int16_t YearUpper = 0;    // upper bound of that list, set whenever $WJ is expanded
};

extern RunState run;

}  // namespace basMain
