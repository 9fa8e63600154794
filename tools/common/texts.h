// What the tools say, in the two languages that they speak. Each tool has one table of texts: a header of constants of
// the type Text. One that lacks a language, or whose languages take different values, does not compile.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tools {

enum class Language { English, German };

// The language in which all is said; at first that of the system.
extern Language language;

// Whether the system speaks German: natively by the first of LC_ALL, LC_MESSAGES and LANG that is set, on Windows by
// the language of its menus.
Language SystemLanguage();

// Whether both texts say something and hold the same placeholders, "%1" to "%9".
constexpr bool AreTwins(std::u8string_view english, std::u8string_view german) {
  if (english.empty() || german.empty()) return false;
  for (char8_t digit = '1'; digit <= '9'; ++digit) {
    const char8_t mark[] = {'%', digit};
    const std::u8string_view placeholder(mark, 2);
    const bool inEnglish = english.find(placeholder) != std::u8string_view::npos;
    if (inEnglish != (german.find(placeholder) != std::u8string_view::npos)) return false;
  }
  return true;
}

struct Text {
  std::u8string_view english;
  std::u8string_view german;

  consteval Text(const char8_t* e, const char8_t* g) : english(e), german(g) {
    if (!AreTwins(english, german)) throw "a text needs both languages, with the same placeholders";
  }
};

// The text in the language that is set, in UTF-8, with the values in the places of "%1", "%2" and so on. What a value
// itself holds is left as it is.
std::string Say(const Text& text, const std::vector<std::string>& values = {});

}  // namespace tools
