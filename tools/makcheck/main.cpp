// makcheck: finds mistakes in macros without running them.
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "checker.h"
#include "common/code_pages.h"
#include "common/exit_status.h"
#include "common/tool.h"
#include "lsp/server.h"
#include "report.h"
#include "say.h"
#include "settings_rules.h"

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
  std::string desktop;
  std::string ini;
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

std::vector<const makcheck::Macro*> Pointers(const std::vector<std::unique_ptr<makcheck::Macro>>& macros) {
  std::vector<const makcheck::Macro*> pointers;
  for (const auto& macro : macros) pointers.push_back(macro.get());
  return pointers;
}

int Check(const Options& options) {
  if (options.files.empty()) throw tools::UsageError{Say(makcheck::say::kNoFile)};
  std::optional<makcheck::Desktop> desktop;
  if (!options.desktop.empty()) desktop.emplace(options.desktop);
  std::optional<makcheck::Settings> settings;
  if (!options.ini.empty()) settings.emplace(options.ini);
  std::vector<FileFindings> files;
  std::vector<std::unique_ptr<makcheck::Macro>> macros;
  for (const std::string& file : options.files) {
    const std::string bytes = tools::ReadFile(file);
    files.push_back({file, makcheck::CheckFile(bytes, desktop ? &*desktop : nullptr)});
    if (!settings) continue;
    macros.push_back(std::make_unique<makcheck::Macro>(tools::ProgramText(bytes)));
    if (!settings->StartsWithoutClient(file)) continue;
    makcheck::CheckClientDialog(*macros.back(), files.back().findings);
    makcheck::Sort(files.back().findings);
  }
  if (settings) files.push_back({options.ini, settings->Check(Pointers(macros))});
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
  line.Setting("--desktop", [&](const std::string& path) { options.desktop = tools::ReadSome("--desktop", path); });
  line.Setting("--ini", [&](const std::string& path) { options.ini = tools::ReadSome("--ini", path); });
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
