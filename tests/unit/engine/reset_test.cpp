// Where the state of a run and that of the program begin anew.
#include "engine/reset.h"

#include <gtest/gtest.h>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/line_watch.h"
#include "engine/standard_handler.h"
#include "environment/csv_reader.h"
#include "environment/modRegistry.h"
#include "frame/log.h"
#include "frame/protocol.h"
#include "frame/state.h"
#include "input/state.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using namespace support;

class ResetTest : public SystemTest {
 protected:
  // State as a stopped and failed run leaves it.
  static void LeaveARunBehind() {
    LoadLines({"DIM x", "MARK=a"});
    run.UserVariables.Declare("x");
    run.StopRun = run.RunFailed = run.LoopBack = run.DialogHidden = true;
    run.CurrentLine = 7;
    run.LastError = "Fehler";
    run.GotoLine = 3;
    run.LoopStart = 2;
    run.YearIndex = 4;
    run.YearUpper = 5;
    clients.InputState = 3;
    clients.MatrixPos = 6;
    clients.ContextPath = "\\4711\\2005";
    clients.Matrix.resize(2);
    automation.DialogTitle = "Titel";
    automation.DialogText = "Text";
    automation.ListIndex = 8;
    automation.ListCount = 9;
    automation.LastReadText = "gelesen";
  }

  // What each run, fresh or resumed, begins with.
  static void ExpectBegun(std::int32_t line) {
    EXPECT_FALSE(run.StopRun);
    EXPECT_FALSE(run.RunFailed);
    EXPECT_TRUE(run.ExecEnabled);
    EXPECT_EQ(run.CurrentLine, line);
    EXPECT_EQ(run.LastError, "");
    EXPECT_EQ(clients.InputState, 0);
    EXPECT_EQ(automation.DialogTitle, "");
    EXPECT_EQ(automation.DialogText, "");
  }

  // What no run resets: the macro, the marks of the years, a pending jump, and what verbs have read.
  static void ExpectKept() {
    EXPECT_EQ(run.MakroLines, (std::vector<std::string>{"DIM x", "MARK=a", ""}));
    EXPECT_EQ(run.GotoLine, 3);
    EXPECT_TRUE(run.DialogHidden);
    EXPECT_EQ(run.YearIndex, 4);
    EXPECT_EQ(run.YearUpper, 5);
    EXPECT_EQ(clients.ContextPath, "\\4711\\2005");
    EXPECT_EQ(clients.Matrix.size(), 2u);
    EXPECT_EQ(automation.LastReadText, "gelesen");
  }
};

TEST_F(ResetTest, AFreshRunForgetsLoopListAndRow) {
  LeaveARunBehind();
  BeginRun(0);
  ExpectBegun(0);
  ExpectKept();
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 0);
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_EQ(automation.ListCount, 0);
  EXPECT_EQ(clients.MatrixPos, 0);
}

TEST_F(ResetTest, AResumedRunKeepsLoopListAndRow) {
  LeaveARunBehind();
  BeginRun(5);
  ExpectBegun(5);
  ExpectKept();
  EXPECT_TRUE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 2);
  EXPECT_EQ(automation.ListIndex, 8);
  EXPECT_EQ(automation.ListCount, 9);
  EXPECT_EQ(clients.MatrixPos, 6);
}

TEST_F(ResetTest, TheProgramBeginsWithNothing) {
  LeaveARunBehind();
  CreateProtocol("P.TXT");
  platform::simulated::PutFile("C:\\x.csv", "a;b;\r\n");
  ASSERT_TRUE(OpenCSV("C:\\x.csv", "0", ";"));
  lineWatch.Done = [](std::int32_t) {};
  frame.MainWindow = 1;
  frame.MakroFile = "A.MAK";
  frame.ClipboardFilled = true;
  inputRoom.ClassWindows = {1, 0};
  automation.ChildWindowList = {1, 0};
  modRegistry::state = {true, 2};

  ResetProgram();

  EXPECT_EQ(run.MakroLines, std::vector<std::string>{""});
  EXPECT_EQ(run.LineCount, 0);
  EXPECT_TRUE(run.Marks.empty());
  EXPECT_FALSE(run.UserVariables.AnyDeclared());
  EXPECT_EQ(run.GotoLine, 0);
  EXPECT_FALSE(run.DialogHidden);
  EXPECT_FALSE(run.ExecEnabled);
  EXPECT_EQ(run.YearIndex, 0);
  EXPECT_EQ(clients.ContextPath, "");
  EXPECT_TRUE(clients.Matrix.empty());
  EXPECT_EQ(automation.LastReadText, "");
  EXPECT_EQ(automation.ChildWindowList, std::vector<std::int32_t>{0});
  EXPECT_EQ(inputRoom.ClassWindows, std::vector<std::int32_t>{0});
  EXPECT_EQ(frame.MainWindow, 0);
  EXPECT_EQ(frame.MakroFile, "");
  EXPECT_FALSE(frame.ClipboardFilled);
  EXPECT_FALSE(lineWatch.Done);
  EXPECT_FALSE(log.LogStream);
  EXPECT_FALSE(protocol.ProtocolStream);
  EXPECT_FALSE(csv.CsvStream);
  EXPECT_EQ(csv.CsvLine, "");
  EXPECT_FALSE(FileSystemState.has_value());
  EXPECT_FALSE(modRegistry::state.RegError);
  EXPECT_EQ(modRegistry::state.RegResult, 0);
}

TEST_F(ResetTest, AFailureIsToldInOneStep) {
  EXPECT_FALSE(Fail("So nicht."));
  EXPECT_EQ(run.LastError, "So nicht.");
}

}  // namespace
