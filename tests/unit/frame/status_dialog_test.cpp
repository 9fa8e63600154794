// The status dialog: its states, cancel, resume, and what happens to it when the user closes it during a run.
#include "frame/frmStatus.h"

#include "engine/state.h"
#include "forms/simulated/user.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;
using forms::simulated::Press;

constexpr char kWaited[] = "Warten auf Fenster war erfolgreich.";
constexpr char kRunFailed[] = "Beim exportieren ist ein Fehler aufgetreten.";
constexpr char kInProgress[] =
    "Die Verarbeitung wird ausgeführt. Dieser Vorgang kann einige Minuten in Anspruch nehmen...";

class StatusDialogTest : public SystemTest {
 protected:
  void ExpectButtons(bool resume, bool ok, bool cancel) {
    EXPECT_EQ(frmStatus.cmdResume.Enabled(), resume);
    EXPECT_EQ(frmStatus.cmdOK.Enabled(), ok);
    EXPECT_EQ(frmStatus.cmdCancel.Enabled(), cancel);
  }
};

// The dialog by itself.

TEST_F(StatusDialogTest, TheFreshDialog) {
  frmStatus.Show();
  EXPECT_EQ(frmStatus.title, "TARVEN Datenexport");
  EXPECT_EQ(At(frmStatus.Window()).text, "TARVEN Datenexport");
  EXPECT_EQ(frmStatus.lblInfo.Caption(), "");
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "");
  EXPECT_EQ(frmStatus.cmdResume.Caption(), "W&eiter");
  EXPECT_EQ(frmStatus.cmdOK.Caption(), "&OK");
  EXPECT_EQ(frmStatus.cmdCancel.Caption(), "A&bbrechen");
  EXPECT_EQ(frmStatus.cmdOK.role, forms::ButtonRole::Default);
  EXPECT_EQ(frmStatus.cmdResume.role, forms::ButtonRole::Plain);
  EXPECT_EQ(frmStatus.cmdCancel.role, forms::ButtonRole::Plain);
  ExpectButtons(false, false, true);
}

TEST_F(StatusDialogTest, TheButtonsStandSideBySideInTheirOrderBelowLabelsAndBar) {
  const std::vector<forms::Control*> order = {&frmStatus.lblInfo,   &frmStatus.lblStatus, &frmStatus.ProgressBar,
                                              &frmStatus.cmdResume, &frmStatus.cmdOK,     &frmStatus.cmdCancel};
  EXPECT_EQ(forms::ControlsOf(frmStatus.Layout()), order);
  EXPECT_EQ(frmStatus.Layout().boxes.back().kind, forms::Box::Kind::Buttons);
}

TEST_F(StatusDialogTest, InfoPumpsFirstAndThenShowsThePhase) {
  frmStatus.Show();
  frmStatus.lblStatus.SetCaption("alt");
  ClickClose(frmStatus);
  frmStatus.Info("Phase");
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblInfo.Caption(), "Phase");
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "");
}

TEST_F(StatusDialogTest, StatusPumpsFirstAndThenShowsTheStep) {
  frmStatus.Show();
  frmStatus.lblInfo.SetCaption("alt");
  ClickClose(frmStatus);
  frmStatus.Status("Schritt");
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "Schritt");
  EXPECT_EQ(frmStatus.lblInfo.Caption(), "");
}

TEST_F(StatusDialogTest, ProgressSetsTheBar) {
  frmStatus.ProgressBar.SetMaximum(10);
  frmStatus.Progress(7);
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 7);
}

TEST_F(StatusDialogTest, ProgressOutsideTheBarIsNoFailure) {
  frmStatus.ProgressBar.SetMaximum(10);
  frmStatus.Progress(11);
  frmStatus.Progress(-1);
  EXPECT_GE(frmStatus.ProgressBar.Value(), 0);
  EXPECT_LE(frmStatus.ProgressBar.Value(), 10);
}

TEST_F(StatusDialogTest, ProcessErrorShowsAndLogsTheError) {
  run.LastError = "Fehlertext";
  frmStatus.ProcessError();
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kRunFailed);
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "Fehlertext");
  ExpectLog(Lines{"Fehlertext"});
  ExpectButtons(true, false, true);
}

TEST_F(StatusDialogTest, ProcessErrorWithoutATextLogsAnEmptyLine) {
  frmStatus.ProcessError();
  ExpectLog(Lines{""});
}

TEST_F(StatusDialogTest, ProcessCompleteShowsAndLogsTheSuccess) {
  frmStatus.Show();
  frmStatus.Status("Schritt");
  frmStatus.ProcessComplete();
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kCompleted);
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "");
  EXPECT_EQ(forms::simulated::Focused(), &frmStatus.cmdOK);
  ExpectLog((Lines{kCompleted, kStars}));
  ExpectButtons(false, true, true);
}

