#include "platform/files.h"

#include "fixture.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace {

using contract::FaultOf;
using contract::Path;
using contract::ScratchFolder;
using platform::FileMode;
using runtime::FaultNumber;

class Files : public contract::Test {
 protected:
  static std::string ReadAll(std::int32_t file) {
    std::string all;
    char buffer[5];
    while (const std::size_t count = platform::ReadFile(file, buffer, sizeof buffer)) all.append(buffer, count);
    return all;
  }

  static FaultNumber FaultOfOpening(const std::string& path, FileMode mode) {
    return FaultOf([&] { platform::CloseFile(platform::OpenFile(path, mode)); });
  }
};

TEST_F(Files, FileIsReadInPiecesUntilItsEnd) {
  contract::WriteWhole(Path("a.txt"), "Zeile 1\r\nZeile 2");
  const auto file = platform::OpenFile(Path("a.txt"), FileMode::Read);
  char buffer[9];
  EXPECT_EQ(platform::ReadFile(file, buffer, 9), 9u);
  EXPECT_EQ(std::string(buffer, 9), "Zeile 1\r\n");
  EXPECT_EQ(platform::ReadFile(file, buffer, 9), 7u);
  EXPECT_EQ(std::string(buffer, 7), "Zeile 2");
  EXPECT_EQ(platform::ReadFile(file, buffer, 9), 0u);
  platform::CloseFile(file);
}

TEST_F(Files, ReadingGoesOnAtAByteOfTheFile) {
  contract::WriteWhole(Path("a.txt"), "Zeile 1\r\nZeile 2");
  const auto file = platform::OpenFile(Path("a.txt"), FileMode::Read);
  platform::SetFilePointer(file, 9);
  EXPECT_EQ(ReadAll(file), "Zeile 2");
  platform::SetFilePointer(file, 15);
  EXPECT_EQ(ReadAll(file), "2");
  platform::SetFilePointer(file, 0x100000000);  // behind the end
  EXPECT_EQ(ReadAll(file), "");
  platform::CloseFile(file);
  EXPECT_EQ(FaultOf([&] { platform::SetFilePointer(file, 0); }), FaultNumber::BadFileNumber);
}

TEST_F(Files, CreateNewMakesTheFile) {
  const auto file = platform::OpenFile(Path("neu.txt"), FileMode::CreateNew);
  platform::WriteFile(file, "äöü\n");
  platform::CloseFile(file);
  EXPECT_EQ(contract::ReadWhole(Path("neu.txt")), "äöü\n");
}

TEST_F(Files, CreateNewRefusesWhatExists) {
  contract::WriteWhole(Path("alt.txt"), "alt");
  platform::MakeSureDirectoryPathExists(Path("ordner\\"));
  EXPECT_EQ(FaultOfOpening(Path("ALT.TXT"), FileMode::CreateNew), FaultNumber::FileExists);
  EXPECT_EQ(FaultOfOpening(Path("ordner"), FileMode::CreateNew), FaultNumber::FileExists);
  EXPECT_EQ(contract::ReadWhole(Path("alt.txt")), "alt");
}

TEST_F(Files, AppendMakesTheFileAndContinuesIt) {
  for (const char* text : {"eins\r\n", "zwei\r\n"}) {
    const auto file = platform::OpenFile(Path("log.txt"), FileMode::Append);
    platform::WriteFile(file, text);
    platform::CloseFile(file);
  }
  EXPECT_EQ(contract::ReadWhole(Path("log.txt")), "eins\r\nzwei\r\n");
}

TEST_F(Files, AppendGoesToTheEndThoughSomebodyElseWrote) {
  const auto file = platform::OpenFile(Path("log.txt"), FileMode::Append);
  platform::WriteFile(file, "eins,");
  contract::AppendBehindTheBack(Path("log.txt"), "fremd,");
  platform::WriteFile(file, "zwei");
  platform::CloseFile(file);
  EXPECT_EQ(contract::ReadWhole(Path("log.txt")), "eins,fremd,zwei");
}

TEST_F(Files, WhatIsWrittenCanBeReadAtOnceThroughASecondOpening) {
  const auto log = platform::OpenFile(Path("log.txt"), FileMode::Append);
  platform::WriteFile(log, "offen");
  const auto reader = platform::OpenFile(Path("log.txt"), FileMode::Read);
  EXPECT_EQ(ReadAll(reader), "offen");
  platform::WriteFile(log, " und weiter");
  EXPECT_EQ(ReadAll(reader), " und weiter");
  platform::CloseFile(reader);
  platform::CloseFile(log);
}

TEST_F(Files, OverwritingBeginsAtTheFirstByteAndCutsNothing) {
  const auto write = [](const std::string& text) {
    const auto file = platform::OpenFile(Path("daten.txt"), FileMode::Overwrite);
    platform::WriteFile(file, text);
    platform::CloseFile(file);
  };
  write("1234567890");
  write("ab");
  EXPECT_EQ(contract::ReadWhole(Path("daten.txt")), "ab34567890");
}

