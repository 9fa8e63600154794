#include "common/tool.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/exit_status.h"

namespace {

using tools::CommandLine;
using tools::Language;
using tools::UsageError;

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    tools::language = Language::English;
    line_.Flag("--loud", loud_);
    line_.Setting("--name", [this](const std::string& value) { names_.push_back(value); });
  }
  ~CommandLineTest() override { tools::language = before_; }

  // What is wrong with the command line.
  std::string Complaint(const std::vector<std::string>& arguments) {
    try {
      line_.Read(arguments);
    } catch (const UsageError& error) {
      return error.text;
    }
    return "";
  }

  Language before_ = tools::language;
  CommandLine line_;
  bool loud_ = false;
  std::vector<std::string> names_;
};

TEST_F(CommandLineTest, TakesFlagsAndSettingsAndLeavesTheRest) {
  const auto rest = line_.Read({"a", "--name", "--loud", "b", "--name", "", "-c"});
  EXPECT_EQ(rest, (std::vector<std::string>{"a", "b", "-c"}));
  EXPECT_EQ(names_, (std::vector<std::string>{"--loud", ""}));
  EXPECT_FALSE(loud_);
  EXPECT_FALSE(line_.Help());
  line_.Read({"--loud", "--help"});
  EXPECT_TRUE(loud_);
  EXPECT_TRUE(line_.Help());
}

TEST_F(CommandLineTest, TellsTheFirstMistake) {
  EXPECT_EQ(Complaint({"--wrong", "--name"}), "there is no option --wrong");
  EXPECT_EQ(Complaint({"a", "--name"}), "--name wants a value");
  EXPECT_EQ(Complaint({"--lang", "fr"}), "--lang wants de or en, not \"fr\"");
}

TEST_F(CommandLineTest, TellsItInTheLanguageThatIsChosenBehindIt) {
  EXPECT_EQ(Complaint({"--wrong", "--lang", "de"}), "die Option --wrong gibt es nicht");
  EXPECT_EQ(Complaint({"--wrong", "--lang", "en"}), "there is no option --wrong");
  EXPECT_EQ(Complaint({"--name", "--lang", "de", "--wrong"}), "there is no option --wrong");
}

TEST_F(CommandLineTest, NumberIsWholeAndWithinItsBounds) {
  EXPECT_EQ(tools::ReadNumber("--n", "0", 7), 0);
  EXPECT_EQ(tools::ReadNumber("--n", "7", 7), 7);
  for (const char* text : {"", "8", "-1", "1x", " 1", "99999999999999999999"})
    EXPECT_THROW(tools::ReadNumber("--n", text, 7), UsageError) << text;
}

TEST_F(CommandLineTest, ToolEndsWithTheStatusOfWhatItRaises) {
  constexpr tools::Text usage(u8"usage\n", u8"Aufruf\n");
  char name[] = "tool";
  char argument[] = "x";
  char* argv[] = {name, argument};
  const auto run = [&](auto body) {
    testing::internal::CaptureStderr();
    const int status = tools::RunTool("tool", usage, 2, argv, body);
    return std::pair(status, testing::internal::GetCapturedStderr());
  };
  using Arguments = std::vector<std::string>;
  EXPECT_EQ(run([](const Arguments& given) { return given == Arguments{"x"} ? tools::kGivenUp : tools::kFine; }),
            std::pair(2, std::string()));
  EXPECT_EQ(run([](const Arguments&) -> int { throw UsageError{"why"}; }),
            std::pair(64, std::string("tool: why\nusage\n")));
  EXPECT_EQ(run([](const Arguments&) -> int { throw tools::FileError{"where"}; }),
            std::pair(66, std::string("tool: where\n")));
  EXPECT_EQ(run([](const Arguments&) -> int { throw std::runtime_error("host"); }),
            std::pair(66, std::string("tool: host\n")));
}

}  // namespace
