#include "common/texts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace {

using tools::AreTwins;
using tools::Language;
using tools::Say;
using tools::SystemLanguage;
using tools::Text;

// The language that is set comes back at the end.
class TextsTest : public testing::Test {
 protected:
  ~TextsTest() override { tools::language = before_; }

 private:
  Language before_ = tools::language;
};

constexpr Text kGreeting(u8"Good day, %1, from %2", u8"Aus %2: Guten Tag, %1, schöne Grüße");

TEST_F(TextsTest, AreSaidInTheLanguageThatIsSet) {
  tools::language = Language::English;
  EXPECT_EQ(Say(kGreeting, {"Ada", "Köln"}), "Good day, Ada, from Köln");
  tools::language = Language::German;
  EXPECT_EQ(Say(kGreeting, {"Ada", "Ulm"}),
            "Aus Ulm: Guten Tag, Ada, sch\xC3\xB6ne Gr\xC3\xBC\xC3\x9F"
            "e");
}

TEST_F(TextsTest, PlaceholderInAValueStays) {
  tools::language = Language::English;
  EXPECT_EQ(Say(kGreeting, {"%2", "100%"}), "Good day, %2, from 100%");
  EXPECT_EQ(Say(kGreeting), "Good day, %1, from %2");
}

// What decides whether a text compiles.
TEST_F(TextsTest, NeedBothLanguagesWithTheSamePlaceholders) {
  EXPECT_TRUE(AreTwins(u8"a %1 %2", u8"%2 b %1"));
  EXPECT_FALSE(AreTwins(u8"a", u8""));
  EXPECT_FALSE(AreTwins(u8"", u8"a"));
  EXPECT_FALSE(AreTwins(u8"a %1", u8"b"));
  EXPECT_FALSE(AreTwins(u8"a", u8"b %9"));
  EXPECT_FALSE(AreTwins(u8"a %1", u8"b %2"));
}

// Sets the variables that the system's language comes from, and puts them back.
class SystemLanguageTest : public testing::Test {
 protected:
  SystemLanguageTest() {
    for (int i = 0; i < 3; ++i) {
      if (const char* value = std::getenv(kNames[i])) before_[i] = value;
      ::unsetenv(kNames[i]);
    }
  }
  ~SystemLanguageTest() override {
    for (int i = 0; i < 3; ++i) {
      if (before_[i]) ::setenv(kNames[i], before_[i]->c_str(), 1);
      else ::unsetenv(kNames[i]);
    }
  }

 private:
  static constexpr const char* kNames[] = {"LC_ALL", "LC_MESSAGES", "LANG"};
  std::optional<std::string> before_[3];
};

TEST_F(SystemLanguageTest, IsThatOfTheFirstVariableThatIsSet) {
  EXPECT_EQ(SystemLanguage(), Language::English);
  ::setenv("LANG", "de_DE.UTF-8", 1);
  EXPECT_EQ(SystemLanguage(), Language::German);
  ::setenv("LC_MESSAGES", "en_US.UTF-8", 1);
  EXPECT_EQ(SystemLanguage(), Language::English);
  ::setenv("LC_ALL", "de", 1);
  EXPECT_EQ(SystemLanguage(), Language::German);
  ::setenv("LC_ALL", "", 1);
  EXPECT_EQ(SystemLanguage(), Language::English);
}

TEST_F(SystemLanguageTest, IsGermanInEveryCountryAndCodeSet) {
  for (const char* locale : {"de_AT", "de@euro", "de.ISO-8859-1"}) {
    ::setenv("LC_ALL", locale, 1);
    EXPECT_EQ(SystemLanguage(), Language::German) << locale;
  }
  for (const char* locale : {"C", "den_XX", "DE"}) {
    ::setenv("LC_ALL", locale, 1);
    EXPECT_EQ(SystemLanguage(), Language::English) << locale;
  }
}

}  // namespace
