#include "platform/settings.h"

#include "fixture.h"
#include "platform/files.h"

namespace {

class SectionFile : public contract::Test {
 protected:
  std::string File() { return contract::ScratchFolder() + "\\Test.ini"; }

  void Write(const std::string& text) { contract::WriteWhole(File(), text); }

  std::string Read(const std::string& section, const std::string& key, const std::string& otherwise = "",
                   std::uint32_t size = 4096) {
    std::string value;
    const auto length = platform::GetPrivateProfileStringA(section, key, otherwise, value, size, File());
    EXPECT_EQ(length, value.size());
    return value;
  }

  bool Set(const std::string& section, const std::string& key, const std::string& value) {
    return platform::WritePrivateProfileStringA(section, key, value, File()) != 0;
  }
};

TEST_F(SectionFile, ValueOfAKeyInItsSection) {
  Write("[Eins]\r\nKey=a\r\n[Zwei]\r\nKey=b\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "a");
  EXPECT_EQ(Read("Zwei", "Key"), "b");
}

TEST_F(SectionFile, DefaultWhereSomethingIsMissing) {
  EXPECT_EQ(Read("Eins", "Key", "ohne Datei"), "ohne Datei");
  Write("[Eins]\r\nKey=\r\n");
  EXPECT_EQ(Read("Zwei", "Key", "ohne Abschnitt"), "ohne Abschnitt");
  EXPECT_EQ(Read("Eins", "Anderer", "ohne Schlüssel"), "ohne Schlüssel");
  EXPECT_EQ(Read("Eins", "Key", "Vorgabe"), "") << "an empty value is a value";
}

TEST_F(SectionFile, BlanksAtTheEndOfADefaultAreDropped) { EXPECT_EQ(Read("Eins", "Key", " a b  "), " a b"); }

TEST_F(SectionFile, SectionsAndKeysAreMatchedWithoutCase) {
  Write("[Makro-Fibu]\r\nMatrixWährung=20;ThunderRT6ComboBox\r\n");
  EXPECT_EQ(Read("MAKRO-FIBU", "matrixWäHRUNG"), "20;ThunderRT6ComboBox");
}

TEST_F(SectionFile, BlanksAroundKeyAndValueAreRemoved) {
  Write("[Eins]\r\n  Key  =  a b \t \r\n");
  EXPECT_EQ(Read("Eins", "Key"), "a b");
}

TEST_F(SectionFile, OnePairOfQuotesIsRemoved) {
  Write("[Eins]\r\nDoppelt=\" a \"\r\nEinfach='b'\r\nZweimal=\"\"c\"\"\r\nHalb=\"d\r\nInnen=e\"f\"g\r\n");
  EXPECT_EQ(Read("Eins", "Doppelt"), " a ");
  EXPECT_EQ(Read("Eins", "Einfach"), "b");
  EXPECT_EQ(Read("Eins", "Zweimal"), "\"c\"");
  EXPECT_EQ(Read("Eins", "Halb"), "\"d");
  EXPECT_EQ(Read("Eins", "Innen"), "e\"f\"g");
}

TEST_F(SectionFile, QuotedFieldsOfAMacroEntry) {
  Write("[Makro]\r\nMakro1='FIBU','QUMAFIBU.MAK'\r\n");
  EXPECT_EQ(Read("Makro", "Makro1"), "FIBU','QUMAFIBU.MAK");
}

TEST_F(SectionFile, CommentLinesAreNoKeys) {
  Write("[Eins]\r\n;Key=a\r\nKey=b;c\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "b;c");
}

TEST_F(SectionFile, KeyThatBeginsWithASemicolonIsReadByThatName) {
  Write("[Eins]\r\n;Key=a\r\n; Zweiter=b\r\n");
  EXPECT_EQ(Read("Eins", ";Key"), "a");
  EXPECT_EQ(Read("Eins", "; Zweiter"), "b");
  EXPECT_EQ(Read("Eins", ";Zweiter", "keiner"), "keiner");
  EXPECT_EQ(Read("Eins", "Zweiter", "keiner"), "keiner");
  EXPECT_TRUE(Set("Eins", ";Key", "neu"));
  EXPECT_EQ(Read("Eins", ";Key"), "neu");
  EXPECT_EQ(contract::ReadWhole(File()).find("=a"), std::string::npos) << "the line itself is changed";
}

TEST_F(SectionFile, BlanksAroundNamesDoNotCount) {
  Write("[ Eins ]\r\nKey=a\r\n  [Zwei\t]  \r\n Key =b\r\n");
  for (const char* section : {"Eins", " Eins ", "eins "}) EXPECT_EQ(Read(section, "Key"), "a") << section;
  EXPECT_EQ(Read("Zwei", " Key "), "b");
  EXPECT_EQ(Read("Ei ns", "Key", "keiner"), "keiner");
  EXPECT_TRUE(Set(" Zwei ", " Key ", "c"));
  EXPECT_EQ(Read("Zwei", "Key"), "c");
  EXPECT_EQ(contract::ReadWhole(File()).find("b"), std::string::npos) << "the line itself is changed";
}

TEST_F(SectionFile, SectionsNameReachesToTheLastBracket) {
  Write("[a]b]\r\nKey=1\r\n[c] d\r\nKey=2\r\n[e\r\nLetzter=3\r\n");
  EXPECT_EQ(Read("a]b", "Key"), "1");
  EXPECT_EQ(Read("a", "Key", "keiner"), "keiner");
  EXPECT_EQ(Read("c", "Key"), "2");
  EXPECT_EQ(Read("c", "Letzter"), "3") << "a line without the second bracket opens nothing";
}

TEST_F(SectionFile, FirstOfEqualKeysAndSectionsCounts) {
  Write("[Eins]\r\nKey=a\r\nKey=b\r\n[Eins]\r\nKey=c\r\nZweiter=d\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "a");
  EXPECT_EQ(Read("Eins", "Zweiter", "keiner"), "keiner");
}

TEST_F(SectionFile, ValueHoldsEqualSigns) {
  Write("[Eins]\r\nKey=a=b\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "a=b");
}

TEST_F(SectionFile, LastLineWithoutALineEndAndBareLineFeeds) {
  Write("[Eins]\nKey=a\nLetzter=b");
  EXPECT_EQ(Read("Eins", "Key"), "a");
  EXPECT_EQ(Read("Eins", "Letzter"), "b");
}

TEST_F(SectionFile, LongValueIsCutToTheBuffer) {
  Write("[Eins]\r\nKey=" + std::string(5000, 'x') + "\r\nPasst=" + std::string(4095, 'y') + "\r\n");
  EXPECT_EQ(Read("Eins", "Key"), std::string(4095, 'x'));
  EXPECT_EQ(Read("Eins", "Passt"), std::string(4095, 'y'));
  EXPECT_EQ(Read("Eins", "Key", "", 4), "xxx");
  EXPECT_EQ(Read("Eins", "Fehlt", "Vorgabe", 4), "Vor");
}

TEST_F(SectionFile, WritingMakesTheFile) {
  EXPECT_TRUE(Set("ANL", "Optionen GWGinAuswertungen", "1"));
  EXPECT_TRUE(platform::FileExists(File()));
  EXPECT_EQ(Read("ANL", "Optionen GWGinAuswertungen"), "1");
}

TEST_F(SectionFile, WritingReplacesTheValueAndKeepsTheRest) {
  Write("; Kopf\r\n[Eins]\r\nKey=alt\r\nAnderer=x\r\n[Zwei]\r\nKey=b\r\n");
  EXPECT_TRUE(Set("EINS", "KEY", "neu"));
  EXPECT_EQ(Read("Eins", "Key"), "neu");
  EXPECT_EQ(Read("Eins", "Anderer"), "x");
  EXPECT_EQ(Read("Zwei", "Key"), "b");
  const std::string text = contract::ReadWhole(File());
  EXPECT_NE(text.find("; Kopf"), std::string::npos);
  EXPECT_NE(text.find("Key=neu\r\n"), std::string::npos) << "the key keeps its letters";
  EXPECT_EQ(text.find("alt"), std::string::npos);
}

TEST_F(SectionFile, WritingAddsKeyAndSection) {
  Write("[Eins]\r\nKey=a\r\n\r\n[Zwei]\r\nKey=b\r\n");
  EXPECT_TRUE(Set("Eins", "Währung", "EUR"));
  EXPECT_TRUE(Set("Drei", "Key", "c"));
  EXPECT_EQ(Read("Eins", "Währung"), "EUR");
  EXPECT_EQ(Read("Eins", "Key"), "a");
  EXPECT_EQ(Read("Zwei", "Key"), "b");
  EXPECT_EQ(Read("Zwei", "Währung", "keiner"), "keiner");
  EXPECT_EQ(Read("Drei", "Key"), "c");
}

TEST_F(SectionFile, ChangeFromOutsideIsSeenAtTheNextRead) {
  Write("[Eins]\r\nKey=a\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "a");
  Write("[Eins]\r\nKey=ganz anders\r\n");
  EXPECT_EQ(Read("Eins", "Key"), "ganz anders");
}

TEST_F(SectionFile, WritingIsRefusedWithoutTheFolder) {
  EXPECT_EQ(platform::WritePrivateProfileStringA("Eins", "Key", "a", contract::ScratchFolder() + "\\fehlt\\x.ini"), 0);
}

TEST_F(SectionFile, WritingIsRefusedOnAReadOnlyFile) {
  Write("[Eins]\r\nKey=a\r\n");
  if (!contract::MakeReadOnly(File())) GTEST_SKIP() << "this user may write everything";
  EXPECT_FALSE(Set("Eins", "Key", "b"));
  EXPECT_EQ(contract::ReadWhole(File()), "[Eins]\r\nKey=a\r\n");
}

}  // namespace
