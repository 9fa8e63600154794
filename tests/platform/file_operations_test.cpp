// Whole files and folders: finding, deleting, copying, moving, making.
#include <algorithm>
#include <vector>

#include "fixture.h"
#include "platform/files.h"
#include "platform/system.h"

namespace {

using namespace std::string_literals;
using contract::FaultOf;
using contract::Path;
using contract::ScratchFolder;
using platform::FileMode;
using runtime::FaultNumber;

class FileOperations : public contract::Test {
 protected:
  static void MakeFolder(const std::string& name) { platform::MakeSureDirectoryPathExists(Path(name) + "\\"); }

  static std::vector<std::string> NamesOf(const std::string& pattern) {
    std::vector<std::string> names;
    for (const auto& found : platform::FindFiles(pattern)) names.push_back(platform::FilePath(found.cFileName).Text());
    std::sort(names.begin(), names.end());
    return names;
  }

  static void SetReadOnly(const std::string& path) {
    platform::SetFileAttributesW(path, platform::FILE_ATTRIBUTE_READONLY);
  }
};

using Names = std::vector<std::string>;

// Finding.

TEST_F(FileOperations, PatternWithADotFitsANameWithoutOne) {
  for (const char* name : {"abc", "x", "a.txt", "x.1", "b.doc"}) contract::WriteWhole(Path(name), "");
  EXPECT_EQ(NamesOf(Path("a*.*")), (Names{"a.txt", "abc"}));
  EXPECT_EQ(NamesOf(Path("x.*")), (Names{"x", "x.1"}));
  EXPECT_EQ(NamesOf(Path("*b*.*")), (Names{"abc", "b.doc"}));
  EXPECT_EQ(NamesOf(Path("x.")), (Names{"x"})) << "without a pattern the dot at the end is dropped";
}

// Windows is documented so (FsRtlIsNameInExpression, DOS_QM); Wine 8 wants a character for each question mark.
TEST_F(FileOperations, QuestionMarkAtTheEndOrInFrontOfADotFitsNothingToo) {
  for (const char* name : {"x", "xy", "x.1", "a.txt", "ab.txt", "ab.c.d"}) contract::WriteWhole(Path(name), "");
  if (contract::IsWine() && NamesOf(Path("x?")) == Names{"xy"}) GTEST_SKIP() << "a question mark is a character here";
  EXPECT_EQ(NamesOf(Path("x?")), (Names{"x", "xy"}));
  EXPECT_EQ(NamesOf(Path("ab?c.d")), Names{});
  EXPECT_EQ(NamesOf(Path("??")), (Names{"x", "xy"}));
  EXPECT_EQ(NamesOf(Path("a??.txt")), (Names{"a.txt", "ab.txt"}));
  EXPECT_EQ(NamesOf(Path("a.txt?")), (Names{"a.txt"}));
  EXPECT_EQ(NamesOf(Path("x.?")), (Names{"x", "x.1"}));
}

TEST_F(FileOperations, NameOutsideTheCodePageIsFoundAndTaken) {
  const std::u16string folder = platform::FilePath(ScratchFolder()).characters + u"\\unter";
  MakeFolder("unter");
  contract::WriteWhole(Path("a.txt"), "a");
  // A wide backslash, which the code page makes a backslash of, and Polish letters, of which it lacks two.
  for (const std::u16string name : {u"..\uFF3Ca.txt", u"\u0141\u00F3d\u017A.txt"}) {
    const std::u16string path = folder + u"\\" + name;
    platform::CopyFileW(Path("a.txt"), path, true);
    const auto found = platform::FindFiles(folder + u"\\*");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].cFileName, name);
    EXPECT_TRUE(platform::FileExists(path));
    EXPECT_EQ(platform::FileSize(path), 1);
    platform::MoveFileW(path, path + u"x");
    platform::SetFileAttributesW(path + u"x", platform::FILE_ATTRIBUTE_NORMAL);
    platform::DeleteFileW(path + u"x");
    EXPECT_EQ(NamesOf(Path("unter\\*")), Names{});
    platform::CreateDirectoryW(path);
    EXPECT_TRUE(platform::FolderExists(path));
    platform::RemoveDirectoryW(path);
  }
  EXPECT_EQ(contract::ReadWhole(Path("a.txt")), "a");
}

