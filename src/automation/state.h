// What the verbs that operate the target's windows leave behind.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace basMain {

struct AutomationState {
  // Where each run begins, see engine/reset.h; a resumed one (not fresh) keeps its place in the list.
  void BeginRun(bool fresh);

  // Filled by CollectChildProc; the last slot is always a spare one.
  std::vector<std::int32_t> ChildWindowList = {0};
  std::string DialogTitle;     // title fragment of the last dialog verb
  std::string DialogText;      // text fragment of the same verb
  std::string LastReadText;    // result of "READTEXT", "READCOMBOTEXT" and "PARSE"
  std::string ComboItems;      // entries of the last "READCOMBO", each followed by ";"
  std::string CtlPath;         // text read by "GETPATHFROMCTL"
  std::int32_t ListIndex = 0;  // row that is selected next in the list walked by "SELECTLIST"
  std::int32_t ListCount = 0;  // rows seen by it
};

extern AutomationState automation;

}  // namespace basMain
