// One thing that makcheck has found.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "finding_kinds.h"
#include "macro.h"

namespace makcheck {

// A change of the file that makes the finding go.
struct Fix {
  std::size_t line = 0;  // counted from 0
  Span span;             // what is replaced, in bytes of that line
  std::string text;      // in the code page; may hold line ends
};

struct Finding {
  FindingId id;
  std::size_t line = 0;  // counted from 0
  Span span = {};
  std::vector<std::string> values = {};  // for the message, in the code page
  std::vector<Fix> fixes = {};           // any one of them mends the line
};

// The message of a finding in the language that is set, in UTF-8.
std::string MessageOf(const Finding& finding);

}  // namespace makcheck
