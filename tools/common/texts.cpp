#include "common/texts.h"

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#endif

namespace tools {

Language language = SystemLanguage();

#ifdef _WIN32
Language SystemLanguage() {
  return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_GERMAN ? Language::German : Language::English;
}
#else
Language SystemLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view locale(value);  // "de", "de_DE.UTF-8", "de@euro"
    return locale.substr(0, locale.find_first_of("_.@")) == "de" ? Language::German : Language::English;
  }
  return Language::English;
}
#endif

std::string Say(const Text& text, const std::vector<std::string>& values) {
  const std::u8string_view chosen = language == Language::German ? text.german : text.english;
  std::string said;
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    const std::size_t number = chosen[i] == '%' && i + 1 < chosen.size() ? chosen[i + 1] - u8'0' : 0;
    if (number >= 1 && number <= values.size()) {
      said += values[number - 1];
      ++i;
    } else {
      said += static_cast<char>(chosen[i]);
    }
  }
  return said;
}

}  // namespace tools
