// The run loop: what a run sets, shows and leaves behind. What can be said in a macro stands in tests/macros.
#include "engine/run_loop.h"

#include "automation/state.h"
#include "clients/state.h"
#include "engine/jumps.h"
#include "engine/macro_file.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "frame/frmStatus.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using platform::simulated::Schedule;
using support::Completed;
using support::kStars;
using support::kStopped;
using support::LoadLines;
using support::Log;
using support::RunLines;

using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

class RunLoopTest : public support::SystemTest {
 protected:
  // Looks at something each 10 ms of simulated time, for the first time after 5: in the middle of each wait of 10 ms.
  template <class Look>
  static void EachWait(int count, Look look) {
    for (int i = 0; i < count; ++i) Schedule(10 * i + 5, look);
  }

  // Values of the progress bar in the middle of each wait of 10 ms.
  Numbers ProgressInWaits(const Texts& lines, int waits) {
    Numbers values;
    EachWait(waits, [&] { values.push_back(frmStatus.ProgressBar.Value()); });
    RunLines(lines);
    EXPECT_EQ(values.size(), static_cast<std::size_t>(waits));
    return values;
  }

  static void Resume() {
    frmStatus.Show();
    forms::simulated::Press(frmStatus.cmdResume);
  }
};

// What a start sets.

TEST_F(RunLoopTest, AFreshRunClearsTheFlags) {
  run.StopRun = true;
  run.RunFailed = true;
  run.ExecEnabled = false;
  run.LastError = "alt";
  clients.InputState = 1;
  automation.DialogTitle = "alt";
  automation.DialogText = "alt";
  run.LoopBack = true;
  run.LoopStart = 3;
  automation.ListIndex = 4;
  automation.ListCount = 5;
  clients.MatrixPos = 6;
  EXPECT_TRUE(RunLines({"MSG=a"}));
  EXPECT_FALSE(run.StopRun);
  EXPECT_FALSE(run.RunFailed);
  EXPECT_TRUE(run.ExecEnabled);
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(clients.InputState, 0);
  EXPECT_EQ(automation.DialogTitle, "");
  EXPECT_EQ(automation.DialogText, "");
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 0);
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_EQ(automation.ListCount, 0);
  EXPECT_EQ(clients.MatrixPos, 0);
  EXPECT_EQ(Log(), Completed({"MSG: a"}));
}

TEST_F(RunLoopTest, AResumeKeepsLoopListAndMatrix) {
  LoadLines({"MSG=0", "MSG=1", "MSG=2"});
  run.StopRun = true;
  run.RunFailed = true;
  run.ExecEnabled = false;
  run.LastError = "alt";
  clients.InputState = 1;
  automation.DialogTitle = "alt";
  automation.DialogText = "alt";
  run.LoopStart = 1;
  automation.ListIndex = 4;
  automation.ListCount = 5;
  clients.MatrixPos = 6;
  EXPECT_TRUE(ProcessMakro(2));
  EXPECT_FALSE(run.StopRun);
  EXPECT_FALSE(run.RunFailed);
  EXPECT_TRUE(run.ExecEnabled);
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(clients.InputState, 0);
  EXPECT_EQ(automation.DialogTitle, "");
  EXPECT_EQ(automation.DialogText, "");
  EXPECT_EQ(run.LoopStart, 1);
  EXPECT_EQ(automation.ListIndex, 4);
  EXPECT_EQ(automation.ListCount, 5);
  EXPECT_EQ(clients.MatrixPos, 6);
  EXPECT_EQ(Log(), Completed({"MSG: 2"}));
}

TEST_F(RunLoopTest, AResumeKeepsAWayBackThatIsPending) {
  LoadLines({"MSG=0", "DO", "MSG=2"});
  run.LoopStart = 1;
  run.LoopBack = true;
  EXPECT_TRUE(ProcessMakro(3));
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(Log(), Completed({"MSG: 2"}));
}

TEST_F(RunLoopTest, NoRunResetsTheYears) {
  run.YearIndex = 3;
  run.YearUpper = 5;
  EXPECT_TRUE(RunLines({}));
  EXPECT_EQ(run.YearIndex, 3);
  EXPECT_EQ(run.YearUpper, 5);
}

