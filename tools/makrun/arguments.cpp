#include "arguments.h"

#include <charconv>

#include "desktop_texts.h"
#include "runtime/code_page.h"

namespace makrun {

void Arguments::Mistake(const std::string& expected) const { RaiseMistake(path_, statement_.line, expected); }

const std::string& Arguments::Text(const std::string& expected) {
  if (!More() || !statement_.words[next_].quoted) Mistake(expected);
  return statement_.words[next_++].text;
}

const std::string& Arguments::Name(const std::string& expected) {
  if (!More()) Mistake(expected);
  return statement_.words[next_++].text;
}

std::int32_t Arguments::Number(const std::string& expected, std::int32_t lowest, std::int32_t highest) {
  const std::string& text = Name(expected);
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < lowest || number > highest)
    Mistake(expected);
  return number;
}

std::vector<std::string> Arguments::Texts(const std::string& expected) {
  std::vector<std::string> texts;
  while (More()) texts.push_back(Text(expected));
  return texts;
}

void Arguments::End() const {
  if (More()) Mistake(tools::Say(say::kEndOfLine, {runtime::ToUtf8(statement_.words[next_].text)}));
}

}  // namespace makrun
