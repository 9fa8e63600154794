// The main form: notification icon, menu, hot key, window procedure and timer.
#include "frame/frmMain.h"

#include "engine/state.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/frmAbout.h"
#include "frame/frmLog.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;
using forms::simulated::WhenMenu;
using forms::simulated::WhenModal;

class MainFormTest : public SystemTest {
 protected:
  MainFormTest() { StartProgram(); }

  void RightClickAtIcon() {
    MouseAtTray(platform::WM_RBUTTONUP);
    forms::Pump();
  }
};

// The icon.

TEST_F(MainFormTest, SwitchTrayShowsTheIconOfEachState) {
  frmMain.SwitchTray(1);
  EXPECT_EQ(ShownIcon(), "ICOEXP");
  frmMain.SwitchTray(2);
  EXPECT_EQ(ShownIcon(), "ICOERR");
  frmMain.SwitchTray(0);
  EXPECT_EQ(ShownIcon(), "ICOQUM");
}

TEST_F(MainFormTest, SwitchTrayFillsTheRecordAfresh) {
  frmMain.SwitchTray(1);
  ASSERT_EQ(TrayCalls().size(), 2u);
  EXPECT_EQ(TrayCalls()[1].message, 1u);
  const platform::NOTIFYICONDATA& record = TrayCalls()[1].icon.record;
  EXPECT_EQ(record.cbSize, 88u);
  EXPECT_EQ(record.hWnd, frmMain.Window());
  EXPECT_EQ(record.uID, 1u);
  EXPECT_EQ(record.uFlags, 7u);
  EXPECT_EQ(record.uCallbackMessage, 512u);
  EXPECT_STREQ(record.szTip, "TARVEN Datenexport");
}

TEST_F(MainFormTest, AnotherStateKeepsTheIconAndStillRefreshesTheTip) {
  frmMain.SwitchTray(2);
  for (const std::int16_t state : {3, -1, 32767, -32768}) {
    const std::size_t calls = TrayCalls().size();
    frmMain.SwitchTray(state);
    EXPECT_EQ(ShownIcon(), "ICOERR") << state;
    ASSERT_EQ(TrayCalls().size(), calls + 1) << state;
    EXPECT_EQ(TrayCalls().back().message, 1u);
    EXPECT_STREQ(TrayCalls().back().icon.record.szTip, "TARVEN Datenexport");
  }
}

TEST_F(MainFormTest, AFailingNotificationAreaIsNotNoticed) {
  Fail("Shell_NotifyIconA");
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"MSG=1"});
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("A.MAK") + Completed({"MSG: 1"}));
}

TEST_F(MainFormTest, ARunSwitchesFromRunningToIdle) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAIT=10"});
  std::string during;
  Schedule(5, [&] { during = ShownIcon(); });
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_EQ(during, kRunning);
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(MainFormTest, AFailedRunLeavesTheIconOfTheFailure) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"RAISEERROR=x"});
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_EQ(ShownIcon(), kFailed);
}

TEST_F(MainFormTest, AShellThatStartsAnewGetsTheIconOfTheMoment) {
  frmMain.SwitchTray(2);
  RestartShell();
  EXPECT_EQ(ShownIcon(), "");
  forms::Pump();
  EXPECT_EQ(ShownIcon(), "ICOERR");
  EXPECT_STREQ(Tray()->record.szTip, "TARVEN Datenexport");
}

