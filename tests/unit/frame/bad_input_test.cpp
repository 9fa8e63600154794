// A press of the hot key over whatever users and machines come up with: nothing crashes, nothing is lost.
#include "clients/frmInputbox.h"
#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

const std::string kSettings = kProgram + "\\QUMAEXP.INI";

class BadInputTest : public SystemTest {
 protected:
  BadInputTest() {
    StartProgram();
    Macro("A.MAK", {"MSG=A"});
  }

  void ExpectMacroMissing() {
    ASSERT_EQ(MessageBoxes().size(), 1u);
    EXPECT_EQ(MessageBoxes()[0].text, "Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet.");
    EXPECT_TRUE(HotKeyRegistered(1, 123));
    EXPECT_EQ(ShownIcon(), kIdle);
  }
};

// Settings.

TEST_F(BadInputTest, NoSettingsFile) {
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_FALSE(platform::FileExists(kSettings));
}

TEST_F(BadInputTest, ASettingsFileWithoutItsSections) {
  for (const char* text : {"", "\r\n\r\n", "Makro1=TeRu,A.MAK\r\n", "[Allgemein]\r\nMakro1=TeRu,A.MAK\r\n",
                           "[Makro\r\nMakro1=TeRu,A.MAK\r\n", "\x01\x02\xFF\xFE\r\n[\r\n]\r\n=\r\n"}) {
    PutFile(kSettings, text);
    TargetWindow("TeRu/4711/2005/x");
    PressHotKey();
    EXPECT_EQ(frame.MakroFile, "") << text;
  }
  EXPECT_EQ(MessageBoxes().size(), 6u);
}

TEST_F(BadInputTest, AFolderInThePlaceOfTheSettings) {
  PutFile(kSettings + "\\x", "");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
}

TEST_F(BadInputTest, SettingsThatCannotBeReadAtThePress) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  Fail("GetPrivateProfileStringA");
  PressHotKey();
  ExpectMacroMissing();
}

TEST_F(BadInputTest, AnEntryOf5000CharactersIsCutAndTheNextOneIsRead) {
  MacroEntry(1, std::string(5000, 'x') + ",B.MAK");
  MacroEntry(2, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("A.MAK") + Completed({"MSG: A"}));
}

TEST_F(BadInputTest, AMacroNameOf5000CharactersIsAMissingFile) {
  MacroEntry(1, "TeRu," + std::string(5000, 'x'));
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_EQ(frame.MakroFile, std::string(4090, 'x'));
}

TEST_F(BadInputTest, AListOfFilesOf5000Characters) {
  std::string files;
  while (files.size() < 5000) files += "15,";
  Setting("Makro-Fibu", "Files", files);
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  // Cut to 4,095 characters, the list ends in a comma, and the empty element behind it is no number.
  forms::simulated::WhenModal([](forms::Form&) { forms::simulated::Press(frmInputbox.cmdCancel); });
  PressHotKey();
  ExpectLog(Header("A.MAK"));
}

TEST_F(BadInputTest, NamesOfMacrosThatTheSystemRefuses) {
  for (const char* macro : {"A?.MAK", "<A>.MAK", "A|B.MAK", "Q:\\A.MAK", "..\\..\\..\\A.MAK", "NUL:"}) {
    MacroEntry(1, std::string("TeRu,") + macro);
    const std::size_t boxes = MessageBoxes().size();
    TargetWindow("TeRu");
    PressHotKey();
    EXPECT_EQ(MessageBoxes().size(), boxes + 1) << macro;
  }
  EXPECT_TRUE(Log().empty());
}

TEST_F(BadInputTest, AnEntryOfQuotesAndCommasAlone) {
  MacroEntry(1, "',','");
  MacroEntry(2, "TeRu,A.MAK");
  // The quotes are removed first, so the fragment is empty and fits, and there is no macro.
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
}

// Macro files.

TEST_F(BadInputTest, AnEmptyMacro) {
  MacroEntry(1, "TeRu,LEER.MAK");
  PutFile(kProgram + "\\LEER.MAK", "");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("LEER.MAK") + Completed({}));
}

TEST_F(BadInputTest, AMacroOfBytesThatAreNoText) {
  MacroEntry(1, "TeRu,B.MAK");
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  PutFile(kProgram + "\\B.MAK", bytes);
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_TRUE(run.RunFailed);
  EXPECT_TRUE(run.LastError.starts_with("Unknown Command: "));
  EXPECT_EQ(ShownIcon(), kFailed);
}

// Captions.

TEST_F(BadInputTest, CaptionsOfAnyKindFitByTheirFragment) {
  MacroEntry(1, "Ru,A.MAK");
  Lines expected;
  for (const std::string& caption :
       {std::string("Te\"Ru\" = a, 'b' $DATE %1"), "TeRu/" + std::string(250, 'x') + "/2005/y",
        std::string(5000, '/') + "Ru", std::string("Ru\x01\xFF\t")}) {
    TargetWindow(caption);
    PressHotKey();
    expected = expected + Header("A.MAK") + Completed({"MSG: A"});
    ExpectLog(expected);
  }
}

// Client and year, out of the caption through the dialog into the paths.

class BadClientTest : public BadInputTest {
 protected:
  BadClientTest() { MacroEntry(1, "TeRu,QUMAFIBU.MAK"); }

