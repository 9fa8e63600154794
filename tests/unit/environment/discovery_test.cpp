// Where the suite keeps its data, and which client and year it shows.
#include "environment/discovery.h"

#include "engine/state.h"
#include "frame/frmMain.h"
#include "frame/state.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

constexpr char kKey[] = "Software\\TARVEN\\Setup\\Destinations";
constexpr char kSetup[] = "C:\\TeRu\\Config\\Setup.cfg";

class DiscoveryTest : public SystemTest {
 protected:
  DiscoveryTest() { StartProgram(); }

  void Installed(const std::string& directory) { Registry()[kKey]["Teru"] = {platform::REG_SZ, directory + '\0'}; }
  void NotInstalled() { Registry().clear(); }

  std::string Stored() {
    const auto key = Registry().find(kKey);
    return key == Registry().end() ? "(nichts)" : key->second.at("Teru").bytes;
  }
};

// 1. The setup file.

TEST_F(DiscoveryTest, TheSetupFileNamesTheDataDirectory) {
  PutFile(kSetup, "[TeRu Setup]\r\nTERUData=C:\\Daten\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
  ExpectLog({"GetTeRuDestination (1. Setup.cfg): C:\\Daten", "Ausgabeverzeichnis erstellt: C:\\Daten\\"});
  EXPECT_TRUE(platform::FolderExists("C:\\Daten"));
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(DiscoveryTest, TheValueOfTheSetupFileIsTrimmed) {
  PutFile(kSetup, "[TeRu Setup]\r\nTERUData=\"  C:\\Daten  \"\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
  ExpectLog({"GetTeRuDestination (1. Setup.cfg): C:\\Daten", "Ausgabeverzeichnis erstellt: C:\\Daten\\"});
}

TEST_F(DiscoveryTest, TheValueOfTheSetupFileLosesItsTrailingBackslashAtTheEndOnly) {
  PutFile(kSetup, "[TeRu Setup]\r\nTERUData=C:\\Daten\\\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
  ExpectLog({"GetTeRuDestination (1. Setup.cfg): C:\\Daten\\", "Ausgabeverzeichnis erstellt: C:\\Daten\\"});
}

TEST_F(DiscoveryTest, OnlyOneTrailingBackslashIsRemoved) {
  PutFile(kSetup, "[TeRu Setup]\r\nTERUData=C:\\Daten\\\\\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten\\");
}

// 2. The registry.

TEST_F(DiscoveryTest, WithoutASetupFileTheRegistryValueIsTheDirectory) {
  EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu", "Ausgabeverzeichnis erstellt: C:\\TeRu\\"});
}

TEST_F(DiscoveryTest, ABlankKeyInTheSetupFileYieldsTheRegistryValue) {
  for (const char* value : {"", "   ", "\"   \""}) {
    PutFile(kProgram + "\\QUMAEXP.LOG", "");
    PutFile(kSetup, "[TeRu Setup]\r\nTERUData=" + std::string(value) + "\r\n");
    EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
    ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu", "Ausgabeverzeichnis erstellt: C:\\TeRu\\"});
  }
}

TEST_F(DiscoveryTest, ASetupFileWithoutTheKeyYieldsTheRegistryValue) {
  PutFile(kSetup, "[Andere]\r\nTERUData=C:\\Daten\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
}

TEST_F(DiscoveryTest, ARegistryValueThatEndsInABackslashYieldsAResultWithoutIt) {
  Installed("C:\\TeRu\\");
  EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu\\", "Ausgabeverzeichnis erstellt: C:\\TeRu\\"});
}

TEST_F(DiscoveryTest, ARegistryValueThatEndsInABackslashFindsTheSetupFileToo) {
  Installed("C:\\TeRu\\");
  PutFile(kSetup, "[TeRu Setup]\r\nTERUData=C:\\Daten\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
}

TEST_F(DiscoveryTest, BlanksInsideTheRegistryValueStayAsTheyStand) {
  Installed("C:\\Te Ru ");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Te Ru ");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\Te Ru ", "Ausgabeverzeichnis erstellt: C:\\Te Ru \\"});
}

TEST_F(DiscoveryTest, ARegistryValueThatIsANumberIsTakenByItsDigits) {
  Registry()[kKey]["Teru"] = {platform::REG_DWORD, std::string("\x39\x30\0\0", 4)};
  EXPECT_EQ(GetTeRuDestination(), "12345");
  ExpectLog({"GetTeRuDestination (2. RegValue): 12345", "Ausgabeverzeichnis erstellt: 12345\\"});
}

TEST_F(DiscoveryTest, NothingIsKeptBetweenTwoCalls) {
  EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
  Installed("C:\\Neu");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Neu");
  PutFile("C:\\Neu\\Config\\Setup.cfg", "[TeRu Setup]\r\nTERUData=C:\\Daten\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
}

TEST_F(DiscoveryTest, ADirectoryThatCannotBeMadeIsNotNoticed) {
  Fail("MakeSureDirectoryPathExists");
  EXPECT_EQ(GetTeRuDestination(), "C:\\TeRu");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu"});
  EXPECT_EQ(run.LastError, "");
}

// 3. The user.

class AskUserTest : public DiscoveryTest {
 protected:
  AskUserTest() {
    NotInstalled();
    PutFile("C:\\Prog\\tarven.exe", "");
  }

  void ExpectBoxes(const std::string& directory) {
    ASSERT_EQ(MessageBoxes().size(), 2u);
    EXPECT_EQ(MessageBoxes()[0].text,
              "Das Ausgabeverzeichnis für den Datenexport konnte nicht ermittelt werden.\r\n"
              "Bitte wählen Sie das TeRu-Installationsverzeichnis aus!");
    EXPECT_EQ(MessageBoxes()[1].text, "Das TeRu-Installationsverzeichnis wurde auf " + directory + " festgelegt.");
    for (const ShownBox& box : MessageBoxes()) EXPECT_EQ(box.caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes()[0].type, 64u);
  }
};

TEST_F(AskUserTest, TheChosenFileTellsTheDirectoryWhichIsStored) {
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
  ExpectLog({"GetTeRuDestination (3. FolderSelect): C:\\Prog", "Ausgabeverzeichnis erstellt: C:\\Prog\\"});
  EXPECT_EQ(Stored(), std::string("C:\\Prog\0", 8));
  EXPECT_EQ(Registry().at(kKey).at("Teru").type, 1u);
  ExpectBoxes("C:\\Prog");
}

TEST_F(AskUserTest, TheNextCallAsksNothing) {
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  GetTeRuDestination();
  PutFile(kProgram + "\\QUMAEXP.LOG", "");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\Prog", "Ausgabeverzeichnis erstellt: C:\\Prog\\"});
  PutFile("C:\\Prog\\Config\\Setup.cfg", "[TeRu Setup]\r\nTERUData=C:\\Daten\r\n");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Daten");
  EXPECT_EQ(MessageBoxes().size(), 2u);
  EXPECT_EQ(FileDialogs().size(), 1u);
}

TEST_F(AskUserTest, TheFileDialogsRecord) {
  GetTeRuDestination();
  ASSERT_EQ(FileDialogs().size(), 1u);
  const platform::OPENFILENAME& record = FileDialogs()[0];
  EXPECT_EQ(record.lpstrFilter, std::string("TARVEN TERU (*.EXE)\0*.*\0", 24));
  EXPECT_EQ(record.Flags, 4100u);
  EXPECT_EQ(record.lpstrFile, "tarven.exe" + std::string(246, '\0'));
  EXPECT_EQ(record.lpstrTitle, "TARVEN Datenexport - Bitte wählen Sie das TeRu-Installationsverzeichnis aus");
  EXPECT_EQ(record.lpstrInitialDir, "C:\\QUMA");
  EXPECT_EQ(record.nFilterIndex, 1u);
  EXPECT_EQ(record.lpstrDefExt, "");
  EXPECT_EQ(record.hwndOwner, frmMain.Window());
}

TEST_F(AskUserTest, TheQuestionsComeInOrder) {
  Lines order;
  WhileMessageBox([&](const ShownBox& box) {
    order.push_back(box.text.substr(0, 8));
    order.push_back(std::to_string(FileDialogs().size()) + " " + Stored().substr(0, 3));
  });
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  GetTeRuDestination();
  EXPECT_EQ(order, (Lines{"Das Ausg", "0 (ni", "Das TeRu", "1 C:\\"}));
}

TEST_F(AskUserTest, AnEmptyRegistryValueCountsAsMissing) {
  Installed("");
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
}

TEST_F(AskUserTest, ARegistryValueOfBlanksCountsAsMissing) {
  Installed("   ");
  PutFile(kProgram + "\\   \\Config\\Setup.cfg", "[TeRu Setup]\r\nTERUData=C:\\Daten\r\n");
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
  ExpectLog({"GetTeRuDestination (3. FolderSelect): C:\\Prog", "Ausgabeverzeichnis erstellt: C:\\Prog\\"});
}

TEST_F(AskUserTest, ARegistryValueOfAnotherTypeCountsAsMissing) {
  Registry()[kKey]["Teru"] = {platform::REG_EXPAND_SZ, std::string("C:\\TeRu\0", 8)};
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
  ExpectBoxes("C:\\Prog");
}

TEST_F(AskUserTest, AFileInTheRootOfADriveYieldsTheDrive) {
  PutFile("C:\\tarven.exe", "");
  AnswerFileDialog("C:\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:");
  EXPECT_EQ(Stored(), std::string("C:\0", 3));
}

TEST_F(AskUserTest, ACancelledDialogYieldsNothingAnEmptyValueAndBothBoxes) {
  EXPECT_EQ(GetTeRuDestination(), "");
  EXPECT_EQ(Stored(), std::string(1, '\0'));
  ExpectBoxes("");
  ExpectLog({"GetTeRuDestination (3. FolderSelect): ", "Ausgabeverzeichnis erstellt: \\"});
}

TEST_F(AskUserTest, BehindACancelledDialogTheNextCallAsksAgain) {
  GetTeRuDestination();
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_EQ(GetTeRuDestination(), "C:\\Prog");
  EXPECT_EQ(FileDialogs().size(), 2u);
  EXPECT_EQ(MessageBoxes().size(), 4u);
}

TEST_F(AskUserTest, ARegistryThatRefusesTheWriteStillYieldsTheDirectoryAndTheNextCallAsksAgain) {
  for (const char* operation : {"RegSetValueExA", "RegCreateKeyA"}) {
    Fail(operation);
    AnswerFileDialog("C:\\Prog\\tarven.exe");
    EXPECT_EQ(GetTeRuDestination(), "C:\\Prog") << operation;
    Fail(operation, 0);
  }
  EXPECT_EQ(FileDialogs().size(), 2u);
}

TEST_F(AskUserTest, AFaultGoesToTheLogAndYieldsNothing) {
  run.LastError = "vorher";
  WhileMessageBox([](const ShownBox&) { throw runtime::Fault(runtime::FaultNumber::DeviceError); });
  EXPECT_EQ(GetTeRuDestination(), "");
  ExpectLog({"Fehler in Funktion GetTeRuDestination:Ein-/Ausgabefehler"});
  EXPECT_EQ(run.LastError, "vorher");
  EXPECT_TRUE(FileDialogs().empty());
}

TEST_F(AskUserTest, ARunWaitsForTheAnswer) {
  AnswerFileDialog("C:\\Prog\\tarven.exe");
  EXPECT_TRUE(RunLines({"MSG=$TERUPATH"}));
  ExpectLog(Completed({"GetTeRuDestination (3. FolderSelect): C:\\Prog", "Ausgabeverzeichnis erstellt: C:\\Prog\\",
                       "Ausgabeverzeichnis erstellt: C:\\Prog\\Extern\\", "MSG: C:\\Prog\\Extern"}));
}

// The companions.

TEST_F(DiscoveryTest, TheExternPathIsMadeBelowTheDataDirectory) {
  EXPECT_EQ(GetTeRuExternPath(), "C:\\TeRu\\Extern");
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern"));
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu", "Ausgabeverzeichnis erstellt: C:\\TeRu\\",
             "Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\"});
}

TEST_F(AskUserTest, WithoutADataDirectoryTheExternPathLiesInTheRoot) { EXPECT_EQ(GetTeRuExternPath(), "\\Extern"); }

TEST_F(DiscoveryTest, TheFolderOfAFile) {
  EXPECT_EQ(GetFolderOfFile("C:\\Prog\\tarven.exe"), "C:\\Prog");
  EXPECT_EQ(GetFolderOfFile("C:\\tarven.exe"), "C:");
  EXPECT_EQ(GetFolderOfFile("C:tarven.exe"), "C:");
  EXPECT_EQ(GetFolderOfFile("C:/Prog/tarven.exe"), "C:/Prog/");
  EXPECT_EQ(GetFolderOfFile("C:\\Prog/tarven.exe"), "C:\\Prog/");
  EXPECT_EQ(GetFolderOfFile("C:\\Prog\\"), "C:\\Prog");
  EXPECT_EQ(GetFolderOfFile("C:\\Prog\\\\x"), "C:\\Prog\\");
  EXPECT_EQ(GetFolderOfFile("\\x"), "");
  EXPECT_EQ(GetFolderOfFile("tarven.exe"), "");
  EXPECT_EQ(GetFolderOfFile(""), "");
}

TEST_F(DiscoveryTest, TheTitlePath) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"Name /A/B/ rest", "\\A\\B"},
      {"Program - 0012 / 4711 / 2005 / Asset register", "\\ 4711 \\ 2005 "},
      {"ohne", ""},
      {"", ""},
      {"eins/zwei", ""},
      {"/", ""},
      {"//", "\\"},
      {"A/4711/x", "\\4711"},
      {"A/1/2/3/x", "\\1\\2\\3"},
      {"A/1/2/", "\\1\\2"},
      {"A/1\\2/x", "\\1\\2"},
  };
  for (const auto& [caption, path] : cases) {
    TargetWindow(caption);
    EXPECT_EQ(GetTitlePath(), path) << caption;
  }
}

TEST_F(DiscoveryTest, WithoutAWindowTheTitlePathIsEmpty) {
  frame.MainWindow = 0;
  EXPECT_EQ(GetTitlePath(), "");
  frame.MainWindow = 4711;
  EXPECT_EQ(GetTitlePath(), "");
}

}  // namespace