TEST_F(MainFormTest, AShellThatStartsAnewDuringARunGetsTheIconBack) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAIT=10", "DISPLAYSTATUS=x", "WAIT=10"});
  std::string during;
  Schedule(5, [] { RestartShell(); });
  Schedule(15, [&] { during = ShownIcon(); });
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_EQ(during, kRunning);
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(MainFormTest, TheMessageOfAShellThatHasTheIconChangesNothing) {
  platform::PostMessageA(frmMain.Window(), platform::RegisterWindowMessageA("TaskbarCreated"), 0, 0);
  forms::Pump();
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(MainFormTest, AnIconThatIsThereIsLeftAloneByOtherMessages) {
  const std::size_t calls = TrayCalls().size();
  platform::PostMessageA(frmMain.Window(), platform::RegisterWindowMessageA("TaskbarDestroyed"), 0, 0);
  forms::Pump();
  EXPECT_EQ(TrayCalls().size(), calls);
}

class LateShellTest : public SystemTest {
 protected:
  LateShellTest() {
    Fail("Shell_NotifyIconA");
    StartProgram();
    EXPECT_EQ(ShownIcon(), "");
  }
};

TEST_F(LateShellTest, TheIconIsAddedWhenTheShellTellsOfItself) {
  Fail("Shell_NotifyIconA", 0);
  RestartShell();
  forms::Pump();
  EXPECT_EQ(ShownIcon(), kIdle);
  WhenMenu("Beenden");
  MouseAtTray(platform::WM_RBUTTONUP);
  EXPECT_THROW(forms::Pump(), ProgramEnded);
  EXPECT_EQ(ShownIcon(), "");
}

// A shell that was only busy does not tell of itself again.
TEST_F(LateShellTest, TheIconIsAddedWithTheNextMessage) {
  constexpr std::uint32_t kSettingChange = 26;
  platform::PostMessageA(frmMain.Window(), kSettingChange, 0, 0);
  forms::Pump();
  EXPECT_EQ(ShownIcon(), "");
  Fail("Shell_NotifyIconA", 0);
  platform::PostMessageA(frmMain.Window(), kSettingChange, 0, 0);
  forms::Pump();
  EXPECT_EQ(ShownIcon(), kIdle);
}

TEST_F(LateShellTest, ARunAddsTheIconOfItsState) {
  Fail("Shell_NotifyIconA", 0);
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"RAISEERROR=x"});
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_EQ(ShownIcon(), kFailed);
}

TEST_F(LateShellTest, NoIconComesUpWhileTheProgramEnds) {
  Fail("Shell_NotifyIconA", 0);
  EXPECT_THROW(frmMain.mnuExit_Click(), ProgramEnded);
  EXPECT_EQ(ShownIcon(), "");
}

// The menu.

TEST_F(MainFormTest, TheMenuHoldsItsEntriesInOrder) {
  EXPECT_EQ(frmMain.mnuDatei.name, "mnuDatei");
  EXPECT_EQ(frmMain.mnuDatei.caption, "Datei");
  const auto& entries = frmMain.mnuDatei.entries;
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0].name, "mnuProto");
  EXPECT_EQ(entries[0].caption, "Protokoll anzeigen");
  EXPECT_EQ(entries[1].name, "mnuInfo");
  EXPECT_EQ(entries[1].caption, "Info");
  EXPECT_EQ(entries[2].name, "mnuNone");
  EXPECT_EQ(entries[2].caption, "-");
  EXPECT_EQ(entries[3].name, "mnuExit");
  EXPECT_EQ(entries[3].caption, "Beenden");
}

TEST_F(MainFormTest, TheRightMouseButtonOpensTheMenu) {
  WhenMenu("Beenden");
  MouseAtTray(517);
  EXPECT_THROW(forms::Pump(), ProgramEnded);
}

TEST_F(MainFormTest, TheRightMouseButtonOpensTheMenuOnAnyScreen) {
  SetTwipsPerPixel(10, 15);
  WhenMenu("Beenden");
  MouseAtTray(517);
  EXPECT_THROW(forms::Pump(), ProgramEnded);
}

TEST_F(MainFormTest, OtherMouseEventsDoNothing) {
  WhenMenu("Beenden");
  for (const std::uint32_t message : {512u, 513u, 514u, 515u, 516u, 518u, 519u, 520u}) {
    MouseAtTray(message);
    EXPECT_NO_THROW(forms::Pump()) << message;
  }
  EXPECT_THROW(RightClickAtIcon(), ProgramEnded) << "the menu was still to come";
}

TEST_F(MainFormTest, MnuProtoShowsTheLogModally) {
  bool shown = false;
  WhenMenu("Protokoll anzeigen");
  WhenModal([&](forms::Form& form) {
    shown = &form == &frmLog;
    forms::simulated::Close(form);
  });
  RightClickAtIcon();
  EXPECT_TRUE(shown);
  EXPECT_FALSE(frmLog.Loaded());
}

