// makcheck: finds mistakes in macros without running them.
#include <algorithm>
#include <string>
#include <vector>

#include "checker.h"
#include "common/exit_status.h"
#include "common/tool.h"
#include "lsp/server.h"
#include "report.h"
#include "say.h"

namespace {

using makcheck::FileFindings;
using tools::Say;

struct Options {
  bool json = false;
  bool sarif = false;
  bool verbs = false;
  bool findings = false;
  bool lsp = false;
  std::string explain;
  std::vector<std::string> files;
};

void Print(const std::string& text) {
  if (!tools::Write(stdout, text)) throw tools::FileError{Say(makcheck::say::kNotWritten)};
}

int Explain(const std::string& name) {
  const makcheck::FindingKind* kind = makcheck::FindKind(name);
  if (kind == nullptr) throw tools::UsageError{Say(makcheck::say::kNoFinding, {name})};
  Print(makcheck::Explanation(*kind));
  return tools::kFine;
}

int ListFindings() {
  std::string names;
  for (const makcheck::FindingKind& kind : makcheck::FindingKinds()) names += std::string(kind.name) + "\n";
  Print(names);
  return tools::kFine;
}

int Check(const Options& options) {
  if (options.files.empty()) throw tools::UsageError{Say(makcheck::say::kNoFile)};
  std::vector<FileFindings> files;
  for (const std::string& file : options.files)
    files.push_back({file, makcheck::CheckFile(tools::ReadFile(file))});
  if (options.json) Print(makcheck::JsonReport(files));
  else if (options.sarif) Print(makcheck::SarifReport(files));
  else Print(makcheck::TextReport(files));
  const bool found =
      std::any_of(files.begin(), files.end(), [](const FileFindings& file) { return !file.findings.empty(); });
  return found ? tools::kFound : tools::kFine;
}

int Run(const std::vector<std::string>& arguments) {
  Options options;
  tools::CommandLine line;
  line.Flag("--json", options.json);
  line.Flag("--sarif", options.sarif);
  line.Flag("--verbs", options.verbs);
  line.Flag("--findings", options.findings);
  line.Flag("--lsp", options.lsp);
  line.Setting("--explain", [&](const std::string& name) { options.explain = tools::ReadSome("--explain", name); });
  options.files = line.Read(arguments);
  if (line.Help()) {
    Print(Say(makcheck::say::kUsage));
    return tools::kFine;
  }
  if (options.lsp) return makcheck::lsp::Serve();
  if (!options.explain.empty()) return Explain(options.explain);
  if (options.findings) return ListFindings();
  if (options.verbs) {
    Print(options.json ? makcheck::VerbJson() : makcheck::VerbReport());
    return tools::kFine;
  }
  return Check(options);
}

}  // namespace

int main(int argc, char** argv) { return tools::RunTool("makcheck", makcheck::say::kUsage, argc, argv, Run); }
