// makrun: rehearses a macro on a simulated desktop and prints the log of the run.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "options.h"
#include "platform/simulated/host_paths.h"
#include "rehearse.h"

namespace {

constexpr int kWrongUsage = 64;
constexpr int kUnreadable = 66;

int StatusOf(makrun::Outcome outcome) {
  switch (outcome) {
    case makrun::Outcome::Completed:
      return 0;
    case makrun::Outcome::Failed:
      return 1;
    case makrun::Outcome::Stopped:
      return 2;
  }
  return 2;
}

void Complain(const std::string& text) { std::fprintf(stderr, "makrun: %s\n", text.c_str()); }

int Run(const makrun::Options& options) {
  const makrun::Rehearsal rehearsal = makrun::Rehearse(options);
  std::string output;
  for (const std::string& line : rehearsal.log) output += platform::simulated::ToUtf8(line) + "\n";
  const bool written = std::fwrite(output.data(), 1, output.size(), stdout) == output.size();
  if (!written || std::fflush(stdout) != 0) throw makrun::FileError{"standard output cannot be written"};
  for (const std::string& note : rehearsal.notes) Complain(platform::simulated::ToUtf8(note));
  // A failed run is told in the program's own words alone.
  const std::string reason = platform::simulated::ToUtf8(rehearsal.reason);
  if (rehearsal.outcome == makrun::Outcome::Failed) std::fprintf(stderr, "%s\n", reason.c_str());
  else if (!reason.empty()) Complain(reason);
  return StatusOf(rehearsal.outcome);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const makrun::Options options = makrun::ReadOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (options.help) {
      std::fputs(makrun::kUsage, stdout);
      return 0;
    }
    return Run(options);
  } catch (const makrun::UsageError& error) {
    Complain(error.text);
    std::fputs(makrun::kUsage, stderr);
    return kWrongUsage;
  } catch (const makrun::FileError& error) {
    Complain(error.text);
    return kUnreadable;
  } catch (const std::exception& error) {  // of the host: the drive's folder, or one for temporary files
    Complain(error.what());
    return kUnreadable;
  }
}