TEST_F(StatusDialogTest, ProcessCompleteOfAStoppedRunTellsTheStop) {
  run.StopRun = true;
  frmStatus.ProcessComplete();
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kStopped);
  ExpectLog((Lines{kStopped, kStars}));
}

TEST_F(StatusDialogTest, OkUnloadsTheDialogAndTheNextUseMakesACleanOne) {
  frmStatus.Show();
  frmStatus.ProcessComplete();
  Press(frmStatus.cmdOK);
  EXPECT_FALSE(frmStatus.Loaded());
  frmStatus.Show();
  EXPECT_EQ(frmStatus.lblInfo.Caption(), "");
  ExpectButtons(false, false, true);
}

TEST_F(StatusDialogTest, ADisabledButtonCannotBePressed) {
  frmStatus.Show();
  Press(frmStatus.cmdOK);
  Press(frmStatus.cmdResume);
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_TRUE(Log().empty());
}

// A run.

class StatusDuringRunTest : public StatusDialogTest {
 protected:
  StatusDuringRunTest() {
    StartProgram();
    MacroEntry(1, "TeRu,A.MAK");
    TargetWindow("TeRu");
  }

  void RunMacro(const Lines& lines) {
    Macro("A.MAK", lines);
    PressHotKey();
  }

  // At a moment in which a command waits without pumping, so that it is seen as the command before has left it.
  template <class Look>
  void At50(Look look) {
    Schedule(50, look);
  }
};

TEST_F(StatusDuringRunTest, Running) {
  std::string info;
  bool resume = true, ok = true, cancel = false;
  At50([&] {
    info = frmStatus.lblInfo.Caption();
    resume = frmStatus.cmdResume.Enabled();
    ok = frmStatus.cmdOK.Enabled();
    cancel = frmStatus.cmdCancel.Enabled();
  });
  RunMacro({"WAIT=100"});
  EXPECT_EQ(info, kInProgress);
  EXPECT_FALSE(resume);
  EXPECT_FALSE(ok);
  EXPECT_TRUE(cancel);
}

TEST_F(StatusDuringRunTest, TheBarFollowsTheLines) {
  int value = -1, maximum = -1;
  At50([&] {
    value = frmStatus.ProgressBar.Value();
    maximum = frmStatus.ProgressBar.Maximum();
  });
  RunMacro({"MSG=0", "MSG=1", "WAIT=100", "MSG=3"});
  EXPECT_EQ(value, 2);
  EXPECT_EQ(maximum, 5);
  EXPECT_EQ(frmStatus.ProgressBar.Value(), 4);
}

TEST_F(StatusDuringRunTest, Failed) {
  RunMacro({"RAISEERROR=kaputt", "MSG=1"});
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kRunFailed);
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "kaputt");
  ExpectButtons(true, false, true);
  EXPECT_EQ(ShownIcon(), kFailed);
  ExpectLog(Header("A.MAK") + Lines{"kaputt"});
}

TEST_F(StatusDuringRunTest, Finished) {
  RunMacro({"DISPLAYSTATUS=Schritt"});
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kCompleted);
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "");
  ExpectButtons(false, true, true);
  EXPECT_EQ(forms::simulated::Focused(), &frmStatus.cmdOK);
  EXPECT_EQ(ShownIcon(), kIdle);
}

class NextPressTest : public StatusDuringRunTest {
 protected:
  // The dialog during a run that waits.
  void ExpectCleanDialogAtTheNextPress() {
    bool visible = false, resume = true, ok = true;
    std::string info, status = "?";
    At50([&] {
      visible = frmStatus.Visible();
      resume = frmStatus.cmdResume.Enabled();
      ok = frmStatus.cmdOK.Enabled();
      info = frmStatus.lblInfo.Caption();
      status = frmStatus.lblStatus.Caption();
    });
    RunMacro({"WAIT=100"});
    EXPECT_TRUE(visible);
    EXPECT_FALSE(resume);
    EXPECT_FALSE(ok);
    EXPECT_EQ(info, kInProgress);
    EXPECT_EQ(status, "");
  }
};

TEST_F(NextPressTest, BehindAFinishedRunThatWasNotConfirmedItGetsACleanDialog) {
  RunMacro({"MSG=1"});
  ExpectCleanDialogAtTheNextPress();
}

TEST_F(NextPressTest, BehindAConfirmedRunItGetsACleanDialog) {
  RunMacro({"MSG=1"});
  Press(frmStatus.cmdOK);
  ExpectCleanDialogAtTheNextPress();
}

