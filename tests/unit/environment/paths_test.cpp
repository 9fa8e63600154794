// Joining and making paths.
#include "environment/paths.h"
#include "environment/create_path.h"

#include "engine/state.h"
#include "environment/file_system.h"
#include "frame/log.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basAPI;
using namespace platform::simulated;
using namespace support;

class PathsTest : public SystemTest {};

TEST_F(PathsTest, OneBackslashIsRemovedAtEachEnd) {
  EXPECT_EQ(JoinPath("C:\\A\\", "\\B\\", "C"), "C:\\A\\B\\C");
  EXPECT_EQ(JoinPath("C:\\A", "B"), "C:\\A\\B");
  EXPECT_EQ(JoinPath("C:\\", "B"), "C:\\B");
}

TEST_F(PathsTest, OnlyOneBackslashIsRemoved) {
  EXPECT_EQ(JoinPath("C:\\A\\\\", "B"), "C:\\A\\\\B");
  EXPECT_EQ(JoinPath("C:\\A", "\\\\B\\\\"), "C:\\A\\\\B\\");
}

TEST_F(PathsTest, AnEmptyPieceStillAddsItsBackslash) {
  EXPECT_EQ(JoinPath("C:\\A", "", "B"), "C:\\A\\\\B");
  EXPECT_EQ(JoinPath("C:\\A", ""), "C:\\A\\");
  EXPECT_EQ(JoinPath("", "B"), "\\B");
  EXPECT_EQ(JoinPath("", ""), "\\");
}

TEST_F(PathsTest, TheFirstPieceKeepsItsLeadingBackslash) {
  EXPECT_EQ(JoinPath("\\A", "B"), "\\A\\B");
  EXPECT_EQ(JoinPath("\\\\Rechner\\Freigabe", "B"), "\\\\Rechner\\Freigabe\\B");
}

TEST_F(PathsTest, AFirstPieceOfOneBackslashBecomesEmpty) {
  EXPECT_EQ(JoinPath("\\"), "");
  EXPECT_EQ(JoinPath("\\", "B"), "\\B");
}

TEST_F(PathsTest, AFurtherPieceOfOneOrTwoBackslashesBecomesEmpty) {
  EXPECT_EQ(JoinPath("A", "\\", "B"), "A\\\\B");
  EXPECT_EQ(JoinPath("A", "\\\\", "B"), "A\\\\B");
}

TEST_F(PathsTest, OnePieceLosesItsTrailingBackslash) {
  EXPECT_EQ(JoinPath("C:\\A\\"), "C:\\A");
  EXPECT_EQ(JoinPath("C:\\A"), "C:\\A");
}

TEST_F(PathsTest, SlashesAreNoBackslashes) { EXPECT_EQ(JoinPath("C:/A/", "/B"), "C:/A/\\/B"); }

TEST_F(PathsTest, CreatePathMakesAllMissingDirectories) {
  EXPECT_TRUE(CreatePath("C:\\a\\b\\c"));
  EXPECT_TRUE(platform::FolderExists("C:\\a\\b\\c"));
  ExpectLog({"Ausgabeverzeichnis erstellt: C:\\a\\b\\c\\"});
}

TEST_F(PathsTest, CreatePathLogsTheLineForAnExistingDirectoryAllTheSame) {
  EXPECT_TRUE(CreatePath(kProgram));
  ExpectLog({"Ausgabeverzeichnis erstellt: C:\\QUMA\\"});
}

TEST_F(PathsTest, CreatePathDoesNotDoubleATrailingBackslash) {
  EXPECT_TRUE(CreatePath("C:\\a\\"));
  ExpectLog({"Ausgabeverzeichnis erstellt: C:\\a\\"});
}

TEST_F(PathsTest, CreatePathThatIsRefusedIsFalseWithoutAnyText) {
  basMain::run.LastError = "vorher";
  Fail("MakeSureDirectoryPathExists");
  EXPECT_FALSE(CreatePath("C:\\a"));
  EXPECT_EQ(basMain::run.LastError, "vorher");
  EXPECT_TRUE(Log().empty());
}

TEST_F(PathsTest, CreatePathOfNamesThatTheSystemRefusesIsFalse) {
  basMain::run.LastError = "vorher";
  PutFile("C:\\datei", "x");
  for (const std::string path : {"C:\\a\\b?c", "C:\\a\\b|c", "C:\\a\\\"b\"", "Q:\\a", "C:\\datei\\a"})
    EXPECT_FALSE(CreatePath(path)) << path;
  EXPECT_FALSE(CreatePath("C:\\" + std::string(300, 'x')));
  EXPECT_EQ(basMain::run.LastError, "vorher");
  EXPECT_TRUE(Log().empty());
  EXPECT_EQ(GetFile("C:\\datei"), "x");
}

TEST_F(PathsTest, CreatePathOnASystemThatLacksTheFunctionIsAFault) {
  Fail("imagehlp.dll", 1, 0, runtime::FaultNumber::FunctionMissing);
  EXPECT_FALSE(CreatePath("C:\\a"));
  EXPECT_EQ(basMain::run.LastError, "Fehler in Funktion CreatePath:Angegebene DLL-Funktion nicht gefunden");
  EXPECT_TRUE(Log().empty());
}

TEST_F(PathsTest, CreatePathOfNothingMeansTheRoot) {
  EXPECT_TRUE(CreatePath(""));
  ExpectLog({"Ausgabeverzeichnis erstellt: \\"});
}

TEST_F(PathsTest, CheckFileExistsTellsFilesFromFoldersAndNothing) {
  PutFile("C:\\a\\datei.txt", "");
  EXPECT_TRUE(CheckFileExists("C:\\a\\datei.txt"));
  EXPECT_TRUE(CheckFileExists("c:\\A\\DATEI.TXT"));
  EXPECT_FALSE(CheckFileExists("C:\\a"));
  EXPECT_FALSE(CheckFileExists("C:\\a\\andere.txt"));
  EXPECT_FALSE(CheckFileExists(""));
  EXPECT_FALSE(CheckFileExists("C:\\a\\*.*"));
}

TEST_F(PathsTest, CheckFileExistsNeedsNoFileSystemObjectOfTheProgram) {
  PutFile("C:\\a\\datei.txt", "");
  basMain::log = {};
  basMain::FileSystemState.reset();
  EXPECT_TRUE(CheckFileExists("C:\\a\\datei.txt"));
}

TEST_F(PathsTest, CheckFileExistsThatFailsIsFalse) {
  PutFile("C:\\a\\datei.txt", "");
  Fail("FileExists");
  EXPECT_FALSE(CheckFileExists("C:\\a\\datei.txt"));
}

TEST_F(PathsTest, TrimAtNulYieldsThePartBeforeTheFirst) {
  EXPECT_EQ(TrimAtNul(std::string("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(TrimAtNul("ab"), "ab");
  EXPECT_EQ(TrimAtNul(std::string("\0ab", 3)), "");
  EXPECT_EQ(TrimAtNul(""), "");
}

TEST_F(PathsTest, TheSettingsFileLiesBesideTheProgramWhereverThatIs) {
  EXPECT_EQ(SettingsFile(), "C:\\QUMA\\QUMAEXP.INI");
  SetApplicationPath("C:\\");
  EXPECT_EQ(SettingsFile(), "C:\\QUMAEXP.INI");
}

}  // namespace
