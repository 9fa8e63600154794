// The notation of key strings.
#include "input/key_notation.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/input.h"
#include "runtime/fault.h"

namespace {

using key_notation::Action;
using key_notation::Parse;
using key_notation::Step;
using namespace platform;

using Steps = std::vector<Step>;

Step Hold(std::uint8_t key) { return {Action::Hold, key}; }
Step Release(std::uint8_t key) { return {Action::Release, key}; }
Step Stroke(std::uint8_t key, int times = 1) { return {Action::Stroke, key, times}; }
Step Type(char character, int times = 1) { return {Action::Type, static_cast<std::uint8_t>(character), times}; }

void ExpectFault(const std::string& keys) {
  try {
    Parse(keys);
    ADD_FAILURE() << keys;
  } catch (const runtime::Fault& fault) {
    EXPECT_EQ(fault.number, runtime::FaultNumber::InvalidCall) << keys;
  }
}

TEST(KeyNotation, NothingIsNothing) { EXPECT_EQ(Parse(""), Steps{}); }

TEST(KeyNotation, PlainCharactersStandForThemselves) {
  EXPECT_EQ(Parse("a Z9,ä"), (Steps{Type('a'), Type(' '), Type('Z'), Type('9'), Type(','), Type('ä')}));
}

TEST(KeyNotation, BracketsAreCharactersWithAndWithoutBraces) {
  EXPECT_EQ(Parse("[]{[}{]}"), (Steps{Type('['), Type(']'), Type('['), Type(']')}));
}

TEST(KeyNotation, TildeIsEnter) { EXPECT_EQ(Parse("a~"), (Steps{Type('a'), Stroke(VK_RETURN)})); }

TEST(KeyNotation, AModifierHoldsForTheNextKey) {
  EXPECT_EQ(Parse("+ab"), (Steps{Hold(VK_SHIFT), Type('a'), Release(VK_SHIFT), Type('b')}));
  EXPECT_EQ(Parse("^{a}"), (Steps{Hold(VK_CONTROL), Type('a'), Release(VK_CONTROL)}));
  EXPECT_EQ(Parse("%{F4}"), (Steps{Hold(VK_MENU), Stroke(VK_F1 + 3), Release(VK_MENU)}));
  EXPECT_EQ(Parse("%~"), (Steps{Hold(VK_MENU), Stroke(VK_RETURN), Release(VK_MENU)}));
}

TEST(KeyNotation, ACountRepeatsTheKeyAndNotItsModifier) {
  EXPECT_EQ(Parse("+{TAB 3}"), (Steps{Hold(VK_SHIFT), Stroke(VK_TAB, 3), Release(VK_SHIFT)}));
  EXPECT_EQ(Parse("{x 10}{~ 2}{  3}"), (Steps{Type('x', 10), Type('~', 2), Type(' ', 3)}));
  EXPECT_EQ(Parse("{TAB 0}{TAB 32767}"), (Steps{Stroke(VK_TAB, 0), Stroke(VK_TAB, 32767)}));
}

TEST(KeyNotation, SeveralModifiersAreLetGoInReverse) {
  EXPECT_EQ(Parse("+^%a"), (Steps{Hold(VK_SHIFT), Hold(VK_CONTROL), Hold(VK_MENU), Type('a'), Release(VK_MENU),
                                  Release(VK_CONTROL), Release(VK_SHIFT)}));
}

TEST(KeyNotation, AModifierTwiceIsHeldOnce) {
  EXPECT_EQ(Parse("++a"), (Steps{Hold(VK_SHIFT), Type('a'), Release(VK_SHIFT)}));
  EXPECT_EQ(Parse("+(a+bc)"), (Steps{Hold(VK_SHIFT), Type('a'), Type('b'), Type('c'), Release(VK_SHIFT)}));
}

TEST(KeyNotation, AModifierHoldsForAWholeGroup) {
  EXPECT_EQ(Parse("+(ec)d"), (Steps{Hold(VK_SHIFT), Type('e'), Type('c'), Release(VK_SHIFT), Type('d')}));
  EXPECT_EQ(Parse("+(a^(bc)d)e"), (Steps{Hold(VK_SHIFT), Type('a'), Hold(VK_CONTROL), Type('b'), Type('c'),
                                         Release(VK_CONTROL), Type('d'), Release(VK_SHIFT), Type('e')}));
}

TEST(KeyNotation, AGroupWithoutAModifierIsItsContent) {
  EXPECT_EQ(Parse("(ab)"), (Steps{Type('a'), Type('b')}));
  EXPECT_EQ(Parse("+()a"), (Steps{Hold(VK_SHIFT), Release(VK_SHIFT), Type('a')}));
}

TEST(KeyNotation, AModifierWithNothingBehindItIsPressedAlone) {
  EXPECT_EQ(Parse("%"), (Steps{Hold(VK_MENU), Release(VK_MENU)}));
  EXPECT_EQ(Parse("^(a%)"), (Steps{Hold(VK_CONTROL), Type('a'), Hold(VK_MENU), Release(VK_MENU), Release(VK_CONTROL)}));
}

TEST(KeyNotation, BracesQuoteTheSpecialCharacters) {
  for (const char character : std::string("+^%~(){}[]"))
    EXPECT_EQ(Parse(std::string("{") + character + "}"), Steps{Type(character)}) << character;
  EXPECT_EQ(Parse("{} 2}"), Steps{Type('}', 2)});
  EXPECT_EQ(Parse("{a}{ }"), (Steps{Type('a'), Type(' ')}));
}

TEST(KeyNotation, NamesOfKeys) {
  const std::pair<const char*, std::uint8_t> names[] = {
      {"BACKSPACE", 8}, {"BS", 8},   {"BKSP", 8},    {"TAB", 9},   {"ENTER", 13},    {"BREAK", 3},
      {"CAPSLOCK", 20}, {"ESC", 27}, {"PGUP", 33},   {"PGDN", 34}, {"END", 35},      {"HOME", 36},
      {"LEFT", 37},     {"UP", 38},  {"RIGHT", 39},  {"DOWN", 40}, {"PRTSC", 44},    {"INS", 45},
      {"INSERT", 45},   {"DEL", 46}, {"DELETE", 46}, {"HELP", 47}, {"NUMLOCK", 144}, {"SCROLLLOCK", 145}};
  for (const auto& [name, key] : names) EXPECT_EQ(Parse("{" + std::string(name) + "}"), Steps{Stroke(key)}) << name;
  for (int number = 1; number <= 16; ++number)
    EXPECT_EQ(Parse("{F" + std::to_string(number) + "}"), Steps{Stroke(static_cast<std::uint8_t>(111 + number))});
}

TEST(KeyNotation, NamesMindNoCase) {
  EXPECT_EQ(Parse("{enter}{Pgdn}{f5}"), (Steps{Stroke(VK_RETURN), Stroke(VK_NEXT), Stroke(VK_F1 + 4)}));
}

TEST(KeyNotation, UnknownNamesAreFaults) {
  for (const char* keys : {"{SPACE}", "a{SPACE}b", "{F17}", "{F0}", "{NICHTS}", "{ TAB}", "{TABB}", "{TAB3}", "{ab}"})
    ExpectFault(keys);
}

TEST(KeyNotation, BracesAndParenthesesWithoutPartnerAreFaults) {
  for (const char* keys : {"{", "{}", "{ENTER", "abc{TAB 3", "}", "a}", "(", "(a", "+(a", ")", "a)", "(a))", "{}a"})
    ExpectFault(keys);
}

TEST(KeyNotation, BadCountsAreFaults) {
  for (const char* keys : {"{TAB }", "{TAB x}", "{TAB -1}", "{TAB 1,5}", "{TAB 32768}", "{TAB 99999999999999999999}",
                           "{TAB  3}", "{TAB 3 }"})
    ExpectFault(keys);
}

TEST(KeyNotation, DeepGroupsAreNoTrouble) {
  const std::string keys = std::string(100'000, '(') + "a" + std::string(100'000, ')');
  EXPECT_EQ(Parse(keys), Steps{Type('a')});
}

}  // namespace
