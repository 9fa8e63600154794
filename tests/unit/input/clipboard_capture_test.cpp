// The verbs that save the clipboard.
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "input/frmInputBoxKonto.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using basMain::frmInputBoxKonto;
using basMain::run;
using support::Completed;
using support::Log;
using support::RunLines;

using Lines = std::vector<std::string>;

constexpr char kFile[] = "C:\\daten\\Tabelle.csv";
constexpr char kTemporary[] = "C:\\daten\\Tabelle.csv.tmp";
const std::string kSaved = "Die Zwischenablage wurde erfolgreich gespeichert.";
const std::string kNoName = "Fehler beim Speichern der Zwischenablage: kein Dateiname angegeben";
const std::string kSave = "SAVECLIPBOARD=" + std::string(kFile);
const std::string kSaveZVK = "SAVECLIPBOARDZVK=" + std::string(kFile);

class ClipboardCapture : public support::SystemTest {
 protected:
  ClipboardCapture() { PutFile("C:\\daten\\andere.txt", ""); }

  static bool Exists(const std::string& path) { return platform::FileExists(path); }

  static void ExpectFailure(const std::string& line, const std::string& text) {
    EXPECT_FALSE(RunLines({line}));
    EXPECT_EQ(run.LastError, text);
  }
};

class SaveClipboardTest : public ClipboardCapture {};

TEST_F(SaveClipboardTest, ATableBecomesAFile) {
  Clipboard() = "Konto\tBetrag\r\nSumme\r\n\r\n4711\t1.234,56\r\n";
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_EQ(GetFile(kFile), "\"Konto\";\"Betrag\";\r\nSumme\r\n\r\n\"4711\";\"1.234,56\";\r\n");
  EXPECT_EQ(Log(), Completed({kSaved}));
  EXPECT_EQ(Clipboard(), "Konto\tBetrag\r\nSumme\r\n\r\n4711\t1.234,56\r\n");
}

TEST_F(SaveClipboardTest, TheFileIsClosed) {
  Clipboard() = "x";
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_NO_THROW(platform::DeleteFileW(kFile));
}

TEST_F(SaveClipboardTest, WithoutAFileNameItFails) {
  Clipboard() = "a";
  ExpectFailure("SAVECLIPBOARD=", kNoName);
}

TEST_F(SaveClipboardTest, WithoutTextItSucceedsAndTouchesNoFile) {
  PutFile(kFile, "alt");
  EXPECT_TRUE(RunLines({kSave, "SAVECLIPBOARD=C:\\fehlt\\x.csv"}));
  EXPECT_EQ(GetFile(kFile), "alt");
  EXPECT_EQ(Log(), Completed({kSaved, kSaved}));
}

TEST_F(SaveClipboardTest, TheTailOfALongerFileIsTakenForTable) {
  PutFile(kFile, "1234567890\tx\r\n");
  Clipboard() = "a\tb\r\n";
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_EQ(GetFile(kFile), "\"a\";\"b\";\r\n\"67890\";\"x\";\r\n");
}

TEST_F(SaveClipboardTest, BareLineFeedsMakeOneLine) {
  Clipboard() = "a\tb\nc\td\n";
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_EQ(GetFile(kFile), "\"a\";\"b\nc\";\"d\n\";\r\n");
}

TEST_F(SaveClipboardTest, AnEmptyTextMakesAnEmptyFile) {
  Clipboard() = "";
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_TRUE(Exists(kFile));
  EXPECT_EQ(GetFile(kFile), "");
}

TEST_F(SaveClipboardTest, ATextEndsAtItsFirstNul) {
  Clipboard() = std::string("a\tb\0c\td", 7);
  EXPECT_TRUE(RunLines({kSave}));
  EXPECT_EQ(GetFile(kFile), "\"a\";\"b\";\r\n");
}

