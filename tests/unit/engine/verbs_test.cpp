// The table of verbs, and the verbs that the dispatcher carries out itself, as far as a macro cannot show them.
#include "engine/verbs.h"

#include <map>
#include <set>

#include "common/tool.h"
#include "engine/state.h"
#include "frame/frmStatus.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/text.h"
#include "support/system.h"

namespace {

using namespace basMain;
using enum VerbKind;
using platform::simulated::Fail;
using platform::simulated::InputLog;
using platform::simulated::Schedule;
using support::Completed;
using support::Log;
using support::RunLines;

using Texts = std::vector<std::string>;

// All verb words by what becomes of their result.
const std::map<VerbKind, std::set<std::string>> kWords = {
    {Action,
     {"MOUSEMOVE",
      "MOUSECLICK",
      "MOUSECLICKBYWINDOWOFFSET",
      "MOUSEMOVETOCTL",
      "SENDKEY",
      "SENDKEY2",
      "SENDKEY2WINDOW",
      "SETFOCUSCTL",
      "SETFOCUS",
      "MSG",
      "MESSAGEOUT",
      "WAIT",
      "SLEEP",
      "EXEC",
      "EXE",
      "EXECUTE",
      "WAITFORWINDOW",
      "CLEARCLIPBOARD",
      "WAITFORCLIPBOARD",
      "SAVECLIPBOARD",
      "SAVECLIPBOARDZVK",
      "MAXWINDOW",
      "BLOCKINPUT",
      "STOP",
      "HOLD",
      "SETTEXT",
      "SETMERLATEXT",
      "SETCHECK",
      "GETCHECK",
      "SETOPTION",
      "SELECTCOMBO",
      "SELECTCOMBOINDEX",
      "READCOMBO",
      "BUTTONCLICK",
      "MENUCLICK",
      "DELETEFILE",
      "DEL",
      "DELETE",
      "DELETEFOLDER",
      "COPYFILE",
      "COPYFOLDER",
      "RENAMEPATH",
      "DISPLAYSTATUS",
      "DISPLAY",
      "CLOSEWINDOW",
      "SELECTALL",
      "WAITFORDIALOG",
      "SELECTLIST",
      "DO",
      "LOOP UNTIL COUNT",
      "LOOP UNTIL MATRIX.EOF",
      "LOOP UNTIL MERMATRIX.EOF",
      "LOOP UNTIL CSVFILE.EOF",
      "GETPATHFROMCTL",
      "GETTEXT",
      "HIDEDIALOG",
      "SHOWDIALOG",
      "READLISTITEM",
      "GETANLLIST",
      "NEXT VJ",
      "CREATEPROTOCOL",
      "ADDPROTOCOL",
      "CLOSEPROTOCOL",
      "SHOWINPUTDLG",
      "SHOWINPUTANL",
      "SHOWINPUTMERANL",
      "VERIFYLIST",
      "WAITFORFILE",
      "CREATEMATRIX",
      "CREATEMERLAMATRIX",
      "SETFOLDERPATH",
      "RAISEERROR",
      "OPENCSV",
      "SETMERLADATE",
      "GOTO",
      "MARK"}},
    {ForcedAction, {"CONFIRMDIALOG"}},
    {Condition,
     {"IF EXEC",
      "IF EXE",
      "IF EXECUTE",
      "IF ACTIVEWINDOW",
      "IF SELECTCOMBO",
      "IF SELECTCOMBOINDEX",
      "IF BUTTONCLICK",
      "IF MENUCLICK",
      "IF SELECTALL",
      "IF GDPDU",
      "IF CONFIRMDIALOG",
      "IF GETTEXT",
      "IF READLISTITEM",
      "IF VJ",
      "IF VERTIFYMANDANTNR",
      "IF ISOSNT",
      "IF BASISNUMMER",
      "IF MATRIX.CHECKED",
      "IF MERMATRIX.CHECKED",
      "IF STRCOMP"}},
    {Value, {"READCOMBOTEXT", "READTEXT", "WINVERSION", "VALUE", "PARSE"}},
    {ForcedValue, {"SHOWINPUTMERFIB", "READINI", "CSVVALUE", "CREATEDIR", "FORMATSTRING"}},
    {Branch, {"ELSE", "ENDIF", "END IF"}},
};

TEST(VerbTableTest, HoldsTheHundredAndTenWordsWithTheirKinds) {
  std::map<VerbKind, std::set<std::string>> words;
  for (const Verb& verb : Verbs()) EXPECT_TRUE(words[verb.kind].emplace(verb.word).second) << verb.word;
  EXPECT_EQ(words, kWords);
  EXPECT_EQ(Verbs().size(), 110u);
}

TEST(VerbTableTest, NoWordStandsTwice) {
  std::set<std::string> words;
  for (const Verb& verb : Verbs()) EXPECT_TRUE(words.emplace(verb.word).second) << verb.word;
}

TEST(VerbTableTest, WordsAreInUpperCaseWithoutBlanksAround) {
  for (const Verb& verb : Verbs()) EXPECT_EQ(runtime::Trim(runtime::ToUpper(verb.word)), verb.word);
}

TEST(VerbTableTest, NoVerbHasMoreArgumentsThanThereAre) {
  for (const Verb& verb : Verbs()) EXPECT_LE(runtime::Split(verb.arguments, ',').size(), 7u) << verb.word;
}

TEST(VerbTableTest, EachVerbIsCarriedOutBySomething) {
  for (const Verb& verb : Verbs()) EXPECT_NE(verb.handler, nullptr) << verb.word;
}

// The verbs of the guide with their arguments; a row names several verbs that take the same ones.
std::map<std::string, std::string> VerbsOfTheGuide() {
  const std::string guide = tools::ReadFile(SOURCE_DIRECTORY "/docs/macros.md");
  std::map<std::string, std::string> verbs;
  for (const std::string& line : runtime::Split(guide.substr(guide.find("\n## The verbs\n")), '\n')) {
    if (!line.starts_with("| `")) continue;
    const Texts cells = runtime::Split(line, '|');
    const Texts words = runtime::Split(cells[1], '`');
    for (std::size_t i = 1; i < words.size(); i += 2)
      EXPECT_TRUE(verbs.emplace(words[i], runtime::Trim(cells[2])).second) << words[i];
  }
  return verbs;
}

TEST(VerbTableTest, TheGuideHasEachVerbWithItsArguments) {
  std::map<std::string, std::string> table;
  for (const Verb& verb : Verbs()) table.emplace(verb.word, verb.arguments);
  EXPECT_EQ(VerbsOfTheGuide(), table);
}

class VerbTest : public support::SystemTest {
 protected:
  VerbTest() { run.ExecEnabled = true; }
};

TEST_F(VerbTest, AnUnknownVerbFailsTheRunAndIsPassedOverInASkippedBranch) {
  EXPECT_FALSE(RunLines({"foo=1"}));
  EXPECT_EQ(run.LastError, "Unknown Command: FOO");
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b", "foo=1"}));
}

TEST_F(VerbTest, AnUnknownVerbInASkippedBranchKeepsTheLastError) {
  run.ExecEnabled = false;
  run.LastError = "davor";
  EXPECT_EQ(MakroExecute("FOO=1"), "");
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(run.LastError, "davor");
}

TEST_F(VerbTest, TheUsualSpellingOfVertifyDoesNotExist) {
  EXPECT_FALSE(RunLines({"IF VERIFYMANDANTNR"}));
  EXPECT_EQ(run.LastError, "Unknown Command: IF VERIFYMANDANTNR");
}

TEST_F(VerbTest, NoActionNoConditionAndNoValueRunsInASkippedBranch) {
  Texts lines = {"IF STRCOMP=a,b"};
  for (const Verb& verb : Verbs())
    if (verb.kind != Branch) lines.push_back(std::string(verb.word) + "=1,1,1,1,1,1,1");
  EXPECT_TRUE(RunLines(lines));
  EXPECT_EQ(Log(), Completed({"STRCOMP: a, b = False"}));
  EXPECT_EQ(InputLog(), Texts{});
  EXPECT_TRUE(platform::simulated::StartedPrograms().empty());
}

// Kinds.

TEST_F(VerbTest, TheEmptyLineIsNoUnknownVerb) {
  EXPECT_EQ(MakroExecute(""), "");
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, AValueVerbYieldsItsResult) {
  EXPECT_EQ(MakroExecute("VALUE=a"), "a");
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, ASkippedValueVerbYieldsNothing) {
  run.ExecEnabled = false;
  EXPECT_EQ(MakroExecute("VALUE=a"), "");
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(Log(), Texts{});
}

TEST_F(VerbTest, OtherVerbsYieldNothing) {
  EXPECT_EQ(MakroExecute("MSG=a"), "");
  EXPECT_EQ(MakroExecute("IF STRCOMP=a,a"), "");
  EXPECT_EQ(MakroExecute("ELSE"), "");
  EXPECT_EQ(MakroExecute("CONFIRMDIALOG=a,b"), "");
}

TEST_F(VerbTest, AFailedActionSetsRunFailedAndKeepsTheBranch) {
  MakroExecute("WAIT=abc");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_TRUE(run.ExecEnabled);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(VerbTest, AConditionSetsTheBranchAndNeverFails) {
  MakroExecute("IF STRCOMP=a,b");
  EXPECT_FALSE(run.ExecEnabled);
  EXPECT_FALSE(run.RunFailed);
  MakroExecute("IF STRCOMP=a,a");  // not evaluated
  EXPECT_FALSE(run.ExecEnabled);
  MakroExecute("ENDIF");
  MakroExecute("IF STRCOMP=a,a");
  EXPECT_TRUE(run.ExecEnabled);
}

TEST_F(VerbTest, AConditionMayWriteLastErrorOnTheWay) {
  platform::simulated::SetMissingProgram("fehlt.exe");
  MakroExecute("IF EXEC=fehlt.exe");
  EXPECT_FALSE(run.ExecEnabled);
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(run.LastError, "Programm kann nicht ausgeführt werden: fehlt.exe");
}

TEST_F(VerbTest, AForcedActionSucceedsWhateverItsHandlerDid) {
  MakroExecute("CONFIRMDIALOG=a,b");
  EXPECT_FALSE(run.RunFailed);
  EXPECT_TRUE(run.ExecEnabled);
}

TEST_F(VerbTest, BranchVerbsRunAlways) {
  run.ExecEnabled = false;
  MakroExecute("ELSE");
  EXPECT_TRUE(run.ExecEnabled);
  MakroExecute("ELSE");
  EXPECT_FALSE(run.ExecEnabled);
  MakroExecute("END IF");
  EXPECT_TRUE(run.ExecEnabled);
  MakroExecute("ENDIF");
  EXPECT_TRUE(run.ExecEnabled);
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, AFaultFailsTheRunWithItsText) {
  EXPECT_EQ(MakroExecute("MOUSEMOVE=a,1"), "");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(run.LastError, "Fehler in Funktion MakroExecute:Typen unverträglich");
  EXPECT_EQ(InputLog(), Texts{});
}

TEST_F(VerbTest, AnOverflowOfTheWaitIsAFaultToo) {
  MakroExecute("WAIT=99999999999");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(run.LastError, "Fehler in Funktion MakroExecute:Überlauf");
  EXPECT_EQ(platform::simulated::Clock(), 0);
}

// Verbs of the dispatcher.

TEST_F(VerbTest, BlockinputTrueBlocksInAnyCase) {
  MakroExecute("BLOCKINPUT=true");
  MakroExecute("BLOCKINPUT=TRUE");
  EXPECT_EQ(InputLog(), Texts(2, "BlockInput 1"));
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, BlockinputOfAnythingElseUnblocks) {
  for (const char* line : {"BLOCKINPUT=1", "BLOCKINPUT=FALSE", "BLOCKINPUT=", "BLOCKINPUT", "BLOCKINPUT= TRUE"})
    MakroExecute(line);
  EXPECT_EQ(InputLog(), Texts(5, "BlockInput 0"));
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, BlockinputThatTheSystemRefusesFailsWithoutAText) {
  Fail("BlockInput", 1);
  EXPECT_FALSE(RunLines({"BLOCKINPUT=TRUE", "MSG=nie"}));
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(Log(), Texts{""});
}

TEST_F(VerbTest, WaitSleepsSoManyMilliseconds) {
  EXPECT_TRUE(RunLines({"WAIT=250", "SLEEP='1,5'", "WAIT=0", "WAIT=-5"}));
  EXPECT_EQ(platform::simulated::Clock(), 252);
}

TEST_F(VerbTest, WaitPumpsNothingSoACancelTakesEffectLater) {
  frmStatus.Show();
  Schedule(5, [] { platform::PostMessageA(frmStatus.cmdCancel.hWnd(), platform::BM_CLICK, 0, 0); });
  EXPECT_TRUE(RunLines({"WAIT=10", "MSG=1", "DISPLAYSTATUS=2", "MSG=nie"}));
  EXPECT_EQ(Log(), (Texts{"MSG: 1", "<Cancel>", "2", support::kStopped, support::kStars}));
}

TEST_F(VerbTest, MouseclickPressesAndReleasesWhereThePointerIs) {
  EXPECT_TRUE(RunLines({"MOUSECLICK=left", "MOUSECLICK=Right"}));
  EXPECT_EQ(InputLog(), (Texts{"mouse_event 2 0 0 0 0", "mouse_event 4 0 0 0 0", "mouse_event 8 0 0 0 0",
                               "mouse_event 16 0 0 0 0"}));
}

TEST_F(VerbTest, MouseclickOfAnotherButtonDoesNothing) {
  run.LastError = "davor";
  MakroExecute("MOUSECLICK=MIDDLE");
  MakroExecute("MOUSECLICK= LEFT");
  MakroExecute("MOUSECLICK");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(run.LastError, "davor");
  EXPECT_EQ(InputLog(), Texts{});
}

TEST_F(VerbTest, MousemoveTakesRoundedNumbers) {
  EXPECT_TRUE(RunLines({"MOUSEMOVE='10,5', -3"}));
  EXPECT_EQ(InputLog(), Texts{"SetCursorPos 10 -3"});
}

TEST_F(VerbTest, IsosntIsTrueOnAnyVersionOfTheFamily) {
  for (const std::uint32_t major : {3u, 4u, 6u}) {
    platform::simulated::SetVersion(platform::VER_PLATFORM_WIN32_NT, major, 0);
    MakroExecute("IF ISOSNT");
    EXPECT_TRUE(run.ExecEnabled) << major;
  }
}

TEST_F(VerbTest, IsosntIsFalseOnEveryOtherFamily) {
  for (const std::uint32_t family : {0u, platform::VER_PLATFORM_WIN32_WINDOWS, 3u}) {
    run.ExecEnabled = true;
    platform::simulated::SetVersion(family, 5, 0);
    MakroExecute("IF ISOSNT");
    EXPECT_FALSE(run.ExecEnabled) << family;
  }
}

TEST_F(VerbTest, IsosntIsFalseWhenTheVersionCannotBeHad) {
  Fail("GetVersionExA");
  MakroExecute("IF ISOSNT");
  EXPECT_FALSE(run.ExecEnabled);
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, WinversionIsMajorPointMinor) {
  platform::simulated::SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  EXPECT_EQ(MakroExecute("WINVERSION"), "4.10");
}

TEST_F(VerbTest, WinversionIsEmptyAndSucceedsWhenTheVersionCannotBeHad) {
  Fail("GetVersionExA");
  EXPECT_EQ(MakroExecute("WINVERSION"), "");
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(VerbTest, StopOnlySetsItsFlag) {
  MakroExecute("STOP");
  EXPECT_TRUE(run.StopRun);
  EXPECT_FALSE(run.RunFailed);
  run.StopRun = false;
  MakroExecute("hold=1");
  EXPECT_TRUE(run.StopRun);
}

TEST_F(VerbTest, RaiseerrorOffersToResume) {
  EXPECT_FALSE(RunLines({"RAISEERROR=Text"}));
  EXPECT_EQ(frmStatus.lblStatus.Caption(), "Text");
  EXPECT_TRUE(frmStatus.cmdResume.Enabled());
}

}  // namespace