TEST_F(RunLoopTest, AJumpThatIsPendingAtTheStartIsCarriedOut) {
  LoadLines({"MSG=0", "MSG=1", "MSG=2"});
  run.GotoLine = 2;
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(run.GotoLine, 0);
  EXPECT_EQ(Log(), Completed({"MSG: 2"}));
}

TEST_F(RunLoopTest, AStartBehindTheLastLineCompletesAtOnce) {
  LoadLines({"MSG=0"});
  EXPECT_TRUE(ProcessMakro(2));
  EXPECT_EQ(run.CurrentLine, 2);
  EXPECT_EQ(Log(), Completed({}));
}

TEST_F(RunLoopTest, AConditionThatWasLeftOpenLeavesNoTrace) {
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b"}));
  EXPECT_FALSE(run.ExecEnabled);
  EXPECT_TRUE(RunLines({"MSG=da"}));
  EXPECT_EQ(Log()[3], "MSG: da");
}

TEST_F(RunLoopTest, TheStatusDialogShowsThatTheRunGoesOn) {
  std::string info;
  Schedule(5, [&] { info = frmStatus.lblInfo.Caption(); });
  EXPECT_TRUE(RunLines({"WAIT=10"}));
  EXPECT_EQ(info, "Die Verarbeitung wird ausgeführt. Dieser Vorgang kann einige Minuten in Anspruch nehmen...");
}

// The walk over the lines.

TEST_F(RunLoopTest, AnEmptyMacroCompletesAtOnce) {
  EXPECT_TRUE(RunLines({}));
  EXPECT_EQ(run.CurrentLine, 1);  // the empty line behind the last one was visited
  EXPECT_EQ(frmStatus.ProgressBar.Maximum(), 1);
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 0);
  EXPECT_EQ(Log(), Completed({}));
}

TEST_F(RunLoopTest, ARunVisitsOneLineMoreThanTheFileHas) {
  EXPECT_TRUE(RunLines({"MSG=a", "MSG=b"}));
  EXPECT_EQ(run.CurrentLine, 3);
}

TEST_F(RunLoopTest, TheProgressBarFollowsTheLines) {
  EXPECT_EQ(ProgressInWaits({"WAIT=10", "WAIT=10", "", "WAIT=10"}, 3), (Numbers{0, 1, 3}));
  EXPECT_EQ(frmStatus.ProgressBar.Maximum(), 5);
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 4);  // the index of the last element of the table
}

TEST_F(RunLoopTest, TheProgressBarStandsStillInALoop) {
  run.YearUpper = 1;  // two passes
  EXPECT_EQ(ProgressInWaits({"MSG=0", "DO", "WAIT=10", "NEXT VJ", "LOOP UNTIL COUNT", "WAIT=10"}, 3),
            (Numbers{1, 1, 5}));
}

TEST_F(RunLoopTest, TheProgressBarKeepsMovingInALoopFromTheFirstLine) {
  run.YearUpper = 1;
  EXPECT_EQ(ProgressInWaits({"DO", "WAIT=10", "WAIT=10", "NEXT VJ", "LOOP UNTIL COUNT"}, 4), (Numbers{1, 2, 1, 2}));
}

TEST_F(RunLoopTest, ALoopEndInASkippedBranchLeavesTheProgressBarStill) {
  EXPECT_EQ(ProgressInWaits({"MSG=0", "DO", "IF STRCOMP=a,b", "LOOP UNTIL COUNT", "ENDIF", "WAIT=10"}, 1),
            (Numbers{1}));
  EXPECT_EQ(run.LoopStart, 1);
}

TEST_F(RunLoopTest, AJumpSetsCurrentLine) {
  Numbers lines;
  EachWait(1, [&] { lines.push_back(run.CurrentLine); });
  EXPECT_TRUE(RunLines({"GOTO=m", "MSG=nie", "MARK=m", "WAIT=10"}));
  EXPECT_EQ(lines, Numbers{3});
  EXPECT_EQ(run.CurrentLine, 5);
}

