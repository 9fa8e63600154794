#include "automation/program_start.h"

#include <cstddef>
#include <cstdint>

#include "engine/standard_handler.h"
#include "frame/log.h"
#include "platform/shell.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using resources::Text;
using resources::TextId;

namespace {

// Double quotes vanish from a macro's line, and the system starts the shortest beginning of a command that could be a
// program. This one names the longest that is one, in quotes; a command of which none is stays as it is, and so does
// one that brings quotes of its own.
std::string WithProgramInQuotes(const std::string& command) {
  constexpr std::size_t kLongestPath = 259;
  if (runtime::Contains(command, "\"")) return command;
  for (std::size_t end = command.size(); end != std::string::npos && end > 0; end = command.rfind(' ', end - 1)) {
    if (end > kLongestPath || command[end - 1] == ' ') continue;
    const std::string program = command.substr(0, end);
    if (runtime::Contains(program, " ") && !platform::SearchPathA(program, ".exe").empty())
      return "\"" + program + "\"" + command.substr(end);
  }
  return command;
}

}  // namespace

bool ExecuteProgram(const std::string& command) {
  std::uint32_t process = 0;
  runtime::Skip(
      [&] { process = platform::StartProgram(WithProgramInQuotes(runtime::Trim(command)), platform::SW_SHOWNORMAL); });
  if (process == 0) return Fail(Text(TextId::ProgramNotStarted) + command);
  LogWrite(Text(TextId::ProgramStarted) + command);
  return true;
}

}  // namespace basMain
