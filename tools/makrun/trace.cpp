#include "trace.h"

#include <cstdio>

#include "common/tool.h"
#include "runtime/code_page.h"

namespace makrun {
namespace {

void Print(const std::string& line) { tools::Write(stderr, runtime::ToUtf8(line) + "\n"); }

}  // namespace

void Trace::Visited(std::int32_t index, const std::string& line) {
  Finish();
  number_ = std::to_string(index + 1) + ": ";
  pending_ = number_ + line;
}

void Trace::Parsed(const std::string& verb, const basMain::Arguments& a) {
  pending_.clear();
  std::size_t count = a.size();
  while (count > 1 && a[count - 1].empty()) --count;
  std::string line = number_ + verb;
  for (std::size_t i = 1; i < count; ++i) line += (i == 1 ? " \"" : ", \"") + a[i] + "\"";
  Print(line);
}

void Trace::Finish() {
  if (!pending_.empty()) Print(pending_);
  pending_.clear();
}

}  // namespace makrun