TEST_F(RunLoopTest, AWayBackSetsCurrentLine) {
  Numbers lines;
  EachWait(2, [&] { lines.push_back(run.CurrentLine); });
  run.YearUpper = 1;
  EXPECT_TRUE(RunLines({"MSG=0", "DO", "WAIT=10", "NEXT VJ", "LOOP UNTIL COUNT"}));
  EXPECT_EQ(lines, (Numbers{2, 2}));
}

TEST_F(RunLoopTest, TheWayBackStaysUntilADoLineRuns) {
  // The outer loop end has no start to go back to; line 0 is no DO, so the run stays there until it is stopped.
  run.YearUpper = 1;
  Schedule(100, [] { run.StopRun = true; });
  EXPECT_TRUE(RunLines({"WAIT=10", "DO", "NEXT VJ", "LOOP UNTIL COUNT", "NEXT VJ", "LOOP UNTIL COUNT", "MSG=nie"}));
  EXPECT_EQ(run.CurrentLine, 1);
  EXPECT_EQ(platform::simulated::Clock(), 100);
  EXPECT_EQ(Log(), (Texts{"NextYear", "Loop: YearCount=1 CurrYear=1", "NextYear", "Loop: YearCount=1 CurrYear=2",
                          "NextYear", "Loop: YearCount=1 CurrYear=3", kStopped, kStars}));
}

TEST_F(RunLoopTest, AJumpKeepsLoopAndBranch) {
  EXPECT_TRUE(RunLines({"MSG=0", "DO", "IF STRCOMP=a,a", "GOTO=m", "ELSE", "MARK=m", "MSG=da"}));
  EXPECT_EQ(run.LoopStart, 1);
  EXPECT_TRUE(run.ExecEnabled);
}

TEST_F(RunLoopTest, AMarkOnLineZeroLeavesNoJumpPending) {
  EXPECT_TRUE(RunLines({"MARK=oben", "GOTO=oben", "MSG=weiter"}));
  EXPECT_EQ(run.GotoLine, 0);
  EXPECT_EQ(run.CurrentLine, 4);
}

TEST_F(RunLoopTest, GoToLineTakesTheFirstMark) {
  LoadLines({"", "Mark=A", "MARK=a", "MARK=b"});
  EXPECT_TRUE(GoToLine("a"));
  EXPECT_EQ(run.GotoLine, 1);
  EXPECT_TRUE(GoToLine("B"));
  EXPECT_EQ(run.GotoLine, 3);
  EXPECT_EQ(Log(), (Texts{"Sprungmarke (MARK=A) gefunden: 1", "Sprungmarke (MARK=B) gefunden: 3"}));
}

TEST_F(RunLoopTest, GoToLineOfAnUnknownMarkKeepsAPendingJump) {
  LoadLines({"", "MARK=a"});
  GoToLine("a");
  EXPECT_FALSE(GoToLine("c"));
  EXPECT_EQ(run.GotoLine, 1);
  EXPECT_EQ(run.LastError, "Sprungmarke (c) konnte nicht gefunden werden.");
}

// The end of a run.

TEST_F(RunLoopTest, AStoppedRunYieldsTrueAndEndsAtTheNextLine) {
  EXPECT_TRUE(RunLines({"STOP", "MSG=nie"}));
  EXPECT_EQ(run.CurrentLine, 1);
  EXPECT_EQ(Log(), (Texts{kStopped, kStars}));
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kStopped);
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 2);
  EXPECT_TRUE(frmStatus.cmdOK.Enabled());
}

TEST_F(RunLoopTest, AFailedRunYieldsFalseAndShowsItsText) {
  EXPECT_FALSE(RunLines({"MSG=a", "RAISEERROR=kaputt", "MSG=nie"}));
  EXPECT_EQ(run.CurrentLine, 2);
  EXPECT_EQ(Log(), (Texts{"MSG: a", "kaputt"}));
  EXPECT_EQ(frmStatus.lblInfo.Caption(), "Beim exportieren ist ein Fehler aufgetreten.");
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "kaputt");
  EXPECT_TRUE(frmStatus.cmdResume.Enabled());
  EXPECT_FALSE(frmStatus.cmdOK.Enabled());
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 2);
}

