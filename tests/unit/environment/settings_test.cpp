// Reading and writing section files.
#include "environment/settings.h"

#include "engine/state.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basAPI;
using namespace platform::simulated;
using namespace support;

const std::string kFile = "C:\\x\\test.cfg";

class SettingsTest : public SystemTest {
 protected:
  std::string Read(const std::string& section, const std::string& key, const std::string& otherwise = "sonst") {
    return ReadIniString(kFile, section, key, otherwise);
  }
};

TEST_F(SettingsTest, AMissingFileYieldsTheDefault) {
  EXPECT_EQ(Read("A", "k"), "sonst");
  EXPECT_EQ(Read("A", "k", ""), "");
}

TEST_F(SettingsTest, AMissingSectionOrKeyYieldsTheDefault) {
  PutFile(kFile, "[A]\r\nk=1\r\n");
  EXPECT_EQ(Read("B", "k"), "sonst");
  EXPECT_EQ(Read("A", "l"), "sonst");
}

TEST_F(SettingsTest, AnUnreadableFileYieldsTheDefault) {
  PutFile(kFile, "[A]\r\nk=1\r\n");
  Fail("GetPrivateProfileStringA", 1);
  EXPECT_EQ(Read("A", "k"), "sonst");
  EXPECT_EQ(Read("A", "k"), "1");
}

TEST_F(SettingsTest, AFolderInThePlaceOfTheFileYieldsTheDefault) {
  PutFile(kFile + "\\x", "");
  EXPECT_EQ(Read("A", "k"), "sonst");
}

TEST_F(SettingsTest, AnEmptyValueIsNoMissingOne) {
  PutFile(kFile, "[A]\r\nk=\r\n");
  EXPECT_EQ(Read("A", "k"), "");
}

TEST_F(SettingsTest, SectionAndKeyAreMatchedWithoutCase) {
  PutFile(kFile, "[Über]\r\nMatrixWährung=20\r\n");
  EXPECT_EQ(Read("ÜBER", "MATRIXWÄHRUNG"), "20");
  EXPECT_EQ(Read("über", "matrixwährung"), "20");
}

TEST_F(SettingsTest, BlanksAroundAndOnePairOfQuotesAreRemoved) {
  PutFile(kFile, "[A]\r\na=  x y  \r\nb=\"  x  \"\r\nc='x'\r\nd=\"\"x\"\"\r\ne=\"x\r\n");
  EXPECT_EQ(Read("A", "a"), "x y");
  EXPECT_EQ(Read("A", "b"), "  x  ");
  EXPECT_EQ(Read("A", "c"), "x");
  EXPECT_EQ(Read("A", "d"), "\"x\"");
  EXPECT_EQ(Read("A", "e"), "\"x");
}

TEST_F(SettingsTest, AValueMayHoldAnEqualsSign) {
  PutFile(kFile, "[A]\r\nk=a=b=c\r\n");
  EXPECT_EQ(Read("A", "k"), "a=b=c");
}

TEST_F(SettingsTest, AValueOf4095CharactersIsReadWhole) {
  const std::string value(4095, 'x');
  PutFile(kFile, "[A]\r\nk=" + value + "\r\n");
  EXPECT_EQ(Read("A", "k"), value);
}

TEST_F(SettingsTest, AValueOf4096CharactersOrMoreYields4095) {
  for (const std::size_t length : {4096u, 5000u, 70000u}) {
    PutFile(kFile, "[A]\r\nk=" + std::string(length, 'x') + "\r\n");
    EXPECT_EQ(Read("A", "k"), std::string(4095, 'x')) << length;
  }
}

TEST_F(SettingsTest, ADefaultIsCutAlike) { EXPECT_EQ(Read("A", "k", std::string(5000, 'x')), std::string(4095, 'x')); }

TEST_F(SettingsTest, AChangeTakesEffectAtOnce) {
  PutFile(kFile, "[A]\r\nk=1\r\n");
  EXPECT_EQ(Read("A", "k"), "1");
  PutFile(kFile, "[A]\r\nk=2\r\n");
  EXPECT_EQ(Read("A", "k"), "2");
}

