#include "engine/parser.h"

#include <utility>

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
  std::string text = Remove(line, '"');
  ExpandBuiltInVariables(text);
  SplitCommand(text, verb, a);
  if (text.find('=') == std::string::npos) return true;  // no argument, so none that a variable could replace
  for (std::size_t i = 1; i < a.size(); ++i) ReplaceUserVariable(a[i]);
  return true;
}

void SplitCommand(std::string_view text, std::string& verb, Arguments& a) {
  constexpr std::size_t kFields = 11;  // split for, of which seven are used
  a.fill("");
  verb = runtime::ToUpper(text.substr(0, text.find('=')));
  std::array<std::string, kFields> fields;
  SplitString(ArgumentText(text), fields);
  for (std::size_t i = 1; i < a.size(); ++i) a[i] = std::move(fields[i - 1]);
}

// It ends at the next "=", even inside single quotes.
std::string_view ArgumentText(std::string_view text) {
  const auto verbEnd = text.find('=');
  if (verbEnd == std::string_view::npos) return {};
  const auto rest = text.substr(verbEnd + 1);
  return rest.substr(0, rest.find('='));
}

void SplitString(std::string_view text, std::span<std::string> fields) {
  for (std::string& field : fields) field.clear();
  std::size_t index = 0;
  VisitFields(text, [&](std::size_t start, std::size_t end) {
    if (index < fields.size()) fields[index++] = Remove(text.substr(start, end - start), '\'');
  });
}

}  // namespace basMain
