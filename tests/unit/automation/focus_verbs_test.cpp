// The verbs that move the focus.
#include "automation/focus_verbs.h"

#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "platform/input.h"
#include "platform/window_lookup.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

// "SETFOCUSCTL".

class SetFocusCtlTest : public ControlTest {
 protected:
  SetFocusCtlTest() {
    StartProgram();
    Activate(window_);
  }

  static Lines Focused(std::int32_t control) {
    return {"Der Fokus wurde auf das Feld gesetzt. (" + std::to_string(control) + ")"};
  }
};

TEST_F(SetFocusCtlTest, TheControlOfClassTextAndIdGetsTheFocus) {
  Child("Button", "Start", 6);
  const std::int32_t control = Child("Button", "Start", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_TRUE(SetFocusCtl("Button", "Start", "7"));
  EXPECT_EQ(Focus(), control);
  ExpectLog(Focused(control));
}

TEST_F(SetFocusCtlTest, TheQueuesAreJoinedWithTheMainFormsForItAndNoWindowIsBroughtToTheFront) {
  const std::int32_t control = Child("Button", "Start", 7);
  std::uint32_t process = 0;
  const std::string threads = std::to_string(platform::GetWindowThreadProcessId(window_, process)) + " " +
                              std::to_string(platform::GetWindowThreadProcessId(frmMain.hWnd(), process));
  EXPECT_TRUE(SetFocusCtl("Button", "", "0"));
  EXPECT_EQ(InputLog(), (Lines{"AttachThreadInput " + threads + " 1", "SetFocus " + std::to_string(control),
                               "AttachThreadInput " + threads + " 0"}));
}

TEST_F(SetFocusCtlTest, ItWorksInTheWindowInFrontWithoutASearch) {
  const std::int32_t front = AddWindow({.className = "X", .text = ""});
  const std::int32_t control = Child("Button", "Start", 7, front);
  Child("Button", "Start", 7);
  Activate(front);
  EXPECT_TRUE(SetFocusCtl("Button", "Start", "7"));
  EXPECT_EQ(Clock(), 0);
  ExpectLog(Focused(control));
}

TEST_F(SetFocusCtlTest, WithoutClassAndTextNothingIsWritten) {
  run.LastError = "vorher";
  EXPECT_FALSE(SetFocusCtl("", "", "7"));
  ExpectFailure("vorher");
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(SetFocusCtlTest, ATextAloneFindsNothingAndSucceeds) {
  Child("Button", "Start", 7);
  EXPECT_TRUE(SetFocusCtl("", "Start", "7"));
  ExpectLog(Focused(0));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SetFocusCtlTest, AnIdThatIsNoNumberFindsNothingAndSucceeds) {
  Child("Button", "Start", 7);
  for (const char* id : {"x", "", "99999999999"}) EXPECT_TRUE(SetFocusCtl("Button", "Start", id)) << id;
  ExpectLog(Focused(0) + Focused(0) + Focused(0));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SetFocusCtlTest, StepsThatFailArePassedOver) {
  const std::int32_t control = Child("Button", "Start", 7);
  Fail("AttachThreadInput");
  Fail("SetFocus");
  EXPECT_TRUE(SetFocusCtl("Button", "Start", "7"));
  ExpectLog(Focused(control));
}

TEST_F(SetFocusCtlTest, WithoutAWindowInFrontItSucceedsWith0) {
  DestroyWindow(window_);
  EXPECT_TRUE(SetFocusCtl("Button", "Start", "7"));
  ExpectLog(Focused(0));
}

TEST_F(SetFocusCtlTest, TheVerbPassesItsThreeArgumentsInOrder) {
  const std::int32_t control = Child("Button", "Start", 7);
  EXPECT_TRUE(RunLines({"SETFOCUSCTL=Button,Start,7"}));
  ExpectLog(Completed(Focused(control)));
}

TEST_F(SetFocusCtlTest, WithoutClassAndTextTheRunFailsWithTheTextThatStood) {
  EXPECT_FALSE(RunLines({"SETFOCUSCTL=,,7", "MSG=nie"}));
  ExpectLog({""});
}

// "SETFOCUS".

class SetFocusWindowTest : public ControlTest {
 protected:
  SetFocusWindowTest() { Activate(other_); }

  const std::int32_t other_ = AddWindow({.className = "X", .text = "Anderes"});
  const Lines focused_ = {"Der Fokus wurde gesetzt."};
};

TEST_F(SetFocusWindowTest, WithoutAWordTheMainWindowComesToTheFront) {
  EXPECT_TRUE(SetFocusWindow(""));
  EXPECT_EQ(Foreground(), window_);
  EXPECT_EQ(Clock(), 0);
  ExpectLog(focused_);
}

TEST_F(SetFocusWindowTest, AWindowComesToTheFrontByAPartOfItsTitle) {
  frame.MainWindow = other_;
  EXPECT_TRUE(SetFocusWindow("xpor"));
  EXPECT_EQ(Foreground(), window_);
  ExpectLog(focused_);
}

TEST_F(SetFocusWindowTest, WithoutSuchAWindowNothingMovesAndTheLineIsTheSame) {
  EXPECT_TRUE(SetFocusWindow("Import"));
  EXPECT_EQ(Foreground(), other_);
  EXPECT_TRUE(InputLog().empty());
  ExpectLog(focused_);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SetFocusWindowTest, AWindowThatDoesNotComeIsPassedOver) {
  Fail("SetForegroundWindow");
  EXPECT_TRUE(SetFocusWindow("Export"));
  ExpectLog(focused_);
}

TEST_F(SetFocusWindowTest, AMainWindowThatIsGoneIsPassedOver) {
  DestroyWindow(window_);
  EXPECT_TRUE(SetFocusWindow(""));
  EXPECT_EQ(Foreground(), other_);
  ExpectLog(focused_);
}

TEST_F(SetFocusWindowTest, TheVerb) {
  EXPECT_TRUE(RunLines({"SETFOCUS=Expor", "SETFOCUS"}));
  ExpectLog(Completed({focused_[0], focused_[0]}));
  EXPECT_EQ(Foreground(), window_);
}

}  // namespace
