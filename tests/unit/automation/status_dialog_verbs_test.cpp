// The verbs on the status dialog, and looking at the window in front.
#include "automation/status_dialog_verbs.h"

#include "frame/frmStatus.h"
#include "frame/state.h"
#include "support/press.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

// "HIDEDIALOG" and "SHOWDIALOG".

class HideDialogTest : public SystemTest {};

TEST_F(HideDialogTest, TheDialogIsHiddenAndShown) {
  frmStatus.Show();
  EXPECT_TRUE(HideDialog());
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_TRUE(frmStatus.Loaded());
  EXPECT_TRUE(run.DialogHidden);
  EXPECT_TRUE(ShowDialog());
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_FALSE(run.DialogHidden);
  EXPECT_TRUE(Log().empty());
}

TEST_F(HideDialogTest, TheVerbs) {
  frmStatus.Show();
  EXPECT_TRUE(RunLines({"SHOWDIALOG", "HIDEDIALOG"}));
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_TRUE(RunLines({"HIDEDIALOG", "SHOWDIALOG"}));
  EXPECT_TRUE(frmStatus.Visible());
}

TEST_F(HideDialogTest, AFailureShowsTheHiddenDialogAndAResumeHidesItAgain) {
  frmStatus.Show();
  EXPECT_FALSE(RunLines({"HIDEDIALOG", "RAISEERROR=Schluss", "MSG=weiter"}));
  EXPECT_TRUE(frmStatus.Visible());
  frmStatus.cmdResume_Click();
  EXPECT_FALSE(frmStatus.Visible());
}

// "IF ACTIVEWINDOW".

class ActiveWindowTest : public ControlTest {
 protected:
  ActiveWindowTest() { frmStatus.Show(); }
};

TEST_F(ActiveWindowTest, TheTitleOfTheMainWindowCountsAlsoWhenAnotherWindowIsInFront) {
  Activate(AddWindow({.className = "X", .text = "Anderes"}));
  EXPECT_TRUE(IsActiveWindow("xpor", ""));
  EXPECT_FALSE(IsActiveWindow("Anderes", ""));
  EXPECT_FALSE(IsActiveWindow("Anderes", "1"));
  EXPECT_EQ(Clock(), 0);
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_TRUE(Log().empty());
}

TEST_F(ActiveWindowTest, TheFragmentMindsTheCase) {
  EXPECT_FALSE(IsActiveWindow("export", ""));
  EXPECT_FALSE(IsActiveWindow("export", "TRUE"));
}

TEST_F(ActiveWindowTest, TrueInAnyCaseMeansTheWindowInFrontAfterASecond) {
  Activate(AddWindow({.className = "X", .text = "Anderes"}));
  std::int64_t before = 0;
  for (const char* word : {"TRUE", "true", "True"}) {
    EXPECT_TRUE(IsActiveWindow("nder", word)) << word;
    EXPECT_FALSE(IsActiveWindow("Export", word)) << word;
    EXPECT_EQ(Clock() - before, 2000);
    before = Clock();
  }
  EXPECT_TRUE(Log().empty());
}

TEST_F(ActiveWindowTest, TheStatusDialogIsOutOfTheWayMeanwhile) {
  Activate(frmStatus.hWnd());
  bool hidden = false;
  Schedule(999, [&] { hidden = !frmStatus.Visible() && run.DialogHidden; });
  EXPECT_TRUE(IsActiveWindow("Export", "TRUE"));
  EXPECT_TRUE(hidden);
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_FALSE(run.DialogHidden);
}

TEST_F(ActiveWindowTest, AHiddenStatusDialogIsShownAfterwards) {
  HideDialog();
  EXPECT_TRUE(IsActiveWindow("Export", "TRUE"));
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_FALSE(run.DialogHidden);
}

TEST_F(ActiveWindowTest, AWindowThatIsGoneHasNoTitle) {
  DestroyWindow(window_);
  EXPECT_FALSE(IsActiveWindow("Export", ""));
  EXPECT_FALSE(IsActiveWindow("Export", "TRUE"));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ActiveWindowTest, AWindowThatComesUpWithinTheSecondCounts) {
  Schedule(900, [] { Activate(AddWindow({.className = "X", .text = "Neu"})); });
  EXPECT_TRUE(IsActiveWindow("Neu", "TRUE"));
}

TEST_F(ActiveWindowTest, TheVerbDecidesTheBranch) {
  Activate(AddWindow({.className = "X", .text = "Anderes"}));
  EXPECT_TRUE(RunLines({"IF ACTIVEWINDOW=Export", "MSG=1", "ENDIF", "IF ACTIVEWINDOW=Export,TRUE", "MSG=nie", "ELSE",
                        "MSG=2", "ENDIF"}));
  ExpectLog(Completed({"MSG: 1", "MSG: 2"}));
}

// "DISPLAYSTATUS".

class DisplayStatusTest : public SystemTest {};

TEST_F(DisplayStatusTest, TheTextIsShownAndLogged) {
  EXPECT_TRUE(DisplayStatus("Schritt", ""));
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "Schritt");
  ExpectLog({"Schritt"});
}

TEST_F(DisplayStatusTest, EveryPercentOneIsReplacedByAValue) {
  EXPECT_TRUE(DisplayStatus("%1 von %2, %1", "3"));
  ExpectLog({"3 von %2, 3"});
}

TEST_F(DisplayStatusTest, WithoutAValueTheTextStandsAsItIs) {
  EXPECT_TRUE(DisplayStatus("%1 von %2", ""));
  ExpectLog({"%1 von %2"});
}

TEST_F(DisplayStatusTest, AValueIsNotSearchedAgain) {
  EXPECT_TRUE(DisplayStatus("<%1>", "%1%1"));
  ExpectLog({"<%1%1>"});
}

TEST_F(DisplayStatusTest, ItLetsEventsRunBeforeTheTextIsShown) {
  frmStatus.Show();
  ClickClose(frmStatus);
  EXPECT_TRUE(DisplayStatus("Schritt", ""));
  EXPECT_FALSE(frmStatus.Visible());
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "Schritt");
}

TEST_F(DisplayStatusTest, BothVerbs) {
  EXPECT_TRUE(RunLines({"DISPLAYSTATUS='a, %1',b", "DISPLAY=c", "DISPLAY="}));
  ExpectLog(Completed({"a, b", "c", ""}));
}

}  // namespace
