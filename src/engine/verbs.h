// The table of verbs and the dispatcher that turns one parsed line into one action. It is the only place that knows the
// verbs.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/parser.h"

namespace basMain {

// When a verb runs and what becomes of its handler's result.
enum class VerbKind {
  Action,        // a false result fails the run
  ForcedAction,  // never fails the run
  Condition,     // the result becomes ExecEnabled
  Value,         // like an action; the line has a result
  ForcedValue,   // like a forced action; the line has a result
  Branch,        // runs also on the skipped side of a condition
};

struct Verb {
  std::string_view word;  // upper case
  VerbKind kind;
  const char* arguments;  // names in their order, separated by ", "
  // Yields the handler's result; `value` is the line's result.
  bool (*handler)(const Arguments& a, std::string& value);
};

// All 110 verb words.
std::span<const Verb> Verbs();

// The verb of an upper-case word, or null.
const Verb* FindVerb(std::string_view word);

// Carries out one line and yields its result, empty unless the verb is a value verb. A verb that is not known fails the
// run with text 1015, a fault with the standard error text for "MakroExecute", unless the line stands in a skipped
// branch.
std::string MakroExecute(const std::string& line);

}  // namespace basMain
