// Starting programs.
#include "automation/program_start.h"

#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace platform::simulated;
using namespace support;

// In a normal window.
using Programs = std::vector<StartedProgram>;

class ProgramStartTest : public SystemTest {};

TEST_F(ProgramStartTest, ItStartsTheCommandWithoutWaiting) {
  EXPECT_TRUE(basMain::ExecuteProgram("C:\\Prog\\tarven.exe /x"));
  EXPECT_EQ(StartedPrograms(), Programs{{"C:\\Prog\\tarven.exe /x"}});
  EXPECT_EQ(Clock(), 0);
  ExpectLog({"Programm wird ausgeführt: C:\\Prog\\tarven.exe /x"});
}

TEST_F(ProgramStartTest, AProgramThatDoesNotStartFailsTheRun) {
  SetMissingProgram("fehlt.exe");
  EXPECT_FALSE(RunLines({"EXEC=fehlt.exe", "MSG=nie"}));
  EXPECT_EQ(basMain::run.LastError, "Programm kann nicht ausgeführt werden: fehlt.exe");
  ExpectLog({"Programm kann nicht ausgeführt werden: fehlt.exe"});
}

TEST_F(ProgramStartTest, AllFormsOfTheVerb) {
  EXPECT_TRUE(RunLines({"EXEC=a.exe", "EXE=b.exe", "EXECUTE=c.exe"}));
  EXPECT_EQ(StartedPrograms(), (Programs{{"a.exe"}, {"b.exe"}, {"c.exe"}}));
}

TEST_F(ProgramStartTest, AllConditionsOfTheVerb) {
  SetMissingProgram("fehlt.exe");
  EXPECT_TRUE(RunLines({"IF EXEC=a.exe", "MSG=1", "ENDIF", "IF EXE=fehlt.exe", "MSG=nie", "ELSE", "MSG=2", "ENDIF",
                        "IF EXECUTE=c.exe", "MSG=3", "ENDIF"}));
  ExpectLog(
      Completed({"Programm wird ausgeführt: a.exe", "MSG: 1", "MSG: 2", "Programm wird ausgeführt: c.exe", "MSG: 3"}));
}

}  // namespace