TEST_F(Files, MissingFileAndMissingFolder) {
  EXPECT_EQ(FaultOfOpening(Path("fehlt.txt"), FileMode::Read), FaultNumber::FileNotFound);
  for (const auto mode : {FileMode::Read, FileMode::Append, FileMode::CreateNew, FileMode::Overwrite}) {
    EXPECT_EQ(FaultOfOpening(Path("fehlt\\a.txt"), mode), FaultNumber::PathNotFound);
    EXPECT_EQ(FaultOfOpening("", mode), FaultNumber::PathNotFound);
  }
}

TEST_F(Files, FileInThePlaceOfAFolder) {
  contract::WriteWhole(Path("datei"), "");
  EXPECT_EQ(FaultOfOpening(Path("datei\\a.txt"), FileMode::Read), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOfOpening(Path("datei\\a.txt"), FileMode::Append), FaultNumber::PathNotFound);
  EXPECT_FALSE(platform::FileExists(Path("datei\\a.txt")));
}

TEST_F(Files, FolderIsNoFile) {
  EXPECT_EQ(FaultOfOpening(ScratchFolder(), FileMode::Read), FaultNumber::AccessDenied);
  EXPECT_EQ(FaultOfOpening(ScratchFolder(), FileMode::Append), FaultNumber::AccessDenied);
  EXPECT_FALSE(platform::FileExists(ScratchFolder()));
  EXPECT_TRUE(platform::FolderExists(ScratchFolder()));
}

TEST_F(Files, ReadOnlyFileIsReadButNotWritten) {
  contract::WriteWhole(Path("fest.txt"), "fest");
  if (!contract::MakeReadOnly(Path("fest.txt"))) GTEST_SKIP() << "this user may write everything";
  EXPECT_EQ(FaultOfOpening(Path("fest.txt"), FileMode::Append), FaultNumber::AccessDenied);
  const auto file = platform::OpenFile(Path("fest.txt"), FileMode::Read);
  EXPECT_EQ(ReadAll(file), "fest");
  platform::CloseFile(file);
}

TEST_F(Files, HandleServesOnlyWhatItWasOpenedFor) {
  contract::WriteWhole(Path("a.txt"), "a");
  const auto reader = platform::OpenFile(Path("a.txt"), FileMode::Read);
  EXPECT_EQ(FaultOf([&] { platform::WriteFile(reader, "b"); }), FaultNumber::AccessDenied);
  const auto writer = platform::OpenFile(Path("a.txt"), FileMode::Append);
  char byte = 0;
  EXPECT_EQ(FaultOf([&] { platform::ReadFile(writer, &byte, 1); }), FaultNumber::AccessDenied);
  platform::CloseFile(writer);
  platform::CloseFile(reader);
}

TEST_F(Files, ClosedHandleIsABadNumber) {
  const auto file = platform::OpenFile(Path("a.txt"), FileMode::Append);
  platform::CloseFile(file);
  char byte = 0;
  EXPECT_EQ(FaultOf([&] { platform::WriteFile(file, "b"); }), FaultNumber::BadFileNumber);
  EXPECT_EQ(FaultOf([&] { platform::ReadFile(file, &byte, 1); }), FaultNumber::BadFileNumber);
  EXPECT_EQ(FaultOf([&] { platform::CloseFile(file); }), FaultNumber::BadFileNumber);
}

TEST_F(Files, NamesAreComparedWithoutCaseUmlautsIncluded) {
  platform::MakeSureDirectoryPathExists(Path("Müller\\"));
  contract::WriteWhole(Path("Müller\\Äpfel.txt"), "Obst");
  EXPECT_TRUE(platform::FileExists(Path("Müller\\Äpfel.txt")));
  EXPECT_TRUE(platform::FileExists(Path("MÜLLER\\äpfel.TXT")));
  EXPECT_TRUE(platform::FolderExists(Path("mÜLLER")));
  EXPECT_EQ(platform::FileSize(Path("müller\\ÄPFEL.txt")), 4);
}

TEST_F(Files, ExistenceByTheWayAPathIsWritten) {
  contract::WriteWhole(Path("a.txt"), "a");
  platform::MakeSureDirectoryPathExists(Path("unter\\"));
  EXPECT_TRUE(platform::FolderExists(Path("unter\\")));
  EXPECT_FALSE(platform::FileExists(Path("a.txt\\")));
  EXPECT_TRUE(platform::FileExists(Path("unter\\..\\a.txt")));
  EXPECT_TRUE(platform::FileExists(Path(".\\a.txt")));
  EXPECT_TRUE(platform::FileExists(Path("unter/../a.txt")));
  EXPECT_TRUE(platform::FileExists(Path("\\a.txt"))) << "a doubled separator counts once";
  EXPECT_TRUE(platform::FileExists(Path("a.txt. "))) << "dots and blanks at the end are dropped";
  EXPECT_FALSE(platform::FileExists(Path("fehlt.txt")));
  EXPECT_FALSE(platform::FolderExists(Path("a.txt")));
  EXPECT_FALSE(platform::FileExists(""));
  EXPECT_FALSE(platform::FolderExists(""));
  EXPECT_TRUE(platform::FolderExists("C:\\"));
  EXPECT_FALSE(platform::FolderExists("Q:\\"));
}