TEST_F(FileOperations, TextOfANameMarksWhatTheCodePageLacks) {
  EXPECT_EQ(platform::FilePath(u"..\uFF3C\u0141\u00F3d\u017A\u20AC"s).Text(), "..??ód?€");
  EXPECT_EQ(platform::FilePath("äöü€ß").Text(), "äöü€ß");
}

TEST_F(FileOperations, PatternFindsFilesAndFoldersByTheirNames) {
  for (const char* name : {"a.txt", "B.TXT", "c.doc", "ohne", "Ärger.txt"}) contract::WriteWhole(Path(name), "");
  MakeFolder("ordner.txt");
  EXPECT_EQ(NamesOf(Path("*.txt")), (Names{"B.TXT", "a.txt", "ordner.txt", "Ärger.txt"}));
  EXPECT_EQ(NamesOf(Path("*")), (Names{"B.TXT", "a.txt", "c.doc", "ohne", "ordner.txt", "Ärger.txt"}));
  EXPECT_EQ(NamesOf(Path("*.*")), NamesOf(Path("*"))) << "a name without a dot fits too";
  EXPECT_EQ(NamesOf(Path("?.*")), (Names{"B.TXT", "a.txt", "c.doc"}));
  EXPECT_EQ(NamesOf(Path("ä*.TXT")), (Names{"Ärger.txt"}));
  EXPECT_EQ(NamesOf(Path("*r*.txt")), (Names{"ordner.txt", "Ärger.txt"}));
}

TEST_F(FileOperations, NameFindsItselfAsTheFolderHasIt) {
  contract::WriteWhole(Path("Äpfel.txt"), "");
  EXPECT_EQ(NamesOf(Path("äPFEL.TXT")), (Names{"Äpfel.txt"}));
  EXPECT_EQ(NamesOf(Path("Äpfel")), Names{});
}

TEST_F(FileOperations, AttributesTellFoldersAndReadOnlyFiles) {
  MakeFolder("ordner");
  contract::WriteWhole(Path("fest.txt"), "");
  EXPECT_EQ(platform::FindFiles(Path("fest.txt")).at(0).dwFileAttributes & platform::FILE_ATTRIBUTE_READONLY, 0u);
  SetReadOnly(Path("fest.txt"));
  const auto file = platform::FindFiles(Path("fest.txt")).at(0).dwFileAttributes;
  EXPECT_NE(file & platform::FILE_ATTRIBUTE_READONLY, 0u);
  EXPECT_EQ(file & platform::FILE_ATTRIBUTE_DIRECTORY, 0u);
  EXPECT_NE(platform::FindFiles(Path("ordner")).at(0).dwFileAttributes & platform::FILE_ATTRIBUTE_DIRECTORY, 0u);
  platform::SetFileAttributesW(Path("fest.txt"), platform::FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(platform::FindFiles(Path("fest.txt")).at(0).dwFileAttributes & platform::FILE_ATTRIBUTE_READONLY, 0u);
}

TEST_F(FileOperations, WhatIsNotThereIsNotFound) {
  EXPECT_EQ(NamesOf(Path("*")), Names{});
  EXPECT_EQ(NamesOf(Path("fehlt.txt")), Names{});
  EXPECT_EQ(NamesOf(ScratchFolder() + "\\"), Names{}) << "a separator at the end leaves no name to look for";
  EXPECT_EQ(NamesOf("C:\\"), Names{}) << "a drive has no name";
  EXPECT_EQ(FaultOf([] { platform::FindFiles(Path("fehlt\\*")); }), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf([] { platform::FindFiles("Q:\\*"); }), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf([] { platform::FindFiles(""); }), FaultNumber::PathNotFound);
}

TEST_F(FileOperations, AttributesOfWhatIsMissing) {
  EXPECT_EQ(FaultOf([] { SetReadOnly(Path("fehlt")); }), FaultNumber::FileNotFound);
  EXPECT_EQ(FaultOf([] { SetReadOnly(Path("fehlt\\a.txt")); }), FaultNumber::PathNotFound);
}

TEST_F(FileOperations, DriveAloneIsItsPresentFolder) {
  const std::string folder = platform::CurrentDirectory();
  EXPECT_EQ(NamesOf(folder.substr(0, 2) + "*"), NamesOf(folder + (folder.ends_with('\\') ? "*" : "\\*")));
}

TEST_F(FileOperations, OneSeparatorAtTheStartIsTheDriveAndTwoLeadOffIt) {
  contract::WriteWhole(Path("a.txt"), "a");
  EXPECT_EQ(NamesOf("\\*"), NamesOf(platform::CurrentDirectory().substr(0, 2) + "\\*"));
  FaultOf([] { platform::CopyFileW(Path("a.txt"), "\\\\a.txt", true); });
}

// Deleting.

TEST_F(FileOperations, FileIsDeleted) {
  contract::WriteWhole(Path("Müll.txt"), "x");
  platform::DeleteFileW(Path("MÜLL.TXT"));
  EXPECT_FALSE(platform::FileExists(Path("Müll.txt")));
}

TEST_F(FileOperations, WhatCannotBeDeleted) {
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("fehlt.txt")); }), FaultNumber::FileNotFound);
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("fehlt\\a.txt")); }), FaultNumber::PathNotFound);
  MakeFolder("ordner");
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("ordner")); }), FaultNumber::AccessDenied);
  contract::WriteWhole(Path("fest.txt"), "");
  SetReadOnly(Path("fest.txt"));
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("fest.txt")); }), FaultNumber::AccessDenied);
  EXPECT_TRUE(platform::FileExists(Path("fest.txt")));
}