TEST_F(NextPressTest, BehindAFailedRunItGetsACleanDialog) {
  RunMacro({"RAISEERROR=kaputt"});
  ExpectCleanDialogAtTheNextPress();
}

TEST_F(NextPressTest, BehindACancelledFailureItGetsACleanDialog) {
  RunMacro({"RAISEERROR=kaputt"});
  Press(frmStatus.cmdCancel);
  ExpectCleanDialogAtTheNextPress();
}

TEST_F(NextPressTest, BehindARunThatWasCancelledWhileItRanItGetsACleanDialog) {
  Schedule(30, [] { Click(frmStatus.cmdCancel); });
  RunMacro({"WAIT=40", "DISPLAYSTATUS=x"});
  ExpectCleanDialogAtTheNextPress();
}

// Cancel.

TEST_F(StatusDuringRunTest, CancelDuringACommandLogsItsLineAndThenTheClosingLines) {
  Schedule(1000, [] { Click(frmStatus.cmdCancel); });
  RunMacro({"WAITFORWINDOW=Nie,1,,,0", "MSG=nie"});
  ExpectLog(Header("A.MAK") + Lines{"<Cancel>", kWaited, kStopped, kStars});
  EXPECT_TRUE(run.StopRun);
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(StatusDuringRunTest, TheEndOfACancelledRunShowsNothingOnTheScreen) {
  Schedule(1000, [] { Click(frmStatus.cmdCancel); });
  RunMacro({"WAITFORWINDOW=Nie,1,,,0"});
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kStopped);
}

TEST_F(StatusDuringRunTest, ACommandThatNeitherPumpsNorPollsCannotBeInterrupted) {
  Schedule(50, [] { Click(frmStatus.cmdCancel); });
  RunMacro({"WAIT=100", "MSG=doch", "DISPLAYSTATUS=hier", "MSG=nie"});
  ExpectLog(Header("A.MAK") + Lines{"MSG: doch", "<Cancel>", "hier", kStopped, kStars});
}

TEST_F(StatusDuringRunTest, CancelInTheFailedStateLeavesOnlyTheLineAndTheIcon) {
  RunMacro({"RAISEERROR=kaputt", "MSG=nie"});
  Press(frmStatus.cmdCancel);
  ExpectLog(Header("A.MAK") + Lines{"kaputt", "<Cancel>"});
  EXPECT_EQ(ShownIcon(), kIdle);
  EXPECT_FALSE(frmStatus.Loaded());
}

TEST_F(StatusDuringRunTest, CancelInTheFinishedStateLeavesItsLineBehindTheStarLine) {
  RunMacro({"MSG=1"});
  Press(frmStatus.cmdCancel);
  ExpectLog(Header("A.MAK") + Completed({"MSG: 1"}) + Lines{"<Cancel>"});
  EXPECT_FALSE(frmStatus.Loaded());
}

TEST_F(StatusDuringRunTest, ARunThatIsBothStoppedAndFailedReportsTheStop) {
  Schedule(50, [] { Click(frmStatus.cmdCancel); });
  RunMacro({"WAIT=100", "BUTTONCLICK=1,Nie", "MSG=nie"});
  EXPECT_TRUE(run.RunFailed);
  ExpectLog(Header("A.MAK") + Lines{"<Cancel>", kStopped, kStars});
  EXPECT_EQ(ShownIcon(), kIdle);
}

// Closing by the system menu.

TEST_F(StatusDuringRunTest, ClosingItByTheSystemMenuLetsTheRunGoOnWithoutAVisibleDialog) {
  Schedule(1000, [] { ClickClose(frmStatus); });
  Schedule(2000, [] { AddWindow({.className = "X", .text = "Später"}); });
  bool visibleLater = true;
  Schedule(3000, [&] { visibleLater = frmStatus.Visible(); });
  RunMacro({"WAITFORWINDOW=Später,1,,,0", "WAIT=1000", "MSG=weiter"});
  EXPECT_FALSE(run.StopRun);
  EXPECT_FALSE(visibleLater);
  EXPECT_FALSE(frmStatus.Visible());
  ExpectLog(Header("A.MAK") + Completed({kWaited, "MSG: weiter"}));
  EXPECT_EQ(ShownIcon(), kIdle);
}

// Resume.

TEST_F(StatusDuringRunTest, ResumeGoesOnBehindTheFailedLine) {
  RunMacro({"MSG=0", "RAISEERROR=kaputt", "MSG=2"});
  Press(frmStatus.cmdResume);
  ExpectLog(Header("A.MAK") + Lines{"MSG: 0", "kaputt", "<Cancel>"} + Completed({"MSG: 2"}));
  EXPECT_EQ(ShownIcon(), kIdle);
  ExpectButtons(false, true, true);
}