TEST_F(SaveClipboardTest, AMissingFolderIsAFault) {
  Clipboard() = "a";
  ExpectFailure("SAVECLIPBOARD=C:\\fehlt\\x.csv", "Fehler in Funktion SaveClipboard:Pfad nicht gefunden");
}

TEST_F(SaveClipboardTest, AFileThatCannotBeDeletedKeepsTheText) {
  PutFile(kFile, "");
  const auto reader = platform::OpenFile(kFile, platform::FileMode::Read);
  Clipboard() = "a\tb";
  ExpectFailure(kSave, "Fehler in Funktion SaveClipboard:Zugriff verweigert");
  EXPECT_EQ(GetFile(kFile), "a\tb");
  platform::CloseFile(reader);
}

TEST_F(SaveClipboardTest, AClipboardThatAnotherProgramHoldsIsAFaultAndLeavesTheFileOpen) {
  Clipboard() = "a";
  Fail("OpenClipboard");
  ExpectFailure(kSave, "Fehler in Funktion SaveClipboard:Zwischenablage kann nicht geöffnet werden");
  EXPECT_EQ(GetFile(kFile), "");
  EXPECT_THROW(platform::DeleteFileW(kFile), runtime::Fault);
}

TEST_F(SaveClipboardTest, AFullDiskIsAFault) {
  Clipboard() = "a";
  Fail("WriteFile", -1, 0);
  EXPECT_FALSE(RunLines({kSave}));
  EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion SaveClipboard:"));
}

class SaveClipboardZVKTest : public ClipboardCapture {
 protected:
  SaveClipboardZVKTest() { Clipboard() = "Kopf\r\nx\r\n"; }

  // Log lines in front of those of the file.
  static Lines SavedBehind(Lines lines, const std::string& mode) {
    lines.insert(lines.end(), {"AppendMode: " + mode, kSaved});
    return Completed(lines);
  }

  // The next question is answered so.
  static void UserTypes(const std::string& konto, const std::string& blz) {
    forms::simulated::WhenModal([=](forms::Form&) {
      forms::simulated::Type(frmInputBoxKonto.txtKonto, konto);
      forms::simulated::Type(frmInputBoxKonto.txtBLZ, blz);
      forms::simulated::Press(frmInputBoxKonto.cmdOK);
    });
  }
};

// Account and bank code.

TEST_F(SaveClipboardZVKTest, TheCaptionNamesBankCodeAndAccountInBrackets) {
  support::TargetWindow("TeRu ZVK [Bank: 10020030 4711 EUR]");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;10020030\r\n");
  EXPECT_EQ(Log(), SavedBehind({"Window CaptionTeRu ZVK [Bank: 10020030 4711 EUR]", "4711", "10020030"}, "0"));
  EXPECT_FALSE(Exists(kTemporary));
}

TEST_F(SaveClipboardZVKTest, TheCaptionIsThatOfTheTargetAlsoWhenAnotherWindowIsInFront) {
  support::TargetWindow("TeRu [a 100 4711");
  Activate(AddWindow({.className = "X", .text = "Andere [a 200 4712"}));
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;100\r\n");
}

TEST_F(SaveClipboardZVKTest, BracketsWithThreeWordsAreEnough) {
  support::TargetWindow("[a b c");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;c;b\r\n");
}

TEST_F(SaveClipboardZVKTest, BracketsWithFewerWordsLeaveBothEmptyAndAskNothing) {
  for (const char* caption : {"[a b", "[", "TeRu [4711]"}) {
    support::TargetWindow(caption);
    PutFile("C:\\QUMA\\QUMAEXP.LOG", "");
    EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
    EXPECT_EQ(GetFile(kFile), "\"x\";;;\r\n") << caption;
    EXPECT_EQ(Log(), SavedBehind({"Window Caption" + std::string(caption)}, "0"));
  }
}

