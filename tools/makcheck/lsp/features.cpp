#include "lsp/features.h"

#include <algorithm>
#include <set>
#include <string>

#include "common/texts.h"
#include "engine/built_in_variables.h"
#include "lsp/names.h"
#include "rules.h"
#include "runtime/code_page.h"
#include "runtime/text.h"
#include "say.h"
#include "verb_facts.h"
#include "verb_help.h"

namespace makcheck::lsp {
namespace {

using basMain::LineForm;
using tools::Say;

// Numbers of the protocol.
enum CompletionKind { kFunction = 3, kVariableItem = 6, kValueItem = 12, kKeyword = 14, kReference = 18, kConstant = 21 };
enum SymbolKind { kNamespace = 3, kVariableSymbol = 13, kKey = 20 };
enum SeverityNumber { kErrorSeverity = 1, kWarningSeverity = 2 };
constexpr int kSnippet = 2;

Json Markdown(const std::string& text) { return {{"kind", "markdown"}, {"value", text}}; }

Json Edit(std::size_t line, std::size_t start, std::size_t end, const std::string& text) {
  return {{"range", ToJson({{line, start}, {line, end}})}, {"newText", runtime::ToUtf8(text)}};
}

std::string Signature(const basMain::Verb& verb, bool assignment) {
  std::string text(verb.word);
  if (ArgumentsOf(verb).empty()) return text;
  text += assignment ? "(" : "=";
  text += runtime::Replace(verb.arguments, ", ", ",");
  return assignment ? text + ")" : text;
}

// Completion.

class Items {
 public:
  Items(std::size_t line, std::size_t start, std::size_t end) : line_(line), start_(start), end_(end) {}

  // `text` may be a snippet with places to fill in.
  Json& Add(const std::string& label, int kind, const std::string& text, bool snippet = false) {
    Json item = {{"label", runtime::ToUtf8(label)}, {"kind", kind}, {"textEdit", Edit(line_, start_, end_, text)}};
    if (snippet) item["insertTextFormat"] = kSnippet;
    items_.push_back(std::move(item));
    return items_.back();
  }
  Json Take() { return std::move(items_); }

