// Turning what an export tells into a folder of the export tree.
#include "environment/result_parsing.h"

#include "automation/state.h"
#include "clients/state.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace support;

const std::string kDestination = "GetTeRuDestination (2. RegValue): D:\\Data";
const std::string kBadCut = "Fehler in Funktion Parse:Ungültiger Prozeduraufruf oder ungültiges Argument";
const std::string kNoRow = "Fehler in Funktion Parse:Index außerhalb des gültigen Bereichs";

class ResultParsingTest : public SystemTest {
 protected:
  ResultParsingTest() {
    InstallSuite("D:\\Data");
    clients.Matrix = {{.Beginn = "01.01.2003"}};
  }

  // The result of the mode, which must succeed.
  std::string Result(const std::string& text, const std::string& mode) {
    EXPECT_TRUE(Parse(text, mode));
    EXPECT_EQ(run.LastError, "");
    return automation.LastReadText;
  }

  void ExpectFailure(const std::string& text, const std::string& error) {
    automation.LastReadText = "vorher";
    EXPECT_FALSE(Parse(text, "ANL")) << text;
    EXPECT_EQ(run.LastError, error);
    EXPECT_EQ(automation.LastReadText, "vorher");
    EXPECT_FALSE(run.RunFailed);
  }
};

// Mode "ANL".

TEST_F(ResultParsingTest, APathOfTheTargetBecomesTheAssetPath) {
  EXPECT_EQ(Result("C:\\x\\007\\0042\\Anl\\200312.dat", "ANL"), "D:\\Data\\Extern\\Berater-7\\42\\Anl\\01012003");
  ExpectLog({kDestination, "Parse: D:\\Data\\Extern\\Berater-7\\42\\Anl\\01012003"});
}

TEST_F(ResultParsingTest, TheNameBehindTheLastBackslashHasNoInfluence) {
  EXPECT_EQ(Result("C:\\x\\1\\2\\Anl\\", "ANL"), "D:\\Data\\Extern\\Berater-1\\2\\Anl\\01012003");
  EXPECT_EQ(Result("C:\\x\\1\\2\\Anl\\x", "ANL"), "D:\\Data\\Extern\\Berater-1\\2\\Anl\\01012003");
}

TEST_F(ResultParsingTest, FourBackslashesAreEnough) {
  EXPECT_EQ(Result("\\1\\2\\Anl\\x", "ANL"), "D:\\Data\\Extern\\Berater-1\\2\\Anl\\01012003");
}

TEST_F(ResultParsingTest, AClientOfZerosLeavesADoubleBackslash) {
  EXPECT_EQ(Result("C:\\x\\000\\0000\\Anl\\x", "ANL"), "D:\\Data\\Extern\\Berater-\\\\Anl\\01012003");
}

TEST_F(ResultParsingTest, TheDateIsThatOfTheCurrentRow) {
  clients.Matrix = {{.Beginn = "01.01.2003"}, {.Beginn = "1.7.04"}};
  clients.MatrixPos = 1;
  EXPECT_EQ(Result("C:\\x\\1\\2\\Anl\\x", "ANL"), "D:\\Data\\Extern\\Berater-1\\2\\Anl\\01072004");
}

TEST_F(ResultParsingTest, FewerThanFourBackslashesFail) {
  for (const char* path : {"", "x", "\\", "1\\2", "1\\2\\Anl", "1\\2\\Anl\\x"}) ExpectFailure(path, kBadCut);
}