TEST_F(SettingsTest, WritingMakesFileSectionAndKey) {
  PutFile("C:\\x\\anderes", "");
  EXPECT_NE(WriteIniString(kFile, "Mandantendaten", "1WJ IAS/IFRS", "1"), 0);
  EXPECT_NE(WriteIniString(kFile, "Mandantendaten", "Nummer", "4711"), 0);
  EXPECT_EQ(Read("Mandantendaten", "1WJ IAS/IFRS"), "1");
  EXPECT_EQ(Read("Mandantendaten", "Nummer"), "4711");
}

TEST_F(SettingsTest, WritingReplacesAValueAndKeepsTheOthers) {
  PutFile(kFile, "[A]\r\nk=1\r\nl=2\r\n[B]\r\nk=3\r\n");
  EXPECT_NE(WriteIniString(kFile, "a", "K", "9"), 0);
  EXPECT_EQ(Read("A", "k"), "9");
  EXPECT_EQ(Read("A", "l"), "2");
  EXPECT_EQ(Read("B", "k"), "3");
}

TEST_F(SettingsTest, AWriteThatIsRefusedYields0AndChangesNothing) {
  PutFile(kFile, "[A]\r\nk=1\r\n");
  Fail("WritePrivateProfileStringA", 1);
  EXPECT_EQ(WriteIniString(kFile, "A", "k", "2"), 0);
  EXPECT_EQ(WriteIniString("C:\\fehlt\\test.cfg", "A", "k", "2"), 0);
  EXPECT_EQ(Read("A", "k"), "1");
  EXPECT_EQ(basMain::run.LastError, "");
  EXPECT_TRUE(Log().empty());
}

// "READINI".

TEST_F(SettingsTest, ReadIniReadsTheProgramsSettingsAndLogsTheValue) {
  Setting("MERLA", "Version", "280");
  EXPECT_EQ(ReadINI("MERLA", "Version"), "280");
  EXPECT_EQ(ReadINI("merla", "VERSION"), "280");
  ExpectLog({"ReadINI=280", "ReadINI=280"});
}

TEST_F(SettingsTest, ReadIniOfAMissingKeyIsEmpty) {
  EXPECT_EQ(ReadINI("MERLA", "Version"), "");
  ExpectLog({"ReadINI="});
}

TEST_F(SettingsTest, ReadIniCuts) {
  Setting("A", "k", std::string(5000, 'x'));
  EXPECT_EQ(ReadINI("A", "k"), std::string(4095, 'x'));
  ExpectLog({"ReadINI=" + std::string(4095, 'x')});
}

TEST_F(SettingsTest, TheProgramNeverWritesItsOwnSettings) {
  RunLines({"DIM x", "x=READINI(A,k)", "MSG=x"});
  EXPECT_FALSE(platform::FileExists(SettingsFile()));
}

// "IF GDPDU".

using basMain::IsGdpduMode;

class GdpduModeTest : public SystemTest {};

TEST_F(GdpduModeTest, WithoutTheKeyItIs0) {
  EXPECT_FALSE(IsGdpduMode("1"));
  EXPECT_TRUE(IsGdpduMode("0"));
  EXPECT_FALSE(IsGdpduMode(""));
}

TEST_F(GdpduModeTest, TheComparisonIsExact) {
  Setting("Allgemein", "GDPDU", "1");
  EXPECT_TRUE(IsGdpduMode("1"));
  EXPECT_FALSE(IsGdpduMode("0"));
  EXPECT_FALSE(IsGdpduMode("01"));
  EXPECT_FALSE(IsGdpduMode("1 "));
  Setting("Allgemein", "GDPDU", "Ja");
  EXPECT_TRUE(IsGdpduMode("Ja"));
  EXPECT_FALSE(IsGdpduMode("JA"));
}

TEST_F(GdpduModeTest, AnEmptyKeyIsEmpty) {
  Setting("Allgemein", "GDPDU", "");
  EXPECT_TRUE(IsGdpduMode(""));
  EXPECT_FALSE(IsGdpduMode("0"));
}

TEST_F(GdpduModeTest, ItLogsNothing) {
  IsGdpduMode("0");
  EXPECT_TRUE(Log().empty());
}

}  // namespace
