// The text form of a desktop file: statements of words, one for each line, that belong to the less indented line above
// them. What the statements mean is told elsewhere (desktop_file.h).
#pragma once

#include <string>
#include <vector>

namespace makrun {

struct Word {
  std::string text;  // code page 1252
  bool quoted = false;
};

struct Statement {
  int line = 0;  // from 1
  std::vector<Word> words;
  std::vector<Statement> inner;
};

// Reads a file: UTF-8, indented with blanks; empty lines and lines that begin with "#" say nothing. A text stands in
// double quotes, in which a double quote is written twice. Faults: FileError with file, line and what was expected.
std::vector<Statement> ReadStatements(const std::string& path);

// A mistake in a desktop file. Faults: FileError, always.
[[noreturn]] void RaiseMistake(const std::string& path, int line, const std::string& expected);

}  // namespace makrun
