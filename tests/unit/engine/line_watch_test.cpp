// What a follower of a run is told.
#include "engine/line_watch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "engine/state.h"
#include "support/system.h"

namespace {

using basMain::Arguments;
using basMain::lineWatch;
using basMain::run;
using support::Log;
using support::RunLines;

class LineWatchTest : public support::SystemTest {
 protected:
  // Follows the runs from now on.
  void Follow() {
    lineWatch.Visited = [this](std::int32_t index, const std::string& line) {
      told_.push_back(std::to_string(index) + " " + line);
    };
    lineWatch.Parsed = [this](const std::string& verb, const Arguments& a, bool passedOver) {
      told_.push_back(verb + "|" + a[1] + "|" + a[2] + (passedOver ? " passed over" : ""));
    };
    lineWatch.Done = [this](std::int32_t index) {
      told_.push_back("done " + std::to_string(index) + (run.RunFailed ? " failed" : "") +
                      (run.StopRun ? " stopped" : ""));
    };
  }

  std::vector<std::string> told_;
};

using Told = std::vector<std::string>;

TEST_F(LineWatchTest, EachVisitHasItsBeginningItsVerbAndItsEnd) {
  Follow();
  RunLines({"REM x", "DIM A", "A=VALUE(b,'c,d')", "MSG=A,e"});
  EXPECT_EQ(told_, (Told{"0 REM x", "done 0", "1 DIM A", "done 1", "2 A=VALUE(b,'c,d')", "VALUE|b|c,d", "done 2",
                         "3 MSG=A,e", "MSG|b|e", "done 3", "4 ", "done 4"}));
}

TEST_F(LineWatchTest, TellsWhatTheSkippedSidePassesOver) {
  Follow();
  RunLines({"IF STRCOMP=a,b", "IF STRCOMP=a,a", "nothing=x", "GOTO=m", "ELSE", "MSG=c", "ENDIF"});
  Told passed;
  for (const std::string& line : told_)
    if (line.ends_with("passed over")) passed.push_back(line);
  EXPECT_EQ(passed, (Told{"IF STRCOMP|a|a passed over", "NOTHING|x| passed over", "GOTO|m| passed over"}));
}

TEST_F(LineWatchTest, TheEndOfALineTellsHowItEnded) {
  Follow();
  RunLines({"RAISEERROR=x", "MSG=a"});
  EXPECT_EQ(told_.back(), "done 0 failed");
  RunLines({"MSG=a", "STOP", "MSG=b"});
  EXPECT_EQ(told_.back(), "done 1 stopped");
}

TEST_F(LineWatchTest, ChangesNoLineOfTheLog) {
  const Told lines = {"DIM A",  "A=VALUE($DATE)", "IF STRCOMP=A,x", "FOO=1", "ENDIF",
                      "GOTO=m", "MSG=x",          "MARK=m",         "WAIT=x"};
  RunLines(lines);
  const auto unwatched = Log();
  Follow();
  RunLines(lines);
  const auto both = Log();
  EXPECT_FALSE(unwatched.empty());
  ASSERT_EQ(both.size(), 2 * unwatched.size());
  EXPECT_TRUE(
      std::equal(unwatched.begin(), unwatched.end(), both.begin() + static_cast<std::ptrdiff_t>(unwatched.size())));
}

}  // namespace
