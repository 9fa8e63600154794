#include "runtime/format_notation.h"

namespace runtime {

char Sign::Meaning() const {
  if (literal) return '\0';
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

Notation ReadNotation(std::string_view format) {
  Notation notation;
  bool quoted = false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] == '"') quoted = !quoted;
    else if (format[i] == '\\' && !quoted && i + 1 < format.size()) notation.push_back({format[++i], true});
    else notation.push_back({format[i], quoted});
  }
  return notation;
}

std::vector<Notation> Sections(const Notation& notation) {
  std::vector<Notation> sections(1);
  for (const Sign& sign : notation) {
    if (sign.Is(';')) sections.emplace_back();
    else sections.back().push_back(sign);
  }
  return sections;
}

}  // namespace runtime