 private:
  const std::size_t line_, start_, end_;
  Json items_ = Json::array();
};

void AddVerbs(Items& items, bool assignment) {
  for (const basMain::Verb& verb : basMain::Verbs()) {
    if (assignment && !Yields(verb)) continue;
    std::string text(verb.word);
    if (!ArgumentsOf(verb).empty()) text += assignment ? "($1)" : "=";
    Json& item = items.Add(std::string(verb.word), kFunction, text, assignment);
    item["detail"] = Signature(verb, assignment);
    item["documentation"] = Markdown(HelpOf(verb.word));
    item["commitCharacters"] = Json::array();
  }
}

void AddDollarWords(Items& items) {
  for (const basMain::BuiltInVariable& variable : basMain::BuiltInVariables()) {
    Json& item = items.Add(variable.name, kConstant, variable.name);
    item["documentation"] = Markdown(HelpOf(variable.name));
  }
}

void AddVariables(Items& items, const Macro& macro, std::size_t line, const std::string& behind = "") {
  for (const auto& [name, variable] : macro.Variables())
    if (variable.declared < line && !name.empty()) items.Add(name, kVariableItem, name + behind);
}

// The text that stands for the first argument of a kind; a variable that is given one text stands for that.
std::string ArgumentOf(const Document& document, const Line& line, ArgumentKind kind) {
  const auto& facts = ArgumentsOf(*line.verb);
  for (std::size_t i = 0; i < facts.size(); ++i) {
    if (facts[i].kind != kind) continue;
    const std::string text(line.Text(i + 1));
    const auto variable = document.Macro().Variables().find(text);
    if (variable == document.Macro().Variables().end() || variable->second.assignments.size() != 1) return text;
    return std::string(document.Macro().Lines()[variable->second.assignments[0]].Text(1));
  }
  return "";
}

// In single quotes where a comma would cut it.
std::string Quoted(const std::string& text) { return text.find(',') == std::string::npos ? text : "'" + text + "'"; }

// What the windows of a desktop file offer for an argument: titles, and the controls of the window that the line names,
// or of all while it names none.
void AddDescribed(Items& items, const Document& document, const Line& line, ArgumentKind kind, const Desktop& desktop) {
  if (kind == ArgumentKind::Window || kind == ArgumentKind::Title) {
    for (const std::string& title : desktop.Titles()) items.Add(title, kValueItem, Quoted(title));
    return;
  }
  const auto controls = desktop.ControlsOf(ArgumentOf(document, line, ArgumentKind::Window), false);
  std::set<std::string> offered;
  for (const ControlView& control : controls) {
    const bool isId = kind == ArgumentKind::Id || kind == ArgumentKind::CommandId || kind == ArgumentKind::FrameId;
    const bool isClass = kind == ArgumentKind::Class || kind == ArgumentKind::FrameClass;
    if (!isId && !isClass && kind != ArgumentKind::Control) return;
    const std::string text = isId ? std::to_string(control.id) : isClass ? control.cls : control.text;
    if (text.empty() || !offered.insert(text).second) continue;
    items.Add(text, kValueItem, Quoted(text))["detail"] = runtime::ToUtf8(Describe(control));
  }
}

void AddArgument(Items& items, const Document& document, const Cursor& cursor, const Desktop* desktop) {
  const auto& facts = ArgumentsOf(*cursor.line->verb);
  if (cursor.argument >= facts.size()) return;
  if (desktop != nullptr) AddDescribed(items, document, *cursor.line, facts[cursor.argument].kind, *desktop);
  switch (facts[cursor.argument].kind) {
    case ArgumentKind::Mark:
      for (const auto& [key, lines] : document.Macro().Marks()) {
        const std::string_view name = document.Macro().Lines()[lines.front()].Text(1);
        items.Add(std::string(name), kReference, std::string(name));
      }
      break;
    case ArgumentKind::Word:
      for (const std::string& word : WordsOf(cursor.line->word)) items.Add(word, kValueItem, word);
      break;
    case ArgumentKind::Exact:
      items.Add("1", kValueItem, "1")["detail"] = Say(say::kWholeTitle);
      items.Add("0", kValueItem, "0")["detail"] = Say(say::kPartOfTitle);
      break;
    case ArgumentKind::Class:
    case ArgumentKind::FrameClass:
      for (const char* name : kClasses) items.Add(name, kValueItem, name);
      break;
    default:
      break;
  }
}

// Hover.

std::string VerbPage(const basMain::Verb& verb) {
  std::string page = "`" + Signature(verb, false) + "`\n\n" + HelpOf(verb.word);
  for (const ArgumentFact& argument : ArgumentsOf(verb)) {
    const tools::Text& note = argument.kind == ArgumentKind::Unread ? say::kNotRead
                              : argument.needed                     ? say::kNeeded
                                                                    : say::kOptional;
    page += "\n- *" + std::string(argument.name) + "*: " + Say(note);
  }
  return page;
}

std::string VariablePage(const Document& document, const Name& name) {
  const auto& variables = document.Macro().Variables();
  const auto variable = variables.find(name.text);
  if (variable == variables.end()) return "";
  std::string page = "`DIM " + runtime::ToUtf8(name.text) + "`\n";
  for (const std::size_t line : variable->second.assignments) {
    const Line& assignment = document.Macro().Lines()[line];
    page += "\n- " + std::to_string(line + 1) + ": `" + runtime::ToUtf8(assignment.text) + "`";
  }
  return page;
}

// The built-in variable round a column; its start is put into `start`.
std::string_view BuiltInRound(std::string_view text, std::size_t column, std::size_t& start) {
  constexpr std::size_t kLongestName = 20;
  for (std::size_t at = column > kLongestName ? column - kLongestName : 0; at <= column && at < text.size(); ++at) {
    if (text[at] != '$') continue;
    const std::string_view name = BuiltInAt(text, at);
    if (name.empty() || at + name.size() < column) continue;
    start = at;
    return name;
  }
  return {};
}

// "REM --- Export ---" heads a part of a macro.
std::string HeadingOf(const Line& line) {
  constexpr std::string_view kRule = "---";
  if (line.form != LineForm::Comment) return "";
  const std::string text = runtime::Trim(std::string_view(line.text).substr(3));
  if (!text.starts_with(kRule)) return "";
  const auto start = text.find_first_not_of("- ");
  if (start == std::string::npos) return "";
  return text.substr(start, text.find_last_not_of("- ") - start + 1);
}

Json Symbol(const std::string& name, int kind, std::size_t line, const Span& span) {
  const Json range = ToJson({{line, span.start}, {line, span.end}});
  return {{"name", runtime::ToUtf8(name)}, {"kind", kind}, {"range", range}, {"selectionRange", range}};
}

bool Overlap(const Range& a, const Range& b) {
  const auto before = [](const Position& x, const Position& y) {
    return x.line < y.line || (x.line == y.line && x.column < y.column);
  };
  return !before(a.end, b.start) && !before(b.end, a.start);
}

Range PlaceOf(const Finding& finding) { return {{finding.line, finding.span.start}, {finding.line, finding.span.end}}; }

Json DiagnosticOf(const Finding& finding) {
  const FindingKind& kind = KindOf(finding.id);
  return {{"range", ToJson(PlaceOf(finding))},
          {"severity", kind.severity == Severity::Error ? kErrorSeverity : kWarningSeverity},
          {"code", kind.name},
          {"source", "makcheck"},
          {"message", MessageOf(finding)}};
}

}  // namespace

Json ToJson(const Range& range) {
  return {{"start", {{"line", range.start.line}, {"character", range.start.column}}},
          {"end", {{"line", range.end.line}, {"character", range.end.column}}}};
}

Position PositionFrom(const Json& json) {
  return {json.at("line").get<std::size_t>(), json.at("character").get<std::size_t>()};
}

Range RangeFrom(const Json& json) { return {PositionFrom(json.at("start")), PositionFrom(json.at("end"))}; }

Json Diagnostics(const Document& document) {
  Json diagnostics = Json::array();
  for (const Finding& finding : document.Findings()) diagnostics.push_back(DiagnosticOf(finding));
  return diagnostics;
}

Json Completion(const Document& document, Position position, const Desktop* desktop) {
  const Cursor cursor = document.At(position);
  if (cursor.line == nullptr) {
    Items items(position.line, 0, position.column);
    AddVerbs(items, false);
    AddVariables(items, document.Macro(), position.line, "=");
    return items.Take();
  }
  if (cursor.line->form == LineForm::Comment || cursor.line->form == LineForm::Declaration) return Json::array();
  const std::string_view raw = cursor.line->raw;
  const auto dollar = cursor.column == 0 ? std::string_view::npos : raw.rfind('$', cursor.column - 1);
  if (dollar != std::string_view::npos &&
      raw.substr(dollar + 1, cursor.column - dollar - 1).find_first_of(",='\\ ;") == std::string_view::npos) {
    Items items(position.line, dollar, cursor.column);
    AddDollarWords(items);
    return items.Take();
  }
  if (!cursor.inArguments) {
    Items items(position.line, cursor.beforeStart, cursor.column);
    AddVerbs(items, cursor.line->assignment && cursor.beforeStart > cursor.line->Whole().start);
    if (!cursor.line->assignment) AddVariables(items, document.Macro(), position.line, "=");
    return items.Take();
  }
  Items items(position.line, cursor.argumentStart, cursor.column);
  if (cursor.line->verb != nullptr) AddArgument(items, document, cursor, desktop);
  AddVariables(items, document.Macro(), position.line);
  AddDollarWords(items);
  return items.Take();
}

Json SignatureHelp(const Document& document, Position position) {
  const Cursor cursor = document.At(position);
  if (!cursor.inArguments || cursor.line->verb == nullptr) return nullptr;
  const basMain::Verb& verb = *cursor.line->verb;
  const std::string label = Signature(verb, cursor.line->assignment);
  Json parameters = Json::array();
  std::size_t at = verb.word.size() + 1;
  for (const ArgumentFact& argument : ArgumentsOf(verb)) {
    parameters.push_back({{"label", {at, at + argument.name.size()}}});
    at += argument.name.size() + 1;
  }
  if (parameters.empty()) return nullptr;
  return {{"signatures",
           {{{"label", label}, {"documentation", Markdown(HelpOf(verb.word))}, {"parameters", parameters}}}},
          {"activeSignature", 0},
          {"activeParameter", cursor.argument}};
}

Json Hover(const Document& document, Position position) {
  const Cursor cursor = document.At(position);
  if (cursor.line == nullptr || cursor.line->form == LineForm::Comment) return nullptr;
  const auto answer = [&](const std::string& page, std::size_t start, std::size_t end) -> Json {
    return {{"contents", Markdown(page)}, {"range", ToJson({{position.line, start}, {position.line, end}})}};
  };
  std::size_t start = 0;
  if (const auto name = BuiltInRound(cursor.line->raw, cursor.column, start); !name.empty())
    return answer("`" + std::string(name) + "`\n\n" + HelpOf(name), start, start + name.size());
  if (const auto name = NameAt(document, position); name && name->kind == NameKind::Variable)
    return answer(VariablePage(document, *name), name->place.start.column, name->place.end.column);
  if (cursor.line->verb == nullptr) return nullptr;
  const Span word = cursor.line->PlaceOfWord();
  if (cursor.column < word.start || cursor.column > word.end) return nullptr;
  return answer(VerbPage(*cursor.line->verb), word.start, word.end);
}

Json DocumentSymbols(const Document& document) {
  Json symbols = Json::array();
  const auto& lines = document.Macro().Lines();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line& line = lines[i];
    if (const std::string heading = HeadingOf(line); !heading.empty())
      symbols.push_back(Symbol(heading, kNamespace, i, line.Whole()));
    if (line.form == LineForm::Declaration && !line.name.empty())
      symbols.push_back(Symbol(line.name, kVariableSymbol, i, line.Whole()));
    if (line.Is("MARK") && !line.Text(1).empty())
      symbols.push_back(Symbol(std::string(line.Text(1)), kKey, i, line.Whole()));
  }
  return symbols;
}