TEST_F(FileOperations, FileInUseIsNotDeleted) {
  contract::WriteWhole(Path("offen.txt"), "x");
  const auto file = platform::OpenFile(Path("offen.txt"), FileMode::Read);
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("offen.txt")); }), FaultNumber::AccessDenied);
  platform::CloseFile(file);
  platform::DeleteFileW(Path("offen.txt"));
  EXPECT_FALSE(platform::FileExists(Path("offen.txt")));
}

// Copying.

TEST_F(FileOperations, CopyHasTheBytesAndTheNameThatWasAskedFor) {
  const std::string bytes("äöüß\r\n\x80\0\xff", 10);
  contract::WriteWhole(Path("Quelle.txt"), bytes);
  MakeFolder("Büro");
  platform::CopyFileW(Path("Quelle.txt"), Path("Büro\\Ziel ä.txt"), true);
  EXPECT_EQ(contract::ReadWhole(Path("Büro\\Ziel ä.txt")), bytes);
  EXPECT_EQ(contract::ReadWhole(Path("Quelle.txt")), bytes);
}

TEST_F(FileOperations, CopyReplacesWhereItMay) {
  contract::WriteWhole(Path("neu.txt"), "neu");
  contract::WriteWhole(Path("alt.txt"), "alt und länger");
  EXPECT_EQ(FaultOf([] { platform::CopyFileW(Path("neu.txt"), Path("ALT.txt"), true); }), FaultNumber::FileExists);
  EXPECT_EQ(contract::ReadWhole(Path("alt.txt")), "alt und länger");
  platform::CopyFileW(Path("neu.txt"), Path("ALT.txt"), false);
  EXPECT_EQ(contract::ReadWhole(Path("alt.txt")), "neu");
}

TEST_F(FileOperations, CopyTakesTheAttributeAlong) {
  contract::WriteWhole(Path("fest.txt"), "fest");
  SetReadOnly(Path("fest.txt"));
  platform::CopyFileW(Path("fest.txt"), Path("kopie.txt"), false);
  EXPECT_NE(platform::FindFiles(Path("kopie.txt")).at(0).dwFileAttributes & platform::FILE_ATTRIBUTE_READONLY, 0u);
}

TEST_F(FileOperations, WhatCannotBeCopied) {
  contract::WriteWhole(Path("a.txt"), "a");
  MakeFolder("ordner");
  const auto copy = [](const std::string& from, const std::string& to) {
    return FaultOf([&] { platform::CopyFileW(Path(from), Path(to), false); });
  };
  EXPECT_EQ(copy("fehlt.txt", "b.txt"), FaultNumber::FileNotFound);
  EXPECT_FALSE(platform::FileExists(Path("b.txt")));
  EXPECT_EQ(copy("fehlt\\a.txt", "b.txt"), FaultNumber::PathNotFound);
  EXPECT_EQ(copy("a.txt", "fehlt\\b.txt"), FaultNumber::PathNotFound);
  EXPECT_EQ(copy("a.txt", "ordner"), FaultNumber::AccessDenied) << "a folder in the new file's place";
  EXPECT_EQ(copy("ordner", "b.txt"), FaultNumber::AccessDenied) << "a folder as the source";
  EXPECT_EQ(copy("a.txt", "A.TXT"), FaultNumber::AccessDenied) << "onto itself";
  copy("a.txt", std::string(300, 'x'));
  EXPECT_EQ(copy("a.txt", "b|c.txt"), FaultNumber::BadFileName);
  EXPECT_EQ(contract::ReadWhole(Path("a.txt")), "a");
}