TEST_F(SaveClipboardZVKTest, BracketsHideTheWindowOfStatements) {
  AddWindow({.className = "X", .text = "Umsätze BLZ: 1 Kto: 2"});
  support::TargetWindow("[a b");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;;\r\n");
}

TEST_F(SaveClipboardZVKTest, TheFirstBracketCounts) {
  support::TargetWindow("TeRu [a 100 4711] [b 200 4712]");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711];100\r\n");
}

TEST_F(SaveClipboardZVKTest, TwoBlanksInBracketsEncloseAnEmptyWord) {
  support::TargetWindow("[a  c");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;c;\r\n");
}

TEST_F(SaveClipboardZVKTest, WithoutBracketsTheWindowOfStatementsNamesBoth) {
  AddWindow({.className = "X", .text = "Umsätze BLZ: 10020030 Kto: 4711 2005"});
  support::TargetWindow("TeRu ZVK");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;10020030\r\n");
  EXPECT_EQ(Log(), SavedBehind({"Window CaptionTeRu ZVK", "4711", "10020030"}, "0"));
}

TEST_F(SaveClipboardZVKTest, EveryKtoIsRemovedFromTheAccount) {
  AddWindow({.className = "X", .text = "Umsätze BLZ: 10020030 - Kto:47Kto:11"});
  support::TargetWindow("TeRu ZVK");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;10020030\r\n");
}

TEST_F(SaveClipboardZVKTest, TheFirstColonCounts) {
  AddWindow({.className = "X", .text = "Bank: Umsätze BLZ: 10020030 Kto: 4711"});
  support::TargetWindow("TeRu ZVK");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;10020030;Umsätze\r\n");
}

TEST_F(SaveClipboardZVKTest, StatementsWithThreeWordsAreAFault) {
  AddWindow({.className = "X", .text = "Umsätze BLZ: 10020030 4711"});
  support::TargetWindow("TeRu ZVK");
  ExpectFailure(kSaveZVK + ",0", "Fehler in Funktion SaveClipboardZVK:Index außerhalb des gültigen Bereichs");
  EXPECT_FALSE(Exists(kFile));
  EXPECT_FALSE(Exists(kTemporary));
}

TEST_F(SaveClipboardZVKTest, StatementsWithFewerWordsAskTheUser) {
  AddWindow({.className = "X", .text = "Umsätze BLZ: 10020030"});
  support::TargetWindow("TeRu ZVK");
  UserTypes("4712", "200");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4712;200\r\n");
}

TEST_F(SaveClipboardZVKTest, OneEmptyValueAsksForBoth) {
  support::TargetWindow("TeRu ZVK");
  const std::int32_t statements = AddWindow({.className = "X"});
  // An empty bank code, an empty account.
  for (const char* caption : {"Umsätze BLZ:  Kto: 4711", "Umsätze BLZ: 10020030 Kto: "}) {
    At(statements).text = caption;
    UserTypes("1", "2");
    EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
    EXPECT_EQ(GetFile(kFile), "\"x\";;1;2\r\n") << caption;
    platform::DeleteFileW(kFile);
  }
}

TEST_F(SaveClipboardZVKTest, WithoutAWindowOfStatementsTheUserIsAskedOnTop) {
  support::TargetWindow("TeRu ZVK");
  bool topMost = false;
  forms::simulated::WhenModal([&](forms::Form& form) {
    topMost = At(form.Window()).topMost;
    forms::simulated::Type(frmInputBoxKonto.txtKonto, "4711");
    forms::simulated::Type(frmInputBoxKonto.txtBLZ, "10020030");
    forms::simulated::Press(frmInputBoxKonto.cmdOK);
  });
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_TRUE(topMost);
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;10020030\r\n");
  EXPECT_EQ(Log(), SavedBehind({"Window CaptionTeRu ZVK", "Konto / Blz Dialog"}, "0"));
}