Json CodeActions(const Document& document, const Range& range, const std::string& uri) {
  Json actions = Json::array();
  for (const Finding& finding : document.Findings()) {
    if (!Overlap(range, PlaceOf(finding))) continue;
    for (const Fix& fix : finding.fixes) {
      const Json edit = Edit(fix.line, fix.span.start, fix.span.end, fix.text);
      actions.push_back({{"title", Say(say::kFixTitle, {runtime::ToUtf8(runtime::Trim(fix.text))})},
                         {"kind", "quickfix"},
                         {"diagnostics", {DiagnosticOf(finding)}},
                         {"isPreferred", true},
                         {"edit", {{"changes", {{uri, {edit}}}}}}});
    }
  }
  return actions;
}

Json Formatting(const Document& document, std::size_t width, bool blanks) {
  Json edits = Json::array();
  const auto& lines = document.Macro().Lines();
  std::size_t depth = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line& line = lines[i];
    const bool isElse = line.Is("ELSE");
    const bool ends = isElse || line.Is("ENDIF") || line.Is("END IF") || IsLoopEnd(line);
    if (ends && depth > 0) --depth;
    const Span whole = line.Whole();
    const std::string wanted = line.text.empty() ? "" : std::string(depth * (blanks ? width : 1), blanks ? ' ' : '\t');
    if (!line.text.empty() && line.raw.substr(0, whole.start) != wanted) edits.push_back(Edit(i, 0, whole.start, wanted));
    if (isElse || IsCondition(line) || line.Is("DO")) ++depth;
  }
  return edits;
}

}  // namespace makcheck::lsp
