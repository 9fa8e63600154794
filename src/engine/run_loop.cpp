#include "engine/run_loop.h"

#include <string_view>
#include <utility>

#include "engine/line_form.h"
#include "engine/line_watch.h"
#include "engine/reset.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "engine/verbs.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/memory_reserve.h"

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
  BeginRun(startLine);
  frmMain.SwitchTray(1);
  frmStatus.ProgressBar.SetMaximum(run.LineCount + 1);
  frmStatus.Info(Text(TextId::RunInProgress));
}

// Carries out a statement of the line handling. Its fault fails the run, and the next statement follows.
template <class Statement>
void FailOnFault(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (...) {
    run.RunFailed = true;
    run.LastError = StandardErrorText("MakroAction", runtime::CaughtFault());
  }
}

// A macro that memory does not hold would do half of its work.
void FailOnMakroTooLarge() {
  run.RunFailed = true;
  run.LastError = StandardErrorText("LoadFile", runtime::Fault(runtime::FaultNumber::OutOfMemory));
}

void RunLines(std::int32_t startLine) {
  for (std::int32_t i = startLine; i <= LastLine() && !run.StopRun && !run.RunFailed; ++i) {
    if (run.GotoLine > 0) {
      i = run.CurrentLine = run.GotoLine;
      run.GotoLine = 0;
    }
    if (run.LoopBack) i = run.CurrentLine = run.LoopStart;  // the "DO" line that now runs clears the flag
    const std::string& line = Line(i);
    FailOnFault([&] {
      runtime::HoldMemoryReserve();
      if (lineWatch.Visited) lineWatch.Visited(i, line);
      MakroAction(line);
    });
    if (lineWatch.Done) lineWatch.Done(i);
    ++run.CurrentLine;
    if (run.LoopStart == 0) frmStatus.ProgressBar.SetValue(run.CurrentLine);
  }
}

}  // namespace

bool ProcessMakro(std::int32_t startLine) {
  return Standard("ProcessMakro", [&] {
    StartRun(startLine);
    if (run.MakroTooLarge) FailOnMakroTooLarge();
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
  switch (FormOf(line)) {
    case LineForm::Empty:
    case LineForm::Comment:
      return;
    case LineForm::Declaration:
      run.UserVariables.Declare(DeclaredName(line));
      return;
    case LineForm::Statement:
      break;
  }
  const auto variable = run.UserVariables.AnyDeclared() ? run.UserVariables.Find(AssignedName(line)) : std::nullopt;
  if (!variable) {
    MakroExecute(line);
    return;
  }
  const std::string result = MakroExecute(AssignedCommand(line));
  // A nested run may have replaced the variables meanwhile.
  FailOnFault([&] { run.UserVariables.SetValue(*variable, result); });
}

}  // namespace basMain
