// makrun: rehearses a macro on a simulated desktop and prints the log of the run.
#include <string>
#include <vector>

#include "common/exit_status.h"
#include "common/tool.h"
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

void Complain(const std::string& text) { tools::Complain("makrun", text); }

void Print(const std::string& text) {
  if (!tools::Write(stdout, text))
    throw tools::FileError{Say(makrun::say::kNotWritten, {Say(makrun::say::kStandardOutput)})};
}

int Run(const std::vector<std::string>& arguments) {
  const makrun::Options options = makrun::ReadOptions(arguments);
  if (options.help) {
    Print(Say(makrun::say::kUsage));
    return tools::kFine;
  }
  const makrun::Rehearsal rehearsal = makrun::Rehearse(options);
  std::string output;
  for (const std::string& line : rehearsal.log) output += runtime::ToUtf8(line) + "\n";
  Print(output);
  for (const std::string& note : rehearsal.notes) Complain(note);
  // A failed run is told in the program's own words alone.
  if (rehearsal.outcome == makrun::Outcome::Failed) tools::Write(stderr, rehearsal.reason + "\n");
  else if (!rehearsal.reason.empty()) Complain(rehearsal.reason);
  return StatusOf(rehearsal.outcome);
}

}  // namespace

int main(int argc, char** argv) { return tools::RunTool("makrun", makrun::say::kUsage, argc, argv, Run); }
