// Deleting, copying, renaming and making, by the verbs.
#include <filesystem>
#include <fstream>

#include "engine/state.h"
#include "environment/file_commands.h"
#include "environment/file_system.h"
#include "frame/log.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;
using platform::FileExists;
using platform::FolderExists;
using runtime::FaultNumber;

using Lines = std::vector<std::string>;

const std::string kNoFileSystem = "Objektvariable oder With-Blockvariable nicht festgelegt";

class FileVerbTest : public SystemTest {
 protected:
  static void PutFolder(const std::string& path) { std::filesystem::create_directories(HostPath(path)); }

  // A file or, with a separator at its end, a folder by a name that the program's own text cannot hold.
  static void PutForeign(const std::string& folder, const std::u16string& name) {
    const std::filesystem::path path = std::filesystem::path(HostPath(folder)) / std::filesystem::path(name);
    if (name.ends_with('/')) std::filesystem::create_directories(path);
    else std::ofstream(path) << "x";
  }

  static bool HasForeign(const std::string& folder, const std::u16string& name) {
    return std::filesystem::exists(std::filesystem::path(HostPath(folder)) / std::filesystem::path(name));
  }

  static void SetReadOnly(const std::string& path) {
    platform::SetFileAttributesW(path, platform::FILE_ATTRIBUTE_READONLY);
  }

  static void SetWritable(const std::string& path) {
    platform::SetFileAttributesW(path, platform::FILE_ATTRIBUTE_NORMAL);
  }
};

// "DELETEFILE".

class DeleteFileTest : public FileVerbTest {};

TEST_F(DeleteFileTest, AFileIsDeletedAndLogged) {
  PutFile("C:\\x\\Änderung.txt", "x");
  PutFile("C:\\x\\b.txt", "x");
  EXPECT_TRUE(DeleteFile("C:\\x\\Änderung.txt"));
  EXPECT_FALSE(FileExists("C:\\x\\Änderung.txt"));
  EXPECT_TRUE(FileExists("C:\\x\\b.txt"));
  ExpectLog({"Datei gelöscht: C:\\x\\Änderung.txt"});
}

