#include "engine/reset.h"

#include "automation/state.h"
#include "clients/state.h"
#include "engine/line_watch.h"
#include "engine/state.h"
#include "environment/csv_reader.h"
#include "environment/file_system.h"
#include "environment/modRegistry.h"
#include "frame/log.h"
#include "frame/protocol.h"
#include "frame/state.h"
#include "input/state.h"

namespace basMain {

void BeginRun(std::int32_t startLine) {
  run.Begin(startLine);
  clients.BeginRun(startLine == 0);
  automation.BeginRun(startLine == 0);
}

void ResetProgram() {
  log = {};
  protocol = {};
  csv = {};
  FileSystemState.reset();
  run = {};
  lineWatch = {};
  frame = {};
  automation = {};
  clients = {};
  inputRoom = {};
  modRegistry::state = {};
}

}  // namespace basMain
