#include <vector>

#include "fixture.h"
#include "platform/messages.h"
#include "platform/shell.h"

namespace {

constexpr std::uint32_t kPrivateMessage = 0x8000 + 5;

struct Seen {
  std::uint32_t number;
  std::int32_t wParam, lParam;
  bool operator==(const Seen&) const = default;
};

platform::WNDPROC oldProcedure = nullptr;
std::vector<Seen> seen;

// Answers a message of its own and notes the end of the window; passes everything on.
std::int32_t PLATFORM_CALLBACK Hook(std::int32_t hWnd, std::uint32_t uMsg, std::int32_t wParam, std::int32_t lParam) {
  if (uMsg == kPrivateMessage || uMsg == platform::WM_NCDESTROY) seen.push_back({uMsg, wParam, lParam});
  const std::int32_t answer = platform::CallWindowProcA(oldProcedure, hWnd, uMsg, wParam, lParam);
  return uMsg == kPrivateMessage ? 99 : answer;
}

class WindowProcedure : public contract::Test {
 protected:
  void SetUp() override {
    Test::SetUp();
    seen.clear();
    window = contract::AddOwnWindow("eigenes Fenster");
    oldProcedure = platform::SetWindowLongA(window, platform::GWL_WNDPROC, &Hook);
  }

  std::int32_t window = 0;
};

TEST_F(WindowProcedure, ReplacementSeesWhatIsSentAndGivesTheAnswer) {
  ASSERT_NE(oldProcedure, nullptr);
  EXPECT_EQ(platform::SendMessageA(window, kPrivateMessage, 3, -4), 99);
  EXPECT_EQ(seen, (std::vector<Seen>{{kPrivateMessage, 3, -4}}));
}

TEST_F(WindowProcedure, WhatIsPassedOnKeepsItsMeaning) {
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_SETTEXT, 0, "neuer Text"), 1);
  platform::TextBuffer buffer(20);
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_GETTEXT, 20, buffer), 10);
  EXPECT_STREQ(buffer.bytes.c_str(), "neuer Text");
}

TEST_F(WindowProcedure, PostedMessageWaitsForThePump) {
  EXPECT_TRUE(platform::PostMessageA(window, kPrivateMessage, 1, 2));
  EXPECT_TRUE(seen.empty());
  contract::RunFor(50);
  EXPECT_EQ(seen, (std::vector<Seen>{{kPrivateMessage, 1, 2}}));
}

TEST_F(WindowProcedure, OldOneIsPutBack) {
  EXPECT_EQ(platform::SetWindowLongA(window, platform::GWL_WNDPROC, oldProcedure), &Hook);
  EXPECT_EQ(platform::SendMessageA(window, kPrivateMessage, 1, 2), 0);
  EXPECT_TRUE(seen.empty());
}

TEST_F(WindowProcedure, ReplacementHearsOfTheWindowsEnd) {
  contract::DestroyOwnWindow(window);
  EXPECT_EQ(seen, (std::vector<Seen>{{platform::WM_NCDESTROY, 0, 0}}));
}

TEST_F(WindowProcedure, NotOfAnotherProcessNorOfADeadWindow) {
  const auto foreign = contract::AddForeignWindow({contract::kPlainClass, "fremd"});
  EXPECT_EQ(platform::SetWindowLongA(foreign, platform::GWL_WNDPROC, &Hook), nullptr);
  contract::DestroyOwnWindow(window);
  EXPECT_EQ(platform::SetWindowLongA(window, platform::GWL_WNDPROC, &Hook), nullptr);
}

}  // namespace
