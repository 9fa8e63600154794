// makrun: rehearses a macro on a simulated desktop and prints the log of the run.
#include <string>
#include <vector>

#include "common/exit_status.h"
#include "common/tool.h"
#include "engine/verbs.h"
#include "options.h"
#include "rehearse.h"
#include "runtime/code_page.h"
#include "texts.h"

namespace {

using tools::Say;

int StatusOf(makrun::Outcome outcome) {
  switch (outcome) {
    case makrun::Outcome::Completed:
      return tools::kFine;
    case makrun::Outcome::Failed:
      return tools::kFound;
    case makrun::Outcome::Stopped:
      return tools::kGivenUp;
  }
  return tools::kGivenUp;
}

void Print(const std::string& text) {
  if (!tools::Write(stdout, text))
    throw tools::FileError{Say(makrun::say::kNotWritten, {Say(makrun::say::kStandardOutput)})};
}

const tools::Text& KindText(basMain::VerbKind kind) {
  using enum basMain::VerbKind;
  switch (kind) {
    case Action:
      return makrun::say::kAction;
    case ForcedAction:
      return makrun::say::kForcedAction;
    case Condition:
      return makrun::say::kCondition;
    case Value:
      return makrun::say::kValue;
    case ForcedValue:
      return makrun::say::kForcedValue;
    case Branch:
      return makrun::say::kBranch;
  }
  return makrun::say::kAction;
}

// One verb a line: the word, its kind in parentheses, and its arguments.
std::string VerbList() {
  std::string list;
  for (const basMain::Verb& verb : basMain::Verbs()) {
    list += std::string(verb.word) + " (" + Say(KindText(verb.kind)) + ")";
    if (*verb.arguments != '\0') list += std::string(": ") + verb.arguments;
    list += "\n";
  }
  return list;
}

int Run(const std::vector<std::string>& arguments) {
  const makrun::Options options = makrun::ReadOptions(arguments);
  if (options.help) {
    Print(Say(makrun::say::kUsage));
    return tools::kFine;
  }
  if (options.listVerbs) {
    Print(VerbList());
    return tools::kFine;
  }
  const makrun::Rehearsal rehearsal = makrun::Rehearse(options);
  std::string output;
  for (const std::string& line : rehearsal.log) output += runtime::ToUtf8(line) + "\n";
  Print(output);
  for (const std::string& note : rehearsal.notes) tools::Complain("makrun", note);
  return StatusOf(rehearsal.outcome);
}

}  // namespace

int main(int argc, char** argv) { return tools::RunTool("makrun", makrun::say::kUsage, argc, argv, Run); }
