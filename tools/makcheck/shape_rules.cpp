#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/parser.h"
#include "nearest.h"
#include "rules.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using basMain::LineForm;
using runtime::ToUpper;
using runtime::Trim;

// What other languages begin a comment with.
constexpr std::string_view kForeignComments[] = {"//", ";", "'", "#", "--", "/*", "*", "!", "@REM", "::"};

constexpr std::string_view kLoopEnds[] = {"LOOP UNTIL COUNT", "LOOP UNTIL MATRIX.EOF", "LOOP UNTIL MERMATRIX.EOF",
                                          "LOOP UNTIL CSVFILE.EOF"};
constexpr std::size_t kSlips = 2;         // letters that are wrong in a word that is still plain
constexpr std::size_t kLongestVerb = 40;  // letters, with room to spare

bool IsLetterOrDigit(char c) {
  const std::string folded = ToUpper(std::string_view(&c, 1)) + runtime::ToLower(std::string_view(&c, 1));
  return runtime::IsDigit(c) || folded[0] != folded[1] || c == '_' || c == '\xDF';
}

bool KnowsVerb(std::string_view text) { return FindVerb(ToUpper(Trim(text))) != nullptr; }

Fix Replacing(std::size_t line, Span span, std::string text) { return {line, span, std::move(text)}; }

// Without the blanks around the first "=".
std::string WithoutBlanksAtEquals(const Line& line) {
  const std::string_view text = line.raw.substr(line.Whole().start, line.Whole().end - line.Whole().start);
  const auto equals = text.find('=');
  if (equals == std::string_view::npos) return Trim(text);
  return Trim(text.substr(0, equals)) + "=" + Trim(text.substr(equals + 1));
}

class Shapes {
 public:
  Shapes(const Macro& macro, Findings& findings) : macro_(macro), findings_(findings) {
    for (const auto& [name, variable] : macro.Variables()) folded_.try_emplace(ToUpper(name), name);
  }

