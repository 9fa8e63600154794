#include "engine/state.h"

namespace basMain {

RunState run;

void RunState::Begin(std::int32_t startLine) {
  StopRun = false;
  RunFailed = false;
  ExecEnabled = true;
  CurrentLine = startLine;
  LastError.clear();
  if (startLine != 0) return;
  LoopBack = false;
  LoopStart = 0;
}

}  // namespace basMain