TEST_F(DeleteFileTest, AFileThatIsNotThereCountsAsDeleted) {
  EXPECT_TRUE(DeleteFile("C:\\x\\fehlt.txt"));
  EXPECT_TRUE(DeleteFile(""));
  ExpectLog({"Datei gelöscht: C:\\x\\fehlt.txt", "Datei gelöscht: "});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(DeleteFileTest, AFolderIsNoFileAndStays) {
  PutFolder("C:\\x\\ordner");
  EXPECT_TRUE(DeleteFile("C:\\x\\ordner"));
  EXPECT_TRUE(FolderExists("C:\\x\\ordner"));
  ExpectLog({"Datei gelöscht: C:\\x\\ordner"});
}

TEST_F(DeleteFileTest, StarDotStarDeletesAllFilesAndNoFolder) {
  for (const char* name : {"a.txt", "b.DOC", "ohne", "ordner\\c.txt"}) PutFile(std::string("C:\\x\\") + name, "x");
  EXPECT_TRUE(DeleteFile("C:\\x\\*.*"));
  for (const char* name : {"a.txt", "b.DOC", "ohne"}) EXPECT_FALSE(FileExists(std::string("C:\\x\\") + name)) << name;
  EXPECT_TRUE(FileExists("C:\\x\\ordner\\c.txt"));
  ExpectLog({"Dateien gelöscht: C:\\x\\*.*"});
}

TEST_F(DeleteFileTest, StarDotStarInsideANameIsAPatternToo) {
  for (const char* name : {"ab.txt", "ac.doc", "b.txt"}) PutFile(std::string("C:\\x\\") + name, "x");
  EXPECT_TRUE(DeleteFile("C:\\x\\a*.*"));
  EXPECT_FALSE(FileExists("C:\\x\\ab.txt"));
  EXPECT_FALSE(FileExists("C:\\x\\ac.doc"));
  EXPECT_TRUE(FileExists("C:\\x\\b.txt"));
  ExpectLog({"Dateien gelöscht: C:\\x\\a*.*"});
}

TEST_F(DeleteFileTest, AnyOtherPatternDeletesNothingAndIsReportedAsDeleted) {
  PutFile("C:\\x\\a.txt", "x");
  for (const char* pattern : {"C:\\x\\*.txt", "C:\\x\\a.*", "C:\\x\\?.txt", "C:\\x\\*"})
    EXPECT_TRUE(DeleteFile(pattern));
  EXPECT_TRUE(FileExists("C:\\x\\a.txt"));
  ExpectLog({"Datei gelöscht: C:\\x\\*.txt", "Datei gelöscht: C:\\x\\a.*", "Datei gelöscht: C:\\x\\?.txt",
             "Datei gelöscht: C:\\x\\*"});
}

TEST_F(DeleteFileTest, StarDotStarInAnEmptyFolderFailsInTheHandler) {
  PutFolder("C:\\x\\ordner");
  EXPECT_FALSE(RunLines({"DELETEFILE=C:\\x\\*.*", "MSG=nie"}));
  ExpectLog({"Fehler in Funktion DeleteFile:Datei nicht gefunden"});
  EXPECT_TRUE(FolderExists("C:\\x\\ordner"));
}

TEST_F(DeleteFileTest, StarDotStarInAMissingFolderFailsInTheHandler) {
  EXPECT_FALSE(DeleteFile("C:\\fehlt\\*.*"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFile:Pfad nicht gefunden");
  EXPECT_TRUE(Log().empty());
}

TEST_F(DeleteFileTest, AFileInUseFailsInTheHandler) {
  PutFile("C:\\x\\a.txt", "x");
  const auto file = platform::OpenFile("C:\\x\\a.txt", platform::FileMode::Read);
  for (const char* argument : {"C:\\x\\a.txt", "C:\\x\\*.*"}) {
    run.LastError.clear();
    EXPECT_FALSE(DeleteFile(argument));
    EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFile:Zugriff verweigert");
  }
  platform::CloseFile(file);
  EXPECT_TRUE(FileExists("C:\\x\\a.txt"));
  EXPECT_TRUE(Log().empty());
}

TEST_F(DeleteFileTest, AReadOnlyFileFailsInTheHandler) {
  PutFile("C:\\x\\a.txt", "x");
  SetReadOnly("C:\\x\\a.txt");
  EXPECT_FALSE(DeleteFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFile:Zugriff verweigert");
}

TEST_F(DeleteFileTest, FilesInTheCurrentFolderAndOnADriveAlone) {
  SetApplicationPath("C:\\arbeit");
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) PutFile(std::string("C:\\arbeit\\") + name, "x");
  EXPECT_TRUE(DeleteFile("a*.*"));
  EXPECT_TRUE(DeleteFile("C:b*.*"));
  EXPECT_FALSE(FileExists("C:\\arbeit\\a.txt"));
  EXPECT_FALSE(FileExists("C:\\arbeit\\b.txt"));
  EXPECT_TRUE(FileExists("C:\\arbeit\\c.txt"));
  PutFolder("C:\\platte");
  SetDrive('D', HostPath("C:\\platte"));
  PutFile("D:\\c.txt", "x");
  EXPECT_TRUE(DeleteFile("D:c*.*"));
  EXPECT_FALSE(FileExists("D:\\c.txt"));
  EXPECT_TRUE(FileExists("C:\\arbeit\\c.txt"));
}

TEST_F(DeleteFileTest, AllThreeVerbs) {
  for (const char* name : {"a", "b", "c"}) PutFile(std::string("C:\\x\\") + name, "x");
  EXPECT_TRUE(RunLines({"DELETEFILE=C:\\x\\a", "DEL=C:\\x\\b", "DELETE=C:\\x\\c"}));
  ExpectLog(Completed({"Datei gelöscht: C:\\x\\a", "Datei gelöscht: C:\\x\\b", "Datei gelöscht: C:\\x\\c"}));
  EXPECT_TRUE(platform::FindFiles("C:\\x\\*").empty());
}

TEST_F(DeleteFileTest, WithoutAFileSystemItFailsInTheHandler) {
  PutFile("C:\\x\\a.txt", "x");
  FileSystemState.reset();
  EXPECT_FALSE(DeleteFile("C:\\x\\a.txt"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFile:" + kNoFileSystem);
  run.LastError.clear();
  EXPECT_TRUE(DeleteFile("C:\\x\\fehlt.txt")) << "the look for the file takes an object of its own";
  EXPECT_EQ(run.LastError, "");
}

// Names outside the code page.

class ForeignNameTest : public FileVerbTest {
 protected:
  void PutVictims() {
    PutFile("C:\\victim.txt", "bleibt");
    PutFile("C:\\opfer\\a.txt", "bleibt");
    PutFolder("C:\\x");
  }

  static void ExpectVictims() {
    EXPECT_EQ(GetFile("C:\\victim.txt"), "bleibt");
    EXPECT_EQ(GetFile("C:\\opfer\\a.txt"), "bleibt");
  }
};

// The wide backslash, U+FF3C, that best fits a backslash.
TEST_F(ForeignNameTest, AWideBackslashLeadsNoDeletionOutOfTheFolder) {
  PutVictims();
  PutForeign("C:\\x", u"..\uFF3Cvictim.txt");
  EXPECT_TRUE(DeleteFile("C:\\x\\*.*"));
  EXPECT_TRUE(platform::FindFiles("C:\\x\\*").empty());
  PutForeign("C:\\x", u"..\uFF3Copfer/");
  PutForeign("C:\\x", u"..\uFF3Copfer/..\uFF3C..\uFF3Cvictim.txt");
  EXPECT_TRUE(DeleteFolder("C:\\x"));
  EXPECT_FALSE(FolderExists("C:\\x"));
  ExpectVictims();
}

TEST_F(ForeignNameTest, AFolderIsDeletedAndCopiedWithNamesThatTheCodePageLacks) {
  PutFolder("C:\\x");
  PutForeign("C:\\x", u"\u0141\u00F3d\u017A/");
  PutForeign("C:\\x", u"\u0141\u00F3d\u017A/\u0141\u00F3d\u017A.txt");
  EXPECT_TRUE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_TRUE(HasForeign("C:\\ziel", u"\u0141\u00F3d\u017A/\u0141\u00F3d\u017A.txt"));
  EXPECT_TRUE(DeleteFolder("C:\\x"));
  EXPECT_FALSE(FolderExists("C:\\x"));
}

TEST_F(ForeignNameTest, AFileOfAPatternIsCopiedUnderItsOwnName) {
  PutVictims();
  PutForeign("C:\\x", u"..\uFF3Cvictim.txt");
  EXPECT_TRUE(CopyFile("C:\\x\\*.*", "C:\\ziel\\"));
  EXPECT_TRUE(HasForeign("C:\\ziel", u"..\uFF3Cvictim.txt"));
  ExpectVictims();
}

TEST_F(ForeignNameTest, The9xFamilyRefusesAFolderWhoseNamesLeadElsewhere) {
  SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  // In the code page: ..\victim.txt, ../victim.txt, C:victim.txt and "...", which that family takes for a folder above.
  for (const std::u16string name :
       {u"..\uFF3Cvictim.txt", u"..\uFF0Fvictim.txt", u"C\uFF1Avictim.txt", u"\uFF0E\uFF0E\uFF0E"}) {
    PutVictims();
    PutFile("C:\\x\\a.txt", "x");
    PutForeign("C:\\x", name);
    EXPECT_FALSE(DeleteFile("C:\\x\\*.*"));
    EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFile:Falscher Dateiname");
    EXPECT_FALSE(DeleteFolder("C:\\x"));
    EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFolder:Falscher Dateiname (C:\\x)");
    EXPECT_TRUE(FileExists("C:\\x\\a.txt"));
    EXPECT_TRUE(HasForeign("C:\\x", name));
    ExpectVictims();
    std::filesystem::remove_all(HostPath("C:\\x"));
  }
}

TEST_F(ForeignNameTest, AFolderThatEndsInABlankIsDeletedWithItsParent) {
  PutFile("C:\\x\\ 4711 \\a.txt", "x");
  EXPECT_TRUE(DeleteFolder("C:\\x"));
  EXPECT_FALSE(FolderExists("C:\\x"));
}

// "DELETEFOLDER".

class DeleteFolderTest : public FileVerbTest {};

TEST_F(DeleteFolderTest, AFolderIsDeletedWithAllThatItHolds) {
  PutFile("C:\\x\\Büro\\a.txt", "x");
  PutFile("C:\\x\\Büro\\tief\\tiefer\\b.txt", "x");
  PutFolder("C:\\x\\Büro\\leer");
  EXPECT_TRUE(RunLines({"DELETEFOLDER=C:\\x\\Büro"}));
  EXPECT_FALSE(FolderExists("C:\\x\\Büro"));
  EXPECT_TRUE(FolderExists("C:\\x"));
  ExpectLog(Completed({"Ordner gelöscht:C:\\x\\Büro"}));
}

TEST_F(DeleteFolderTest, AMissingFolderIsNoFailureAndNotLogged) {
  PutFile("C:\\x\\datei", "x");
  for (const char* folder : {"C:\\x\\fehlt", "C:\\x\\datei", "C:\\x*", ""}) EXPECT_TRUE(DeleteFolder(folder)) << folder;
  EXPECT_TRUE(Log().empty());
  EXPECT_TRUE(FileExists("C:\\x\\datei"));
}

TEST_F(DeleteFolderTest, ReadOnlyContentGoesToo) {
  PutFile("C:\\x\\ordner\\unter\\fest.txt", "x");
  SetReadOnly("C:\\x\\ordner\\unter\\fest.txt");
  SetReadOnly("C:\\x\\ordner\\unter");
  SetReadOnly("C:\\x\\ordner");
  EXPECT_TRUE(DeleteFolder("C:\\x\\ordner"));
  EXPECT_FALSE(FolderExists("C:\\x\\ordner"));
}

TEST_F(DeleteFolderTest, BackslashesAtTheEndChangeNothingButTheLog) {
  // "CREATEDIR" yields a path with several.
  for (const char* folder : {"C:\\x\\ordner\\", "C:\\x\\ordner\\\\\\"}) {
    PutFile("C:\\x\\ordner\\a.txt", "x");
    EXPECT_TRUE(DeleteFolder(folder));
    EXPECT_FALSE(FolderExists("C:\\x\\ordner"));
  }
  ExpectLog({"Ordner gelöscht:C:\\x\\ordner\\", "Ordner gelöscht:C:\\x\\ordner\\\\\\"});
}

TEST_F(DeleteFolderTest, ADriveIsRefusedUntouched) {
  PutFile("C:\\a.txt", "x");
  PutFile("C:\\QUMA\\b.txt", "x");
  for (const char* root : {"C:\\", "\\", "C:\\\\", "C:", "C:\\QUMA\\.."}) {
    EXPECT_FALSE(DeleteFolder(root)) << root;
    EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFolder:Pfad nicht gefunden (" + std::string(root) + ")");
  }
  EXPECT_TRUE(FileExists("C:\\a.txt"));
  EXPECT_TRUE(FileExists("C:\\QUMA\\b.txt"));
}

TEST_F(DeleteFolderTest, AFileInUseFailsWithThePath) {
  PutFile("C:\\x\\ordner\\a.txt", "x");
  const auto file = platform::OpenFile("C:\\x\\ordner\\a.txt", platform::FileMode::Append);
  EXPECT_FALSE(RunLines({"DELETEFOLDER=C:\\x\\ordner", "MSG=nie"}));
  platform::CloseFile(file);
  ExpectLog({"Fehler in Funktion DeleteFolder:Zugriff verweigert (C:\\x\\ordner)"});
  EXPECT_TRUE(FileExists("C:\\x\\ordner\\a.txt"));
}

TEST_F(DeleteFolderTest, WhatALinkLeadsToStays) {
  PutFile("C:\\y\\a.txt", "x");
  PutFolder("C:\\x\\ordner");
  std::filesystem::create_directory_symlink(HostPath("C:\\y"), HostPath("C:\\x\\ordner") + "/verweis");
  EXPECT_TRUE(DeleteFolder("C:\\x\\ordner"));
  EXPECT_FALSE(FolderExists("C:\\x\\ordner"));
  EXPECT_TRUE(FileExists("C:\\y\\a.txt"));
  std::filesystem::create_directory_symlink(HostPath("C:\\y"), HostPath("C:\\x") + "/verweis");
  EXPECT_TRUE(DeleteFolder("C:\\x\\verweis"));
  EXPECT_FALSE(FolderExists("C:\\x\\verweis"));
  EXPECT_TRUE(FileExists("C:\\y\\a.txt"));
}

TEST_F(DeleteFolderTest, WithoutAFileSystemItFailsWithThePath) {
  FileSystemState.reset();
  EXPECT_FALSE(DeleteFolder("C:\\x"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion DeleteFolder:" + kNoFileSystem + " (C:\\x)");
}

// "COPYFILE".

class CopyFileTest : public FileVerbTest {
 protected:
  static std::string Made(const std::string& path) { return "Ausgabeverzeichnis erstellt: " + path; }
};

TEST_F(CopyFileTest, ADestinationWithABackslashIsAFolderThatKeepsTheName) {
  PutFile("C:\\x\\Übersicht.txt", "Größe\r\n\x80\x01");
  EXPECT_TRUE(RunLines({"COPYFILE=C:\\x\\Übersicht.txt,C:\\ziel\\Büro\\"}));
  EXPECT_EQ(GetFile("C:\\ziel\\Büro\\Übersicht.txt"), "Größe\r\n\x80\x01");
  EXPECT_TRUE(FileExists("C:\\x\\Übersicht.txt"));
  ExpectLog(Completed({Made("C:\\ziel\\Büro\\"), "CopyFile C:\\x\\Übersicht.txt To C:\\ziel\\Büro\\"}));
}

TEST_F(CopyFileTest, ADestinationWithoutABackslashIsMadeAsAFolderAndFails) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(RunLines({"COPYFILE=C:\\x\\a.txt,C:\\ziel\\b.txt", "MSG=nie"}));
  ExpectLog({Made("C:\\ziel\\b.txt\\"), "Fehler 70 beim Kopieren: Zugriff verweigert"});
  EXPECT_TRUE(FolderExists("C:\\ziel\\b.txt"));
  EXPECT_TRUE(platform::FindFiles("C:\\ziel\\b.txt\\*").empty());
}

TEST_F(CopyFileTest, AFileThatIsThereIsOverwritten) {
  PutFile("C:\\x\\a.txt", "neu");
  PutFile("C:\\ziel\\A.TXT", "alt und länger");
  EXPECT_TRUE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "neu");
}

TEST_F(CopyFileTest, AnExistingFileAsTheDestinationIsOverwritten) {
  PutFile("C:\\x\\a.txt", "neu");
  PutFile("C:\\ziel\\b.txt", "alt");
  EXPECT_TRUE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\b.txt"));
  EXPECT_EQ(GetFile("C:\\ziel\\b.txt"), "neu");
  ExpectLog({"CopyFile C:\\x\\a.txt To C:\\ziel\\b.txt"});
}

TEST_F(CopyFileTest, APatternCopiesAllItsFiles) {
  for (const char* name : {"a.txt", "b.TXT", "c.doc", "ordner.txt\\d.txt"})
    PutFile(std::string("C:\\x\\") + name, name);
  EXPECT_TRUE(CopyFile("C:\\x\\*.txt", "C:\\ziel\\"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "a.txt");
  EXPECT_EQ(GetFile("C:\\ziel\\b.txt"), "b.TXT");
  EXPECT_EQ(platform::FindFiles("C:\\ziel\\*").size(), 2u);
  EXPECT_TRUE(CopyFile("C:\\x\\?.doc", "C:\\ziel"));
  EXPECT_EQ(GetFile("C:\\ziel\\c.doc"), "c.doc");
}

TEST_F(CopyFileTest, ABackslashAloneIsTheRootOfTheDrive) {
  PutFile("C:\\x\\a.txt", "a");
  // Without a confirmed client and year the path variable is empty.
  EXPECT_TRUE(RunLines({"COPYFILE=C:\\x\\a.txt,$FIBUPATH\\"}));
  EXPECT_EQ(GetFile("C:\\a.txt"), "a");
  const Lines lines = Log();
  EXPECT_EQ(Lines(lines.end() - 4, lines.end() - 2), (Lines{Made("\\"), "CopyFile C:\\x\\a.txt To \\"}));
}

TEST_F(CopyFileTest, ADriveAloneIsItsPresentFolder) {
  SetApplicationPath("C:\\arbeit");
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_TRUE(CopyFile("C:\\x\\*.txt", "C:"));
  EXPECT_EQ(GetFile("C:\\arbeit\\a.txt"), "a");
  EXPECT_FALSE(FileExists("C:\\a.txt"));
}

TEST_F(CopyFileTest, APatternWithoutADestinationFailsLikeAFile) {
  PutFile("C:\\x\\a.txt", "a");
  for (const char* source : {"C:\\x\\a.txt", "C:\\x\\*.txt"}) {
    EXPECT_FALSE(CopyFile(source, "")) << source;
    EXPECT_EQ(run.LastError, "Fehler 76 beim Kopieren: Pfad nicht gefunden") << source;
  }
  EXPECT_FALSE(FileExists("C:\\a.txt"));
}

TEST_F(CopyFileTest, AMissingSourceFailsWithItsNumber) {
  PutFolder("C:\\x\\ordner");
  for (const char* source : {"C:\\x\\fehlt.txt", "C:\\x\\*.txt", "C:\\x\\ordner", "C:\\x\\"}) {
    EXPECT_FALSE(CopyFile(source, "C:\\ziel\\")) << source;
    EXPECT_EQ(run.LastError, "Fehler 53 beim Kopieren: Datei nicht gefunden") << source;
  }
  for (const char* source : {"C:\\fehlt\\a.txt", "C:\\fehlt\\*.*", ""}) {
    EXPECT_FALSE(CopyFile(source, "C:\\ziel\\")) << source;
    EXPECT_EQ(run.LastError, "Fehler 76 beim Kopieren: Pfad nicht gefunden") << source;
  }
  EXPECT_TRUE(FolderExists("C:\\ziel")) << "made before the source is looked at";
}

TEST_F(CopyFileTest, AFullDiskFailsWithItsNumberAndLeavesTheSource) {
  PutFile("C:\\x\\a.txt", "a");
  Fail("CopyFileW", 1, 0, FaultNumber::DiskFull);
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 61 beim Kopieren: Datenträger voll");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(CopyFileTest, ARefusalHalfWayLeavesTheSourcesAndTheCopiesBeforeIt) {
  for (const char* name : {"a", "b", "c"}) PutFile(std::string("C:\\x\\") + name, name);
  Fail("CopyFileW", 1, 1);
  EXPECT_FALSE(CopyFile("C:\\x\\*", "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 70 beim Kopieren: Zugriff verweigert");
  EXPECT_EQ(platform::FindFiles("C:\\x\\*").size(), 3u);
  EXPECT_EQ(GetFile("C:\\ziel\\a"), "a");
  EXPECT_FALSE(FileExists("C:\\ziel\\b"));
}

TEST_F(CopyFileTest, AReadOnlyFolderFailsWithItsNumber) {
  PutFile("C:\\x\\a.txt", "a");
  PutFolder("C:\\ziel");
  SetReadOnly("C:\\ziel");
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 70 beim Kopieren: Zugriff verweigert");
  SetWritable("C:\\ziel");
}

TEST_F(CopyFileTest, AReadOnlyFileIsNotReplaced) {
  PutFile("C:\\x\\a.txt", "neu");
  PutFile("C:\\ziel\\a.txt", "alt");
  SetReadOnly("C:\\ziel\\a.txt");
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 70 beim Kopieren: Zugriff verweigert");
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "alt");
}

TEST_F(CopyFileTest, AFileIsNotCopiedOntoItself) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\X\\"));
  EXPECT_EQ(run.LastError, "Fehler 70 beim Kopieren: Zugriff verweigert");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(CopyFileTest, PathsOf300CharactersAndNamesThatTheSystemRefuses) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\" + std::string(296, 'x') + "\\"));
  EXPECT_EQ(run.LastError, "Fehler 76 beim Kopieren: Pfad nicht gefunden");
  EXPECT_FALSE(CopyFile("C:\\x\\" + std::string(295, 'x'), "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 53 beim Kopieren: Datei nicht gefunden");
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\zi|el\\"));
  EXPECT_EQ(run.LastError, "Fehler 64 beim Kopieren: Falscher Dateiname");
}

TEST_F(CopyFileTest, ABlankAtTheEndOfANameIsDroppedByTheSystem) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_TRUE(CopyFile("C:\\x\\a.txt ", "C:\\ziel\\"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "a");
}

TEST_F(CopyFileTest, WithoutAFileSystemItFailsWithItsNumber) {
  FileSystemState.reset();
  EXPECT_FALSE(CopyFile("C:\\x\\a.txt", "C:\\ziel\\"));
  EXPECT_EQ(run.LastError, "Fehler 91 beim Kopieren: " + kNoFileSystem);
}

// "COPYFOLDER".

class CopyFolderTest : public FileVerbTest {
 protected:
  static Lines LogOf(const std::string& source, const std::string& destination) {
    return {"CopyFolder: Source=" + source + " Destination=" + destination};
  }

  static Lines Making(const std::string& destination) {
    return {"Ordner wird erstellt (" + destination + ")", "Ausgabeverzeichnis erstellt: " + destination + "\\"};
  }
};

TEST_F(CopyFolderTest, AFolderIsCopiedToADestinationThatIsMade) {
  PutFile("C:\\x\\Jahr 2005\\a.txt", "äöü");
  PutFile("C:\\x\\Jahr 2005\\Büro\\tief\\b.txt", "b");
  PutFolder("C:\\x\\Jahr 2005\\leer");
  EXPECT_TRUE(RunLines({"COPYFOLDER=C:\\x\\Jahr 2005,C:\\ziel\\neu"}));
  EXPECT_EQ(GetFile("C:\\ziel\\neu\\a.txt"), "äöü");
  EXPECT_EQ(GetFile("C:\\ziel\\neu\\Büro\\tief\\b.txt"), "b");
  EXPECT_TRUE(FolderExists("C:\\ziel\\neu\\leer"));
  EXPECT_EQ(GetFile("C:\\x\\Jahr 2005\\a.txt"), "äöü");
  ExpectLog(Completed(LogOf("C:\\x\\Jahr 2005", "C:\\ziel\\neu") + Making("C:\\ziel\\neu")));
}

TEST_F(CopyFolderTest, ADestinationThatIsThereIsMergedAndItsFilesAreOverwritten) {
  PutFile("C:\\x\\a.txt", "neu");
  PutFile("C:\\x\\Unter\\b.txt", "neu");
  PutFile("C:\\ziel\\A.txt", "alt und länger");
  PutFile("C:\\ziel\\UNTER\\c.txt", "bleibt");
  EXPECT_TRUE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "neu");
  EXPECT_EQ(GetFile("C:\\ziel\\unter\\b.txt"), "neu");
  EXPECT_EQ(GetFile("C:\\ziel\\unter\\c.txt"), "bleibt");
  EXPECT_EQ(platform::FindFiles("C:\\ziel\\*").size(), 2u);
  ExpectLog(LogOf("C:\\x", "C:\\ziel"));
}

TEST_F(CopyFolderTest, AnEmptySourceOrDestinationDoesNothing) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_TRUE(CopyFolder("", "C:\\ziel"));
  EXPECT_TRUE(CopyFolder("C:\\x", ""));
  EXPECT_FALSE(FolderExists("C:\\ziel"));
  ExpectLog(LogOf("", "C:\\ziel") + LogOf("C:\\x", ""));
}

TEST_F(CopyFolderTest, AMissingSourceMakesTheDestinationAndIsNoFailure) {
  PutFile("C:\\x\\datei", "a");
  EXPECT_TRUE(CopyFolder("C:\\fehlt", "C:\\ziel"));
  EXPECT_TRUE(CopyFolder("C:\\x\\datei", "C:\\ziel"));
  EXPECT_TRUE(platform::FindFiles("C:\\ziel\\*").empty());
  ExpectLog(LogOf("C:\\fehlt", "C:\\ziel") + Making("C:\\ziel") + LogOf("C:\\x\\datei", "C:\\ziel"));
}

TEST_F(CopyFolderTest, ADestinationThatEndsInABackslashTakesTheFolderInUnderItsName) {
  PutFile("C:\\x\\Büro\\a.txt", "a");
  EXPECT_TRUE(CopyFolder("C:\\x\\Büro\\", "C:\\ziel\\"));
  EXPECT_EQ(GetFile("C:\\ziel\\Büro\\a.txt"), "a");
}

TEST_F(CopyFolderTest, ADestinationInsideTheSourceComesToAnEnd) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_TRUE(CopyFolder("C:\\x", "C:\\x\\kopie"));
  EXPECT_EQ(GetFile("C:\\x\\kopie\\a.txt"), "a");
  EXPECT_FALSE(FolderExists("C:\\x\\kopie\\kopie\\kopie"));
}

TEST_F(CopyFolderTest, ABackslashAloneIsTheRootOfTheDrive) {
  PutFile("C:\\x\\tief\\a.txt", "a");
  EXPECT_TRUE(CopyFolder("\\", "C:\\ziel"));
  EXPECT_EQ(GetFile("C:\\ziel\\x\\tief\\a.txt"), "a");
  EXPECT_TRUE(CopyFolder("C:\\", "C:\\noch eins"));
  EXPECT_EQ(GetFile("C:\\noch eins\\x\\tief\\a.txt"), "a");
  EXPECT_TRUE(CopyFolder("C:\\x\\tief", "\\"));
  EXPECT_EQ(GetFile("C:\\tief\\a.txt"), "a");
}

TEST_F(CopyFolderTest, ADriveAloneIsItsPresentFolder) {
  SetApplicationPath("C:\\arbeit");
  PutFile("C:\\arbeit\\unter\\a.txt", "a");
  PutFile("C:\\fremd.txt", "x");
  EXPECT_TRUE(CopyFolder("C:", "C:\\ziel"));
  EXPECT_EQ(GetFile("C:\\ziel\\unter\\a.txt"), "a");
  EXPECT_EQ(platform::FindFiles("C:\\ziel\\*").size(), 1u);
  EXPECT_TRUE(CopyFolder("C:\\ziel\\unter", "C:"));
  EXPECT_EQ(GetFile("C:\\arbeit\\a.txt"), "a");
}

TEST_F(CopyFolderTest, AFolderOntoItselfIsRefusedAndStays) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(CopyFolder("C:\\x", "C:\\X"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CopyFolder:Zugriff verweigert");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(CopyFolderTest, ARefusalHalfWayLeavesTheSource) {
  for (const char* name : {"a", "b", "c"}) PutFile(std::string("C:\\x\\") + name, name);
  Fail("CopyFileW", 1, 1, FaultNumber::DiskFull);
  EXPECT_FALSE(RunLines({"COPYFOLDER=C:\\x,C:\\ziel", "MSG=nie"}));
  ExpectLog(LogOf("C:\\x", "C:\\ziel") + Making("C:\\ziel") + Lines{"Fehler in Funktion CopyFolder:Datenträger voll"});
  EXPECT_EQ(platform::FindFiles("C:\\x\\*").size(), 3u);
}

TEST_F(CopyFolderTest, AFileInThePlaceOfAFolderFailsInTheHandler) {
  PutFile("C:\\x\\unter\\a.txt", "a");
  PutFile("C:\\ziel\\unter", "Datei");
  EXPECT_FALSE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CopyFolder:Datei existiert bereits");
  EXPECT_EQ(GetFile("C:\\ziel\\unter"), "Datei");
}

TEST_F(CopyFolderTest, ALinkThatLeadsBackEndsInTheHandler) {
  PutFile("C:\\x\\a.txt", "a");
  std::filesystem::create_directory_symlink(HostPath("C:\\x"), HostPath("C:\\x") + "/verweis");
  EXPECT_FALSE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CopyFolder:Pfad nicht gefunden");
}

TEST_F(CopyFolderTest, AReadOnlyFolderFailsInTheHandler) {
  PutFile("C:\\x\\a.txt", "a");
  PutFolder("C:\\ziel");
  SetReadOnly("C:\\ziel");
  EXPECT_FALSE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CopyFolder:Zugriff verweigert");
  SetWritable("C:\\ziel");
}

TEST_F(CopyFolderTest, WithoutAFileSystemItFailsInTheHandler) {
  log = {};
  FileSystemState.reset();
  EXPECT_FALSE(CopyFolder("C:\\x", "C:\\ziel"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion CopyFolder:" + kNoFileSystem);
}

// "RENAMEPATH".

class RenamePathTest : public FileVerbTest {
 protected:
  static Lines LogOf(const std::string& source, const std::string& destination) {
    return {"RenamePath: Source=" + source + " Destination=" + destination};
  }

  static Lines Deleting(const std::string& destination) {
    return {"Ordner wird gelöscht, da dieser bereits existiert (" + destination + ")"};
  }
};

TEST_F(RenamePathTest, AFolderGetsItsNewPath) {
  PutFile("C:\\x\\Büro\\unter\\a.txt", "ä");
  EXPECT_TRUE(RunLines({"RENAMEPATH=C:\\x\\Büro,C:\\x\\Küche"}));
  EXPECT_EQ(GetFile("C:\\x\\Küche\\unter\\a.txt"), "ä");
  EXPECT_FALSE(FolderExists("C:\\x\\Büro"));
  ExpectLog(Completed(LogOf("C:\\x\\Büro", "C:\\x\\Küche")));
}

TEST_F(RenamePathTest, ADestinationThatIsThereIsDeletedFirst) {
  PutFile("C:\\x\\a.txt", "neu");
  PutFile("C:\\ziel\\b.txt", "alt");
  SetReadOnly("C:\\ziel\\b.txt");
  EXPECT_TRUE(RenamePath("C:\\x", "C:\\ziel"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "neu");
  EXPECT_FALSE(FileExists("C:\\ziel\\b.txt"));
  ExpectLog(LogOf("C:\\x", "C:\\ziel") + Deleting("C:\\ziel"));
}

TEST_F(RenamePathTest, AMissingSourceCostsTheDestinationNonetheless) {
  PutFile("C:\\ziel\\b.txt", "alt");
  EXPECT_TRUE(RunLines({"RENAMEPATH=C:\\fehlt,C:\\ziel"}));
  EXPECT_FALSE(FolderExists("C:\\ziel"));
  EXPECT_FALSE(FolderExists("C:\\fehlt"));
  ExpectLog(Completed(LogOf("C:\\fehlt", "C:\\ziel") + Deleting("C:\\ziel")));
}

TEST_F(RenamePathTest, AFileAsTheSourceIsIgnored) {
  PutFile("C:\\x\\datei", "a");
  EXPECT_TRUE(RenamePath("C:\\x\\datei", "C:\\x\\neu"));
  EXPECT_EQ(GetFile("C:\\x\\datei"), "a");
  ExpectLog(LogOf("C:\\x\\datei", "C:\\x\\neu"));
}

TEST_F(RenamePathTest, AnEmptySourceOrDestinationDoesNothing) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_TRUE(RenamePath("", "C:\\x"));
  EXPECT_TRUE(RenamePath("C:\\x", ""));
  EXPECT_TRUE(FileExists("C:\\x\\a.txt"));
  ExpectLog(LogOf("", "C:\\x") + LogOf("C:\\x", ""));
}

TEST_F(RenamePathTest, AFileAsTheDestinationFailsInTheHandler) {
  PutFile("C:\\x\\a.txt", "a");
  PutFile("C:\\datei", "Datei");
  EXPECT_FALSE(RenamePath("C:\\x", "C:\\datei"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion RenamePath:Datei existiert bereits");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
  EXPECT_EQ(GetFile("C:\\datei"), "Datei");
}

TEST_F(RenamePathTest, AFolderForTheNewPathIsNotMade) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(RunLines({"RENAMEPATH=C:\\x,C:\\fehlt\\neu", "MSG=nie"}));
  ExpectLog(LogOf("C:\\x", "C:\\fehlt\\neu") + Lines{"Fehler in Funktion RenamePath:Pfad nicht gefunden"});
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(RenamePathTest, AnotherDriveIsRefusedByTheSystem) {
  PutFolder("C:\\platte");
  SetDrive('D', HostPath("C:\\platte"));
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(RenamePath("C:\\x", "D:\\neu"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion RenamePath:Zugriff verweigert");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(RenamePathTest, ADestinationInUseFailsInTheHandlerAndTheSourceStays) {
  PutFile("C:\\x\\a.txt", "a");
  PutFile("C:\\ziel\\b.txt", "b");
  const auto file = platform::OpenFile("C:\\ziel\\b.txt", platform::FileMode::Read);
  EXPECT_FALSE(RenamePath("C:\\x", "C:\\ziel"));
  platform::CloseFile(file);
  EXPECT_EQ(run.LastError, "Fehler in Funktion RenamePath:Zugriff verweigert");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(RenamePathTest, ADriveAsTheDestinationIsRefusedUntouched) {
  PutFile("C:\\x\\a.txt", "a");
  EXPECT_FALSE(RenamePath("C:\\x", "C:\\"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion RenamePath:Pfad nicht gefunden");
  EXPECT_EQ(GetFile("C:\\x\\a.txt"), "a");
}

TEST_F(RenamePathTest, ABackslashAtTheEndsPlaysNoRole) {
  PutFile("C:\\x\\a.txt", "a");
  PutFile("C:\\ziel\\b.txt", "b");
  EXPECT_TRUE(RenamePath("C:\\x\\", "C:\\ziel\\"));
  EXPECT_EQ(GetFile("C:\\ziel\\a.txt"), "a");
}

TEST_F(RenamePathTest, WithoutAFileSystemItFailsInTheHandler) {
  log = {};
  FileSystemState.reset();
  EXPECT_FALSE(RenamePath("C:\\x", "C:\\ziel"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion RenamePath:" + kNoFileSystem);
}

// "CREATEDIR".

class CreateDirTest : public FileVerbTest {};

TEST_F(CreateDirTest, ADateBecomesAFolderName) {
  EXPECT_TRUE(RunLines({"DIM Ordner", "Ordner=CREATEDIR(C:\\x,Büro,01.01.2003,b,c)", "MSG=Ordner"}));
  EXPECT_TRUE(FolderExists("C:\\x\\Büro\\01012003\\b\\c"));
  ExpectLog(Completed({"Ausgabeverzeichnis erstellt: C:\\x\\Büro\\01012003\\b\\c\\",
                       "CreateDir: C:\\x\\Büro\\01012003\\b\\c", "MSG: C:\\x\\Büro\\01012003\\b\\c"}));
}

TEST_F(CreateDirTest, PiecesThatAreMissingAddTheirBackslash) {
  EXPECT_EQ(CreateDir("01.01.2003", "", "", "", ""), "01012003\\\\\\\\");
  ExpectLog({"Ausgabeverzeichnis erstellt: 01012003\\\\\\\\", "CreateDir: 01012003\\\\\\\\"});
  EXPECT_TRUE(FolderExists("C:\\QUMA\\01012003"));
}

TEST_F(CreateDirTest, EveryDotOfTheWholePathGoes) {
  EXPECT_EQ(CreateDir("C:\\Dr. Müller & Co.", "..", "v1.2", "", ""), "C:\\Dr Müller & Co\\\\v12\\\\");
  EXPECT_TRUE(FolderExists("C:\\Dr Müller & Co\\v12"));
}

TEST_F(CreateDirTest, AnExistingFolderIsASuccess) {
  PutFolder("C:\\x\\a");
  EXPECT_EQ(CreateDir("C:\\x", "a", "", "", ""), "C:\\x\\a\\\\\\");
  ExpectLog({"Ausgabeverzeichnis erstellt: C:\\x\\a\\\\\\", "CreateDir: C:\\x\\a\\\\\\"});
}

TEST_F(CreateDirTest, WhatTheSystemRefusesIsNotNoticed) {
  PutFile("C:\\x", "Datei");
  EXPECT_TRUE(RunLines({"DIM Ordner", "Ordner=CREATEDIR(C:\\x,a)", "MSG=Ordner"}));
  ExpectLog(Completed({"CreateDir: C:\\x\\a\\\\\\", "MSG: C:\\x\\a\\\\\\"}));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(CreateDirTest, AFaultOfTheMakingDoesNotFailTheVerb) {
  Fail("MakeSureDirectoryPathExists");
  EXPECT_TRUE(RunLines({"CREATEDIR=C:\\x"}));
  ExpectLog(Completed({"CreateDir: C:\\x\\\\\\\\"}));
}

}  // namespace
