// The simulated clock: what is scheduled, and when other processes get to run.
#include <gtest/gtest.h>

#include <vector>

#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"

namespace {

using platform::Sleep;
using platform::simulated::Clock;
using platform::simulated::Schedule;

class SimulatedClock : public testing::Test {
 protected:
  void SetUp() override { platform::simulated::Reset(); }
  std::vector<std::string> happened;

  std::function<void()> Note(const std::string& what) {
    return [this, what] { happened.push_back(what + " at " + std::to_string(Clock())); };
  }
};

TEST_F(SimulatedClock, StandsStillExceptInASleep) {
  EXPECT_EQ(Clock(), 0);
  platform::simulated::HandleOwnMessages();
  EXPECT_EQ(Clock(), 0);
  Sleep(10);
  Sleep(3'600'000);
  EXPECT_EQ(Clock(), 3'600'010);
}

TEST_F(SimulatedClock, StartsOnAMorningInMarchAndCarriesOverMidnight) {
  EXPECT_EQ(runtime::DateText(platform::Now()), "14.03.2006 09:30:00");
  Sleep(61'999);
  EXPECT_EQ(runtime::DateText(platform::Now()), "14.03.2006 09:31:01");
  platform::simulated::SetNow({2007, 12, 31, 23, 59, 59});
  Sleep(1000);
  EXPECT_EQ(runtime::DateText(platform::Now()), "01.01.2008");
}

TEST_F(SimulatedClock, SleepRunsWhatIsDueInTheOrderOfTime) {
  Schedule(300, Note("late"));
  Schedule(100, Note("first"));
  Schedule(100, Note("second"));
  Schedule(301, Note("too late"));
  Sleep(300);
  EXPECT_EQ(happened, (std::vector<std::string>{"first at 100", "second at 100", "late at 300"}));
}

TEST_F(SimulatedClock, EventSchedulesAnother) {
  Schedule(100, [this] { Schedule(50, Note("follower")); });
  Sleep(200);
  EXPECT_EQ(happened, (std::vector<std::string>{"follower at 150"}));
  EXPECT_EQ(Clock(), 200);
}

TEST_F(SimulatedClock, SleepOfZeroRunsWhatIsDueNow) {
  Schedule(0, Note("now"));
  Sleep(-1);
  EXPECT_EQ(happened, (std::vector<std::string>{"now at 0"}));
}

TEST_F(SimulatedClock, NextEventMovesTheClockThere) {
  Schedule(500, Note("event"));
  EXPECT_TRUE(platform::simulated::RunNextEvent());
  EXPECT_EQ(happened, (std::vector<std::string>{"event at 500"}));
  EXPECT_FALSE(platform::simulated::RunNextEvent());
}

TEST_F(SimulatedClock, EndlessWaitEndsAtTheLimit) {
  platform::simulated::SetTimeLimit(1000);
  int rounds = 0;
  const auto waitForEver = [&] {
    for (;; ++rounds) Sleep(300);
  };
  EXPECT_THROW(waitForEver(), platform::simulated::TimeLimitPassed);
  EXPECT_EQ(rounds, 3);
  EXPECT_EQ(Clock(), 1000);
}

TEST_F(SimulatedClock, EventBeyondTheLimitDoesNotRun) {
  platform::simulated::SetTimeLimit(1000);
  Schedule(2000, Note("never"));
  EXPECT_THROW(platform::simulated::RunNextEvent(), platform::simulated::TimeLimitPassed);
  EXPECT_TRUE(happened.empty());
}

TEST_F(SimulatedClock, PostedMessageIsHandledWhenTheOtherProcessCouldRun) {
  const auto window = platform::simulated::AddWindow({.className = "Fremd"});
  const auto child = platform::simulated::AddWindow({.className = "Button", .parent = window});
  const auto other = platform::simulated::AddWindow({.className = "Fremd"});
  const auto count = [](std::int32_t hWnd) { return platform::simulated::At(hWnd).received.size(); };

  platform::PostMessageA(window, 1024, 1, 2);
  platform::PostMessageA(other, 1024, 3, 4);
  EXPECT_EQ(count(window), 0u);
  platform::SendMessageA(child, 1025, 0, 0);
  EXPECT_EQ(count(window), 1u) << "a message that is sent to its process comes behind what was posted before";
  EXPECT_EQ(platform::simulated::At(window).received[0].lParam, 2);
  EXPECT_EQ(count(other), 0u) << "another process has not run";
  Sleep(0);
  EXPECT_EQ(count(other), 1u);

  platform::PostMessageA(window, 1024, 1, 2);
  platform::simulated::HandleOwnMessages();
  EXPECT_EQ(count(window), 2u) << "a pump gives way to the others";
}

TEST_F(SimulatedClock, WhatAnEventPostsIsHandledInTheSameSleep) {
  const auto window = platform::simulated::AddWindow({.className = "Fremd"});
  Schedule(100, [window] { platform::PostMessageA(window, 1024, 0, 0); });
  Sleep(100);
  EXPECT_EQ(platform::simulated::At(window).received.size(), 1u);
}

TEST_F(SimulatedClock, OwnMessagesWaitForThePump) {
  const auto window =
      platform::simulated::AddWindow({.className = "Eigen", .process = platform::simulated::kOwnProcess});
  platform::PostMessageA(window, 1024, 0, 0);
  Sleep(1000);
  EXPECT_TRUE(platform::simulated::At(window).received.empty());
  platform::simulated::HandleOwnMessages();
  EXPECT_EQ(platform::simulated::At(window).received.size(), 1u);
}

TEST_F(SimulatedClock, MessageToAWindowThatIsGoneIsForgotten) {
  const auto window = platform::simulated::AddWindow({.className = "Fremd"});
  EXPECT_TRUE(platform::PostMessageA(window, 1024, 0, 0));
  platform::simulated::DestroyWindow(window);
  EXPECT_NO_THROW(Sleep(10));
}

}  // namespace
