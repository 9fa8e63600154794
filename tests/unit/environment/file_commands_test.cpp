// Waiting for files.
#include "environment/file_commands.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "engine/state.h"
#include "environment/file_system.h"
#include "frame/frmStatus.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

class WaitForFileTest : public SystemTest {
 protected:
  static std::string Reading(int size) { return "Datei wird eingelesen (" + std::to_string(size) + ") "; }

  static void PutAt(std::int32_t milliseconds, const std::string& path, const std::string& bytes) {
    Schedule(milliseconds, [=] { PutFile(path, bytes); });
  }

  static void Remove(const std::string& path) { std::filesystem::remove(HostPath(path)); }

  static void StopAt(std::int32_t milliseconds) {
    Schedule(milliseconds, [] { run.StopRun = true; });
  }
};

// One file.

TEST_F(WaitForFileTest, AFinishedFileCostsHalfASecondAndTheTimeBetweenTwoReadings) {
  PutFile("C:\\x\\a.txt", "abc");
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(Clock(), 500 + 1500);
  ExpectLog({Reading(3)});
  EXPECT_EQ(frmStatus.lblStatus.Caption(), Reading(3));
}

TEST_F(WaitForFileTest, AFileIsWaitedForUntilItIsThere) {
  PutFile("C:\\x\\anderes.txt", "");
  PutAt(3600000, "C:\\x\\a.txt", "abc");
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(Clock(), 3600000 + 500 + 1500);
  ExpectLog({Reading(3)});
}

TEST_F(WaitForFileTest, AFileInAFolderThatIsMissingIsWaitedForToo) {
  PutAt(2000, "C:\\neu\\a.txt", "abc");
  EXPECT_TRUE(WaitForFile("C:\\neu\\a.txt"));
  ExpectLog({Reading(3)});
}

TEST_F(WaitForFileTest, AGrowingFileIsReadAgainAndEachSizeIsShown) {
  PutFile("C:\\x\\a.txt", "1");
  // Readings at 500 and 2000, at 2000 and 3500, at 3500 and 5000 ms.
  PutAt(1000, "C:\\x\\a.txt", "12");
  PutAt(2500, "C:\\x\\a.txt", "12345");
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(Clock(), 5000);
  ExpectLog({Reading(1), Reading(2), Reading(5)});
}

TEST_F(WaitForFileTest, AFileThatShrinksIsReadAgainToo) {
  PutFile("C:\\x\\a.txt", "12345");
  PutAt(1000, "C:\\x\\a.txt", "12");
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  ExpectLog({Reading(5), Reading(2)});
}

TEST_F(WaitForFileTest, AFileOf0BytesThatStaysSoIsFinished) {
  PutFile("C:\\x\\a.txt", "");
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(Clock(), 2000);
  ExpectLog({Reading(0)});
}

TEST_F(WaitForFileTest, AFileThatVanishesBetweenTwoReadingsEndsInTheHandler) {
  PutFile("C:\\x\\a.txt", "abc");
  Schedule(1000, [] { Remove("C:\\x\\a.txt"); });
  EXPECT_FALSE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Datei nicht gefunden");
  ExpectLog({Reading(3)});
}

TEST_F(WaitForFileTest, AFileThatVanishesBeforeItIsReadIsLogged) {
  PutFile("C:\\x\\a.txt", "abc");
  Schedule(200, [] { Remove("C:\\x\\a.txt"); });
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  ExpectLog({"Datei existiert nicht mehr: C:\\x\\a.txt"});
}

TEST_F(WaitForFileTest, AFileOf2GigabytesAndMoreEndsInTheHandler) {
  PutFile("C:\\x\\a.txt", "");
  // A file with a hole takes no room on the disk.
  std::filesystem::resize_file(HostPath("C:\\x\\a.txt"), 2147483647);
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  std::filesystem::resize_file(HostPath("C:\\x\\a.txt"), 2147483648);
  EXPECT_FALSE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Überlauf");
  ExpectLog({Reading(2147483647)});
}

TEST_F(WaitForFileTest, ASizeThatCannotBeReadEndsInTheHandler) {
  PutFile("C:\\x\\a.txt", "abc");
  Fail("FileSize", 1);
  EXPECT_FALSE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Zugriff verweigert");
}

TEST_F(WaitForFileTest, AFolderIsNoFile) {
  PutFile("C:\\x\\a.txt\\darin", "");
  StopAt(10000);
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_GE(Clock(), 10000);
  ExpectLog({"Datei existiert nicht mehr: C:\\x\\a.txt"});
}

