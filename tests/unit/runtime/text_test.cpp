#include "runtime/text.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace {

using namespace runtime;
using Pieces = std::vector<std::string>;

TEST(TextTest, FoldsLettersAndUmlautsToUpperCase) {
  EXPECT_EQ(ToUpper("azAZ09 _"), "AZAZ09 _");
  EXPECT_EQ(ToUpper("äöüàéîñøþ"), "ÄÖÜÀÉÎÑØÞ");
  EXPECT_EQ(ToUpper("šœžÿ"), "ŠŒŽŸ");
}

TEST(TextTest, FoldsLettersAndUmlautsToLowerCase) {
  EXPECT_EQ(ToLower("azAZ09 _"), "azaz09 _");
  EXPECT_EQ(ToLower("ÄÖÜÀÉÎÑØÞ"), "äöüàéîñøþ");
  EXPECT_EQ(ToLower("ŠŒŽŸ"), "šœžÿ");
}

TEST(TextTest, CharactersWithoutAPartnerStay) {
  const std::string alone = "ß÷×€„…@[`{\x7F";
  EXPECT_EQ(ToUpper(alone), alone);
  EXPECT_EQ(ToLower(alone), alone);
}

TEST(TextTest, FoldingThereAndBackKeepsEveryUpperCaseLetter) {
  for (int c = 0; c < 256; ++c) {
    const std::string letter(1, static_cast<char>(c));
    if (ToLower(letter) != letter) {
      EXPECT_EQ(ToUpper(ToLower(letter)), letter) << c;
    }
    EXPECT_EQ(ToUpper(ToUpper(letter)), ToUpper(letter)) << c;
  }
}

TEST(TextTest, ComparesIgnoringCase) {
  EXPECT_TRUE(EqualIgnoringCase("Größe", "GRÖßE"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
  EXPECT_FALSE(EqualIgnoringCase("Größe", "Größen"));
  EXPECT_FALSE(EqualIgnoringCase("a", "b"));
  EXPECT_FALSE(EqualIgnoringCase("ß", "SS"));
}

TEST(TextTest, FindsAPart) {
  EXPECT_TRUE(Contains("Mandant", "dan"));
  EXPECT_FALSE(Contains("Mandant", "Dan"));
  EXPECT_TRUE(Contains("Mandant", ""));
  EXPECT_TRUE(Contains("", ""));
  EXPECT_FALSE(Contains("", "a"));
}

TEST(TextTest, FindsAPartIgnoringCase) {
  EXPECT_TRUE(ContainsIgnoringCase("Wirtschaftsjahr ÄNDERN", "ändern"));
  EXPECT_TRUE(ContainsIgnoringCase("abc", ""));
  EXPECT_TRUE(ContainsIgnoringCase("", ""));
  EXPECT_FALSE(ContainsIgnoringCase("ab", "abc"));
  EXPECT_FALSE(ContainsIgnoringCase("", "a"));
}

TEST(TextTest, TrimsBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("\t a \t"), "\t a \t");
  EXPECT_EQ(Trim(" \xA0 "), "\xA0");  // the hard space is no blank
  EXPECT_EQ(Trim(std::string(" \0 ", 3)), std::string("\0", 1));
}

TEST(TextTest, ReplacesFromLeftToRight) {
  EXPECT_EQ(Replace("a.b.c", ".", "--"), "a--b--c");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("abc", "x", "y"), "abc");
  EXPECT_EQ(Replace("abc", "b", ""), "ac");
  EXPECT_EQ(Replace("", "a", "b"), "");
}

TEST(TextTest, WhatIsPutInIsNotSearchedAgain) { EXPECT_EQ(Replace("a", "a", "aa"), "aa"); }
TEST(TextTest, ReplacingNothingChangesNothing) { EXPECT_EQ(Replace("abc", "", "x"), "abc"); }

TEST(TextTest, RemovesEveryOccurrence) {
  EXPECT_EQ(Remove("''a'b''", '\''), "ab");
  EXPECT_EQ(Remove("abc", 'x'), "abc");
  EXPECT_EQ(Remove("", 'x'), "");
}

TEST(TextTest, SplitsIntoOnePieceMoreThanThereAreSeparators) {
  EXPECT_EQ(Split("a=b=c", '='), (Pieces{"a", "b", "c"}));
  EXPECT_EQ(Split("abc", '='), (Pieces{"abc"}));
  EXPECT_EQ(Split("=", '='), (Pieces{"", ""}));
  EXPECT_EQ(Split("a==", '='), (Pieces{"a", "", ""}));
}

TEST(TextTest, SplitsAtASeparatorOfSeveralCharacters) {
  EXPECT_EQ(Split("a||b||", "||"), (Pieces{"a", "b", ""}));
  EXPECT_EQ(Split("a|b", "||"), (Pieces{"a|b"}));
  EXPECT_EQ(Split("a|||b", "||"), (Pieces{"a", "|b"}));
  EXPECT_EQ(Split("||", "||"), (Pieces{"", ""}));
}

TEST(TextTest, SplittingMindsTheCase) { EXPECT_EQ(Split("aXbxc", "x"), (Pieces{"aXb", "c"})); }
TEST(TextTest, AnEmptySeparatorLeavesTheTextWhole) { EXPECT_EQ(Split("abc", ""), (Pieces{"abc"})); }

TEST(TextTest, TheEmptyTextHasNoPiece) {
  EXPECT_EQ(Split("", '='), Pieces{});
  EXPECT_EQ(Split("", "=="), Pieces{});
  EXPECT_EQ(Split("", ""), Pieces{});
}

TEST(TextTest, APieceThatIsNotThereIsAFault) {
  const Pieces pieces = {"a", "b"};
  EXPECT_EQ(Element(pieces, 1), "b");
  try {
    Element(pieces, 2);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, FaultNumber::OutOfRange);
  }
  EXPECT_THROW(Element({}, 0), Fault);
}

TEST(TextTest, TruthValuesAreWords) {
  EXPECT_EQ(TruthText(true), "True");
  EXPECT_EQ(TruthText(false), "False");
}

}  // namespace
