// Memory that runs out: a fault like any other, after which the program can be used.
#include <string>

#include "engine/run_loop.h"
#include "engine/state.h"
#include "engine/user_variables.h"
#include "forms/simulated/user.h"
#include "frame/frmLog.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "runtime/memory_reserve.h"
#include "support/memory_limit.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

constexpr std::size_t kMegabyte = 1 << 20;

class MemoryTest : public SystemTest {
 protected:
  MemoryTest() {
    StartProgram();
    MacroEntry(1, "TeRu,A.MAK");
    TargetWindow("TeRu");
  }

  // A run of an ordinary macro goes through, without a limit or with the one that the test has set.
  void ExpectUsable() {
    const std::size_t before = Log().size();
    Macro("A.MAK", {"DIM x", "x=VALUE(läuft)", "MSG=x"});
    PressHotKey();
    const auto lines = Log();
    const auto run = Header("A.MAK") + Completed({"Variable wurde befüllt: läuft", "MSG: läuft"});
    EXPECT_EQ(std::vector(lines.begin() + static_cast<std::ptrdiff_t>(before), lines.end()), run);
    EXPECT_EQ(ShownIcon(), kIdle);
  }

  void ExpectFailed(const std::string& text) {
    EXPECT_EQ(run.LastError, text);
    EXPECT_EQ(Log().back(), text);
    EXPECT_EQ(ShownIcon(), kFailed);
    EXPECT_TRUE(frmStatus.cmdResume.Enabled());
    EXPECT_EQ(frmStatus.lblStatus.Caption(), text);
  }
};

TEST_F(MemoryTest, SkipPassesOverIt) {
  bool behind = false;
  runtime::Skip([] { throw std::bad_alloc(); });
  runtime::Skip([] { throw std::length_error(""); });
  runtime::Skip([&] { behind = true; });
  EXPECT_TRUE(behind);
}

TEST_F(MemoryTest, OtherExceptionsGoOnTheirWay) {
  EXPECT_THROW(runtime::Skip([] { throw std::logic_error("Fehler des Programms"); }), std::logic_error);
}

TEST_F(MemoryTest, AMacroThatIsTooLargeFailsAndTheNextOneRuns) {
  Macro("A.MAK", {"MSG=nie", std::string(40 * kMegabyte, 'x'), "MSG=nie"});
  {
    const MemoryLimit limit(60 * kMegabyte);
    PressHotKey();
  }
  ExpectFailed("Fehler in Funktion LoadFile:Nicht genügend Speicher");
  ExpectLog(Header("A.MAK") + std::vector<std::string>{run.LastError});
  ExpectUsable();
}

TEST_F(MemoryTest, AMacroThatIsTooLargeFailsAgainWhenItIsResumed) {
  Macro("A.MAK", {std::string(40 * kMegabyte, 'x')});
  const MemoryLimit limit(60 * kMegabyte);
  PressHotKey();
  frmStatus.cmdResume_Click();
  ExpectFailed("Fehler in Funktion LoadFile:Nicht genügend Speicher");
}

TEST_F(MemoryTest, ALineThatCannotBeCopiedFailsTheRun) {
  Macro("A.MAK", {"MSG=1"});
  run.MakroLines = {"MSG=1", std::string(40 * kMegabyte, 'x'), "MSG=nie", ""};
  run.LineCount = 3;
  const MemoryLimit limit(30 * kMegabyte);
  EXPECT_FALSE(ProcessMakro(0));
  ExpectFailed("Fehler in Funktion MakroAction:Nicht genügend Speicher");
}

TEST_F(MemoryTest, AVerbThatNeedsTooMuchFailsTheRun) {
  run.MakroLines = {"MSG=" + std::string(20 * kMegabyte, 'x'), "MSG=nie", ""};
  run.LineCount = 2;
  const MemoryLimit limit(50 * kMegabyte);
  EXPECT_FALSE(ProcessMakro(0));
  ExpectFailed("Fehler in Funktion MakroExecute:Nicht genügend Speicher");
}

// The end of the loop has no DO, so the run begins anew again and again, and each time declares one more variable.
TEST_F(MemoryTest, VariablesWithoutEndFailTheRunAndTheNextOnePasses) {
  Macro("A.MAK", {"DIM " + std::string(kMegabyte, 'x'), "LOOP UNTIL COUNT"});
  const MemoryLimit limit(80 * kMegabyte);
  PressHotKey();
  ExpectFailed("Fehler in Funktion MakroAction:Nicht genügend Speicher");
  ExpectUsable();
}

