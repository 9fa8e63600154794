// Drive letters over host folders.
#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>

#include "platform/files.h"
#include "platform/settings.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace {

using platform::FileMode;
using platform::simulated::HostPath;
using runtime::FaultNumber;

class SimulatedDrives : public testing::Test {
 protected:
  void SetUp() override { platform::simulated::Reset(); }

  static FaultNumber FaultOf(const std::string& path) {
    try {
      HostPath(path);
    } catch (const runtime::Fault& fault) {
      return fault.number;
    }
    return {};
  }
};

TEST_F(SimulatedDrives, FolderOfTheProgramIsMadeOnDriveC) {
  EXPECT_EQ(platform::ApplicationPath(), "C:\\QUMA");
  EXPECT_TRUE(platform::FolderExists("C:\\QUMA"));
  platform::simulated::SetApplicationPath("c:\\Programme\\QUMA EXP\\");
  EXPECT_EQ(platform::ApplicationPath(), "C:\\Programme\\QUMA EXP");
  EXPECT_EQ(platform::CurrentDirectory(), "C:\\Programme\\QUMA EXP");
  EXPECT_TRUE(platform::FolderExists("C:\\Programme\\QUMA EXP"));
}

TEST_F(SimulatedDrives, HostFolderOfAFreshDesktopIsEmptyAndTheOldOneIsGone) {
  platform::simulated::PutFile("C:\\a.txt", "a");
  const std::string old = HostPath("C:\\");
  platform::simulated::Reset();
  EXPECT_FALSE(platform::FileExists("C:\\a.txt"));
  EXPECT_FALSE(std::filesystem::exists(old));
}

TEST_F(SimulatedDrives, NamesOnTheHostAreUtf8) {
  platform::simulated::PutFile("C:\\Bücher\\Preis in €.txt", "Inhalt");
  const auto file = std::filesystem::path(HostPath("C:\\")) /
                    "B\xC3\xBC"
                    "cher" /
                    "Preis in \xE2\x82\xAC.txt";
  EXPECT_TRUE(std::filesystem::exists(file));
  const auto found = platform::FindFiles("C:\\BÜCHER\\*");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(platform::FilePath(found[0].cFileName).Text(), "Preis in €.txt");
  EXPECT_EQ(platform::simulated::GetFile("c:\\bücher\\PREIS IN €.TXT"), "Inhalt");
}

TEST_F(SimulatedDrives, ExactSpellingWinsOverAnotherOne) {
  std::ofstream(HostPath("C:\\") + "/A.txt") << "groß";
  std::ofstream(HostPath("C:\\") + "/a.txt") << "klein";
  EXPECT_EQ(platform::simulated::GetFile("C:\\a.txt"), "klein");
  EXPECT_EQ(platform::simulated::GetFile("C:\\A.txt"), "groß");
}

TEST_F(SimulatedDrives, NewFileInAnExistingFolderOfOtherSpelling) {
  platform::simulated::PutFile("C:\\Extern\\a.txt", "");
  EXPECT_EQ(HostPath("C:\\EXTERN\\Neu\\b.txt"), HostPath("C:\\") + "/Extern/Neu/b.txt");
}

TEST_F(SimulatedDrives, RelativePathsAndPathsOfADriveAlone) {
  platform::simulated::PutFile("C:\\QUMA\\a.txt", "");
  platform::simulated::PutFile("C:\\b.txt", "");
  EXPECT_TRUE(platform::FileExists("a.txt"));
  EXPECT_TRUE(platform::FileExists("C:a.txt"));
  EXPECT_TRUE(platform::FileExists("\\b.txt"));
  EXPECT_TRUE(platform::FileExists("..\\b.txt"));
  EXPECT_TRUE(platform::FileExists("..\\..\\..\\b.txt")) << "above the root there is nothing";
  EXPECT_FALSE(platform::FileExists("b.txt"));
}

