// Waiting for the clipboard.
#include "automation/clipboard_verbs.h"

#include "automation/state.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

const std::string kFilled = "Die Zwischenablage wurde gefüllt.";

// "CLEARCLIPBOARD".

class ClearClipboardTest : public SystemTest {};

TEST_F(ClearClipboardTest, TheClipboardIsEmptied) {
  Clipboard() = "alt";
  EXPECT_TRUE(ClearClipboard());
  EXPECT_FALSE(Clipboard().has_value());
  ExpectLog({"Die Zwischenablage wurde gelöscht."});
}

TEST_F(ClearClipboardTest, AClipboardThatAnotherProgramHoldsIsPassedOver) {
  Clipboard() = "alt";
  Fail("OpenClipboard");
  EXPECT_TRUE(ClearClipboard());
  EXPECT_EQ(Clipboard(), "alt");
  ExpectLog({"Die Zwischenablage wurde gelöscht."});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ClearClipboardTest, TheVerb) {
  Clipboard() = "alt";
  EXPECT_TRUE(RunLines({"CLEARCLIPBOARD"}));
  EXPECT_FALSE(Clipboard().has_value());
  ExpectLog(Completed({"Die Zwischenablage wurde gelöscht."}));
}

// "WAITFORCLIPBOARD".

class WaitForClipboardTest : public SystemTest {
 protected:
  WaitForClipboardTest() { StartProgram(); }

  // A message box that closes when it is answered; `answered` is the moment.
  std::int32_t Box(const std::string& title, const std::string& text) {
    const std::int32_t box = AddWindow({.className = "#32770", .text = title});
    AddWindow({.className = "Button", .text = "OK", .parent = box, .id = 1});
    AddWindow({.className = "Static", .text = text, .parent = box, .id = 0xFFFF});
    At(box).procedure = [this, box](const Message& message) -> std::optional<std::int32_t> {
      if (message.number != platform::WM_COMMAND) return std::nullopt;
      answered.push_back(Clock() - start);
      commands.push_back(message.wParam);
      DestroyWindow(box);
      return 0;
    };
    return box;
  }

  static void StopAfter(std::int32_t milliseconds) {
    Schedule(milliseconds, [] { run.StopRun = true; });
  }

  const std::int64_t start = Clock();
  std::vector<std::int64_t> answered;
  std::vector<std::int32_t> commands;
};

TEST_F(WaitForClipboardTest, AFilledClipboardIsSeenByTheTimerAfterASecond) {
  Clipboard() = "Text";
  EXPECT_TRUE(WaitForClipboard());
  // The timer's second ends in the pump of the eleventh round, and that round's pause follows.
  EXPECT_EQ(Clock() - start, 1100);
  ExpectLog({kFilled});
}

TEST_F(WaitForClipboardTest, ItWaitsUntilTheClipboardHoldsText) {
  Schedule(60 * 60 * 1000, [] { Clipboard() = "Text"; });
  EXPECT_TRUE(WaitForClipboard());
  EXPECT_GE(Clock() - start, 60 * 60 * 1000);
  EXPECT_LE(Clock() - start, 60 * 60 * 1000 + 1200);
  EXPECT_EQ(Log().back(), kFilled);
}

TEST_F(WaitForClipboardTest, TheTimerRunsWithinTheVerbOnly) {
  std::vector<int> intervals = {frmMain.Timer1.Interval()};
  Schedule(500, [&] { intervals.push_back(frmMain.Timer1.Interval()); });
  Clipboard() = "Text";
  EXPECT_TRUE(WaitForClipboard());
  intervals.push_back(frmMain.Timer1.Interval());
  EXPECT_EQ(intervals, (std::vector<int>{0, 1000, 0}));
  EXPECT_FALSE(frame.ClipboardFilled);
}

TEST_F(WaitForClipboardTest, WhatTheTimerHasSeenBeforeDoesNotCount) {
  frame.ClipboardFilled = true;
  StopAfter(2000);
  EXPECT_TRUE(WaitForClipboard());
  EXPECT_EQ(Clock() - start, 2000);
}

TEST_F(WaitForClipboardTest, AStopEndsItWithTheSameWords) {
  StopAfter(2950);
  EXPECT_TRUE(WaitForClipboard());
  EXPECT_EQ(Clock() - start, 3000);
  ExpectLog({kFilled});
  EXPECT_EQ(frmMain.Timer1.Interval(), 0);
}

TEST_F(WaitForClipboardTest, AStopThatStandsStillLetsOneRoundPass) {
  run.StopRun = true;
  EXPECT_TRUE(WaitForClipboard());
  EXPECT_EQ(Clock() - start, 100);
}