TEST_F(StatusDuringRunTest, ResumeEmptiesTheLabelsAndDisablesItself) {
  RunMacro({"RAISEERROR=kaputt", "WAIT=100"});
  std::string status = "?";
  bool resume = true;
  std::string icon;
  At50([&] {
    status = frmStatus.lblStatus.Caption();
    resume = frmStatus.cmdResume.Enabled();
    icon = ShownIcon();
  });
  Press(frmStatus.cmdResume);
  EXPECT_EQ(status, "");
  EXPECT_FALSE(resume);
  EXPECT_EQ(icon, kRunning);
}

TEST_F(StatusDuringRunTest, ResumeEmptiesTheLabelsBeforeEventsRun) {
  RunMacro({"RAISEERROR=kaputt", "MSG=1"});
  std::string info = "?", status = "?";
  const std::int32_t ours = AddWindow({.className = "X",
                                       .text = "",
                                       .process = kOwnProcess,
                                       .procedure = [&](const Message&) -> std::optional<std::int32_t> {
                                         info = frmStatus.lblInfo.Caption();
                                         status = frmStatus.lblStatus.Caption();
                                         return 0;
                                       }});
  platform::PostMessageA(ours, 1000, 0, 0);
  frmStatus.cmdResume_Click();
  EXPECT_EQ(info, "");
  EXPECT_EQ(status, "");
}

TEST_F(StatusDuringRunTest, ResumeKeepsTheVariables) {
  RunMacro({"DIM x", "x=VALUE(5)", "RAISEERROR=kaputt", "MSG=x"});
  Press(frmStatus.cmdResume);
  ExpectLog(Header("A.MAK") + Lines{"Variable wurde befüllt: 5", "kaputt", "<Cancel>"} + Completed({"MSG: 5"}));
}

TEST_F(StatusDuringRunTest, ResumeMakesTheBranchLiveAgain) {
  RunMacro({"IF STRCOMP=a,b", "ELSE", "RAISEERROR=kaputt", "ELSE", "MSG=4", "ENDIF"});
  Press(frmStatus.cmdResume);
  // Behind the failed line the branch is live, so the next ELSE skips.
  ExpectLog(Header("A.MAK") + Lines{"STRCOMP: a, b = False", "kaputt", "<Cancel>"} + Completed({}));
}

TEST_F(StatusDuringRunTest, ASecondFailureCanBeResumedToo) {
  RunMacro({"RAISEERROR=eins", "RAISEERROR=zwei", "MSG=2"});
  Press(frmStatus.cmdResume);
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "zwei");
  Press(frmStatus.cmdResume);
  ExpectLog(Header("A.MAK") + Lines{"eins", "<Cancel>", "zwei", "<Cancel>"} + Completed({"MSG: 2"}));
}

TEST_F(StatusDuringRunTest, AFailureInTheVeryLastLineOffersResumeWhichRunsNothingMore) {
  RunMacro({"MSG=0", "RAISEERROR=kaputt"});
  EXPECT_TRUE(frmStatus.cmdResume.Enabled());
  Press(frmStatus.cmdResume);
  ExpectLog(Header("A.MAK") + Lines{"MSG: 0", "kaputt", "<Cancel>"} + Completed({}));
  ExpectButtons(false, true, true);
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(StatusDuringRunTest, CancelDuringAResumedRunStopsIt) {
  RunMacro({"RAISEERROR=kaputt", "WAITFORWINDOW=Nie,1,,,0", "MSG=nie"});
  Schedule(1000, [] { Click(frmStatus.cmdCancel); });
  Press(frmStatus.cmdResume);
  ExpectLog(Header("A.MAK") + Lines{"kaputt", "<Cancel>", "<Cancel>", kWaited, kStopped, kStars});
}

// The dialog that the macro has hidden.

TEST_F(StatusDuringRunTest, AHiddenDialogIsShownForTheErrorAndHiddenAgainOnResume) {
  Schedule(50, [] {
    run.DialogHidden = true;
    frmStatus.Hide();
  });
  RunMacro({"WAIT=100", "RAISEERROR=kaputt", "WAIT=100"});
  EXPECT_TRUE(frmStatus.Visible());
  bool visible = true;
  At50([&] { visible = frmStatus.Visible(); });
  Press(frmStatus.cmdResume);
  EXPECT_FALSE(visible);
  EXPECT_FALSE(frmStatus.Visible());
}

TEST_F(StatusDuringRunTest, ADialogThatIsNotHiddenStaysOnTheScreenOnResume) {
  RunMacro({"RAISEERROR=kaputt", "WAIT=100"});
  bool visible = false;
  At50([&] { visible = frmStatus.Visible(); });
  Press(frmStatus.cmdResume);
  EXPECT_TRUE(visible);
}

}  // namespace