TEST_F(FileOperations, ReadOnlyFileIsNotReplaced) {
  contract::WriteWhole(Path("neu.txt"), "neu");
  contract::WriteWhole(Path("fest.txt"), "fest");
  if (!contract::MakeReadOnly(Path("fest.txt"))) GTEST_SKIP() << "this user may write everything";
  EXPECT_EQ(FaultOf([] { platform::CopyFileW(Path("neu.txt"), Path("fest.txt"), false); }), FaultNumber::AccessDenied);
  EXPECT_EQ(contract::ReadWhole(Path("fest.txt")), "fest");
}

// Moving.

TEST_F(FileOperations, FolderMovesWithAllThatItHolds) {
  MakeFolder("Büro\\unter");
  contract::WriteWhole(Path("Büro\\unter\\a.txt"), "a");
  MakeFolder("ziel");
  platform::MoveFileW(Path("Büro"), Path("ziel\\Küche"));
  EXPECT_EQ(contract::ReadWhole(Path("ziel\\Küche\\unter\\a.txt")), "a");
  EXPECT_FALSE(platform::FolderExists(Path("Büro")));
}

TEST_F(FileOperations, WhatCannotBeMoved) {
  MakeFolder("a\\unter");
  MakeFolder("b");
  contract::WriteWhole(Path("datei"), "");
  const auto move = [](const std::string& from, const std::string& to) {
    return FaultOf([&] { platform::MoveFileW(Path(from), Path(to)); });
  };
  EXPECT_EQ(move("fehlt", "c"), FaultNumber::FileNotFound);
  EXPECT_EQ(move("fehlt\\a", "c"), FaultNumber::PathNotFound);
  EXPECT_EQ(move("a", "fehlt\\c"), FaultNumber::PathNotFound);
  EXPECT_EQ(move("a", "B"), FaultNumber::FileExists);
  EXPECT_EQ(move("a", "datei"), FaultNumber::FileExists);
  move("a", "a\\unter\\a");
  EXPECT_TRUE(platform::FolderExists(Path("a\\unter")));
}

// Folders.

TEST_F(FileOperations, FolderIsMadeAndRemoved) {
  platform::CreateDirectoryW(Path("Büro"));
  EXPECT_TRUE(platform::FolderExists(Path("Büro")));
  platform::RemoveDirectoryW(Path("BÜRO"));
  EXPECT_FALSE(platform::FolderExists(Path("Büro")));
}

TEST_F(FileOperations, WhatCannotBeMade) {
  MakeFolder("da");
  contract::WriteWhole(Path("datei"), "");
  EXPECT_EQ(FaultOf([] { platform::CreateDirectoryW(Path("DA")); }), FaultNumber::FileExists);
  EXPECT_EQ(FaultOf([] { platform::CreateDirectoryW(Path("datei")); }), FaultNumber::FileExists);
  EXPECT_EQ(FaultOf([] { platform::CreateDirectoryW(Path("fehlt\\neu")); }), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf([] { platform::CreateDirectoryW(Path("a|b")); }), FaultNumber::BadFileName);
}

TEST_F(FileOperations, WhatCannotBeRemoved) {
  MakeFolder("voll\\unter");
  contract::WriteWhole(Path("datei"), "");
  EXPECT_EQ(FaultOf([] { platform::RemoveDirectoryW(Path("fehlt")); }), FaultNumber::FileNotFound);
  EXPECT_EQ(FaultOf([] { platform::RemoveDirectoryW(Path("fehlt\\unter")); }), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf([] { platform::RemoveDirectoryW(Path("voll")); }), FaultNumber::PathAccess);
  EXPECT_EQ(FaultOf([] { platform::RemoveDirectoryW(Path("datei")); }), FaultNumber::BadFileName);
  EXPECT_TRUE(platform::FolderExists(Path("voll\\unter")));
  EXPECT_TRUE(platform::FileExists(Path("datei")));
}

TEST_F(FileOperations, BlankAtTheEndOfANameIsDropped) {
  platform::CreateDirectoryW(Path("ordner "));
  EXPECT_EQ(NamesOf(Path("*")), (Names{"ordner"}));
  contract::WriteWhole(Path("a.txt"), "a");
  platform::CopyFileW(Path("a.txt "), Path("b.txt "), false);
  EXPECT_EQ(NamesOf(Path("*.txt")), (Names{"a.txt", "b.txt"}));
}

