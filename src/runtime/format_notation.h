// The signs of a format: what stands literally and what has a meaning.
#pragma once

#include <string_view>
#include <vector>

namespace runtime {

// A character behind a backslash or between double quotes is literal; the marks themselves are gone.
struct Sign {
  char character;
  bool literal;

  // The character in lower case, or NUL where it is literal: a letter means the same in either case.
  char Meaning() const;

  bool Is(char meaning) const { return Meaning() == meaning; }
};

using Notation = std::vector<Sign>;

// An open quote reaches to the end.
Notation ReadNotation(std::string_view format);

// The parts between semicolons; at least one.
std::vector<Notation> Sections(const Notation& notation);

}  // namespace runtime