TEST_F(SaveClipboardZVKTest, EventsRunWhileTheQuestionIsOnTopAndNotYetShown) {
  const std::int32_t question = frmInputBoxKonto.hWnd();
  support::TargetWindow("TeRu ZVK");
  std::optional<bool> shown, topMost;
  Schedule(25, [&] {  // in the last pause of the search, that of the third title
    At(question).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
      if (message.wParam != 77) return std::nullopt;
      shown = frmInputBoxKonto.Visible();
      topMost = At(question).topMost;
      return 0;
    };
    platform::PostMessageA(question, platform::WM_COMMAND, 77, 0);
  });
  UserTypes("1", "2");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(shown, false);
  EXPECT_EQ(topMost, true);
}

TEST_F(SaveClipboardZVKTest, AfterACancelTheAnswerBeforeItCounts) {
  support::TargetWindow("TeRu ZVK");
  UserTypes("4711", "10020030");
  forms::simulated::WhenModal([](forms::Form&) { forms::simulated::Press(frmInputBoxKonto.cmdCancel); });
  EXPECT_TRUE(RunLines({kSaveZVK + ",0", kSaveZVK + ",1"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;4711;10020030\r\n\"x\";;4711;10020030\r\n");
}

TEST_F(SaveClipboardZVKTest, EmptyAnswersAreTakenAsTheyStand) {
  support::TargetWindow("TeRu ZVK");
  UserTypes("", "");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\";;;\r\n");
}

TEST_F(SaveClipboardZVKTest, AnAlreadyOpenQuestionIsAFault) {
  support::TargetWindow("TeRu ZVK");
  frmInputBoxKonto.Show();
  EXPECT_FALSE(RunLines({kSaveZVK + ",0"}));
  EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion SaveClipboardZVK:Formular"));
}

// Files.

class SaveClipboardZVKFiles : public SaveClipboardZVKTest {
 protected:
  SaveClipboardZVKFiles() { support::TargetWindow("[a 100 4711"); }

  const std::string record_ = "\"x\";;4711;100\r\n";
};

TEST_F(SaveClipboardZVKFiles, WithoutAFileNameItFailsAndAsksNothing) {
  ExpectFailure("SAVECLIPBOARDZVK=,0", kNoName);
  EXPECT_EQ(Log(), Lines{kNoName});
}

TEST_F(SaveClipboardZVKFiles, WithoutTextTheAccountIsReadAndNoFileWritten) {
  Clipboard().reset();
  PutFile(kFile, "alt");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "alt");
  EXPECT_FALSE(Exists(kTemporary));
  EXPECT_EQ(Log(), Completed({"Window Caption[a 100 4711", "4711", "100", kSaved}));
}

TEST_F(SaveClipboardZVKFiles, WithoutTextTheUserIsAskedAllTheSame) {
  support::TargetWindow("TeRu ZVK");
  Clipboard().reset();
  UserTypes("1", "2");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(Log(), Completed({"Window CaptionTeRu ZVK", "Konto / Blz Dialog", kSaved}));
}

TEST_F(SaveClipboardZVKFiles, ModeZeroKeepsTheTailOfALongerFile) {
  PutFile(kFile, std::string(20, '#'));
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), record_ + "#####");  // the record has 15 bytes
}

TEST_F(SaveClipboardZVKFiles, AnyOtherModeAppends) {
  PutFile(kFile, "alt\r\n");
  EXPECT_TRUE(RunLines({kSaveZVK + ",1", kSaveZVK + ",", kSaveZVK, kSaveZVK + ",00"}));
  EXPECT_EQ(GetFile(kFile), "alt\r\n" + record_ + record_ + record_ + record_);
}

TEST_F(SaveClipboardZVKFiles, ModeOneMakesAMissingFile) {
  EXPECT_TRUE(RunLines({kSaveZVK + ",1"}));
  EXPECT_EQ(GetFile(kFile), record_);
  EXPECT_EQ(Log(), SavedBehind({"Window Caption[a 100 4711", "4711", "100"}, "1"));
}