TEST_F(MemoryTest, AResumeWithoutMemoryFailsAgain) {
  Macro("A.MAK", {"DIM " + std::string(kMegabyte, 'x'), "LOOP UNTIL COUNT"});
  const MemoryLimit limit(80 * kMegabyte);
  PressHotKey();
  const std::size_t lines = Log().size();
  frmStatus.cmdResume_Click();
  ExpectFailed("Fehler in Funktion MakroAction:Nicht genügend Speicher");
  EXPECT_LT(Log().size(), lines + 10);
}

TEST_F(MemoryTest, ATableOfVariablesKeepsItsSpareRecord) {
  UserVariableTable table;
  table.Declare("a");
  {
    const MemoryLimit limit(0);
    EXPECT_THROW(table.Declare(std::string()), std::bad_alloc);
  }
  table.SetValue(*table.Find(""), "leer");
  EXPECT_EQ(table.FindDeclared("a"), 0u);
  EXPECT_EQ(table.Value(0), "");
  table.Declare("b");
  EXPECT_EQ(table.Value(*table.FindDeclared("b")), "leer");
}

TEST_F(MemoryTest, APressWithoutMemoryFailsItsRun) {
  Macro("A.MAK", {"MSG=1"});
  {
    const MemoryLimit limit(0);
    EXPECT_NO_THROW(MainWindowProc(frmMain.Window(), platform::WM_HOTKEY, 1, 0));
  }
  ExpectFailed("Fehler in Funktion MakroAction:Nicht genügend Speicher");
  ExpectUsable();
}

TEST_F(MemoryTest, AHandlerThatNeedsTooMuchEndsAndTheProgramGoesOn) {
  Schedule(10, [] { throw std::bad_alloc(); });
  bool later = false;
  Schedule(20, [&] { later = true; });
  forms::RunMessageLoop();
  EXPECT_TRUE(later);
}

TEST_F(MemoryTest, TheReserveIsGivenBackOnceAndTakenAgain) {
  runtime::HoldMemoryReserve();
  const MemoryLimit limit(1000);
  EXPECT_THROW(std::string(kMegabyte, 'x'), std::bad_alloc);  // although there is room now
  EXPECT_EQ(std::string(kMegabyte, 'x').size(), kMegabyte);
  runtime::HoldMemoryReserve();
  EXPECT_THROW(std::string(kMegabyte, 'x'), std::bad_alloc);
}

// The log.

const std::string kLeftOut =
    "(Der Anfang des Protokolls hat in dieser Anzeige keinen Platz. Das ganze Protokoll steht in "
    "C:\\QUMA\\QUMAEXP.LOG.)\r\n";

std::string TextOfLines(std::size_t bytes) {
  std::string text;
  for (int i = 0; text.size() < bytes; ++i) text += "Zeile " + std::to_string(i) + "\r\n";
  return text;
}

void PutLog(const std::string& text) { PutFile("C:\\QUMA\\QUMAEXP.LOG", text); }

TEST_F(MemoryTest, ALogThatIsTooLongShowsWholeLinesOfItsEnd) {
  const std::string text = TextOfLines(8 * kMegabyte);
  PutLog(text);
  frmLog.Show();
  const std::string shown = frmLog.txtProtokoll.Text();
  ASSERT_TRUE(shown.starts_with(kLeftOut + "Zeile "));
  const std::string end = shown.substr(kLeftOut.size());
  EXPECT_TRUE(text.ends_with("\r\n" + end));
  EXPECT_GT(end.size(), kMegabyte);
}

TEST_F(MemoryTest, ALongLogShowsLessWhenThereIsLessMemory) {
  PutLog(TextOfLines(kMegabyte));
  const MemoryLimit limit(70 * kMegabyte);
  frmLog.Show();
  const std::string shown = frmLog.txtProtokoll.Text();
  EXPECT_TRUE(shown.starts_with(kLeftOut));
  EXPECT_LT(shown.size(), kMegabyte);
  EXPECT_GT(shown.size(), 100'000u);
}

TEST_F(MemoryTest, ALogThatEndsWithoutALineEndIsShown) {
  PutLog(std::string(8 * kMegabyte, 'x'));
  frmLog.Show();
  const std::string shown = frmLog.txtProtokoll.Text();
  EXPECT_TRUE(shown.starts_with(kLeftOut + "xxx"));
}

TEST_F(MemoryTest, WithoutAnyMemoryTheLogOpensEmpty) {
  PutLog(TextOfLines(10'000));
  const MemoryLimit limit(20'000);
  EXPECT_THROW(std::string(17 * kMegabyte, 'x'), std::bad_alloc);  // the reserve goes
  const std::string everything(16 * kMegabyte - 50'000, 'x');
  frmLog.Show();
  EXPECT_TRUE(frmLog.Visible());
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "");
}

}  // namespace
