// The export tree and the other path variables.
#include "environment/export_paths.h"

#include <algorithm>

#include "clients/state.h"
#include "engine/state.h"
#include "environment/temp_path.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

// What each look for the data directory logs.

class ExportPathsTest : public SystemTest {
 protected:
  ExportPathsTest() { StartProgram(); }
};

TEST_F(ExportPathsTest, FromTheConfirmedClientAndYear) {
  clients.ContextPath = "\\4711\\2003";
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\4711\\2003");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU");
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\2003\\"} + kDiscovery +
            Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU\\"});
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\2003"));
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU"));
}

TEST_F(ExportPathsTest, FromTheCaptionWithoutAConfirmation) {
  TargetWindow("TeRu/4711/2003/x");
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\4711\\2003");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU");
}

TEST_F(ExportPathsTest, TheConfirmationWinsOverTheCaption) {
  TargetWindow("TeRu/4711/2003/x");
  clients.ContextPath = "\\4712\\2004";
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\4712\\2004");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4712\\FIBU\\2004\\GDPDU");
}

TEST_F(ExportPathsTest, OnlyTheWholeTextIsTrimmed) {
  TargetWindow("Program - 0012 / 4711 / 2005 / Asset register");
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\ 4711 \\ 2005");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\ 4711 \\FIBU\\ 2005\\GDPDU");
  clients.ContextPath = "\\ 4711 \\ 2005 ";
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\ 4711 \\ 2005");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\ 4711 \\FIBU\\ 2005\\GDPDU");
}

TEST_F(ExportPathsTest, ABlankInFrontOfTheDataDirectoryStaysInTheAssetPathAlone) {
  InstallSuite(" C:\\TeRu");
  clients.ContextPath = "\\4711\\2003";
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\4711\\2003");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU");
  EXPECT_EQ(GetExportPath("FIBU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003");
  EXPECT_EQ(GetExportPath("ANL"), " C:\\TeRu\\Extern\\ANLTEMP");
}

TEST_F(ExportPathsTest, WithoutClientAndYearThePathIsTheBaseWithABackslash) {
  TargetWindow("TeRu");
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\");
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\"});
}

TEST_F(ExportPathsTest, WithoutClientOrYearTheGdpduPathIsEmptyAndTheRootIsMade) {
  for (const char* caption : {"TeRu", "TeRu/4711/x"}) {
    PutFile(kProgram + "\\QUMAEXP.LOG", "");
    TargetWindow(caption);
    EXPECT_EQ(GetExportPath("GDPDU"), "") << caption;
    ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: \\"});
    EXPECT_EQ(run.LastError, "");
  }
}

TEST_F(ExportPathsTest, AnEmptyConfirmationIsAConfirmation) {
  TargetWindow("TeRu/4711/2003/x");
  clients.ContextPath = "\\\\";
  // Two backslashes are a piece that becomes empty.
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\\\FIBU\\\\GDPDU");
}

TEST_F(ExportPathsTest, AModuleInLowerCaseCountsAsNone) {
  clients.ContextPath = "\\4711\\2003";
  EXPECT_EQ(GetExportPath("gdpdu"), "C:\\TeRu\\Extern\\4711\\2003");
  EXPECT_EQ(GetExportPath("GDPDU "), "C:\\TeRu\\Extern\\4711\\2003");
}

