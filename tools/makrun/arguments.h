// The words of one statement of a desktop file, taken one after the other. Faults: FileError with what was expected.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desktop_text.h"

namespace makrun {

class Arguments {
 public:
  // Both outlive this object. The first word has been read already.
  Arguments(const std::string& path, const Statement& statement) : path_(path), statement_(statement) {}

  // The statement is wrong here.
  [[noreturn]] void Mistake(const std::string& expected) const;

  bool More() const { return next_ < statement_.words.size(); }
  // A text in double quotes.
  const std::string& Text(const std::string& expected);
  // A word, or a text that stands for a word with blanks.
  const std::string& Name(const std::string& expected);
  std::int32_t Number(const std::string& expected, std::int32_t lowest = INT32_MIN, std::int32_t highest = INT32_MAX);
  // All that is left, texts in double quotes.
  std::vector<std::string> Texts(const std::string& expected);
  // Nothing is left.
  void End() const;

 private:
  const std::string& path_;
  const Statement& statement_;
  std::size_t next_ = 1;
};

}  // namespace makrun