TEST_F(SimulatedDrives, AnotherDriveIsAnotherHostFolder) {
  std::filesystem::create_directory(HostPath("C:\\zweite"));
  platform::simulated::SetDrive('d', HostPath("C:\\zweite"));
  platform::simulated::PutFile("D:\\a.txt", "auf D");
  EXPECT_EQ(platform::simulated::GetFile("C:\\zweite\\a.txt"), "auf D");
  EXPECT_TRUE(platform::FileExists("d:a.txt"));
}

TEST_F(SimulatedDrives, MissingDriveAndNetworkAreNotFound) {
  EXPECT_EQ(FaultOf("E:\\a.txt"), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf("E:"), FaultNumber::PathNotFound);
  EXPECT_EQ(FaultOf("\\\\server\\freigabe\\a.txt"), FaultNumber::PathNotFound);
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists("E:\\a\\"));
}

TEST_F(SimulatedDrives, LongestPathHas259Characters) {
  const std::string folder = "C:\\" + std::string(200, 'x') + "\\";
  EXPECT_EQ(FaultOf(folder + std::string(55, 'y')), FaultNumber{});
  EXPECT_EQ(FaultOf(folder + std::string(56, 'y')), FaultNumber::PathNotFound);
}

TEST_F(SimulatedDrives, ColonInsideANameIsRefused) {
  EXPECT_EQ(FaultOf("C:\\a:b.txt"), FaultNumber::BadFileName);
  EXPECT_EQ(FaultOf("C:\\a\tb.txt"), FaultNumber::BadFileName);
}

TEST_F(SimulatedDrives, BareNameOfASectionFileMeansTheWindowsFolder) {
  platform::simulated::PutFile("C:\\WINDOWS\\win.ini", "[A]\r\nB=Windows\r\n");
  platform::simulated::PutFile("C:\\QUMA\\win.ini", "[A]\r\nB=Programm\r\n");
  std::string value;
  platform::GetPrivateProfileStringA("A", "B", "", value, 100, "win.ini");
  EXPECT_EQ(value, "Windows");
  platform::GetPrivateProfileStringA("A", "B", "", value, 100, ".\\win.ini");
  EXPECT_EQ(value, "Programm");
}

TEST_F(SimulatedDrives, SectionFileMatchesUmlautsWithoutCase) {
  platform::simulated::PutFile("C:\\QUMA\\x.ini", "[MERLA]\r\nMatrixWährung=20\r\n");
  std::string value;
  platform::GetPrivateProfileStringA("merla", "MATRIXWÄHRUNG", "", value, 100, "C:\\QUMA\\x.ini");
  EXPECT_EQ(value, "20");
}

TEST_F(SimulatedDrives, WritingASectionFileLeavesAllElseAsItWas) {
  platform::simulated::PutFile("C:\\QUMA\\x.ini",
                               "; Kopf\r\nlose Zeile\r\n\r\n[A]\r\n  B = alt\r\n;C=1\r\n\r\n[D]\r\nE=2\r\n");
  platform::WritePrivateProfileStringA("A", "b", "neu", "C:\\QUMA\\x.ini");
  platform::WritePrivateProfileStringA("a", "C", "3", "C:\\QUMA\\x.ini");
  platform::WritePrivateProfileStringA("F", "G", "4", "C:\\QUMA\\x.ini");
  EXPECT_EQ(platform::simulated::GetFile("C:\\QUMA\\x.ini"),
            "; Kopf\r\nlose Zeile\r\n\r\n[A]\r\nB=neu\r\n;C=1\r\nC=3\r\n\r\n[D]\r\nE=2\r\n[F]\r\nG=4\r\n");
}

TEST_F(SimulatedDrives, HundredThousandLinesCostNoTime) {
  const auto file = platform::OpenFile("QUMAEXP.LOG", FileMode::Append);
  const std::clock_t start = std::clock();
  for (int i = 0; i < 100'000; ++i) platform::WriteFile(file, "eine Zeile des Protokolls\r\n");
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  platform::CloseFile(file);
  EXPECT_EQ(platform::FileSize("QUMAEXP.LOG"), 27 * 100'000);
  EXPECT_LT(seconds, 5) << "of processor time, far beyond what even a build with sanitizers needs";
}

}  // namespace