  void Check() {
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      const Line& line = macro_.Lines()[index_];
      switch (line.form) {
        case LineForm::Empty:
          break;
        case LineForm::Comment:
          if (line.text.size() > 3 && IsLetterOrDigit(line.text[3]))
            Add(FindingId::CommentByAccident, line.Whole(), {line.text.substr(0, line.text.find('='))});
          break;
        case LineForm::Declaration:
          if (line.text.size() > 3 && line.text[3] != ' ')
            Add(FindingId::DeclarationByAccident, line.Whole(), {line.text, line.name});
          break;
        case LineForm::Statement:
          if (line.verb == nullptr) CheckUnknown(line);
          else CheckKnown(line);
          break;
      }
    }
  }

 private:
  void Add(FindingId id, Span span, std::vector<std::string> values = {}, std::vector<Fix> fixes = {}) {
    findings_.push_back({id, index_, span, std::move(values), std::move(fixes)});
  }

  // A line whose verb the dispatcher does not know.
  void CheckUnknown(const Line& line) {
    if (IsForeignComment(line)) return;
    const std::string trimmed = Trim(line.word);
    const bool blanks = trimmed != line.word && (FindVerb(trimmed) != nullptr || IsBlankAssignment(line));
    if (blanks || (line.assignment && KnowsVerb(line.word))) {
      const bool atStart = line.command.starts_with(' ') && !line.assignment;
      const Fix fix = Replacing(index_, {0, line.raw.size()}, WithoutBlanksAtEquals(line));
      Add(atStart ? FindingId::BlankBeforeVerb : FindingId::BlankAtEquals, line.Whole(), {fix.text}, {fix});
      return;
    }
    if (line.assignment) return CheckAssignedUnknown(line);
    if (IsParenthesised(line) || IsUndeclared(line) || IsElseIf(line) || LacksEquals(line) || EndsNoLoop(line) ||
        ComparesAVariable(line) || IsLabel(line))
      return;
    AddUnknownVerb(line);
  }

  void AddMeant(FindingId id, const Line& line, std::vector<std::string> values, std::string meant) {
    Add(id, line.Whole(), std::move(values), {Replacing(index_, line.Whole(), std::move(meant))});
  }

  bool IsElseIf(const Line& line) {
    for (const char* word : {"ELSEIF", "ELSE IF", "ELSIF"}) {
      if (!line.word.starts_with(word)) continue;
      Add(FindingId::ElseIf, line.Whole(), {word});
      return true;
    }
    return false;
  }

  // "WAIT 500": the longest verb with arguments that the line begins with.
  bool LacksEquals(const Line& line) {
    const std::string text = Trim(line.text);
    for (auto end = text.find_last_of(" :", kLongestVerb); end != std::string::npos && end > 0;
         end = text.find_last_of(" :", end - 1)) {
      const basMain::Verb* verb = FindVerb(ToUpper(Trim(text.substr(0, end))));
      if (verb == nullptr || ArgumentsOf(*verb).empty()) continue;
      const std::string meant = Trim(text.substr(0, end)) + "=" + Trim(text.substr(end + 1));
      AddMeant(FindingId::MissingEquals, line, {meant}, meant);
      return true;
    }
    return false;
  }

  // "LOOP" and "WEND" say too little to tell which end is meant.
  bool EndsNoLoop(const Line& line) {
    const bool near = std::any_of(std::begin(kLoopEnds), std::end(kLoopEnds), [&](std::string_view end) {
      return Distance(line.word, end, kSlips) <= kSlips;
    });
    if (near || !(line.word.starts_with("LOOP") || line.word == "WEND" || line.word == "UNTIL")) return false;
    std::string ends;
    for (const std::string_view end : kLoopEnds) ends += (ends.empty() ? "" : ", ") + std::string(end);
    Add(FindingId::UnknownLoopEnd, line.PlaceOfWord(), {line.word, ends});
    return true;
  }

  // "IF Jahr=2005" of a variable that is declared.
  bool ComparesAVariable(const Line& line) {
    const auto equals = line.text.find('=');
    if (!line.word.starts_with("IF ") || equals == std::string::npos) return false;
    const std::string name = Trim(line.text.substr(3, equals - 3));
    if (macro_.DeclaredBefore(name, index_) == nullptr && BuiltInAt(name, 0) != name) return false;
    const std::string meant = "IF STRCOMP=" + name + "," + Trim(line.text.substr(equals + 1));
    AddMeant(FindingId::MisspelledVerb, line, {line.word, meant}, meant);
    return true;
  }

  // "Ende:"
  bool IsLabel(const Line& line) {
    const std::string text = Trim(line.text);
    if (text.size() < 2 || text.find('=') != std::string::npos || (text.front() != ':' && text.back() != ':')) return false;
    const std::string meant = "MARK=" + Trim(text.front() == ':' ? text.substr(1) : text.substr(0, text.size() - 1));
    AddMeant(FindingId::MisspelledVerb, line, {line.word, meant}, meant);
    return true;
  }

  bool IsForeignComment(const Line& line) {
    const std::string text = ToUpper(Trim(line.text));
    const bool foreign = std::any_of(std::begin(kForeignComments), std::end(kForeignComments),
                                     [&](std::string_view mark) { return text.starts_with(mark); });
    if (!foreign || line.assignment) return false;
    Add(FindingId::ForeignComment, line.Whole(), {},
        {Replacing(index_, {line.Whole().start, line.Whole().start}, "REM ")});
    return true;
  }

  // "x = VALUE(1)" of a variable that is declared.
  bool IsBlankAssignment(const Line& line) const {
    const auto equals = line.text.find('=');
    return equals != std::string::npos && macro_.DeclaredBefore(Trim(line.text.substr(0, equals)), index_) != nullptr;
  }

  bool IsParenthesised(const Line& line) {
    const auto open = line.raw.find('(');
    const auto equals = line.raw.find('=');
    if (open == std::string_view::npos || equals < open || !KnowsVerb(line.raw.substr(0, open))) return false;
    const auto whole = line.Whole();
    std::string arguments(line.raw.substr(open + 1, whole.end - open - 1));
    if (arguments.ends_with(')')) arguments.pop_back();
    const std::string verb = Trim(line.raw.substr(whole.start, open - whole.start));
    const std::string command = arguments.empty() ? verb : verb + "=" + arguments;
    Add(FindingId::ParenthesisedCommand, whole, {verb, command}, {Replacing(index_, whole, command)});
    return true;
  }

  // An assignment to a name that no line before declares.
  bool IsUndeclared(const Line& line) {
    const auto equals = line.text.find('=');
    if (equals == std::string::npos) return false;
    const std::string name = Trim(line.text.substr(0, equals));
    const std::string_view right = std::string_view(line.text).substr(equals + 1);
    const bool assigns = KnowsVerb(right.substr(0, right.find_first_of("(=")));
    const Span place = {line.Whole().start, line.Whole().start + name.size()};
    const auto other = folded_.find(ToUpper(name));
    if (other != folded_.end() && macro_.DeclaredBefore(other->second, index_) != nullptr) {
      Add(FindingId::VariableCase, place, {name, other->second}, {Replacing(index_, place, other->second)});
      return true;
    }
    if (!assigns || name.empty() || name.starts_with('$')) return false;
    Add(FindingId::UndeclaredVariable, place, {name},
        {Replacing(index_, {place.start, place.start}, "DIM " + name + "\r\n")});
    return true;
  }

  // An assignment whose command is no verb.
  void CheckAssignedUnknown(const Line& line) {
    const std::string right = line.text.substr(line.text.find('=') + 1);
    const auto equals = right.find('=');
    const auto place = line.raw.find('=') + 1;
    const Span span = {place, line.Whole().end};
    if (equals != std::string::npos && KnowsVerb(right.substr(0, equals))) {
      const std::string meant = right.substr(0, equals) + "(" + right.substr(equals + 1) + ")";
      Add(FindingId::AssignmentWithoutParentheses, span, {line.name + "=" + meant}, {Replacing(index_, span, meant)});
    } else if (const auto blank = right.find(' '); blank != std::string::npos && KnowsVerb(right.substr(0, blank))) {
      const std::string meant = right.substr(0, blank) + "(" + Trim(right.substr(blank)) + ")";
      Add(FindingId::AssignmentWithoutParentheses, span, {line.name + "=" + meant}, {Replacing(index_, span, meant)});
    } else if (right.find('(') == std::string::npos) {
      const std::string meant = "VALUE(" + right + ")";
      Add(FindingId::LiteralAssignment, span, {line.name + "=" + meant}, {Replacing(index_, span, meant)});
    } else {
      AddUnknownVerb(line);
    }
  }

  void AddUnknownVerb(const Line& line) {
    const Span span = line.word.empty() ? line.Whole() : line.PlaceOfWord();
    // There is no negation: what is near would say the opposite.
    const std::string near = line.word.starts_with("IF NOT ") ? "" : NearestVerb(line.word, line.assignment);
    if (near.empty()) Add(FindingId::UnknownVerb, span, {line.word});
    else Add(FindingId::MisspelledVerb, span, {line.word, near}, {Replacing(index_, span, near)});
  }

  void CheckKnown(const Line& line) {
    const auto equals = line.command.find('=');
    if (equals != std::string::npos && equals + 1 < line.command.size() && line.command[equals + 1] == ' ') {
      const auto text = line.command.find_first_not_of(' ', equals + 1);
      const Span span = line.Place(equals + 1, text == std::string::npos ? line.command.size() : text);
      Add(FindingId::BlankAtEquals, span, {line.word + "=" + Trim(line.command.substr(equals + 1))},
          {Replacing(index_, span, "")});
    }
    if (line.assignment) CheckParentheses(line);
    else CheckFurtherEquals(line);
    if (line.openQuote) {
      const Span whole = line.Whole();
      const auto quote = line.raw.rfind('\'');
      Add(FindingId::OpenQuote, {quote, whole.end}, {}, {Replacing(index_, {whole.end, whole.end}, "'")});
    }
  }

  void CheckFurtherEquals(const Line& line) {
    const auto first = line.command.find('=');
    const auto second = first == std::string::npos ? first : line.command.find('=', first + 1);
    if (second == std::string::npos) return;
    Add(FindingId::DroppedEquals, line.Place(second, line.command.size()), {line.command.substr(second)});
  }

  // All but the pair that turns the line into a command is lost, and a second "(" cuts the arguments.
  void CheckParentheses(const Line& line) {
    const auto equals = line.raw.find('=');
    const std::string_view right = line.raw.substr(equals + 1, line.Whole().end - equals - 1);
    if (const auto further = right.find('='); further != std::string_view::npos)
      Add(FindingId::DroppedEquals, {equals + 1 + further, equals + 2 + further}, {"="});
    const auto open = right.find('(');
    const auto inner = open == std::string_view::npos ? right.find(')') : right.find_first_of("()", open + 1);
    if (inner == std::string_view::npos || (right[inner] == ')' && inner + 1 == right.size())) return;
    Add(FindingId::DroppedParenthesis, {equals + 1 + inner, equals + 2 + inner}, {std::string(1, right[inner])});
  }

  const Macro& macro_;
  Findings& findings_;
  std::unordered_map<std::string, std::string> folded_;  // names of variables, by their upper case
  std::size_t index_ = 0;
};

}  // namespace

void CheckShapes(const Macro& macro, Findings& findings) { Shapes(macro, findings).Check(); }

}  // namespace makcheck
