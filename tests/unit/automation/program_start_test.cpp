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

TEST_F(ProgramStartTest, AnEmptyCommandFails) {
  for (const std::string line : {"EXEC", "EXEC=", "EXEC=\"\"", "EXEC=  "}) {
    EXPECT_FALSE(RunLines({line})) << line;
    EXPECT_TRUE(basMain::run.LastError.starts_with("Programm kann nicht ausgeführt werden: ")) << line;
  }
  EXPECT_EQ(StartedPrograms(), Programs{});
}

// Double quotes vanish from the line, and blanks then divide the path.
class BlanksInPathTest : public ProgramStartTest {
 protected:
  BlanksInPathTest() {
    PutFile("C:\\Program.exe", "");
    PutFile("C:\\Program Files\\Tool\\tool.exe", "");
  }

  std::string Started(const std::string& command) {
    EXPECT_TRUE(RunLines({"EXEC=" + command})) << command;
    return StartedPrograms().empty() ? "" : StartedPrograms().back().command;
  }
};

TEST_F(BlanksInPathTest, TheLongestBeginningThatIsAProgramIsStarted) {
  EXPECT_EQ(Started("\"C:\\Program Files\\Tool\\tool.exe\" x y"), "\"C:\\Program Files\\Tool\\tool.exe\" x y");
  EXPECT_EQ(Log().front(), "Programm wird ausgeführt: C:\\Program Files\\Tool\\tool.exe x y");
}

TEST_F(BlanksInPathTest, TheWholeCommandMayBeTheProgram) {
  EXPECT_EQ(Started("C:\\Program Files\\Tool\\tool.exe"), "\"C:\\Program Files\\Tool\\tool.exe\"");
}

TEST_F(BlanksInPathTest, TheExtensionMayBeMissing) {
  EXPECT_EQ(Started("C:\\Program Files\\Tool\\tool x"), "\"C:\\Program Files\\Tool\\tool\" x");
}

TEST_F(BlanksInPathTest, AFolderIsNoProgram) {
  PutFile("C:\\Program Files\\Tool x\\leer.txt", "");
  EXPECT_EQ(Started("C:\\Program Files\\Tool x"), "C:\\Program Files\\Tool x");
}

TEST_F(BlanksInPathTest, ABeginningEndsAtABlankAlone) {
  PutFile("C:\\Program Fil.exe", "");
  EXPECT_EQ(Started("C:\\Program Files\\fehlt.exe"), "C:\\Program Files\\fehlt.exe");
}

TEST_F(BlanksInPathTest, BlanksBehindTheProgramStay) {
  EXPECT_EQ(Started("C:\\Program Files\\Tool\\tool.exe  x "), "\"C:\\Program Files\\Tool\\tool.exe\"  x");
}

TEST_F(BlanksInPathTest, ABareNameIsLookedForWhereTheSystemLooks) {
  PutFile("C:\\QUMA\\mein tool.exe", "");
  EXPECT_EQ(Started("mein tool x"), "\"mein tool\" x");
  PutFile("C:\\Werkzeug\\anderes tool.exe", "");
  SetEnvironmentVariable("PATH", "C:\\Nichts;C:\\Werkzeug");
  EXPECT_EQ(Started("anderes tool.exe x"), "\"anderes tool.exe\" x");
  EXPECT_EQ(Started("fremdes tool.exe x"), "fremdes tool.exe x");
}

TEST_F(BlanksInPathTest, AProgramWithoutABlankIsStartedAsItStands) {
  EXPECT_EQ(Started("C:\\Program.exe Files"), "C:\\Program.exe Files");
}

TEST_F(BlanksInPathTest, QuotesThatAVariableBringsStay) {
  EXPECT_TRUE(basMain::ExecuteProgram("\"C:\\Program Files\\Tool\\tool.exe\" x"));
  EXPECT_EQ(StartedPrograms().back().command, "\"C:\\Program Files\\Tool\\tool.exe\" x");
}

TEST_F(BlanksInPathTest, AnEndlessCommandIsStartedAsItStands) {
  std::string command = "fehlt.exe";
  for (int i = 0; i < 10000; ++i) command += " x";
  EXPECT_EQ(Started(command), command);
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
