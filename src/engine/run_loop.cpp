#include "engine/run_loop.h"

#include <string_view>
#include <utility>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/line_watch.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "engine/verbs.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

std::int32_t LastLine() { return static_cast<std::int32_t>(run.MakroLines.size()) - 1; }

const std::string& Line(std::int32_t index) {
  if (index < 0 || index > LastLine()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  return run.MakroLines[static_cast<std::size_t>(index)];
}

void StartRun(std::int32_t startLine) {
  run.StopRun = false;
  run.RunFailed = false;
  run.ExecEnabled = true;
  run.CurrentLine = startLine;
  run.LastError.clear();
  clients.InputState = 0;
  automation.DialogTitle.clear();
  automation.DialogText.clear();
  if (startLine == 0) {
    run.LoopBack = false;
    run.LoopStart = 0;
    automation.ListIndex = 0;
    automation.ListCount = 0;
    clients.MatrixPos = 0;
  }
  frmMain.SwitchTray(1);
  frmStatus.ProgressBar.SetMaximum(run.LineCount + 1);
  frmStatus.Info(Text(TextId::RunInProgress));
}

void RunLines(std::int32_t startLine) {
  for (std::int32_t i = startLine; i <= LastLine() && !run.StopRun && !run.RunFailed; ++i) {
    if (run.GotoLine > 0) {
      i = run.CurrentLine = run.GotoLine;
      run.GotoLine = 0;
    }
    if (run.LoopBack) i = run.CurrentLine = run.LoopStart;  // the "DO" line that now runs clears the flag
    std::string line = Line(i);
    if (lineWatch.Visited) lineWatch.Visited(i, line);
    MakroAction(std::move(line));
    if (lineWatch.Done) lineWatch.Done(i);
    ++run.CurrentLine;
    if (run.LoopStart == 0) frmStatus.ProgressBar.SetValue(run.CurrentLine);
  }
}

}  // namespace

bool ProcessMakro(std::int32_t startLine) {
  return Standard("ProcessMakro", [&] {
    StartRun(startLine);
    RunLines(startLine);
    if (run.RunFailed && !run.StopRun) {
      frmMain.SwitchTray(2);
      if (run.DialogHidden) frmStatus.Show();
      frmStatus.ProcessError();
      return false;
    }
    frmStatus.ProcessComplete();
    frmStatus.ProgressBar.SetValue(LastLine());
    frmMain.SwitchTray(0);
    return true;
  });
}

void MakroAction(std::string line) {
  if (line.empty()) return;
  const std::string start = runtime::ToUpper(std::string_view(line).substr(0, 3));
  if (start == "DIM") {
    run.UserVariables.Declare(line.size() > 4 ? line.substr(4) : "");
    return;
  }
  if (start == "REM") return;

  const auto variable =
      run.UserVariables.AnyDeclared() ? run.UserVariables.Find(line.substr(0, line.find('='))) : std::nullopt;
  if (!variable) {
    MakroExecute(line);
    return;
  }
  // All further "=" are dropped: the parts behind the first one are joined with nothing between them.
  std::string command = line.find('=') == std::string::npos ? "" : line.substr(line.find('=') + 1);
  command = runtime::Remove(command, '=');
  command = runtime::Remove(runtime::Replace(command, "(", "="), ')');
  const std::string result = MakroExecute(command);
  try {
    run.UserVariables.SetValue(*variable, result);
  } catch (const runtime::Fault& fault) {  // a nested run has replaced the variables meanwhile
    run.LastError = StandardErrorText("MakroAction", fault);
    run.RunFailed = true;
  }
}

bool GoToLine(const std::string& name) {
  return Standard("GoToLine", [&] {
    const std::string key = runtime::ToUpper("MARK=" + name);
    const auto mark = run.Marks.find(runtime::Trim(key));
    if (mark == run.Marks.end()) {
      run.LastError = "Sprungmarke (" + name + ") konnte nicht gefunden werden.";
      return false;
    }
    // A mark on the first line is found, but index 0 means that no jump is pending, so the run goes on behind the
    // "GOTO".
    run.GotoLine = mark->second;
    LogWrite("Sprungmarke (" + key + ") gefunden: " + std::to_string(mark->second));
    return true;
  });
}

}  // namespace basMain