TEST_F(MainFormTest, MnuInfoShowsTheAboutDialogModally) {
  bool shown = false;
  WhenMenu("Info");
  WhenModal([&](forms::Form& form) {
    shown = &form == &frmAbout;
    forms::simulated::Press(frmAbout.cmdOK);
  });
  RightClickAtIcon();
  EXPECT_TRUE(shown);
  EXPECT_FALSE(frmAbout.Loaded());
}

TEST_F(MainFormTest, WhileAnEventOfTheIconIsHandledFurtherOnesAreIgnored) {
  WhenMenu("Protokoll anzeigen");
  bool stillThere = false;
  WhenModal([&](forms::Form& form) {
    WhenMenu("Beenden");
    RightClickAtIcon();
    RightClickAtIcon();
    stillThere = form.Visible();
    forms::simulated::Close(form);
  });
  EXPECT_NO_THROW(RightClickAtIcon());
  EXPECT_TRUE(stillThere);
  EXPECT_THROW(RightClickAtIcon(), ProgramEnded);
}

TEST_F(MainFormTest, AfterBeendenANewStartAnswersItsIconAgain) {
  WhenMenu("Beenden");
  EXPECT_THROW(RightClickAtIcon(), ProgramEnded);
  frmMain.Load();
  WhenMenu("Beenden");
  EXPECT_THROW(RightClickAtIcon(), ProgramEnded);
}

TEST_F(MainFormTest, AMenuThatIsClosedWithoutAChoiceDoesNothing) {
  EXPECT_NO_THROW(RightClickAtIcon());
  EXPECT_TRUE(Log().empty());
  EXPECT_TRUE(Tray().has_value());
}

class MenuDuringRunTest : public MainFormTest {
 protected:
  MenuDuringRunTest() {
    MacroEntry(1, "TeRu,A.MAK");
    Macro("A.MAK", {"WAITFORWINDOW=Später,1,,,0", "MSG=weiter"});
    TargetWindow("TeRu");
    Schedule(1000, [] { MouseAtTray(platform::WM_RBUTTONUP); });
    Schedule(3000, [] { AddWindow({.className = "X", .text = "Später"}); });
  }
};

TEST_F(MenuDuringRunTest, TheRunContinuesOnceTheMenuCloses) {
  int shown = 0;
  WhenMenu("Info");
  WhenModal([&](forms::Form&) {
    ++shown;
    EXPECT_LT(Clock(), 3000);
    ExpectLog(Header("A.MAK"));
    forms::simulated::Press(frmAbout.cmdOK);
  });
  PressHotKey();
  EXPECT_EQ(shown, 1);
  ExpectLog(Header("A.MAK") + Completed({"Warten auf Fenster war erfolgreich.", "MSG: weiter"}));
}

TEST_F(MenuDuringRunTest, BeendenEndsTheProgramWhereverTheMacroStands) {
  WhenMenu("Beenden");
  EXPECT_THROW(PressHotKey(), ProgramEnded);
  ExpectLog(Header("A.MAK"));
  EXPECT_FALSE(frmStatus.Loaded());
  EXPECT_FALSE(frmMain.Loaded());
  EXPECT_FALSE(Tray().has_value());
  EXPECT_FALSE(HotKeyRegistered(1, 123));
}

TEST_F(MainFormTest, AfterMnuExitNoIconStaysBehind) {
  EXPECT_THROW(frmMain.mnuExit_Click(), ProgramEnded);
  EXPECT_FALSE(Tray().has_value());
  EXPECT_EQ(TrayCalls().back().message, 2u);
}

TEST_F(MainFormTest, MnuExitUnloadsLogStatusAndMainForm) {
  frmLog.Show();
  frmStatus.Show();
  EXPECT_THROW(frmMain.mnuExit_Click(), ProgramEnded);
  EXPECT_FALSE(frmLog.Loaded());
  EXPECT_FALSE(frmStatus.Loaded());
  EXPECT_FALSE(frmMain.Loaded());
}

TEST_F(MainFormTest, UnloadingReleasesLogAndFileSystem) {
  frmMain.Unload();
  EXPECT_FALSE(log.LogStream);
  EXPECT_FALSE(FileSystemState.has_value());
  LogWrite("verloren");
  EXPECT_TRUE(Log().empty());
}

