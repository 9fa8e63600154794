// A second press while the first is not done: nothing prevents it, and it runs on top of the first.
#include "clients/frmInputbox.h"
#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

constexpr char kWaited[] = "Warten auf Fenster war erfolgreich.";

// The header of a press at another time of the first morning.
Lines HeaderAt(const std::string& macro, const std::string& time) {
  Lines lines = Header(macro);
  lines[3] = "Datum:14.03.2006 " + time;
  return lines;
}

class NestedPressTest : public SystemTest {
 protected:
  NestedPressTest() {
    StartProgram();
    MacroEntry(1, "Außen,AUSSEN.MAK");
    MacroEntry(2, "Innen,INNEN.MAK");
    Macro("AUSSEN.MAK", {"MSG=a0", "WAITFORWINDOW=Später,1,,,0", "MSG=a2", "MSG=a3"});
  }

  // The window that the outer macro waits for shows up 2 s after now.
  void WindowAppears() {
    Schedule(2000, [] { AddWindow({.className = "X", .text = "Später"}); });
  }
};

TEST_F(NestedPressTest, ItOverwritesTheMainWindowAndTheOuterRunGoesOnInTheNewLineTable) {
  Macro("INNEN.MAK", {"MSG=b0", "MSG=b1", "MSG=b2", "MSG=b3", "MSG=b4"});
  TargetWindow("Außen");
  std::int32_t inner = 0;
  Schedule(1000, [&] { inner = TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, inner);
  EXPECT_EQ(frame.MakroFile, "INNEN.MAK");
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0"} + HeaderAt("INNEN.MAK", "09:30:01") +
            Completed({"MSG: b0", "MSG: b1", "MSG: b2", "MSG: b3", "MSG: b4"}) +
            Completed({kWaited, "MSG: b2", "MSG: b3", "MSG: b4"}));
}

TEST_F(NestedPressTest, BehindAShorterMacroTheOuterRunIsAtItsEnd) {
  Macro("INNEN.MAK", {"MSG=b0"});
  TargetWindow("Außen");
  Schedule(1000, [] { TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0"} + HeaderAt("INNEN.MAK", "09:30:01") + Completed({"MSG: b0"}) +
            Completed({kWaited}));
}

TEST_F(NestedPressTest, TheSameMacroRunsOnceMoreFromItsBeginning) {
  Macro("AUSSEN.MAK", {"MSG=a0", "WAITFORWINDOW=Später,1,,,0", "MSG=a2"});
  TargetWindow("Außen");
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0"} + HeaderAt("AUSSEN.MAK", "09:30:01") +
            Completed({"MSG: a0", kWaited, "MSG: a2"}) + Completed({kWaited, "MSG: a2"}));
}

TEST_F(NestedPressTest, ItClearsAStopOfTheOuterRun) {
  Macro("INNEN.MAK", {"MSG=b0", "MSG=b1", "MSG=b2"});
  TargetWindow("Außen");
  Schedule(1000, [] {
    Click(frmStatus.cmdCancel);
    TargetWindow("Innen");
  });
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  EXPECT_FALSE(run.StopRun);
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0", "<Cancel>"} + HeaderAt("INNEN.MAK", "09:30:01") +
            Completed({"MSG: b0", "MSG: b1", "MSG: b2"}) + Completed({kWaited, "MSG: b2"}));
}

