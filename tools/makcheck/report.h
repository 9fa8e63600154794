// What makcheck prints: findings for a reader and for programs, the verb table, and what a finding means.
#pragma once

#include <string>
#include <vector>

#include "finding.h"

namespace makcheck {

struct FileFindings {
  std::string file;  // as named on the command line, in UTF-8
  std::vector<Finding> findings;
};

// A line each: "file:line:column: error [name] text". Columns count characters from 1.
std::string TextReport(const std::vector<FileFindings>& files);
// An object with a list of findings, each with its place, name, text and the changes that mend it.
std::string JsonReport(const std::vector<FileFindings>& files);
// SARIF 2.1.0, for the tools that collect findings of many checkers.
std::string SarifReport(const std::vector<FileFindings>& files);

// The verb table: which arguments are needed, and which are read. As text, or as JSON for the editors.
std::string VerbReport();
std::string VerbJson();

// What a finding means, with wrong and right lines.
std::string Explanation(const FindingKind& kind);

}  // namespace makcheck
