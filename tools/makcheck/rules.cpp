#include "rules.h"

#include "engine/built_in_variables.h"

namespace makcheck {

std::string_view BuiltInAt(std::string_view text, std::size_t at) {
  // In the order of substitution, the first one takes the place.
  for (const basMain::BuiltInVariable& variable : basMain::BuiltInVariables())
    if (text.substr(at).starts_with(variable.name)) return variable.name;
  return {};
}

bool IsComputed(const Macro& macro, std::size_t line, const Argument& argument) {
  if (macro.DeclaredBefore(argument.text, line) != nullptr) return true;
  for (std::size_t at = argument.text.find('$'); at != std::string::npos; at = argument.text.find('$', at + 1))
    if (!BuiltInAt(argument.text, at).empty()) return true;
  return false;
}

bool IsCondition(const Line& line) { return line.verb != nullptr && line.verb->kind == basMain::VerbKind::Condition; }

bool IsLoopEnd(const Line& line) { return line.verb != nullptr && line.word.starts_with("LOOP UNTIL "); }

}  // namespace makcheck
