// Protocols: the result files of macros.
#include "frame/protocol.h"

#include "engine/state.h"
#include "environment/file_dialog.h"
#include "environment/file_system.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

class ProtocolTest : public SystemTest {};

TEST_F(ProtocolTest, ABareNameLiesBesideTheProgram) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=Größe", "CLOSEPROTOCOL"}));
  EXPECT_EQ(GetFile("C:\\QUMA\\x.txt"),
            "Gr\xF6\xDF"
            "e\r\n");
  ExpectLog(Completed({}));
}

TEST_F(ProtocolTest, AFullPathIsTakenAsItStands) {
  PutFile("C:\\x\\anderes", "");
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=C:\\x\\y.txt", "ADDPROTOCOL=1"}));
  EXPECT_EQ(LinesOf("C:\\x\\y.txt"), Lines{"1"});
}

TEST_F(ProtocolTest, ARelativePathWithABackslashDependsOnTheCurrentFolder) {
  PutFile("C:\\Prog\\tarven.exe", "");
  PutFile("C:\\Prog\\unten\\x", "");
  PutFile("C:\\QUMA\\unten\\x", "");
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=unten\\y.txt", "ADDPROTOCOL=1"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\unten\\y.txt"), Lines{"1"});
  // A file dialog moves the current folder.
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  basAPI::FileDialog dialog;
  ASSERT_EQ(basAPI::ShowFileDialog(dialog), "C:\\Prog\\tarven.exe");
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=unten\\y.txt", "ADDPROTOCOL=2", "CREATEPROTOCOL=z.txt", "ADDPROTOCOL=3"}));
  EXPECT_EQ(LinesOf("C:\\Prog\\unten\\y.txt"), Lines{"2"});
  EXPECT_EQ(LinesOf("C:\\QUMA\\z.txt"), Lines{"3"});
}

TEST_F(ProtocolTest, TheSameMacroTwiceAppendsASecondBlock) {
  const Lines macro = {"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=Anfang", "ADDPROTOCOL=Ende", "CLOSEPROTOCOL"};
  EXPECT_TRUE(RunLines(macro));
  EXPECT_TRUE(RunLines(macro));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), (Lines{"Anfang", "Ende", "Anfang", "Ende"}));
}

TEST_F(ProtocolTest, CreateClosesAProtocolThatIsStillOpen) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=1", "CREATEPROTOCOL=y.txt", "ADDPROTOCOL=2"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), Lines{"1"});
  EXPECT_EQ(LinesOf("C:\\QUMA\\y.txt"), Lines{"2"});
}

TEST_F(ProtocolTest, CreateOfTheOpenOneContinuesIt) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=1", "CREATEPROTOCOL=x.txt", "ADDPROTOCOL=2"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), (Lines{"1", "2"}));
}

TEST_F(ProtocolTest, CreateMakesAnEmptyFile) {
  PutFile("C:\\x\\anderes", "");
  EXPECT_TRUE(CreateProtocol("C:\\x\\leer.txt"));
  EXPECT_TRUE(basMain::FileSystem().FileExists("C:\\x\\leer.txt"));
}

TEST_F(ProtocolTest, APathThatDoesNotExistFailsTheRun) {
  EXPECT_FALSE(RunLines({"CREATEPROTOCOL=C:\\fehlt\\x.txt", "MSG=nie"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CreateProtocol:Pfad nicht gefunden");
  ExpectLog(Lines{"Fehler in Funktion CreateProtocol:Pfad nicht gefunden"});
}

TEST_F(ProtocolTest, NoAccessFailsTheRun) {
  PutFile("C:\\QUMA\\x.txt", "alt\r\n");
  LoadLines({"CREATEPROTOCOL=x.txt", "MSG=nie"});
  Fail("OpenFile", 1);
  EXPECT_FALSE(CreateProtocol("x.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CreateProtocol:Zugriff verweigert");
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), Lines{"alt"});
}

TEST_F(ProtocolTest, ANameThatTheSystemRefusesFailsTheRun) {
  EXPECT_FALSE(CreateProtocol("a?b.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CreateProtocol:Falscher Dateiname");
}

TEST_F(ProtocolTest, AnEmptyNameFailsTheRun) {
  EXPECT_FALSE(CreateProtocol(""));
  EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion CreateProtocol:"));
  EXPECT_GT(run.LastError.size(), std::string("Fehler in Funktion CreateProtocol:").size());
}

TEST_F(ProtocolTest, AFailedCreateHasClosedTheOpenOneAndLeavesNoneOpen) {
  EXPECT_TRUE(CreateProtocol("x.txt"));
  EXPECT_FALSE(CreateProtocol("C:\\fehlt\\y.txt"));
  EXPECT_TRUE(AddProtocol("verloren"));
  EXPECT_EQ(GetFile("C:\\QUMA\\x.txt"), "");
}

TEST_F(ProtocolTest, AddWithNoProtocolOpenLosesTheLine) {
  EXPECT_TRUE(RunLines({"ADDPROTOCOL=verloren", "MSG=1"}));
  ExpectLog(Completed({"MSG: 1"}));
}

TEST_F(ProtocolTest, AddOfALineThatCannotBeWrittenIsTrue) {
  EXPECT_TRUE(CreateProtocol("x.txt"));
  Fail("WriteFile", 1);
  EXPECT_TRUE(AddProtocol("verloren"));
  EXPECT_TRUE(AddProtocol("danach"));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), Lines{"danach"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ProtocolTest, AddWritesAnEmptyLine) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=", "ADDPROTOCOL=a b"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), (Lines{"", "a b"}));
}

TEST_F(ProtocolTest, AClosedProtocolTakesNoLine) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=1", "CLOSEPROTOCOL", "ADDPROTOCOL=verloren"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), Lines{"1"});
}

TEST_F(ProtocolTest, ClosingTwiceDoesNothing) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "CLOSEPROTOCOL", "CLOSEPROTOCOL", "MSG=1"}));
  ExpectLog(Completed({"MSG: 1"}));
}

TEST_F(ProtocolTest, AFaultWhileClosingIsPassedOver) {
  EXPECT_TRUE(CreateProtocol("x.txt"));
  Fail("CloseFile", 1);
  EXPECT_TRUE(CloseProtocol());
  EXPECT_TRUE(AddProtocol("verloren"));
  EXPECT_EQ(GetFile("C:\\QUMA\\x.txt"), "");
}

TEST_F(ProtocolTest, ItStaysOpenBeyondTheRun) {
  EXPECT_TRUE(RunLines({"CREATEPROTOCOL=x.txt", "ADDPROTOCOL=1", "STOP"}));
  EXPECT_FALSE(RunLines({"ADDPROTOCOL=2", "RAISEERROR=x"}));
  EXPECT_TRUE(RunLines({"ADDPROTOCOL=3", "CREATEPROTOCOL=y.txt", "ADDPROTOCOL=4"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\x.txt"), (Lines{"1", "2", "3"}));
  EXPECT_EQ(LinesOf("C:\\QUMA\\y.txt"), Lines{"4"});
}

TEST_F(ProtocolTest, AProtocolMayBeTheLogItself) {
  EXPECT_TRUE(RunLines({"MSG=1", "CREATEPROTOCOL=QUMAEXP.LOG", "ADDPROTOCOL=2", "MSG=3"}));
  ExpectLog(Completed({"MSG: 1", "2", "MSG: 3"}));
}

}  // namespace
