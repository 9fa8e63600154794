#include "checker.h"

#include <algorithm>
#include <tuple>

#include "common/code_pages.h"
#include "rules.h"

namespace makcheck {
namespace {

void CheckEncoding(const std::string& bytes, std::vector<Finding>& findings) {
  switch (tools::EncodingOf(bytes)) {
    case tools::Encoding::CodePage:
      return;
    case tools::Encoding::Utf8:
      findings.push_back({FindingId::Utf8File});
      return;
    case tools::Encoding::Utf8WithMark:
      findings.push_back({FindingId::ByteOrderMark});
      return;
    case tools::Encoding::Utf16:
    case tools::Encoding::Utf16WithMark:
      findings.push_back({FindingId::Utf16File});
      return;
  }
}

}  // namespace

void Sort(std::vector<Finding>& findings) {
  const auto place = [](const Finding& finding) {
    return std::tuple(finding.line, finding.span.start, finding.id);
  };
  std::stable_sort(findings.begin(), findings.end(),
                   [&](const Finding& a, const Finding& b) { return place(a) < place(b); });
}

std::vector<Finding> CheckMacro(const Macro& macro, const Desktop* desktop) {
  std::vector<Finding> findings;
  CheckShapes(macro, findings);
  CheckArguments(macro, findings);
  CheckNames(macro, findings);
  CheckFlow(macro, findings);
  if (desktop != nullptr) CheckDesktop(macro, *desktop, findings);
  Sort(findings);
  return findings;
}

std::vector<Finding> CheckFile(const std::string& bytes, const Desktop* desktop) {
  std::vector<Finding> findings;
  CheckEncoding(bytes, findings);
  // Two-byte text has no line that could be looked at.
  if (!findings.empty() && findings.front().id == FindingId::Utf16File) return findings;
  const std::vector<Finding> further = CheckMacro(Macro(tools::ProgramText(bytes)), desktop);
  findings.insert(findings.end(), further.begin(), further.end());
  return findings;
}

}  // namespace makcheck
