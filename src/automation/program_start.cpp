#include "automation/program_start.h"

#include <cstdint>

#include "engine/state.h"
#include "frame/log.h"
#include "platform/shell.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;

bool ExecuteProgram(const std::string& command) {
  std::uint32_t process = 0;
  runtime::Skip([&] { process = platform::StartProgram(command, platform::SW_SHOWNORMAL); });
  if (process == 0) {
    run.LastError = Text(TextId::ProgramNotStarted) + command;
    return false;
  }
  LogWrite(Text(TextId::ProgramStarted) + command);
  return true;
}

}  // namespace basMain
