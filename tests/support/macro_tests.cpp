// Runs every test macro below tests/macros as a test of its own. A test macro carries its expectation in its comments
// (tests/macros/README.md); the files are UTF-8 and are handed to the engine in the program's code page.
#include <gtest/gtest-spi.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include "common/tool.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "runtime/code_page.h"
#include "runtime/text.h"
#include "support/system.h"

namespace {

namespace fs = std::filesystem;

// A line of the log, and the line of the macro that expects it.
struct ExpectedLine {
  std::string text;
  int line = 0;
};

struct Expectation {
  std::vector<ExpectedLine> log;
  std::string failure;
  bool fails = false;
  bool stops = false;
  int endLine = 0;                    // line of the macro that says how the run ends, else its last one
  std::vector<std::string> settings;  // lines of the settings file
};

// Takes the text behind the word of a comment; false when the line is not such a comment.
bool Directive(const std::string& line, const std::string& word, std::string& text) {
  const std::string start = "REM " + word;
  if (!line.starts_with(start)) return false;
  text = line.substr(std::min(line.size(), start.size() + 1));
  return true;
}

Expectation ReadExpectation(const std::vector<std::string>& lines) {
  Expectation expected;
  int number = 0;
  int last = 0;
  std::optional<int> end;
  for (const std::string& line : lines) {
    ++number;
    if (!line.empty()) last = number;
    std::string text;
    if (Directive(line, "erwartet:", text)) expected.log.push_back({text, number});
    if (Directive(line, "einstellung:", text)) expected.settings.push_back(text);
    if (Directive(line, "angehalten", text)) {
      expected.stops = true;
      end = number;
    }
    if (Directive(line, "fehler:", text)) {
      expected.fails = true;
      expected.failure = text;
      end = number;
    }
  }
  expected.endLine = end.value_or(last);
  if (expected.fails) {
    expected.log.push_back({expected.failure, expected.endLine});
  } else {
    expected.log.push_back({expected.stops ? support::kStopped : support::kCompleted, expected.endLine});
    expected.log.push_back({support::kStars, expected.endLine});
  }
  return expected;
}

std::string Quoted(const std::string& text) { return '"' + runtime::ToUtf8(text) + '"'; }

class MacroTest : public support::SystemTest {
 public:
  explicit MacroTest(fs::path path) : path_(std::move(path)) {}

  void TestBody() override {
    const auto lines = runtime::Split(support::CodePage(tools::ReadFile(path_)), '\n');
    const Expectation expected = ReadExpectation(lines);
    std::string settings;
    for (const std::string& line : expected.settings) settings += line + "\r\n";
    platform::simulated::PutFile(support::kProgram + "\\QUMAEXP.INI", settings);
    const bool completed = support::RunLines(lines);
    ExpectLog(expected.log);
    const testing::ScopedTrace end(path_.c_str(), expected.endLine, "the end of the run");
    EXPECT_EQ(completed, !expected.fails);
    EXPECT_EQ(basMain::run.StopRun, expected.stops);
    if (expected.fails) {
      EXPECT_EQ(basMain::run.LastError, expected.failure);
    }
  }

 private:
  // Tells of the first difference, at the line of the macro: the others follow from it.
  void ExpectLog(const std::vector<ExpectedLine>& expected) const {
    const auto log = support::Log();
    const auto [line, logged] = std::ranges::mismatch(expected, log, {}, &ExpectedLine::text);
    if (line == expected.end() && logged == log.end()) return;
    ADD_FAILURE_AT(path_.c_str(), line == expected.end() ? expected.back().line : line->line)
        << "expected: " << (line == expected.end() ? "the log's end" : Quoted(line->text))
        << "\n  logged: " << (logged == log.end() ? "nothing more" : Quoted(*logged));
  }

  fs::path path_;
};

// The line of the file of which a test macro with these lines complains; 0 when it passes.
int ComplaintOf(const std::string& lines) {
  const fs::path file = fs::path(testing::TempDir()) / "complaint.mak";
  std::ofstream(file, std::ios::binary) << lines;
  testing::TestPartResultArray results;
  {
    const testing::ScopedFakeTestPartResultReporter reporter(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
    MacroTest(file).TestBody();
  }
  fs::remove(file);
  if (results.size() == 0) return 0;
  EXPECT_EQ(results.GetTestPartResult(0).file_name(), file);
  return results.GetTestPartResult(0).line_number();
}

TEST(MacroRunnerTest, AMismatchNamesTheLineThatHoldsTheExpectation) {
  EXPECT_EQ(ComplaintOf("MSG=1\nREM erwartet: MSG: 1\nMSG=2\nREM erwartet: MSG: 2\n"), 0);
  EXPECT_EQ(ComplaintOf("MSG=1\nREM erwartet: MSG: 1\nMSG=2\nREM erwartet: MSG: 3\n"), 4) << "another text";
  EXPECT_EQ(ComplaintOf("MSG=1\nMSG=2\nREM erwartet: MSG: 2\nMSG=3\n"), 3) << "a line that nobody expects before it";
  EXPECT_EQ(ComplaintOf("MSG=1\nREM erwartet: MSG: 1\nMSG=2\n"), 3) << "the end of the log";
  EXPECT_EQ(ComplaintOf("RAISEERROR=weg\nREM fehler: da\nMSG=nie\n"), 2) << "the failure";
}

// "engine/else_twice.mak" becomes

// "engine/else_twice.mak" becomes the test Macros_engine.else_twice.
const bool registered = [] {
  const fs::path folder = fs::path(SOURCE_DIRECTORY) / "tests" / "macros";
  std::vector<fs::path> macros;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (entry.path().extension() == ".mak") macros.push_back(entry.path());
  std::sort(macros.begin(), macros.end());
  for (const fs::path& macro : macros) {
    const std::string suite = "Macros_" + macro.parent_path().filename().string();
    testing::RegisterTest(suite.c_str(), macro.stem().string().c_str(), nullptr, nullptr, macro.string().c_str(), 1,
                          [macro]() -> support::SystemTest* { return new MacroTest(macro); });
  }
  return true;
}();

}  // namespace
