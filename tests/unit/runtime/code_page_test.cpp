#include "runtime/code_page.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePage, TellsTheCharactersOfTheUpperRow) {
  EXPECT_EQ(runtime::ToUtf16("Aü€\x9F"), u"A\u00FC\u20AC\u0178");
  EXPECT_EQ(runtime::FromUtf16(u"A\u00FC\u20AC\u0178"), "Aü€\x9F");
}

TEST(CodePage, EveryByteComesBack) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  EXPECT_EQ(runtime::FromUtf16(runtime::ToUtf16(all)), all);
}

TEST(CodePage, CharacterThatItLacksBecomesAQuestionMark) {
  EXPECT_EQ(runtime::FromUtf16(u"\u0141\u00F3d\u017A \u0080"), "?ód? ?");
  EXPECT_EQ(runtime::FromUtf16(u"\U0001F600"), "??");
}

TEST(CodePage, IsWrittenInUtf8AndReadFromIt) {
  EXPECT_EQ(runtime::ToUtf8("Aü€"), "A\xC3\xBC\xE2\x82\xAC");
  EXPECT_EQ(runtime::FromUtf8("A\xC3\xBC\xE2\x82\xAC"), "Aü€");
  EXPECT_EQ(runtime::FromUtf8("\xC5\x81\xF0\x9F\x98\x80."), "??.");
}

TEST(CodePage, TwoByteTextIsWrittenInUtf8AndReadFromIt) {
  const std::u16string text = u"A\u00FC\u20AC\uFF3C\U0001F600.";
  const std::string utf8 = "A\xC3\xBC\xE2\x82\xAC\xEF\xBC\xBC\xF0\x9F\x98\x80.";
  EXPECT_EQ(runtime::Utf16ToUtf8(text), utf8);
  EXPECT_EQ(runtime::Utf8ToUtf16(utf8), text);
}

}  // namespace