TEST_F(FileOperations, BlankAtTheEndOfANameInsideAPathIsPartOfTheName) {
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists(Path(" 4711 \\ 2005\\")));
  EXPECT_EQ(NamesOf(Path("*")), (Names{" 4711 "}));
  EXPECT_TRUE(platform::FolderExists(Path(" 4711 \\ 2005")));
  EXPECT_FALSE(platform::FolderExists(Path(" 4711\\ 2005")));
  contract::WriteWhole(Path("a.txt"), "a");
  platform::CopyFileW(Path("a.txt"), Path(" 4711 \\ 2005\\b.txt"), true);
  EXPECT_EQ(contract::ReadWhole(Path(" 4711 \\ 2005\\b.txt")), "a");
}

TEST_F(FileOperations, FileIsMadeAndFoundInAFolderWhoseNameEndsInABlank) {
  MakeFolder("ordner ");
  platform::CloseFile(platform::OpenFile(Path("ordner \\a.txt"), FileMode::CreateNew));
  EXPECT_TRUE(platform::FileExists(Path("ordner \\a.txt")));
  EXPECT_EQ(platform::FileSize(Path("ordner \\a.txt")), 0);
  platform::CopyFileW(Path("ordner \\a.txt"), Path("ordner \\b.txt"), true);
  EXPECT_EQ(NamesOf(Path("ordner \\*")), (Names{"a.txt", "b.txt"}));
  platform::DeleteFileW(Path("ordner \\a.txt"));
  EXPECT_EQ(FaultOf([] { platform::DeleteFileW(Path("ordner \\a.txt")); }), FaultNumber::FileNotFound);
  platform::DeleteFileW(Path("ordner \\b.txt"));
  platform::RemoveDirectoryW(Path("ordner \\"));
  EXPECT_EQ(NamesOf(Path("*")), Names{});
}

// Long names.

TEST_F(FileOperations, ShortNamesAreMadeLong) {
  MakeFolder("Dokumente und Einstellungen");
  contract::WriteWhole(Path("Dokumente und Einstellungen\\Äußerst lang.html"), "");
  const std::string path = Path("Dokumente und Einstellungen\\Äußerst lang.html");
  const std::string shortPath = contract::ShortPath(path);
  EXPECT_NE(shortPath, path);
  EXPECT_TRUE(platform::FileExists(shortPath));
  std::string longPath;
  EXPECT_EQ(platform::GetLongPathNameA(shortPath, longPath, 256), path.size());
  EXPECT_EQ(longPath.substr(longPath.rfind("\\Dok")), path.substr(path.rfind("\\Dok")));
  EXPECT_EQ(platform::GetLongPathNameA(path, longPath, static_cast<std::uint32_t>(path.size()) + 1), path.size());
}

TEST_F(FileOperations, BufferThatIsTooSmallForTheLongNameStaysEmpty) {
  MakeFolder("ein langer Ordner");
  const std::string path = Path("ein langer Ordner");
  std::string longPath = "alt";
  EXPECT_EQ(platform::GetLongPathNameA(path, longPath, static_cast<std::uint32_t>(path.size())), path.size() + 1);
  EXPECT_EQ(longPath, "");
}

TEST_F(FileOperations, MissingPathHasNoLongName) {
  std::string longPath = "alt";
  EXPECT_EQ(platform::GetLongPathNameA(Path("FEHLT~1"), longPath, 256), 0u);
  EXPECT_EQ(longPath, "");
  EXPECT_EQ(platform::GetLongPathNameA("", longPath, 256), 0u);
}

// The environment.

TEST_F(FileOperations, VariableOfTheEnvironmentByItsNameInAnyCase) {
  EXPECT_NE(platform::GetEnvironmentVariableA("temp"), "");
  contract::SetVariable("Kontrakt", "Wert mit ä");
  EXPECT_EQ(platform::GetEnvironmentVariableA("KONTRAKT"), "Wert mit ä");
  contract::SetVariable("Kontrakt", "");
  EXPECT_EQ(platform::GetEnvironmentVariableA("Kontrakt"), "");
  EXPECT_EQ(platform::GetEnvironmentVariableA(""), "");
}

}  // namespace
