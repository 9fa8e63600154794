// Windows of the simulated desktop: what a test or a rehearsal does with them.
#include <gtest/gtest.h>

#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"

namespace {

using platform::simulated::AddWindow;
using platform::simulated::At;
using platform::simulated::Message;

class SimulatedWindows : public testing::Test {
 protected:
  void SetUp() override { platform::simulated::Reset(); }

  static std::int32_t Add(const std::string& title) { return AddWindow({.className = "Fenster", .text = title}); }
  static std::int32_t Topmost() { return platform::FindWindowA(nullptr, nullptr); }
  static std::int32_t Below(std::int32_t hWnd) { return platform::GetWindow(hWnd, platform::GW_HWNDNEXT); }
};

TEST_F(SimulatedWindows, FreshDesktopIsEmpty) {
  Add("alt");
  platform::simulated::Reset();
  EXPECT_EQ(Topmost(), 0);
  EXPECT_EQ(platform::GetForegroundWindow(), 0);
}

TEST_F(SimulatedWindows, BroughtToFrontWithoutBecomingTheForegroundWindow) {
  const auto a = Add("a");
  const auto b = Add("b");
  platform::simulated::Activate(b);
  platform::simulated::BringToFront(a);
  EXPECT_EQ(Topmost(), a);
  EXPECT_EQ(Below(a), b);
  EXPECT_EQ(platform::GetForegroundWindow(), b);
}

TEST_F(SimulatedWindows, ActivatedWindowStaysBelowTopMostOnes) {
  const auto a = Add("a");
  const auto top = Add("top");
  platform::SetWindowPos(top, platform::HWND_TOPMOST, 0, 0, 0, 0, 3);
  platform::simulated::Activate(a);
  EXPECT_EQ(Topmost(), top);
  EXPECT_EQ(Below(top), a);
  EXPECT_EQ(platform::GetForegroundWindow(), a);
}

TEST_F(SimulatedWindows, ForegroundGoesToTheNextVisibleWindowBelow) {
  const auto lowest = Add("unten");
  AddWindow({.className = "Fenster", .visible = false});
  AddWindow({.className = "Fenster", .enabled = false});
  const auto front = Add("vorn");
  platform::simulated::Activate(front);
  platform::simulated::ShowWindow(front, false);
  EXPECT_EQ(platform::GetForegroundWindow(), lowest);
  platform::simulated::DestroyWindow(lowest);
  EXPECT_EQ(platform::GetForegroundWindow(), 0);
}

TEST_F(SimulatedWindows, ProcessIsThatOfTheParentOrOneOfItsOwn) {
  const auto a = Add("a");
  const auto b = Add("b");
  const auto child = AddWindow({.className = "Button", .parent = a});
  EXPECT_EQ(At(child).process, At(a).process);
  EXPECT_NE(At(a).process, At(b).process);
  EXPECT_NE(At(a).process, platform::simulated::kOwnProcess);
}

TEST_F(SimulatedWindows, ApplicationAnswersBeforeTheClass) {
  const auto window = Add("bleibt");
  At(window).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_CLOSE) return 5;
    return std::nullopt;
  };
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_CLOSE, 0, 0), 5);
  EXPECT_TRUE(platform::IsWindow(window));
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_SETTEXT, 0, "neu"), 1);
  EXPECT_EQ(At(window).text, "neu");
}

TEST_F(SimulatedWindows, ReactionMayDestroyItsOwnWindow) {
  const auto window = Add("kurz");
  At(window).procedure = [window](const Message&) -> std::optional<std::int32_t> {
    At(window).procedure = {};
    platform::simulated::DestroyWindow(window);
    return std::nullopt;
  };
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_SETTEXT, 0, "neu"), 0);
  EXPECT_FALSE(platform::IsWindow(window));
}

TEST_F(SimulatedWindows, ReceivedMessagesAreKeptWithTheirTexts) {
  const auto window = Add("Fenster");
  platform::SendMessageA(window, platform::WM_SETTEXT, 0, "eins");
  platform::SendMessageA(window, platform::WM_COMMAND, 7, 8);
  const auto& received = At(window).received;
  ASSERT_EQ(received.size(), 2u);
  EXPECT_EQ(received[0].number, platform::WM_SETTEXT);
  EXPECT_EQ(received[0].text, "eins");
  EXPECT_EQ(received[1].number, platform::WM_COMMAND);
  EXPECT_EQ(received[1].wParam, 7);
  EXPECT_EQ(received[1].lParam, 8);
}

TEST_F(SimulatedWindows, TextThatIsSentEndsAtItsFirstNul) {
  const auto window = Add("Fenster");
  platform::SendMessageA(window, platform::WM_SETTEXT, 0, std::string_view("ab\0cd", 5));
  EXPECT_EQ(At(window).text, "ab");
}

TEST_F(SimulatedWindows, CallbackMayDestroyWindowsThatAreStillToCome) {
  static std::int32_t second = 0;
  static int calls = 0;
  calls = 0;
  const auto window = Add("Fenster");
  AddWindow({.className = "Static", .parent = window});
  second = AddWindow({.className = "Static", .parent = window});
  platform::EnumChildWindows(
      window,
      [](std::int32_t, std::int32_t) -> std::int32_t {
        ++calls;
        platform::simulated::DestroyWindow(second);
        return 1;
      },
      0);
  EXPECT_EQ(calls, 1);
}

TEST_F(SimulatedWindows, MaximizedForeignWindowFillsTheScreen) {
  const auto window = AddWindow({.className = "Fenster", .rectangle = {10, 20, 110, 220}});
  platform::WINDOWPLACEMENT placement;
  ASSERT_TRUE(platform::GetWindowPlacement(window, placement));
  placement.showCmd = platform::SW_SHOWMAXIMIZED;
  ASSERT_TRUE(platform::SetWindowPlacement(window, placement));
  EXPECT_EQ(At(window).showCmd, platform::SW_SHOWMAXIMIZED);
  EXPECT_EQ(At(window).rectangle.right, 1024);
  EXPECT_EQ(At(window).rectangle.bottom, 768);
}

TEST_F(SimulatedWindows, UnknownHandleIsAMistakeOfTheTest) { EXPECT_THROW(At(4711), std::logic_error); }

}  // namespace