TEST_F(NestedPressTest, AFailureOfTheInnerRunEndsTheOuterOneAtItsNextLine) {
  Macro("INNEN.MAK", {"MSG=b0", "RAISEERROR=kaputt", "MSG=b2"});
  TargetWindow("Außen");
  Schedule(1000, [] { TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0"} + HeaderAt("INNEN.MAK", "09:30:01") +
            Lines{"MSG: b0", "kaputt", kWaited, "kaputt"});
  EXPECT_EQ(ShownIcon(), kFailed);
}

TEST_F(NestedPressTest, APressWithNoMacroLeavesTheOuterRunAlone) {
  MacroEntry(2, "Innen,FEHLT.MAK");
  TargetWindow("Außen");
  Schedule(1000, [] { TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  WindowAppears();
  PressHotKey();
  EXPECT_EQ(MessageBoxes().size(), 1u);
  ExpectLog(Header("AUSSEN.MAK") + Completed({"MSG: a0", kWaited, "MSG: a2", "MSG: a3"}));
}

TEST_F(NestedPressTest, ACancelledClientDialogLeavesTheOuterRunItsMacroButNotItsWindow) {
  MacroEntry(2, "Innen,QUMAFIBU.MAK");
  Macro("QUMAFIBU.MAK", {"MSG=nie"});
  TargetWindow("Außen");
  std::int32_t inner = 0;
  Schedule(1000, [&] { inner = TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  forms::simulated::WhenModal([](forms::Form&) { forms::simulated::Press(frmInputbox.cmdCancel); });
  WindowAppears();
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, inner);
  ExpectLog(Header("AUSSEN.MAK") + Lines{"MSG: a0"} + HeaderAt("QUMAFIBU.MAK", "09:30:01") +
            Completed({kWaited, "MSG: a2", "MSG: a3"}));
}

TEST_F(NestedPressTest, DuringAResumedRunItRunsInsideTheClickOnResume) {
  Macro("AUSSEN.MAK", {"RAISEERROR=kaputt", "WAITFORWINDOW=Später,1,,,0", "MSG=a2"});
  Macro("INNEN.MAK", {"MSG=b0", "MSG=b1", "MSG=b2"});
  TargetWindow("Außen");
  PressHotKey();
  Schedule(1000, [] { TargetWindow("Innen"); });
  PressHotKeyAfter(1000);
  WindowAppears();
  forms::simulated::Press(frmStatus.cmdResume);
  ExpectLog(Header("AUSSEN.MAK") + Lines{"kaputt", "<Cancel>"} + HeaderAt("INNEN.MAK", "09:30:01") +
            Completed({"MSG: b0", "MSG: b1", "MSG: b2"}) + Completed({kWaited, "MSG: b2"}));
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_TRUE(frmStatus.cmdOK.Enabled());
}

TEST_F(NestedPressTest, TwoPressesAtOnceRunOneInsideTheOther) {
  Macro("AUSSEN.MAK", {"MSG=a0"});
  TargetWindow("Außen");
  PressHotKeyAfter(0);
  platform::Sleep(0);
  PressHotKey();
  // The first press pumps behind its header, before it has loaded anything.
  ExpectLog(Header("AUSSEN.MAK") + Header("AUSSEN.MAK") + Completed({"MSG: a0"}) + Completed({"MSG: a0"}));
}

class PressDuringInputboxTest : public NestedPressTest {
 protected:
  PressDuringInputboxTest() {
    MacroEntry(1, "Außen,QUMAFIBU.MAK");
    Macro("QUMAFIBU.MAK", {"MSG=fibu"});
    Macro("INNEN.MAK", {"MSG=innen"});
    TargetWindow("Außen/4711/2005/x");
  }
};

TEST_F(PressDuringInputboxTest, ItLeavesItsHeaderAndNothingMore) {
  std::int32_t box = 0;
  forms::simulated::WhenModal([&](forms::Form& form) {
    box = form.Window();
    PressHotKey();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(frmInputbox.txtMandant.Text(), "4711");
    EXPECT_FALSE(frmStatus.Visible());
    forms::simulated::Press(frmInputbox.cmdOK);
  });
  PressHotKey();
  ExpectLog(Header("QUMAFIBU.MAK") + Header("QUMAFIBU.MAK") + Lines{"Mandant: 4711", "Wirtschaftsjahr: 2005", ""} +
            Completed({"MSG: fibu"}));
  EXPECT_EQ(clients.ContextPath, "\\4711\\2005");
  EXPECT_EQ(frame.MainWindow, box);
}

TEST_F(PressDuringInputboxTest, CancelStillEndsTheOuterPress) {
  forms::simulated::WhenModal([](forms::Form&) {
    PressHotKey();
    forms::simulated::Press(frmInputbox.cmdCancel);
  });
  PressHotKey();
  ExpectLog(Header("QUMAFIBU.MAK") + Header("QUMAFIBU.MAK"));
}

TEST_F(PressDuringInputboxTest, BeendenEndsTheProgram) {
  forms::simulated::WhenMenu("Beenden");
  forms::simulated::WhenModal([](forms::Form&) {
    MouseAtTray(platform::WM_RBUTTONUP);
    forms::Pump();
  });
  EXPECT_THROW(PressHotKey(), ProgramEnded);
  EXPECT_FALSE(Tray().has_value());
  ExpectLog(Header("QUMAFIBU.MAK"));
}

TEST_F(PressDuringInputboxTest, OverAnotherWindowItRunsAndLeavesWindowAndMacroToTheOuterPress) {
  std::int32_t inner = 0;
  forms::simulated::WhenModal([&](forms::Form&) {
    inner = TargetWindow("Innen");
    PressHotKey();
    forms::simulated::Press(frmInputbox.cmdOK);
  });
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, inner);
  ExpectLog(Header("QUMAFIBU.MAK") + Header("INNEN.MAK") + Completed({"MSG: innen"}) +
            Lines{"Mandant: 4711", "Wirtschaftsjahr: 2005", ""} + Completed({"MSG: innen"}));
}

}  // namespace