TEST_F(WaitForClipboardTest, ItLooksForTheBoxOfTheLastDialogVerbEvery3Seconds) {
  automation.DialogTitle = "Hinweis";
  automation.DialogText = "fertig";
  StopAfter(9950);
  EXPECT_TRUE(WaitForClipboard());
  // There is no titled window, so that a look takes no time: 3000, 6000 and 9000 ms.
  ExpectLog({"ConfirmDialog: Hinweis / fertig", "ConfirmDialog: Hinweis / fertig", "ConfirmDialog: Hinweis / fertig",
             kFilled});
}

TEST_F(WaitForClipboardTest, TheFirstLookIsAfterThe30thRound) {
  StopAfter(2999);
  EXPECT_TRUE(WaitForClipboard());
  ExpectLog({kFilled});
}

TEST_F(WaitForClipboardTest, ABoxIsAnsweredEachTime) {
  automation.DialogTitle = "Hinweis";
  automation.DialogText = "fertig";
  Schedule(10, [this] { Box("Hinweis", "Teil 1 fertig"); });
  Schedule(3500, [this] { Box("Hinweis", "Teil 2 fertig"); });
  StopAfter(7000);
  EXPECT_TRUE(WaitForClipboard());
  // The look itself costs 10 ms for the box; the command is handled in the pause that follows.
  ASSERT_EQ(answered.size(), 2u);
  EXPECT_GE(answered[0], 3010);
  EXPECT_LT(answered[0], 3110);
  EXPECT_GE(answered[1], 6020);
  EXPECT_LT(answered[1], 6120);
  ExpectLog({"ConfirmDialog: Hinweis / fertig", "Dialog Hinweis / Teil 1 fertig wurde mit OK bestätigt.",
             "ConfirmDialog: Hinweis / fertig", "Dialog Hinweis / Teil 2 fertig wurde mit OK bestätigt.", kFilled});
}

TEST_F(WaitForClipboardTest, WithoutADialogVerbTheFirstTitledWindowWithAStaticChildGetsACommand) {
  const std::int32_t lower = TargetWindow("irgendwas");
  AddWindow({.className = "Static", .text = "Name:", .parent = lower, .id = 3});
  AddWindow({.className = "Button", .text = "Abbrechen", .parent = lower, .id = 2});
  TargetWindow("ohne Text");
  const std::int32_t untitled = TargetWindow("");
  AddWindow({.className = "Static", .text = "x", .parent = untitled, .id = 3});
  StopAfter(3050);
  EXPECT_TRUE(WaitForClipboard());
  ExpectLog({"ConfirmDialog:  / ", "Dialog irgendwas / Name: wurde mit Ja bestätigt.", kFilled});
  ASSERT_EQ(At(lower).received.size(), 1u);
  EXPECT_EQ(At(lower).received[0].number, platform::WM_COMMAND);
  EXPECT_EQ(At(lower).received[0].wParam, 0);
  EXPECT_TRUE(At(untitled).received.empty());
}

TEST_F(WaitForClipboardTest, TheFragmentsComeFromTheDialogVerbOfTheMacro) {
  Schedule(2000, [this] { Box("Hinweis", "fertig"); });
  Schedule(4000, [] { Clipboard() = "Text"; });
  EXPECT_TRUE(RunLines({"CONFIRMDIALOG=Hinweis,fertig", "WAITFORCLIPBOARD"}));
  ExpectLog(Completed({"ConfirmDialog: Hinweis / fertig", "ConfirmDialog: Hinweis / fertig",
                       "Dialog Hinweis / fertig wurde mit OK bestätigt.", kFilled}));
}

TEST_F(WaitForClipboardTest, CancelInTheStatusDialogEndsItAndTheRun) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAITFORCLIPBOARD", "MSG=nie"});
  TargetWindow("TeRu");
  Schedule(2000, [] { Click(frmStatus.cmdCancel); });
  PressHotKey();
  ExpectLog(Header("A.MAK") + Lines{"<Cancel>", kFilled, kStopped, kStars});
}

TEST_F(WaitForClipboardTest, APressDuringALookDoesNotDisturbTheFragmentsOfThatLook) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"MSG=innen"});
  TargetWindow("TeRu");
  automation.DialogTitle = "Hinweis mit einem langen Titel";
  automation.DialogText = "fertig mit einem langen Text";
  Box("Hinweis mit einem langen Titel", "fertig mit einem langen Text");
  Box("Davor", "x");
  PressHotKeyAfter(3005);  // while the upper window is looked at
  StopAfter(4000);
  EXPECT_TRUE(WaitForClipboard());
  EXPECT_EQ(answered.size(), 1u);
}

}  // namespace