TEST_F(ResultParsingTest, APathBeyond16BitsFails) {
  ExpectFailure(std::string(40'000, 'x') + "\\1\\2\\Anl\\x", kBadCut);
  ExpectFailure("\\1\\" + std::string(40'000, 'x') + "\\Anl\\x", kBadCut);
}

TEST_F(ResultParsingTest, WithoutACurrentRowItFails) {
  for (const std::int32_t position : {1, 100, -1}) {
    clients.MatrixPos = position;
    ExpectFailure("C:\\x\\1\\2\\Anl\\x", kNoRow);
  }
  clients = {};
  ExpectFailure("C:\\x\\1\\2\\Anl\\x", kNoRow);
  ExpectFailure("ohne Pfad", kNoRow);
  // The data directory is looked for first.
  ExpectLog(std::vector<std::string>(5, kDestination));
}

TEST_F(ResultParsingTest, ARowThatBeginsWithNoDateFails) {
  for (const char* begin : {"", "2003", "31.02.2003"}) {
    clients.Matrix[0].Beginn = begin;
    ExpectFailure("C:\\x\\1\\2\\Anl\\x", "Fehler in Funktion Parse:Typen unverträglich");
  }
}

// Mode "ANLPATH".

TEST_F(ResultParsingTest, TheSuccessMessageIsCutDownToItsFolder) {
  EXPECT_EQ(
      Result("Die Daten wurden erfolgreich\r\n exportiert und in C:\\Export\\Anl abgelegt.\r\n#AN12008", "ANLPATH"),
      "C:\\Export\\Anl");
  ExpectLog({"Parse: C:\\Export\\Anl"});
}

TEST_F(ResultParsingTest, EveryOccurrenceOfTheFixedWordsGoes) {
  EXPECT_EQ(Result("#AN12008a abgelegt.#AN12008b abgelegt.", "ANLPATH"), "ab");
}

TEST_F(ResultParsingTest, TheWordsGoInTheirOrder) {
  // The number is gone before the last word is looked for, which comes into being so.
  EXPECT_EQ(Result("x abge#AN12008legt.", "ANLPATH"), "x");
  EXPECT_EQ(Result("#AN abgelegt.12008", "ANLPATH"), "#AN12008");
}

TEST_F(ResultParsingTest, TheWordsAreComparedExactly) {
  EXPECT_EQ(Result("#an12008 Abgelegt.", "ANLPATH"), "#an12008 Abgelegt.");
}

TEST_F(ResultParsingTest, BlanksAreKept) { EXPECT_EQ(Result(" C:\\x  abgelegt.", "ANLPATH"), " C:\\x "); }

TEST_F(ResultParsingTest, WithoutTheFixedWordsOnlyLineEndsGo) {
  EXPECT_EQ(Result("Anderer\r\nText\n", "ANLPATH"), "AndererText");
}

TEST_F(ResultParsingTest, TheModeMindsNoCase) {
  EXPECT_EQ(Result("C:\\x abgelegt.", "anlpath"), "C:\\x");
  EXPECT_EQ(Result("C:\\x\\1\\2\\Anl\\x", "Anl"), "D:\\Data\\Extern\\Berater-1\\2\\Anl\\01012003");
}

// Any other mode.

TEST_F(ResultParsingTest, AnyOtherModeLeavesTheText) {
  for (const char* mode : {"", "ANLX", " ANL", "TEXT"})
    EXPECT_EQ(Result("C:\\x\r\n abgelegt.", mode), "C:\\x\r\n abgelegt.") << mode;
}

TEST_F(ResultParsingTest, TheEmptyTextIsAResult) {
  automation.LastReadText = "vorher";
  EXPECT_EQ(Result("", ""), "");
  EXPECT_EQ(Result("", "ANLPATH"), "");
  ExpectLog({"Parse: ", "Parse: "});
}

// In a macro.

TEST_F(ResultParsingTest, TheResultIsTheValueOfTheLine) {
  EXPECT_TRUE(RunLines({"DIM Ordner", "Ordner=PARSE(C:\\x abgelegt.,ANLPATH)", "MSG=Ordner"}));
  ExpectLog(Completed({"Parse: C:\\x", "MSG: C:\\x"}));
}

TEST_F(ResultParsingTest, AFailureStopsTheRun) {
  EXPECT_FALSE(RunLines({"PARSE=x,ANL", "MSG=nie"}));
  ExpectLog({kDestination, kBadCut});
}

TEST_F(ResultParsingTest, InASkippedBranchNothingIsParsed) {
  automation.LastReadText = "vorher";
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b", "PARSE=x,ANL"}));
  EXPECT_EQ(automation.LastReadText, "vorher");
}

// The two small routines.

TEST_F(ResultParsingTest, FindsTheNthOccurrenceFromTheEnd) {
  EXPECT_EQ(FindBackslashFromEnd("a\\b\\c", '\\', 1), 4);
  EXPECT_EQ(FindBackslashFromEnd("a\\b\\c", '\\', 2), 2);
  EXPECT_EQ(FindBackslashFromEnd("a\\b\\c", '\\', 3), 0);
  EXPECT_EQ(FindBackslashFromEnd("\\", '\\', 1), 1);
  EXPECT_EQ(FindBackslashFromEnd("x/y/z", '/', 2), 2);
}

TEST_F(ResultParsingTest, FindsNothingWhereThereIsNothing) {
  EXPECT_EQ(FindBackslashFromEnd("", '\\', 1), 0);
  EXPECT_EQ(FindBackslashFromEnd("abc", '\\', 1), 0);
  EXPECT_EQ(FindBackslashFromEnd("a\\b", '\\', 0), 0);
  EXPECT_EQ(FindBackslashFromEnd("a\\b", '\\', -1), 0);
  EXPECT_EQ(FindBackslashFromEnd(std::string(100'000, '\\'), '\\', 32767), 0);
}

TEST_F(ResultParsingTest, APlaceHas16Bits) {
  EXPECT_EQ(FindBackslashFromEnd(std::string(32766, 'x') + "\\", '\\', 1), 32767);
  EXPECT_EQ(FindBackslashFromEnd(std::string(32767, 'x') + "\\", '\\', 1), 0);
}

TEST_F(ResultParsingTest, StripsTheZerosInFront) {
  EXPECT_EQ(StripLeadingZeros("0042"), "42");
  EXPECT_EQ(StripLeadingZeros("4200"), "4200");
  EXPECT_EQ(StripLeadingZeros("0a0"), "a0");
  EXPECT_EQ(StripLeadingZeros("000"), "");
  EXPECT_EQ(StripLeadingZeros(""), "");
  EXPECT_EQ(StripLeadingZeros(" 01"), " 01");
}

}  // namespace
