#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/line_form.h"
#include "nearest.h"
#include "rules.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using basMain::LineForm;
using runtime::ToUpper;
using runtime::Trim;

// Their value is all that they are for.
constexpr std::string_view kValueVerbs[] = {"VALUE",        "READINI",    "PARSE",    "CSVVALUE",
                                            "FORMATSTRING", "WINVERSION", "READTEXT", "READCOMBOTEXT"};
// Texts for a reader, in which the name of a variable may be a word like any other.
constexpr std::string_view kProse[] = {
    "MSG",           "MESSAGEOUT",    "RAISEERROR",       "DISPLAYSTATUS",  "DISPLAY",
    "ADDPROTOCOL",   "SHOWINPUTDLG",  "SHOWINPUTANL",     "VALUE",          "SHOWINPUTMERANL",
    "CONFIRMDIALOG", "WAITFORDIALOG", "IF CONFIRMDIALOG", "SHOWINPUTMERFIB"};

// With so many names of marks the missing ones of a macro are compared: of thousands of each, nobody asks for the nearest.
constexpr std::size_t kComparisons = 200'000;

template <class Range, class Wanted>
bool Holds(const Range& range, const Wanted& wanted) {
  return std::find(std::begin(range), std::end(range), wanted) != std::end(range);
}

constexpr ArgumentKind kCaseless[] = {ArgumentKind::Class, ArgumentKind::FrameClass, ArgumentKind::Word,
                                      ArgumentKind::Mark};

bool IsWordCharacter(char c) {
  return runtime::IsDigit(c) || c == '_' || c == '\xDF' ||
         ToUpper(std::string_view(&c, 1)) != runtime::ToLower(std::string_view(&c, 1));
}

// "Einkommensteuer-Export" is one word to a reader.
bool JoinsWords(char c) { return c == '-' || IsWordCharacter(c); }

bool IsOddName(const std::string& name) { return name.empty() || name.find_first_of(" ,=()'\"$") != std::string::npos; }

class NameRules {
 public:
  NameRules(const Macro& macro, Findings& findings) : macro_(macro), findings_(findings) {
    for (const auto& [key, lines] : macro.Marks()) markNames_.push_back(key.substr(std::string_view("MARK=").size()));
    std::sort(markNames_.begin(), markNames_.end());
    for (const auto& [name, variable] : macro.Variables()) folded_.try_emplace(ToUpper(name), name);
  }

