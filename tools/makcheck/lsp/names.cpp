#include "lsp/names.h"

#include <algorithm>

#include "engine/line_form.h"
#include "runtime/text.h"

namespace makcheck::lsp {
namespace {

using basMain::LineForm;

struct Occurrence {
  Name name;
  bool declares;
};

Range RangeOf(std::size_t line, Span span) { return {{line, span.start}, {line, span.end}}; }

// Without the quotes around it.
Span Inner(const Line& line, Span span) {
  const bool quoted = span.end - span.start >= 2 && line.raw[span.start] == '\'' && line.raw[span.end - 1] == '\'';
  return quoted ? Span{span.start + 1, span.end - 1} : span;
}

// All variables and marks that stand in a line.
std::vector<Occurrence> OccurrencesIn(const Macro& macro, std::size_t index) {
  const Line& line = macro.Lines()[index];
  std::vector<Occurrence> occurrences;
  const auto add = [&](NameKind kind, const std::string& text, Span span, bool declares) {
    occurrences.push_back({{kind, text, RangeOf(index, span)}, declares});
  };
  if (line.form == LineForm::Declaration && !line.name.empty()) {
    const std::size_t end = line.Whole().end;
    add(NameKind::Variable, line.name, {end - std::min(end, line.name.size()), end}, true);
  }
  if (line.form != LineForm::Statement) return occurrences;
  if (line.assignment) {
    const std::size_t start = line.Whole().start;
    add(NameKind::Variable, line.name, {start, start + line.name.size()}, false);
  }
  const bool jump = !line.arguments.empty() && (line.Is("MARK") || line.Is("GOTO"));
  for (const Argument& argument : line.arguments) {
    const Span span = Inner(line, line.PlaceOf(argument));
    if (!line.Is("MARK") && macro.DeclaredBefore(argument.text, index) != nullptr)
      add(NameKind::Variable, argument.text, span, false);
    else if (jump && &argument == &line.arguments.front() && !argument.text.empty())
      add(NameKind::Mark, argument.text, span, line.Is("MARK"));
  }
  return occurrences;
}

// Marks do not mind the case.
bool SameName(const Name& a, const Name& b) {
  if (a.kind != b.kind) return false;
  return a.kind == NameKind::Mark ? basMain::MarkKey(a.text) == basMain::MarkKey(b.text) : a.text == b.text;
}

std::vector<Occurrence> AllOf(const Document& document, const Name& name) {
  std::vector<Occurrence> all;
  for (std::size_t i = 0; i < document.Macro().Lines().size(); ++i)
    for (const Occurrence& occurrence : OccurrencesIn(document.Macro(), i))
      if (SameName(occurrence.name, name)) all.push_back(occurrence);
  return all;
}

}  // namespace

std::optional<Name> NameAt(const Document& document, Position position) {
  if (position.line >= document.Macro().Lines().size()) return std::nullopt;
  for (const Occurrence& occurrence : OccurrencesIn(document.Macro(), position.line)) {
    const Range& place = occurrence.name.place;
    if (place.start.column <= position.column && position.column <= place.end.column) return occurrence.name;
  }
  return std::nullopt;
}

std::optional<Range> DeclarationOf(const Document& document, const Name& name) {
  for (const Occurrence& occurrence : AllOf(document, name))
    if (occurrence.declares) return occurrence.name.place;
  return std::nullopt;
}

std::vector<Range> PlacesOf(const Document& document, const Name& name) {
  std::vector<Range> places;
  for (const Occurrence& occurrence : AllOf(document, name)) places.push_back(occurrence.name.place);
  return places;
}

bool MayBeCalled(const Document& document, const Name& name, const std::string& text) {
  if (text.empty() || text.find_first_of(" ,=()'\"$\t\r\n") != std::string::npos) return false;
  const Name renamed = {name.kind, text, {}};
  return SameName(renamed, name) || AllOf(document, renamed).empty();
}

}  // namespace makcheck::lsp