TEST_F(SaveClipboardZVKFiles, AHeaderAloneMakesAnEmptyFileOrLeavesTheOldOne) {
  Clipboard() = "Kopf\tZeile\r\n";
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_TRUE(Exists(kFile));
  EXPECT_EQ(GetFile(kFile), "");
  PutFile(kFile, "alt");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "alt");
}

TEST_F(SaveClipboardZVKFiles, BareLineFeedsAloneAreLineEnds) {
  Clipboard() = "Kopf\nx\ny\n";
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), record_ + "\"y\";;4711;100\r\n");
}

TEST_F(SaveClipboardZVKFiles, BareLineFeedsAreLineEndsAlsoBesideABareCarriageReturn) {
  Clipboard() = "Kopf\rx\ny\n";
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), record_ + "\"y\";;4711;100\r\n");
}

TEST_F(SaveClipboardZVKFiles, MixedLineEndsKeepTheirBareLineFeeds) {
  Clipboard() = "Kopf\r\nx\ny\r\n";
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));
  EXPECT_EQ(GetFile(kFile), "\"x\ny\";;4711;100\r\n");
}

TEST_F(SaveClipboardZVKFiles, TheTailOfAnOldTemporaryFileIsTakenForTable) {
  PutFile(kTemporary, "1234567890123\r\n");
  EXPECT_TRUE(RunLines({kSaveZVK + ",0"}));  // the text has 9 bytes
  EXPECT_EQ(GetFile(kFile), record_ + "\"0123\";;4711;100\r\n");
  EXPECT_FALSE(Exists(kTemporary));
}

TEST_F(SaveClipboardZVKFiles, TheFileIsClosedInBothModes) {
  for (const char* mode : {",0", ",1"}) {
    EXPECT_TRUE(RunLines({kSaveZVK + mode}));
    EXPECT_NO_THROW(platform::DeleteFileW(kFile)) << mode;
  }
}

TEST_F(SaveClipboardZVKFiles, AMissingFolderIsAFault) {
  ExpectFailure("SAVECLIPBOARDZVK=C:\\fehlt\\x.csv,0", "Fehler in Funktion SaveClipboardZVK:Pfad nicht gefunden");
}

TEST_F(SaveClipboardZVKFiles, AnEmptyTextHasNoHeaderAndLeavesTheTemporaryFileOpen) {
  Clipboard() = "";
  ExpectFailure(kSaveZVK + ",0", "Fehler in Funktion SaveClipboardZVK:Eingabe hinter Dateiende");
  EXPECT_TRUE(Exists(kTemporary));
  EXPECT_FALSE(Exists(kFile));
  EXPECT_THROW(platform::DeleteFileW(kTemporary), runtime::Fault);
}

TEST_F(SaveClipboardZVKFiles, AHeldClipboardLeavesTheTemporaryFileInPlace) {
  Fail("OpenClipboard");
  ExpectFailure(kSaveZVK + ",0", "Fehler in Funktion SaveClipboardZVK:Zwischenablage kann nicht geöffnet werden");
  EXPECT_TRUE(Exists(kTemporary));
  EXPECT_FALSE(Exists(kFile));
}

TEST_F(SaveClipboardZVKFiles, ATargetThatCannotBeWrittenLosesTheTemporaryFileAllTheSame) {
  PutFile("C:\\daten\\Tabelle.csv\\darin.txt", "");  // a folder in its place
  for (const char* mode : {",0", ",1"}) {
    EXPECT_FALSE(RunLines({kSaveZVK + mode}));
    EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion SaveClipboardZVK:")) << mode;
    EXPECT_FALSE(Exists(kTemporary)) << mode;
    const Lines log = Log();
    EXPECT_EQ(*std::prev(log.end(), 2), "AppendMode: " + std::string(mode + 1)) << mode;
  }
}

}  // namespace