TEST_F(Files, RelativePathStartsAtTheCurrentFolder) {
  EXPECT_TRUE(platform::FolderExists(platform::CurrentDirectory()));
  EXPECT_TRUE(platform::FolderExists("."));
  EXPECT_FALSE(platform::FolderExists("no-such-folder-here"));
}

TEST_F(Files, NamesThatTheSystemRefuses) {
  for (const char* name : {"a|b.txt", "a<b.txt", "a>b.txt", "a\"b.txt", "a*.txt", "a?b.txt", "a\x1f.txt"}) {
    EXPECT_EQ(FaultOfOpening(Path(name), FileMode::Append), FaultNumber::BadFileName) << name;
    EXPECT_FALSE(platform::FileExists(Path(name))) << name;
  }
}

TEST_F(Files, SeparatorAtTheEndIsNoPartOfAFilesName) {
  contract::WriteWhole(Path("a.txt"), "a");
  EXPECT_EQ(FaultOfOpening(Path("a.txt\\"), FileMode::Read), FaultNumber::BadFileName);
  EXPECT_EQ(FaultOfOpening(Path("a.txt\\"), FileMode::Append), FaultNumber::BadFileName);
  EXPECT_EQ(FaultOfOpening(Path("neu.txt\\"), FileMode::CreateNew), FaultNumber::BadFileName);
  EXPECT_EQ(FaultOfOpening(ScratchFolder() + "\\", FileMode::Read), FaultNumber::AccessDenied);
}

TEST_F(Files, PathBeyondTheLongestIsNotFound) {
  const std::string tooLong = Path(std::string(260, 'x'));
  EXPECT_EQ(FaultOfOpening(tooLong, FileMode::Read), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOfOpening(tooLong, FileMode::Append), FaultNumber::PathNotFound);
  EXPECT_FALSE(platform::FileExists(tooLong));
}

TEST_F(Files, MissingDriveHasNoFiles) {
  EXPECT_EQ(FaultOfOpening("Q:\\a\\b.txt", FileMode::Read), FaultNumber::PathNotFound);
  EXPECT_FALSE(platform::FileExists("Q:\\a.txt"));
}

TEST_F(Files, SizeInBytes) {
  contract::WriteWhole(Path("a.txt"), "12345\r\n");
  EXPECT_EQ(platform::FileSize(Path("a.txt")), 7);
  EXPECT_EQ(FaultOf([] { platform::FileSize(Path("fehlt.txt")); }), FaultNumber::FileNotFound);
  EXPECT_EQ(FaultOf([] { platform::FileSize(Path("fehlt\\a.txt")); }), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf([] { platform::FileSize(ScratchFolder()); }), FaultNumber::FileNotFound);
}

class MakeSureDirectoryPathExists : public Files {};

TEST_F(MakeSureDirectoryPathExists, MakesAllMissingFolders) {
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists(Path("a\\Büro\\c\\")));
  EXPECT_TRUE(platform::FolderExists(Path("a\\Büro\\c")));
}

TEST_F(MakeSureDirectoryPathExists, ExistingFolderIsASuccess) {
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists(ScratchFolder() + "\\"));
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists("C:\\"));
}

TEST_F(MakeSureDirectoryPathExists, ExistingFolderInOtherLettersIsKept) {
  platform::MakeSureDirectoryPathExists(Path("Extern\\"));
  contract::WriteWhole(Path("Extern\\a.txt"), "");
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists(Path("EXTERN\\unter\\")));
  EXPECT_TRUE(platform::FolderExists(Path("Extern\\unter")));
  EXPECT_TRUE(platform::FileExists(Path("EXTERN\\a.txt")));
}

TEST_F(MakeSureDirectoryPathExists, FileInTheWayIsRefused) {
  contract::WriteWhole(Path("datei"), "");
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists(Path("datei\\unter\\")));
}

TEST_F(MakeSureDirectoryPathExists, NameBehindTheLastBackslashIsNotMade) {
  EXPECT_TRUE(platform::MakeSureDirectoryPathExists(Path("a\\b")));
  EXPECT_TRUE(platform::FolderExists(Path("a")));
  EXPECT_FALSE(platform::FolderExists(Path("a\\b")));
}

TEST_F(MakeSureDirectoryPathExists, WhatTheSystemRefuses) {
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists(Path("a|b\\")));
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists("Q:\\a\\"));
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists(Path(std::string(300, 'x') + "\\")));
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists(std::string(5000, 'x') + "\\"));
}

}  // namespace
