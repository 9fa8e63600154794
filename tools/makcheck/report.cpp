#include "report.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "argument_names.h"
#include "engine/built_in_variables.h"
#include "runtime/code_page.h"
#include "say.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using Json = nlohmann::ordered_json;
using basMain::Verb;
using basMain::VerbKind;
using tools::Say;

std::string Utf8(std::u8string_view text) { return {text.begin(), text.end()}; }

const char* SeverityWord(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

std::string KindWord(VerbKind kind) {
  switch (kind) {
    case VerbKind::Action:
      return "action";
    case VerbKind::ForcedAction:
      return "forced action";
    case VerbKind::Condition:
      return "condition";
    case VerbKind::Value:
      return "value";
    case VerbKind::ForcedValue:
      return "forced value";
    case VerbKind::Branch:
      return "branch";
  }
  return "";
}

Json FixJson(const Fix& fix) {
  return {{"line", fix.line + 1},
          {"column", fix.span.start + 1},
          {"endColumn", fix.span.end + 1},
          {"text", runtime::ToUtf8(fix.text)}};
}

Json FindingJson(const std::string& file, const Finding& finding) {
  const FindingKind& kind = KindOf(finding.id);
  Json json = {{"file", file},
               {"line", finding.line + 1},
               {"column", finding.span.start + 1},
               {"endColumn", finding.span.end + 1},
               {"severity", SeverityWord(kind.severity)},
               {"name", kind.name},
               {"text", MessageOf(finding)},
               {"fixes", Json::array()}};
  for (const Fix& fix : finding.fixes) json["fixes"].push_back(FixJson(fix));
  return json;
}

Json SarifRule(const FindingKind& kind) {
  return {{"id", kind.name},
          {"fullDescription", {{"text", Say(kind.explanation)}}},
          {"defaultConfiguration", {{"level", SeverityWord(kind.severity)}}}};
}

Json SarifRegion(std::size_t line, const Span& span) {
  return {{"startLine", line + 1}, {"startColumn", span.start + 1}, {"endColumn", span.end + 1}};
}

Json SarifResult(const std::string& file, const Finding& finding) {
  const FindingKind& kind = KindOf(finding.id);
  const Json location = {{"artifactLocation", {{"uri", file}}}};
  Json place = location;
  place["region"] = SarifRegion(finding.line, finding.span);
  Json result = {{"ruleId", kind.name},
                 {"level", SeverityWord(kind.severity)},
                 {"message", {{"text", MessageOf(finding)}}},
                 {"locations", {{{"physicalLocation", place}}}}};
  for (const Fix& fix : finding.fixes) {
    const Json replacement = {{"deletedRegion", SarifRegion(fix.line, fix.span)},
                              {"insertedContent", {{"text", runtime::ToUtf8(fix.text)}}}};
    Json change = location;
    change["replacements"] = {replacement};
    result["fixes"].push_back({{"artifactChanges", {change}}});
  }
  return result;
}

// An argument that the verb can do without stands in brackets, one that it does not read in parentheses.
std::string Shown(const ArgumentFact& argument) {
  const std::string name = runtime::ToUtf8(ArgumentName(argument.name));
  if (argument.kind == ArgumentKind::Unread) return "(" + name + ")";
  return argument.needed ? name : "[" + name + "]";
}

std::string Indented(std::u8string_view lines) {
  std::string indented;
  std::string rest = Utf8(lines);
  while (!rest.empty()) {
    const auto end = rest.find('\n');
    indented += "    " + rest.substr(0, end) + "\n";
    rest = end == std::string::npos ? "" : rest.substr(end + 1);
  }
  return indented;
}

}  // namespace

std::string TextReport(const std::vector<FileFindings>& files) {
  std::string text;
  for (const auto& [file, findings] : files)
    for (const Finding& finding : findings) {
      const FindingKind& kind = KindOf(finding.id);
      text += file + ":" + std::to_string(finding.line + 1) + ":" + std::to_string(finding.span.start + 1) + ": " +
              SeverityWord(kind.severity) + " [" + std::string(kind.name) + "] " + MessageOf(finding) + "\n";
    }
  return text;
}

std::string JsonReport(const std::vector<FileFindings>& files) {
  Json list = Json::array();
  for (const auto& [file, findings] : files)
    for (const Finding& finding : findings) list.push_back(FindingJson(file, finding));
  return Json{{"findings", list}}.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string SarifReport(const std::vector<FileFindings>& files) {
  Json rules = Json::array();
  for (const FindingKind& kind : FindingKinds()) rules.push_back(SarifRule(kind));
  Json results = Json::array();
  for (const auto& [file, findings] : files)
    for (const Finding& finding : findings) results.push_back(SarifResult(file, finding));
  const Json driver = {{"name", "makcheck"}, {"version", QUMAEXP_VERSION}, {"rules", rules}};
  const Json run = {{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", results}};
  const Json sarif = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                      {"version", "2.1.0"},
                      {"runs", Json::array({run})}};
  return sarif.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string VerbReport() {
  std::string text = Say(say::kVerbLegend) + "\n\n";
  for (const Verb& verb : basMain::Verbs()) {
    text += std::string(verb.word);
    const char* separator = "=";
    for (const ArgumentFact& argument : ArgumentsOf(verb)) {
      text += separator + Shown(argument);
      separator = ",";
    }
    text += "\n";
  }
  return text;
}

std::string VerbJson() {
  Json verbs = Json::array();
  for (const Verb& verb : basMain::Verbs()) {
    Json arguments = Json::array();
    for (const ArgumentFact& argument : ArgumentsOf(verb))
      arguments.push_back({{"name", argument.name},
                           {"needed", argument.needed},
                           {"read", argument.kind != ArgumentKind::Unread}});
    verbs.push_back({{"word", verb.word}, {"kind", KindWord(verb.kind)}, {"arguments", arguments}});
  }
  Json variables = Json::array();
  for (const basMain::BuiltInVariable& variable : basMain::BuiltInVariables()) variables.push_back(variable.name);
  return Json{{"verbs", verbs}, {"variables", variables}}.dump(2) + "\n";
}

std::string Explanation(const FindingKind& kind) {
  return std::string(kind.name) + " (" + SeverityWord(kind.severity) + ")\n\n" + Say(kind.explanation) + "\n\n" +
         Say(say::kWrong) + "\n\n" + Indented(kind.wrong) + "\n" + Say(say::kRight) + "\n\n" + Indented(kind.right);
}

}  // namespace makcheck