  void Check() {
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      const Line& line = macro_.Lines()[index_];
      if (line.form == LineForm::Declaration) CheckDeclaration(line);
      if (line.form != LineForm::Statement) continue;
      CheckDollarWords(line);
      if (line.verb == nullptr) continue;
      CheckValue(line);
      CheckMarks(line);
      for (std::size_t i = 0; i < line.arguments.size(); ++i) {
        CheckVariableUse(line, line.arguments[i]);
        CheckCase(line, i);
      }
    }
    CheckUnread();
  }

 private:
  void Add(FindingId id, Span span, std::vector<std::string> values = {}, std::vector<Fix> fixes = {}) {
    findings_.push_back({id, index_, span, std::move(values), std::move(fixes)});
  }

  void CheckDeclaration(const Line& line) {
    if (line.text.size() > 3 && line.text[3] != ' ') return;  // rather no declaration at all
    if (IsOddName(line.name)) Add(FindingId::OddName, line.Whole(), {line.name});
    const Variable& variable = macro_.Variables().at(line.name);
    if (variable.declared != index_)
      Add(FindingId::DoubledDeclaration, line.Whole(), {line.name, std::to_string(variable.declared + 1)});
  }

  void CheckDollarWords(const Line& line) {
    const std::string& text = line.command;
    for (std::size_t at = text.find('$'); at != std::string::npos; at = text.find('$', at + 1)) {
      if (!BuiltInAt(text, at).empty()) continue;
      std::size_t end = at + 1;
      while (end < text.size() && IsWordCharacter(text[end])) ++end;
      const std::string word = text.substr(at, end - at);
      if (word.size() == 1 || macro_.DeclaredBefore(word, index_) != nullptr) continue;
      const Span span = line.Place(at, end);
      if (const std::string_view meant = BuiltInAt(ToUpper(word), 0); !meant.empty()) {
        const std::string right = std::string(meant) + word.substr(meant.size());
        Add(FindingId::DollarWordCase, span, {word, std::string(meant)}, {{index_, span, right}});
      } else if (const std::string near = NearestDollarWord(word); !near.empty()) {
        Add(FindingId::MisspelledDollarWord, span, {word, near}, {{index_, span, near}});
      } else {
        Add(FindingId::UnknownDollarWord, span, {word});
      }
    }
  }

  void CheckValue(const Line& line) {
    if (line.assignment && !Yields(*line.verb)) Add(FindingId::NoValue, line.Whole(), {line.word, line.name});
    if (!line.assignment && Holds(kValueVerbs, line.word)) Add(FindingId::LostValue, line.Whole(), {line.word});
  }

  // Values that are stored and that nobody reads.
  void CheckUnread() {
    for (const auto& [name, variable] : macro_.Variables()) {
      const bool used = !variable.reads.empty();
      for (const std::size_t assigned : variable.assignments) {
        const Line& line = macro_.Lines()[assigned];
        if (used || !Holds(kValueVerbs, line.word)) continue;
        index_ = assigned;
        Add(FindingId::UnreadVariable, line.Whole(), {name});
      }
    }
  }

  void CheckMarks(const Line& line) {
    if (line.word == "MARK" && !line.assignment) {
      const auto* lines = macro_.FindMark(line.Text(1));
      if (lines != nullptr && lines->front() != index_ && !line.openQuote)
        Add(FindingId::DoubledMark, line.Whole(), {std::string(line.Text(1)), std::to_string(lines->front() + 1)});
      if (index_ == 0) Add(FindingId::MarkOnFirstLine, line.Whole(), {std::string(line.Text(1))});
    }
    if (line.word != "GOTO" || line.arguments.empty() || IsComputed(macro_, index_, line.arguments[0])) return;
    const std::string name(line.Text(1));
    if (name.empty() || macro_.FindMark(name) != nullptr) return;
    const Span span = line.PlaceOf(line.arguments[0]);
    if (macro_.FindMark(Trim(name)) != nullptr || macro_.FindMark(" " + name) != nullptr) return;  // its blank is told
    std::string near;
    if (comparisons_ < kComparisons) near = Nearest(name, markNames_);
    comparisons_ += markNames_.size();
    if (near.empty()) Add(FindingId::MissingMark, span, {name});
    else Add(FindingId::MisspelledMark, span, {name, near}, {{index_, span, near}});
  }

  void CheckVariableUse(const Line& line, const Argument& argument) {
    if (const Variable* variable = macro_.DeclaredBefore(argument.text, index_); variable != nullptr) {
      if (argument.quoted) Add(FindingId::ArgumentIsVariable, line.PlaceOf(argument), {argument.text});
      else if (variable->assignments.empty())
        Add(FindingId::UnassignedVariable, line.PlaceOf(argument), {argument.text});
      return;
    }
    CheckVariableInText(line, argument);
  }

  // A name in other letters stays text. Classes, words of a verb and marks mind no case and may be called the same.
  void CheckCase(const Line& line, std::size_t i) {
    const Argument& argument = line.arguments[i];
    const auto& facts = ArgumentsOf(*line.verb);
    if (argument.quoted || i >= facts.size() || Holds(kCaseless, facts[i].kind)) return;
    const auto other = folded_.find(ToUpper(argument.text));
    if (other == folded_.end() || macro_.DeclaredBefore(other->second, index_) == nullptr) return;
    if (macro_.DeclaredBefore(argument.text, index_) != nullptr) return;
    const Span span = line.PlaceOf(argument);
    Add(FindingId::ArgumentCase, span, {argument.text, other->second}, {{index_, span, other->second}});
  }

  // The words of a longer argument that are names of variables. In a text for a reader only a last word counts, since
  // there the value is as a rule what the text ends with.
  void CheckVariableInText(const Line& line, const Argument& argument) {
    const std::string& text = argument.text;
    const bool prose = Holds(kProse, line.word);
    for (std::size_t start = 0; start < text.size();) {
      if (!JoinsWords(text[start])) {
        ++start;
        continue;
      }
      std::size_t end = start;
      while (end < text.size() && JoinsWords(text[end])) ++end;
      const std::string word = text.substr(start, end - start);
      const bool builtIn = start > 0 && text[start - 1] == '$';
      const bool counts = !builtIn && word.size() < text.size() && (!prose || end == text.size());
      if (counts && macro_.DeclaredBefore(word, index_) != nullptr) {
        Add(FindingId::VariableInText, line.PlaceOf(argument), {word, text});
        return;
      }
      start = end;
    }
  }

  const Macro& macro_;
  Findings& findings_;
  std::vector<std::string> markNames_;
  std::unordered_map<std::string, std::string> folded_;  // names of variables, by their upper case
  std::size_t comparisons_ = 0;  // with names of marks, so far
  std::size_t index_ = 0;
};

}  // namespace

void CheckNames(const Macro& macro, Findings& findings) { NameRules(macro, findings).Check(); }

}  // namespace makcheck
