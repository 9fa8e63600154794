#include "finding.h"

#include "runtime/code_page.h"

namespace makcheck {

std::string MessageOf(const Finding& finding) {
  std::vector<std::string> values;
  for (const std::string& value : finding.values) values.push_back(runtime::ToUtf8(value));
  return tools::Say(KindOf(finding.id).message, values);
}

}  // namespace makcheck
