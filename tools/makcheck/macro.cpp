#include "macro.h"

#include <algorithm>
#include <utility>

#include "engine/parser.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using basMain::LineForm;
using runtime::Remove;

void TakeCommandApart(Line& line) {
  const std::string& command = line.command;
  line.word = runtime::ToUpper(command.substr(0, command.find('=')));
  line.verb = FindVerb(line.word);
  const auto equals = command.find('=');
  if (equals == std::string::npos) return;
  const std::string_view text = basMain::ArgumentText(command);
  const bool closed = basMain::VisitFields(text, [&](std::size_t start, std::size_t end) {
    const std::string_view field = text.substr(start, end - start);
    line.arguments.push_back({Remove(field, '\''), equals + 1 + start, equals + 1 + end, runtime::Contains(field, "'")});
  });
  line.openQuote = !closed;
}

}  // namespace

// The engine only takes characters away, and in a command of an assignment turns "(" into "=", so both texts can be
// walked side by side.
Span Line::Place(std::size_t start, std::size_t end) const {
  std::size_t at = assignment ? raw.find('=') + 1 : 0;
  while (places_.size() < command.size()) {
    const char character = command[places_.size()];
    const char wanted = assignment && character == '=' ? '(' : character;
    while (at < raw.size() && raw[at] != wanted) ++at;
    places_.push_back(std::min(at++, raw.size()));
  }
  const std::size_t behind = places_.empty() ? raw.size() : std::min(places_.back() + 1, raw.size());
  const auto place = [&](std::size_t i) { return i < places_.size() ? places_[i] : behind; };
  return {place(start), std::max(place(start), place(end))};
}

Span Line::Whole() const {
  constexpr std::string_view kBlanks = " \t";
  const auto start = raw.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {0, raw.size()};
  return {start, raw.find_last_not_of(kBlanks) + 1};
}

std::string_view Line::Text(std::size_t number) const {
  return number <= arguments.size() ? std::string_view(arguments[number - 1].text) : std::string_view();
}

Macro::Macro(std::string text) : text_(std::move(text)) {
  std::string_view rest = text_;
  while (!rest.empty()) AddLine(runtime::TakeLine(rest));
}

void Macro::AddLine(std::string_view raw) {
  const std::size_t index = lines_.size();
  Line& line = lines_.emplace_back();
  line.raw = raw;
  line.text = basMain::NormalisedLine(raw);
  line.form = basMain::FormOf(line.text);
  if (line.form == LineForm::Declaration) {
    line.name = basMain::DeclaredName(line.text);
    Variable& variable = variables_[line.name];
    if (variable.declarations++ == 0) variable.declared = index;
  }
  if (line.form != LineForm::Statement) return;
  if (const std::string key = basMain::MarkKey(line.text); basMain::IsMark(key)) marks_[key].push_back(index);
  const auto variable = variables_.find(basMain::AssignedName(line.text));
  line.assignment = variable != variables_.end() && line.text.find('=') != std::string::npos;
  if (line.assignment) {
    line.name = variable->first;
    variable->second.assignments.push_back(index);
  }
  line.command = Remove(line.assignment ? basMain::AssignedCommand(line.text) : line.text, '"');
  TakeCommandApart(line);
  for (const Argument& argument : line.arguments)
    if (const auto read = variables_.find(argument.text); read != variables_.end())
      read->second.reads.push_back(index);
}

const Variable* Macro::DeclaredBefore(const std::string& name, std::size_t line) const {
  const auto found = variables_.find(name);
  return found != variables_.end() && found->second.declared < line ? &found->second : nullptr;
}

const std::vector<std::size_t>* Macro::FindMark(std::string_view name) const {
  const auto found = marks_.find(basMain::MarkKey("MARK=" + std::string(name)));
  return found == marks_.end() ? nullptr : &found->second;
}

}  // namespace makcheck