TEST_F(RunLoopTest, StopWinsOverRunFailed) {
  Schedule(5, [] {
    run.RunFailed = true;
    run.StopRun = true;
    run.LastError = "kaputt";
  });
  EXPECT_TRUE(RunLines({"WAIT=10", "MSG=nie"}));
  EXPECT_EQ(Log(), (Texts{kStopped, kStars}));
  EXPECT_FALSE(frmStatus.cmdResume.Enabled());
  EXPECT_TRUE(frmStatus.cmdOK.Enabled());
}

TEST_F(RunLoopTest, AFailureShowsADialogThatTheMacroHasHidden) {
  frmStatus.Show();
  frmStatus.Hide();
  run.DialogHidden = true;
  EXPECT_FALSE(RunLines({"RAISEERROR=kaputt"}));
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_TRUE(run.DialogHidden);
}

TEST_F(RunLoopTest, AFailureLeavesTheDialogAsItIsOtherwise) {
  EXPECT_FALSE(RunLines({"RAISEERROR=kaputt"}));
  EXPECT_FALSE(frmStatus.Visible());
}

TEST_F(RunLoopTest, ACompletedRunLeavesAHiddenDialogHidden) {
  run.DialogHidden = true;
  EXPECT_TRUE(RunLines({"MSG=a"}));
  EXPECT_FALSE(frmStatus.Visible());
}

class RunInProgramTest : public RunLoopTest {
 protected:
  RunInProgramTest() { support::StartProgram(); }

  static std::string Icon() { return platform::simulated::Tray()->icon; }
};

TEST_F(RunInProgramTest, TheIconShowsARunThatGoesOnAndIsIdleBehindIt) {
  std::string icon;
  EachWait(1, [&] { icon = Icon(); });
  EXPECT_EQ(Icon(), "ICOQUM");
  EXPECT_TRUE(RunLines({"WAIT=10"}));
  EXPECT_EQ(icon, "ICOEXP");
  EXPECT_EQ(Icon(), "ICOQUM");
}

TEST_F(RunInProgramTest, TheIconIsIdleBehindAStop) {
  EXPECT_TRUE(RunLines({"STOP"}));
  EXPECT_EQ(Icon(), "ICOQUM");
}

TEST_F(RunInProgramTest, TheIconShowsAFailureUntilTheResume) {
  std::string icon;
  EXPECT_FALSE(RunLines({"RAISEERROR=kaputt", "WAIT=10"}));
  EXPECT_EQ(Icon(), "ICOERR");
  EachWait(1, [&] { icon = Icon(); });
  Resume();
  EXPECT_EQ(icon, "ICOEXP");
  EXPECT_EQ(Icon(), "ICOQUM");
}

TEST_F(RunInProgramTest, TheIconIsIdleBehindARunThatWasStoppedAndFailed) {
  EachWait(1, [] { run.RunFailed = run.StopRun = true; });
  EXPECT_TRUE(RunLines({"WAIT=10"}));
  EXPECT_EQ(Icon(), "ICOQUM");
}

TEST_F(RunInProgramTest, AFaultOfTheLoopLeavesTheIconOfARun) {
  LoadLines({"MSG=0"});
  run.GotoLine = 99;
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(Icon(), "ICOEXP");
}

// Resuming.

TEST_F(RunLoopTest, AResumeGoesOnBehindTheFailedLineWithTheVariables) {
  EXPECT_FALSE(RunLines({"DIM x", "x=VALUE(1)", "RAISEERROR=kaputt", "MSG=x"}));
  Resume();
  EXPECT_EQ(Log(), Completed({"Variable wurde befüllt: 1", "kaputt", "<Cancel>", "MSG: 1"}));
}

TEST_F(RunLoopTest, AFailureInTheLastLineResumesToTheEnd) {
  EXPECT_FALSE(RunLines({"RAISEERROR=kaputt"}));
  Resume();
  EXPECT_EQ(Log(), Completed({"kaputt", "<Cancel>"}));
  EXPECT_TRUE(frmStatus.cmdOK.Enabled());
  EXPECT_FALSE(frmStatus.cmdResume.Enabled());
}