TEST_F(WaitForFileTest, ItHasNoTimeLimit) {
  SetTimeLimit(60 * 60 * 1000);
  EXPECT_THROW(WaitForFile("C:\\fehlt.txt"), TimeLimitPassed);
}

// The stop.

TEST_F(WaitForFileTest, AStopBeforeTheFileIsThereLooksOnceMoreAndLogsIt) {
  StopAt(10000);
  EXPECT_TRUE(WaitForFile("C:\\x\\nie.txt"));
  EXPECT_EQ(Clock(), 10000);
  ExpectLog({"Datei existiert nicht mehr: C:\\x\\nie.txt"});
}

TEST_F(WaitForFileTest, AStopWhileTheFileGrowsEndsItsReadingWithNothingLogged) {
  PutFile("C:\\x\\a.txt", "1");
  PutAt(1000, "C:\\x\\a.txt", "12");
  StopAt(1000);
  EXPECT_TRUE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(Clock(), 2000);
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, TheSizeIsReadAgainBehindAStopToo) {
  PutFile("C:\\x\\a.txt", "abc");
  Schedule(1000, [] { Remove("C:\\x\\a.txt"); });
  StopAt(1000);
  EXPECT_FALSE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Datei nicht gefunden");
}

TEST_F(WaitForFileTest, AStopWithAPatternAndNoMatchLogsNothing) {
  PutFile("C:\\x\\a.doc", "1");
  StopAt(10000);
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  EXPECT_EQ(Clock(), 10000);
  EXPECT_TRUE(Log().empty());
}

TEST_F(WaitForFileTest, AStopStillReadsTheFurtherFilesOfAPatternOnce) {
  PutFile("C:\\x\\a.txt", "1");
  PutFile("C:\\x\\b.txt", "22");
  StopAt(1000);
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  EXPECT_EQ(Clock(), 500 + 1500 + 1500);
  ExpectLog({Reading(1), Reading(2)});
}

TEST_F(WaitForFileTest, CancelReachesAWaitingRun) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAITFORFILE=C:\\x\\nie.txt", "MSG=nie"});
  TargetWindow("TeRu");
  Schedule(10000, [] { Click(frmStatus.cmdCancel); });
  PressHotKey();
  ExpectLog(Header("A.MAK") + Lines{"<Cancel>", "Datei existiert nicht mehr: C:\\x\\nie.txt", kStopped, kStars});
}

TEST_F(WaitForFileTest, EventsRunInFrontOfThePause) {
  frmStatus.Show();
  Schedule(100, [] { Click(frmStatus.cmdCancel); });
  EXPECT_TRUE(WaitForFile("C:\\x\\nie.txt"));
  EXPECT_EQ(Clock(), 2 * 500);
}

TEST_F(WaitForFileTest, CancelReachesARunThatWaitsForAGrowingFile) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAITFORFILE=C:\\x\\a.txt", "MSG=nie"});
  TargetWindow("TeRu");
  PutFile("C:\\x\\a.txt", "");
  for (int second = 1; second <= 60; ++second)
    PutAt(second * 1000, "C:\\x\\a.txt", std::string(static_cast<std::size_t>(second), 'x'));
  Schedule(10000, [] { Click(frmStatus.cmdCancel); });
  PressHotKey();
  EXPECT_LT(Clock(), 14000);
  const Lines lines = Log();
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(Lines(lines.end() - 2, lines.end()), (Lines{kStopped, kStars}));
}

// Patterns.

TEST_F(WaitForFileTest, APatternMeansAllFilesOfItsFolderWithItsExtension) {
  PutFile("C:\\x\\eins.txt", "1");
  PutFile("C:\\x\\zwei.TXT", "22");
  PutFile("C:\\x\\drei.txt.doc", "333");
  PutFile("C:\\x\\txt", "4444");
  PutFile("C:\\x\\ordner.txt\\fünf.txt", "55555");
  EXPECT_TRUE(WaitForFile("C:\\x\\*.Txt"));
  ExpectLog({Reading(1), Reading(2)});
  EXPECT_EQ(Clock(), 500 + 2 * 1500);
}

