#include "line_visit.h"

#include "runtime/code_page.h"

namespace makrun {

std::string NumberOf(const LineVisit& visit) { return std::to_string(visit.index + 1); }

std::string CarriedOut(const LineVisit& visit) {
  if (!visit.parsed) return runtime::ToUtf8(visit.line);
  const basMain::Arguments& a = visit.arguments;
  std::size_t count = a.size();
  while (count > 1 && a[count - 1].empty()) --count;
  std::string text = visit.verb;
  for (std::size_t i = 1; i < count; ++i) text += (i == 1 ? " \"" : ", \"") + a[i] + "\"";
  return runtime::ToUtf8(text);
}

}  // namespace makrun
