// What "--trace" prints on standard error: each visited line with its number (from 1, as editors count), its verb and
// its arguments after substitution, in UTF-8.
#pragma once

#include <cstdint>
#include <string>

#include "engine/parser.h"

namespace makrun {

class Trace {
 public:
  void Visited(std::int32_t index, const std::string& line);
  void Parsed(const std::string& verb, const basMain::Arguments& a);
  // Prints what is still to be printed.
  void Finish();

 private:
  std::string pending_;  // a visited line that has shown no verb so far: a comment, a declaration, an empty line
  std::string number_;
};

}  // namespace makrun
