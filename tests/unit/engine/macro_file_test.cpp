// Loading a macro: what becomes of its lines, and what a file that cannot be read leaves behind.
#include "engine/macro_file.h"

#include <algorithm>
#include <ctime>
#include <filesystem>

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using namespace std::string_literals;
using platform::simulated::Fail;
using platform::simulated::PutFile;
using support::Completed;
using support::Log;

using Texts = std::vector<std::string>;

const std::string kMacro = support::kProgram + "\\TEST.MAK";

class MacroFileTest : public support::SystemTest {
 protected:
  // The lines of the table without the spare one at its end.
  static Texts Load(const std::string& bytes) {
    PutFile(kMacro, bytes);
    LoadFile(kMacro);
    return Lines();
  }

  static Texts Lines() {
    Texts lines = run.MakroLines;
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(run.LineCount) + 1);
    EXPECT_EQ(lines.back(), "");
    lines.pop_back();
    return lines;
  }

  static std::ptrdiff_t OpenDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  }
};

TEST_F(MacroFileTest, AnEmptyFileHasNoLines) {
  EXPECT_EQ(Load(""), Texts{});
  EXPECT_EQ(run.LineCount, 0);
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(Log(), Completed({}));
}

TEST_F(MacroFileTest, TheResultIsFalseAlsoAfterAGoodLoad) {
  PutFile(kMacro, "MSG=a\r\n");
  EXPECT_FALSE(LoadFile(kMacro));
  EXPECT_EQ(run.LastError, "");
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(MacroFileTest, TheTableHasOneEmptyLineMoreThanTheFile) {
  EXPECT_EQ(Load("a\r\nb\r\n"), (Texts{"a", "b"}));
  EXPECT_EQ(run.MakroLines, (Texts{"a", "b", ""}));
  EXPECT_EQ(run.LineCount, 2);
}

TEST_F(MacroFileTest, TheLastLineNeedsNoEnd) { EXPECT_EQ(Load("a\r\nb"), (Texts{"a", "b"})); }

TEST_F(MacroFileTest, EmptyLinesCount) {
  EXPECT_EQ(Load("\r\n\r\na\r\n\r\n"), (Texts{"", "", "a", ""}));
  EXPECT_EQ(Load("\r\n"), (Texts{""}));
}

TEST_F(MacroFileTest, LinesMayEndInLineFeeds) { EXPECT_EQ(Load("a\nb\n\nc\n"), (Texts{"a", "b", "", "c"})); }
TEST_F(MacroFileTest, LinesMayEndInCarriageReturns) { EXPECT_EQ(Load("a\rb\r\rc\r"), (Texts{"a", "b", "", "c"})); }

TEST_F(MacroFileTest, LineEndsMayBeMixed) {
  EXPECT_EQ(Load("a\nb\rc\r\nd\n\re\r\r\nf"), (Texts{"a", "b", "c", "d", "", "e", "", "f"}));
}

TEST_F(MacroFileTest, ALineEndOnTheBorderOfAPieceIsOneLineEnd) {
  const std::string piece((1 << 20) - 1, 'a');  // the file is read in pieces of one mebibyte
  EXPECT_EQ(Load(piece + "\r\nMSG=b\r\n"), (Texts{piece, "MSG=b"}));
}

TEST_F(MacroFileTest, BlanksAreTrimmedBeforeTabsAreRemoved) {
  EXPECT_EQ(Load("  a  \n\ta\n\t a\n \ta\n\ta\tb\t\na \t\n \t \n\t\t\n"),
            (Texts{"a", "a", " a", "a", "ab", "a ", "", ""}));
}

TEST_F(MacroFileTest, OtherWhiteSpaceStays) { EXPECT_EQ(Load("\xA0\v\f MSG\n"), (Texts{"\xA0\v\f MSG"})); }

TEST_F(MacroFileTest, AnEncodingMarkIsTextLikeAnyOther) {
  Load("\xEF\xBB\xBFMSG=a\n");
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(run.LastError, "Unknown Command: \xCF\xBB\xBFMSG");  // in upper case
}

TEST_F(MacroFileTest, ALoadReplacesLinesMarksAndVariables) {
  EXPECT_TRUE(support::RunLines({"DIM x", "MARK=alt", "MARK=alt"}));
  ASSERT_TRUE(run.UserVariables.AnyDeclared());
  EXPECT_EQ(Load("GOTO=alt\n"), (Texts{"GOTO=alt"}));
  EXPECT_FALSE(run.UserVariables.AnyDeclared());
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(run.LastError, "Sprungmarke (alt) konnte nicht gefunden werden.");
}

TEST_F(MacroFileTest, VariablesLiveAsLongAsTheMacroAndNotAsLongAsARun) {
  support::LoadLines({"MSG=x", "DIM x", "x=VALUE(1)"});
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(Log()[0], "MSG: x");
  EXPECT_EQ(Log()[4], "MSG: 1");
}

TEST_F(MacroFileTest, TheFileIsClosedAfterwards) {
  Load("a\n");
  const auto before = OpenDescriptors();
  for (int i = 0; i < 3; ++i) LoadFile(kMacro);
  EXPECT_EQ(OpenDescriptors(), before);
}

// Files that cannot be read.

TEST_F(MacroFileTest, AMissingFileLeavesAnEmptyMacro) {
  Load("MSG=alt\n");
  EXPECT_FALSE(LoadFile(support::kProgram + "\\FEHLT.MAK"));
  EXPECT_EQ(Lines(), Texts{});
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Datei nicht gefunden");
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(MacroFileTest, AMissingFolderHasItsOwnFault) {
  LoadFile("C:\\FEHLT\\TEST.MAK");
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Pfad nicht gefunden");
}

TEST_F(MacroFileTest, ALockedFileLeavesAnEmptyMacro) {
  Load("MSG=alt\n");
  Fail("OpenFile", 1);
  EXPECT_FALSE(LoadFile(kMacro));
  EXPECT_EQ(Lines(), Texts{});
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Zugriff verweigert");
}

TEST_F(MacroFileTest, TheTextOfAFailedLoadIsClearedByTheRunThatFollows) {
  LoadFile(support::kProgram + "\\FEHLT.MAK");
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(Log(), Completed({}));
}

TEST_F(MacroFileTest, AFileThatCannotBeReadIsClosed) {
  PutFile(kMacro, "MSG=a\n");
  const auto before = OpenDescriptors();
  Fail("ReadFile", 1);
  EXPECT_FALSE(LoadFile(kMacro));
  EXPECT_EQ(OpenDescriptors(), before);
  EXPECT_EQ(Lines(), Texts{});
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Zugriff verweigert");
}

TEST_F(MacroFileTest, AFileThatFailsOnTheWayKeepsTheLinesInFrontAndRunsThem) {
  const std::string first = "MSG=a\r\nMSG=b\r\nDELETEFOLDER=C:\\";
  PutFile(kMacro, first + std::string((1 << 20) - first.size(), 'x') + "\r\nMSG=nie\r\n");
  Fail("ReadFile", 1, 1);
  EXPECT_FALSE(LoadFile(kMacro));
  EXPECT_EQ(Lines(), (Texts{"MSG=a", "MSG=b"}));  // the line that was not read to its end is none
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Zugriff verweigert");
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(Log(), Completed({"MSG: a", "MSG: b"}));
}

TEST_F(MacroFileTest, AFileThatCannotBeClosedHasItsLines) {
  PutFile(kMacro, "MSG=a\nMSG=b");
  Fail("CloseFile", 1);
  EXPECT_FALSE(LoadFile(kMacro));
  EXPECT_EQ(Lines(), (Texts{"MSG=a", "MSG=b"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion LoadFile:Zugriff verweigert");
}

// Files that are no macros.

TEST_F(MacroFileTest, ABinaryFileFailsAtItsFirstLine) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  const std::string noTab = bytes.substr(0, 9);
  EXPECT_EQ(Load(bytes), (Texts{noTab, "\v\f", bytes.substr(14)}));
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(run.LastError, "Unknown Command: " + noTab);
}

TEST_F(MacroFileTest, EveryByteAloneIsALineThatIsRunOrReported) {
  for (int c = 0; c < 256; ++c) {
    const std::string byte(1, static_cast<char>(c));
    const bool blank = byte == "\r" || byte == "\n" || byte == "\t" || byte == " ";
    Load(byte);
    EXPECT_EQ(ProcessMakro(0), blank) << c;
    EXPECT_EQ(run.RunFailed, !blank) << c;
    EXPECT_EQ(run.LastError.starts_with("Unknown Command: "), !blank) << c;
  }
}

TEST_F(MacroFileTest, NulBytesAreTextLikeAnyOther) {
  EXPECT_EQ(Load("MSG=a\0b\n\0\n"s), (Texts{"MSG=a\0b"s, "\0"s}));
  EXPECT_FALSE(ProcessMakro(0));
  EXPECT_EQ(Log(), (Texts{"MSG: a\0b"s, "Unknown Command: \0"s}));
}

TEST_F(MacroFileTest, ALineOfTenMegabytesRuns) {
  const std::string text(10'000'000, 'x');
  EXPECT_EQ(Load("MSG=" + text + "\r\nMSG=" + std::string(10'000'000, ',') + "\r\n").size(), 2u);
  EXPECT_TRUE(ProcessMakro(0));
  EXPECT_EQ(Log(), Completed({"MSG: " + text, "MSG: "}));
}

TEST_F(MacroFileTest, TwoHundredThousandVariablesAreFast) {
  constexpr int kCount = 200'000;
  std::string macro;
  for (int i = 0; i < kCount; ++i) macro += "DIM v" + std::to_string(i) + "\n";
  for (int i = 0; i < kCount; ++i) macro += "v" + std::to_string(i) + "=MARK(v" + std::to_string(i) + ")\n";
  macro += "v199999=VALUE(letzte)\nMSG=v199999\nMSG=v0\n";
  PutFile(kMacro, macro);
  const std::clock_t start = std::clock();
  LoadFile(kMacro);
  EXPECT_TRUE(ProcessMakro(0));
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  EXPECT_EQ(Log(), Completed({"Variable wurde befüllt: letzte", "MSG: letzte", "MSG: "}));
  // Processor time. A search through all variables for each line would take minutes; the sanitizers cost their share.
  EXPECT_LT(seconds, 30);
}

TEST_F(MacroFileTest, LinesMadeOfMarksRunOrFailWithATextOfTheirOwn) {
  // Every line of up to three of these pieces, behind a declared variable x.
  const Texts pieces = {"\"", "=", ",", "'", "(", ")", "x", "$", "$DATE", "MSG", "VALUE", "DIM", "REM", "\t", " "};
  Texts lines = {""};
  std::size_t from = 0;
  for (int length = 1; length <= 3; ++length) {
    const std::size_t to = lines.size();
    for (std::size_t i = from; i < to; ++i)
      for (const std::string& piece : pieces) lines.push_back(lines[i] + piece);
    from = to;
  }
  for (const std::string& line : lines) {
    run = {};
    run.ExecEnabled = true;
    run.UserVariables.Declare("x");
    MakroAction(line);
    EXPECT_EQ(run.RunFailed, run.LastError.starts_with("Unknown Command: ")) << line;
    EXPECT_FALSE(run.StopRun) << line;
    EXPECT_TRUE(run.ExecEnabled) << line;
  }
}

}  // namespace
