#include "engine/parser.h"

#include "engine/built_in_variables.h"
#include "engine/state.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Contains;
using runtime::Remove;
using runtime::Replace;
using runtime::Skip;

// A value that cannot be computed leaves its name in the line as plain text.
void ExpandBuiltInVariables(std::string& line) {
  for (const BuiltInVariable& variable : BuiltInVariables())
    if (Contains(line, variable.name)) Skip([&] { line = Replace(line, variable.name, variable.value()); });
}

void ReplaceUserVariable(std::string& argument) {
  if (const auto variable = run.UserVariables.FindDeclared(argument)) argument = run.UserVariables.Value(*variable);
}

}  // namespace

bool ParseMakroLine(const std::string& line, std::string& verb, Arguments& a) {
  constexpr std::size_t kFields = 11;  // split for, of which seven are used
  std::string text = Remove(line, '"');
  ExpandBuiltInVariables(text);
  a.fill("");
  const auto verbEnd = text.find('=');
  verb = runtime::ToUpper(std::string_view(text).substr(0, verbEnd));
  if (verbEnd == std::string::npos) return true;

  // The argument text ends at the next "=", even inside single quotes.
  const auto rest = std::string_view(text).substr(verbEnd + 1);
  std::array<std::string, kFields> fields;
  SplitString(rest.substr(0, rest.find('=')), fields);
  for (std::size_t i = 1; i < a.size(); ++i) {
    a[i] = fields[i - 1];
    ReplaceUserVariable(a[i]);
  }
  return true;
}

void SplitString(std::string_view text, std::span<std::string> fields) {
  for (std::string& field : fields) field.clear();
  std::string closed(text);
  if (!closed.ends_with(',')) closed += ',';
  bool quoted = false;
  std::size_t start = 0;
  std::size_t index = 0;
  for (std::size_t i = 0; i < closed.size() && index < fields.size(); ++i) {
    if (closed[i] == '\'') quoted = !quoted;
    if (closed[i] != ',' || quoted) continue;
    fields[index++] = Remove(std::string_view(closed).substr(start, i - start), '\'');
    start = i + 1;
  }
}

}  // namespace basMain