TEST_F(ExportPathsTest, ADirectoryThatCannotBeMadeIsNotNoticed) {
  clients.ContextPath = "\\4711\\2003";
  Fail("MakeSureDirectoryPathExists");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU");
  ExpectLog({"GetTeRuDestination (2. RegValue): C:\\TeRu"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ExportPathsTest, WithoutADataDirectoryThePathsBeginWithABackslash) {
  Registry().clear();
  clients.ContextPath = "\\4711\\2003";
  EXPECT_EQ(GetExportPath(""), "\\Extern\\4711\\2003");
  EXPECT_TRUE(platform::FolderExists("C:\\Extern\\4711\\2003"));
}

TEST_F(ExportPathsTest, EachUseComputesAnew) {
  TargetWindow("TeRu/4711/2003/x");
  EXPECT_TRUE(RunLines({"MSG=$PATH", "MSG=$GDPDUPATH"}));
  ExpectLog(kDiscovery +
            Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\2003\\", "MSG: C:\\TeRu\\Extern\\4711\\2003"} +
            kDiscovery +
            Completed({"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU\\",
                       "MSG: C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU"}));
}

TEST_F(ExportPathsTest, ALineOfASkippedBranchMakesTheDirectoryToo) {
  TargetWindow("TeRu/4711/2003/x");
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b", "MSG=$PATH", "ENDIF"}));
  ExpectLog(Lines{"STRCOMP: a, b = False"} + kDiscovery +
            Completed({"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\2003\\"}));
}

TEST_F(ExportPathsTest, TheFibuPathIsFromTheConfirmedClientAndYear) {
  clients.ContextPath = "\\4711\\2003";
  EXPECT_EQ(GetExportPath("FIBU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003");
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\FIBU\\2003"));
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\FIBU\\2003\\"});
}

TEST_F(ExportPathsTest, WithoutAConfirmationTheFibuPathIsEmptyThoughTheCaptionWouldDo) {
  TargetWindow("TeRu/4711/2003/x");
  EXPECT_EQ(GetExportPath("FIBU"), "");
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: \\"});
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(GetMandantPath("FIBU"), "");
  EXPECT_EQ(GetExportPath("GDPDU"), "C:\\TeRu\\Extern\\4711\\FIBU\\2003\\GDPDU");
}

TEST_F(ExportPathsTest, AConfirmationWithoutAYearGivesNoFibuPath) {
  clients.ContextPath = "\\4711";
  EXPECT_EQ(GetExportPath("FIBU"), "");
  EXPECT_EQ(GetExportPath("GDPDU"), "");
  EXPECT_EQ(GetExportPath(""), "C:\\TeRu\\Extern\\4711");
}

TEST_F(ExportPathsTest, TheAssetPathIsNamedAfterTheClientOfTheCaption) {
  TargetWindow("Program - 0012 / 4711 / 2005 / Asset register");
  clients.ContextPath = "\\4712\\2004";
  EXPECT_EQ(GetAnlTempName(), "ANLTEMP4711");
  EXPECT_EQ(GetExportPath("ANL"), "C:\\TeRu\\Extern\\ANLTEMP4711");
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\ANLTEMP4711"));
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\ANLTEMP4711\\"});
}

TEST_F(ExportPathsTest, WithoutAClientInTheCaptionTheAssetPathHasNone) {
  clients.ContextPath = "\\4711\\2003";
  for (const char* caption : {"TeRu", "", "TeRu/4711", "TeRu/4711/2003"}) {
    TargetWindow(caption);
    EXPECT_EQ(GetExportPath("ANL"), "C:\\TeRu\\Extern\\ANLTEMP") << caption;
  }
  TargetWindow("TeRu//2003/x");
  EXPECT_EQ(GetAnlTempName(), "ANLTEMP") << "an empty client";
}

TEST_F(ExportPathsTest, AllPathVariables) {
  TargetWindow("TeRu/4711/2003/x");
  clients.ContextPath = "\\4711\\2003";
  SetEnvironmentVariable("temp", "C:\\Temp");
  EXPECT_TRUE(RunLines({"DIM a", "a=VALUE('$FIBUPATH,$ANLPATH,$TEMP,$MANDANTPATH,$FIBUMANDANTPATH')"}));
  const Lines lines = Log();
  EXPECT_EQ(lines.at(lines.size() - 3),
            "Variable wurde befüllt: C:\\TeRu\\Extern\\4711\\FIBU\\2003,C:\\TeRu\\Extern\\ANLTEMP4711,C:\\Temp,,");
}

// "$MANDANTPATH" and "$FIBUMANDANTPATH".

class MandantPathTest : public ExportPathsTest {
 protected:
  MandantPathTest() { clients.ContextPath = "\\4711\\2003"; }

  static constexpr const char* kFile = "C:\\TeRu\\Extern\\4711\\2003\\Mandanten.txt";

  // A record of so many fields, the last of them as given.
  static std::string Record(int fields, const std::string& last) {
    return std::string(static_cast<std::size_t>(fields) - 1, ';') + last;
  }

  static bool IsFreeToDelete(const std::string& path) {
    try {
      platform::DeleteFileW(path);
      return true;
    } catch (const runtime::Fault&) {
      return false;
    }
  }
};

TEST_F(MandantPathTest, Field17OfTheSecondLineTakesThePlaceOfTheYear) {
  PutFile(kFile, "Überschrift" + Record(18, "falsch") + "\r\n" + Record(18, "Mandant Ä") + ";mehr\r\nnoch eine\r\n");
  EXPECT_EQ(GetMandantPath(""), "C:\\TeRu\\Extern\\4711\\Mandant Ä");
  ExpectLog(kDiscovery + Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\2003\\"});
  EXPECT_TRUE(IsFreeToDelete(kFile));
}

TEST_F(MandantPathTest, TheModuleChoosesThePath) {
  PutFile("C:\\TeRu\\Extern\\4711\\FIBU\\2003\\Mandanten.txt", "x\r\n" + Record(18, "0815"));
  EXPECT_EQ(GetMandantPath("FIBU"), "C:\\TeRu\\Extern\\4711\\FIBU\\0815");
  EXPECT_EQ(GetMandantPath(""), "");
}

TEST_F(MandantPathTest, OfAFileWithOneLineThatLineIsUsed) {
  for (const char* end : {"", "\r\n"}) {
    PutFile(kFile, Record(18, "eins") + end);
    EXPECT_EQ(GetMandantPath(""), "C:\\TeRu\\Extern\\4711\\eins");
  }
}

TEST_F(MandantPathTest, AnEmptyField17GivesAnEmptyPathAndClosesTheFile) {
  PutFile(kFile, "x\r\n" + Record(19, "danach"));
  EXPECT_EQ(GetMandantPath(""), "");
  EXPECT_TRUE(IsFreeToDelete(kFile));
}

TEST_F(MandantPathTest, FewerThan18FieldsGiveAnEmptyPathAndLeaveTheFileOpen) {
  int year = 2003;
  for (const std::string& text : {"x\r\n" + Record(17, "siebzehn"), Record(18, "eins") + "\r\n\r\n", std::string()}) {
    clients.ContextPath = "\\4711\\" + std::to_string(++year);
    const std::string file = "C:\\TeRu\\Extern" + clients.ContextPath + "\\Mandanten.txt";
    PutFile(file, text);
    EXPECT_EQ(GetMandantPath(""), "") << text;
    EXPECT_FALSE(IsFreeToDelete(file)) << text;
  }
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MandantPathTest, AMissingFileOrFolderGivesAnEmptyPath) {
  EXPECT_EQ(GetMandantPath(""), "");
  Fail("MakeSureDirectoryPathExists");
  clients.ContextPath = "\\4712\\2003";
  EXPECT_EQ(GetMandantPath(""), "");
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MandantPathTest, AReadThatFailsGivesAnEmptyPath) {
  PutFile(kFile, "x\r\n" + Record(18, "0815"));
  Fail("ReadFile", 1);
  EXPECT_EQ(GetMandantPath(""), "");
}

TEST_F(MandantPathTest, ACloseThatFailsIsNotNoticed) {
  PutFile(kFile, "x\r\n" + Record(18, "0815"));
  Fail("CloseFile", 1);
  EXPECT_EQ(GetMandantPath(""), "C:\\TeRu\\Extern\\4711\\0815");
}

TEST_F(MandantPathTest, APathOfLessThanFourCharactersGivesAnEmptyPath) {
  // Without client and year the path of the module is empty, and the file is that of the drive's root.
  clients.ContextPath = "\\4711";
  PutFile("C:\\Mandanten.txt", Record(18, "0815"));
  EXPECT_EQ(GetMandantPath("FIBU"), "");
}

TEST_F(MandantPathTest, TheYearIsWhateverTheLastFourCharactersAre) {
  clients.ContextPath = "\\4711\\5";
  PutFile("C:\\TeRu\\Extern\\4711\\5\\Mandanten.txt", Record(18, "0815"));
  EXPECT_EQ(GetMandantPath(""), "C:\\TeRu\\Extern\\470815");
}

TEST_F(MandantPathTest, BothVariables) {
  PutFile(kFile, Record(18, "a"));
  PutFile("C:\\TeRu\\Extern\\4711\\FIBU\\2003\\Mandanten.txt", Record(18, "b"));
  EXPECT_TRUE(RunLines({"MSG=$MANDANTPATH", "MSG=$FIBUMANDANTPATH"}));
  const Lines lines = Log();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "MSG: C:\\TeRu\\Extern\\4711\\a"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "MSG: C:\\TeRu\\Extern\\4711\\FIBU\\b"), 1);
}

// "$TEMP".

class TempTest : public SystemTest {};

TEST_F(TempTest, IsTheVariableTempAsItIs) {
  SetEnvironmentVariable("temp", "Q:\\gibt es nicht\\");
  EXPECT_EQ(GetTemp(), "Q:\\gibt es nicht\\");
  EXPECT_TRUE(RunLines({"MSG=$TEMP"}));
  ExpectLog(Completed({"MSG: Q:\\gibt es nicht\\"}));
}

TEST_F(TempTest, IsTheVariableTmpWithoutTemp) {
  SetEnvironmentVariable("temp", "");
  SetEnvironmentVariable("tmp", "D:\\tmp");
  EXPECT_EQ(GetTemp(), "D:\\tmp");
  SetEnvironmentVariable("tmp", "");
  EXPECT_EQ(GetTemp(), "");
}

TEST_F(TempTest, ATildeIsExpanded) {
  PutFile("C:\\Dokumente und Einstellungen\\Müller\\Lokale Einstellungen\\Temp\\x", "");
  SetEnvironmentVariable("temp", "C:\\DOKUME~1\\Müller\\LOKALE~1\\Temp");
  EXPECT_EQ(GetTemp(), "C:\\Dokumente und Einstellungen\\Müller\\Lokale Einstellungen\\Temp");
}

TEST_F(TempTest, ATildeThatLeadsNowhereStays) {
  SetEnvironmentVariable("temp", "C:\\FEHLT~1\\Temp");
  EXPECT_EQ(GetTemp(), "C:\\FEHLT~1\\Temp");
  EXPECT_TRUE(Log().empty());
}

TEST_F(TempTest, ALongPathBeyondTheBufferStaysShort) {
  for (const std::string& name : {std::string(115, 'y'), std::string(116, 'z')}) {
    const std::string folder = "C:\\" + std::string(120, 'x') + "\\" + name + "\\ein langer Name";
    PutFile(folder + "\\a", "");
    SetEnvironmentVariable("temp", ShortPath(folder));
    EXPECT_EQ(GetTemp(), folder.size() == 255 ? folder : ShortPath(folder)) << folder.size();
  }
}

TEST_F(TempTest, WhereTheSystemCannotExpandTheFaultIsLogged) {
  SetVersion(platform::VER_PLATFORM_WIN32_NT, 4, 0);
  SetEnvironmentVariable("temp", "C:\\DOKUME~1\\Temp");
  EXPECT_EQ(GetTemp(), "C:\\DOKUME~1\\Temp");
  ExpectLog({"GetTemp: Angegebene DLL-Funktion nicht gefunden"});
  EXPECT_EQ(run.LastError, "");
}

}  // namespace