  // The lines behind the confirmation of one press with this client and the year 2005.
  Lines RunWith(const std::string& client, const Lines& macro) {
    Macro("QUMAFIBU.MAK", macro);
    PutFile(kProgram + "\\QUMAEXP.LOG", "");
    TargetWindow("TeRu - 1/" + client + "/2005/x");
    PressHotKey();
    EXPECT_EQ(clients.ContextPath, "\\" + client + "\\2005");
    const Lines before = Header("QUMAFIBU.MAK") + Lines{"Mandant: " + client, "Wirtschaftsjahr: 2005", ""};
    const Lines lines = Log();
    EXPECT_GE(lines.size(), before.size());
    if (lines.size() < before.size()) return {};
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(before.size())), before);
    return {lines.begin() + static_cast<std::ptrdiff_t>(before.size()), lines.end()};
  }

  static std::string Made(const std::string& path) { return "Ausgabeverzeichnis erstellt: " + path + "\\"; }
};

TEST_F(BadClientTest, DoubleQuotesStayInThePathThatCannotBeMade) {
  EXPECT_EQ(RunWith("A \"B\" C", {"MSG=\"$PATH\""}),
            kDiscovery + Completed({"MSG: C:\\TeRu\\Extern\\A \"B\" C\\2005"}));
}

TEST_F(BadClientTest, AnEqualsSignCutsTheArgument) {
  EXPECT_EQ(RunWith("A=B", {"MSG=$PATH"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\A=B\\2005"), "MSG: C:\\TeRu\\Extern\\A"}));
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\A=B\\2005"));
}

TEST_F(BadClientTest, ACommaSpreadsOverTwoArgumentsUnlessQuoted) {
  EXPECT_EQ(RunWith("A,B", {"MSG=$PATH"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\A,B\\2005"), "MSG: C:\\TeRu\\Extern\\A"}));
  EXPECT_EQ(RunWith("A,B", {"MSG='$PATH'"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\A,B\\2005"), "MSG: C:\\TeRu\\Extern\\A,B\\2005"}));
}

TEST_F(BadClientTest, ASingleQuoteStaysOpenAndLeavesNoArgument) {
  EXPECT_EQ(RunWith("O'Neil", {"MSG=$PATH"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\O'Neil\\2005"), "MSG: "}));
}

TEST_F(BadClientTest, ALaterVariableInTheNameIsReplacedInTheLineButNotInTheDirectory) {
  EXPECT_EQ(RunWith("$DATE", {"MSG=$PATH"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\$DATE\\2005"), "MSG: C:\\TeRu\\Extern\\14.03.2006\\2005"}));
}

TEST_F(BadClientTest, TheVariableItselfInTheNameStays) {
  EXPECT_EQ(RunWith("$PATH", {"MSG=$PATH"}),
            kDiscovery + Completed({Made("C:\\TeRu\\Extern\\$PATH\\2005"), "MSG: C:\\TeRu\\Extern\\$PATH\\2005"}));
}

TEST_F(BadClientTest, A250CharactersLongNameMakesAPathThatCannotBeMade) {
  const std::string client(250, 'x');
  EXPECT_EQ(RunWith(client, {"MSG=$PATH", "MSG=$GDPDUPATH"}),
            kDiscovery + Lines{"MSG: C:\\TeRu\\Extern\\" + client + "\\2005"} + kDiscovery +
                Completed({"MSG: C:\\TeRu\\Extern\\" + client + "\\FIBU\\2005\\GDPDU"}));
}

TEST_F(BadClientTest, CharactersThatTheSystemRefusesInNamesMakeAPathThatCannotBeMade) {
  for (const std::string client : {"A?B", "A*B", "A:B", "A<B", "A>B", "A|B", "A\tB"})
    EXPECT_EQ(RunWith(client, {"MSG=$GDPDUPATH"}),
              kDiscovery + Completed({"MSG: C:\\TeRu\\Extern\\" + client + "\\FIBU\\2005\\GDPDU"}))
        << client;
}

TEST_F(BadClientTest, ADirectoryThatCannotBeMadeShowsUpWhenAFileInItIsUsed) {
  EXPECT_EQ(RunWith("A?B", {"CREATEPROTOCOL=$PATH\\x.txt", "MSG=nie"}),
            kDiscovery + Lines{"Fehler in Funktion CreateProtocol:Falscher Dateiname"});
  EXPECT_EQ(ShownIcon(), kFailed);
}

TEST_F(BadClientTest, ADiskThatTakesNothingMoreShowsUpAlike) {
  Fail("MakeSureDirectoryPathExists");
  EXPECT_EQ(RunWith("4711", {"CREATEPROTOCOL=$PATH\\x.txt", "MSG=nie"}),
            (Lines{kDiscovery[0], "Fehler in Funktion CreateProtocol:Pfad nicht gefunden"}));
}

// The log.

TEST_F(BadInputTest, ALogThatFailsInTheMiddleOfARunLosesItsLinesOnly) {
  MacroEntry(1, "TeRu,B.MAK");
  Macro("B.MAK", {"MSG=1", "WAIT=100", "MSG=2", "WAIT=100", "MSG=3"});
  Schedule(50, [] { Fail("WriteFile"); });
  Schedule(150, [] { Fail("WriteFile", 0); });
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("B.MAK") + Completed({"MSG: 1", "MSG: 3"}));
}

}  // namespace
