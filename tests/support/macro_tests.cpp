// Runs every test macro below tests/macros as a test of its own. A test macro carries its expectation in its comments
// (tests/macros/README.md); the files are UTF-8 and are handed to the engine in the program's code page.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "runtime/text.h"
#include "support/system.h"

namespace {

namespace fs = std::filesystem;

struct Expectation {
  std::vector<std::string> log;
  std::string failure;
  bool fails = false;
  bool stops = false;
  std::vector<std::string> settings;  // lines of the settings file
};

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Takes the text behind the word of a comment; false when the line is not such a comment.
bool Directive(const std::string& line, const std::string& word, std::string& text) {
  const std::string start = "REM " + word;
  if (!line.starts_with(start)) return false;
  text = line.substr(std::min(line.size(), start.size() + 1));
  return true;
}

Expectation ReadExpectation(const std::vector<std::string>& lines) {
  Expectation expected;
  for (const std::string& line : lines) {
    std::string text;
    if (Directive(line, "erwartet:", text)) expected.log.push_back(text);
    if (Directive(line, "einstellung:", text)) expected.settings.push_back(text);
    if (Directive(line, "angehalten", text)) expected.stops = true;
    if (Directive(line, "fehler:", text)) {
      expected.fails = true;
      expected.failure = text;
    }
  }
  if (expected.fails) expected.log.push_back(expected.failure);
  else
    expected.log.insert(expected.log.end(),
                        {expected.stops ? support::kStopped : support::kCompleted, support::kStars});
  return expected;
}

class MacroTest : public support::SystemTest {
 public:
  explicit MacroTest(fs::path path) : path_(std::move(path)) {}

  void TestBody() override {
    const auto lines = runtime::Split(support::CodePage(ReadFile(path_)), '\n');
    const Expectation expected = ReadExpectation(lines);
    std::string settings;
    for (const std::string& line : expected.settings) settings += line + "\r\n";
    platform::simulated::PutFile(support::kProgram + "\\QUMAEXP.INI", settings);
    EXPECT_EQ(support::RunLines(lines), !expected.fails);
    EXPECT_EQ(support::Log(), expected.log);
    EXPECT_EQ(basMain::run.StopRun, expected.stops);
    if (expected.fails) {
      EXPECT_EQ(basMain::run.LastError, expected.failure);
    }
  }

 private:
  fs::path path_;
};

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