TEST_F(WaitForFileTest, AFoundNameOutsideTheCodePageIsReadByThatName) {
  PutFile("C:\\x\\Lodz.txt", "1");
  std::filesystem::rename(HostPath("C:\\x\\Lodz.txt"), HostPath("C:\\x") +
                                                           "/\xC5\x81\xC3\xB3"
                                                           "d\xC5\xBA.txt");
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, TheExtensionIsWhatFollowsTheLastDotOfTheName) {
  PutFile("C:\\x\\Stand 1.2.txt", "1");
  EXPECT_TRUE(WaitForFile("C:\\x\\Stand 1.*.txt"));
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, APatternWithoutADotHasTheExtensionOfItsFolder) {
  PutFile("C:\\x.y\\LIESMICH", "1");
  StopAt(10000);
  EXPECT_TRUE(WaitForFile("C:\\x.y\\*"));
  EXPECT_EQ(Clock(), 10000);
  EXPECT_TRUE(Log().empty());
}

TEST_F(WaitForFileTest, TheNamePartOfAPatternPlaysNoRole) {
  PutFile("C:\\x\\xyz.txt", "1");
  EXPECT_TRUE(WaitForFile("C:\\x\\abc*.txt"));
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, APatternWithoutADotMeansFilesWithoutAnExtension) {
  PutFile("C:\\x\\LIESMICH", "1");
  PutFile("C:\\x\\a.txt", "22");
  EXPECT_TRUE(WaitForFile("C:\\x\\*"));
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, AQuestionMarkMakesNoPattern) {
  PutFile("C:\\x\\a.txt", "1");
  StopAt(10000);
  EXPECT_TRUE(WaitForFile("C:\\x\\?.txt"));
  ExpectLog({"Datei existiert nicht mehr: C:\\x\\?.txt"});
}

TEST_F(WaitForFileTest, APatternIsWaitedForUntilAFileIsThere) {
  PutFile("C:\\x\\a.doc", "1");
  PutAt(5000, "C:\\x\\a.txt", "22");
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  EXPECT_EQ(Clock(), 5000 + 500 + 1500);
  ExpectLog({Reading(2)});
}

TEST_F(WaitForFileTest, AFileThatShowsUpBehindTheFirstLookIsNotWaitedFor) {
  PutFile("C:\\x\\a.txt", "1");
  PutAt(100, "C:\\x\\b.txt", "22");
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  ExpectLog({Reading(1)});
}

TEST_F(WaitForFileTest, AFileOfThePatternThatIsGoneAgainIsLogged) {
  PutFile("C:\\x\\a.txt", "1");
  PutFile("C:\\x\\b.txt", "22");
  PutFile("C:\\x\\c.txt", "333");
  Schedule(1000, [] { Remove("C:\\x\\b.txt"); });
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  ExpectLog({Reading(1), "Datei existiert nicht mehr: C:\\x\\b.txt", Reading(3)});
}

TEST_F(WaitForFileTest, OneHundredFilesAreWaitedFor) {
  for (int i = 0; i < 100; ++i) PutFile("C:\\x\\" + std::to_string(i) + ".txt", "1");
  EXPECT_TRUE(WaitForFile("C:\\x\\*.txt"));
  EXPECT_EQ(Log().size(), 100u);
  EXPECT_EQ(Clock(), 500 + 100 * 1500);
}

TEST_F(WaitForFileTest, OneHundredAndOneFilesFailInTheHandler) {
  for (int i = 0; i < 101; ++i) PutFile("C:\\x\\" + std::to_string(i) + ".txt", "1");
  EXPECT_FALSE(RunLines({"WAITFORFILE=C:\\x\\*.txt", "MSG=nie"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Index außerhalb des gültigen Bereichs");
  ExpectLog({"Fehler in Funktion WaitForFile:Index außerhalb des gültigen Bereichs"});
}

TEST_F(WaitForFileTest, AMissingFolderOfAPatternFailsInTheHandler) {
  EXPECT_FALSE(WaitForFile("C:\\fehlt\\*.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Pfad nicht gefunden");
  run.LastError.clear();
  EXPECT_FALSE(WaitForFile("*.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Pfad nicht gefunden");
  EXPECT_EQ(Clock(), 0);
}

TEST_F(WaitForFileTest, WithoutAFileSystemItFailsInTheHandler) {
  FileSystemState.reset();
  EXPECT_FALSE(WaitForFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion WaitForFile:Objektvariable oder With-Blockvariable nicht festgelegt");
}

// "DISPLAYSTATUS".

}  // namespace