TEST_F(RunLoopTest, AResumeMakesTheBranchLive) {
  LoadLines({"IF STRCOMP=a,b", "MSG=übergangen", "ELSE", "RAISEERROR=kaputt", "MSG=da", "ELSE", "MSG=nie", "ENDIF"});
  EXPECT_FALSE(ProcessMakro(0));
  run.ExecEnabled = false;
  Resume();
  EXPECT_EQ(Log(), Completed({"STRCOMP: a, b = False", "kaputt", "<Cancel>", "MSG: da"}));
}

TEST_F(RunLoopTest, AFailureInAnOpenLoopKeepsTheLoopForTheResume) {
  run.YearUpper = 1;
  EXPECT_FALSE(RunLines({"MSG=0", "DO", "NEXT VJ", "RAISEERROR=kaputt", "LOOP UNTIL COUNT", "MSG=fertig"}));
  EXPECT_EQ(run.LoopStart, 1);
  Resume();
  EXPECT_EQ(run.LoopStart, 1);
  Resume();
  EXPECT_EQ(run.LoopStart, 0);
  EXPECT_EQ(Log(), Completed({"MSG: 0", "NextYear", "kaputt", "<Cancel>", "Loop: YearCount=1 CurrYear=1", "NextYear",
                              "kaputt", "<Cancel>", "Loop: YearCount=1 CurrYear=2", "MSG: fertig"}));
}

TEST_F(RunLoopTest, AResumeBehindAFailedJumpGoesOnAtTheNextLine) {
  EXPECT_FALSE(RunLines({"GOTO=fehlt", "MSG=da"}));
  Resume();
  EXPECT_EQ(Log(), Completed({"Sprungmarke (fehlt) konnte nicht gefunden werden.", "<Cancel>", "MSG: da"}));
}

TEST_F(RunLoopTest, ARunAfterAFailureBeginsAfresh) {
  EXPECT_FALSE(RunLines({"REM", "DO", "RAISEERROR=kaputt"}));
  EXPECT_TRUE(RunLines({"MSG=da"}));
  EXPECT_EQ(run.LoopStart, 0);
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(Log(), Completed({"kaputt", "MSG: da"}));
}

// Faults of the loop itself.

TEST_F(RunLoopTest, AFaultOfTheLoopEndsItWithoutAnyReport) {
  LoadLines({"MSG=0"});
  run.GotoLine = 99;
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ProcessMakro:Index außerhalb des gültigen Bereichs");
  EXPECT_FALSE(run.RunFailed);
  EXPECT_FALSE(run.StopRun);
  EXPECT_EQ(Log(), Texts{});
  EXPECT_EQ(frmStatus.lblInfo.Caption(),
            "Die Verarbeitung wird ausgeführt. Dieser Vorgang kann einige Minuten in Anspruch nehmen...");
  EXPECT_FALSE(frmStatus.cmdResume.Enabled());
  EXPECT_FALSE(frmStatus.cmdOK.Enabled());
}

TEST_F(RunLoopTest, ALoopThatStandsBehindTheLastLineIsAFaultToo) {
  LoadLines({"MSG=0"});
  run.LoopStart = 7;
  run.LoopBack = true;
  EXPECT_FALSE(ProcessMakro(1));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ProcessMakro:Index außerhalb des gültigen Bereichs");
}

// Single lines.

TEST_F(RunLoopTest, ALineThatIsNoCommandRunsNothing) {
  run.ExecEnabled = true;
  for (const char* line : {"", "REM", "rem x", "REMOVE=1", "DIM y"}) MakroAction(line);
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(Log(), Texts{});
}

TEST_F(RunLoopTest, TwoLettersAreNoComment) {
  run.ExecEnabled = true;
  MakroAction("RE");
  EXPECT_EQ(run.LastError, "Unknown Command: RE");
}

TEST_F(RunLoopTest, AnAssignmentStoresWhateverHappened) {
  run.UserVariables.Declare("x");
  const auto value = [] { return run.UserVariables.Value(0); };
  run.ExecEnabled = true;
  MakroAction("x=VALUE(1)");
  EXPECT_EQ(value(), "1");
  MakroAction("x=FOO(1)");
  EXPECT_EQ(value(), "");
  run.ExecEnabled = false;
  MakroAction("x=VALUE(2)");
  EXPECT_EQ(value(), "");
}

}  // namespace