TEST_F(MainFormTest, UnloadingGoesOnWhenNothingCanBeReleased) {
  Fail("Shell_NotifyIconA");
  Fail("CloseFile");
  Fail("UnregisterHotKey");
  frmMain.Unload();
  EXPECT_FALSE(frmMain.Loaded());
  EXPECT_FALSE(FileSystemState.has_value());
}

// The form.

TEST_F(MainFormTest, ItHidesWhenItIsActivated) {
  frmMain.Show();
  EXPECT_FALSE(frmMain.Visible());
  EXPECT_FALSE(At(frmMain.Window()).visible);
}

// The window procedure.

TEST_F(MainFormTest, OnItsDestructionTheOldWindowProcedureAndTheHotKeyGoBack) {
  const std::int32_t window = frmMain.Window();
  EXPECT_NE(At(window).hook, nullptr);
  platform::SendMessageA(window, 130, 0, 0);
  EXPECT_EQ(At(window).hook, nullptr);
  EXPECT_FALSE(HotKeyRegistered(1, 123));
}

TEST_F(MainFormTest, EveryMessageIsPassedOn) {
  std::vector<std::uint32_t> passed;
  Window& window = At(frmMain.Window());
  window.procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    passed.push_back(message.number);
    return static_cast<std::int32_t>(message.number) + message.wParam + message.lParam;
  };
  EXPECT_EQ(platform::SendMessageA(frmMain.Window(), 1000, 20, 3), 1023);
  EXPECT_EQ(platform::SendMessageA(frmMain.Window(), 786, 1, 0), 787);
  EXPECT_EQ(platform::SendMessageA(frmMain.Window(), 130, 0, 0), 130);
  EXPECT_EQ(passed, (std::vector<std::uint32_t>{1000, 786, 130}));
}

TEST_F(MainFormTest, TheHotKeyMessageIsHeldForTheLengthOfTheRun) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAIT=5000"});
  TargetWindow("TeRu");
  platform::SendMessageA(frmMain.Window(), platform::WM_HOTKEY, 1, 0);
  EXPECT_EQ(Clock(), 5000);
  ExpectLog(Header("A.MAK") + Completed({}));
}

// The timer.

class TimerTest : public MainFormTest {
 protected:
  ~TimerTest() override { frmMain.Timer1.SetInterval(0); }

  void After(std::int32_t milliseconds) {
    platform::Sleep(milliseconds);
    forms::Pump();
  }
};

TEST_F(TimerTest, AtTheStartItHasNoIntervalAndDoesNotFire) {
  EXPECT_EQ(frmMain.Timer1.Interval(), 0);
  Clipboard() = "Text";
  After(60000);
  EXPECT_FALSE(frame.ClipboardFilled);
}

TEST_F(TimerTest, ItNotesThatTheClipboardHoldsText) {
  frmMain.Timer1.SetInterval(1000);
  Clipboard() = "Text";
  After(999);
  EXPECT_FALSE(frame.ClipboardFilled);
  After(1);
  EXPECT_TRUE(frame.ClipboardFilled);
}

TEST_F(TimerTest, WithoutTextInTheClipboardItNotesNothing) {
  frmMain.Timer1.SetInterval(1000);
  After(5000);
  EXPECT_FALSE(frame.ClipboardFilled);
}

TEST_F(TimerTest, ItFiresOnlyWhileMessagesAreHandled) {
  frmMain.Timer1.SetInterval(1000);
  Clipboard() = "Text";
  platform::Sleep(60000);
  EXPECT_FALSE(frame.ClipboardFilled);
  forms::Pump();
  EXPECT_TRUE(frame.ClipboardFilled);
}

TEST_F(TimerTest, AnEmptiedClipboardDoesNotClearWhatWasNoted) {
  frmMain.Timer1.SetInterval(1000);
  Clipboard() = "Text";
  After(1000);
  Clipboard().reset();
  After(1000);
  EXPECT_TRUE(frame.ClipboardFilled);
}

TEST_F(TimerTest, WithTheInterval0ItStops) {
  frmMain.Timer1.SetInterval(1000);
  frmMain.Timer1.SetInterval(0);
  Clipboard() = "Text";
  After(5000);
  EXPECT_FALSE(frame.ClipboardFilled);
}

}  // namespace
