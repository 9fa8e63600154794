#include "platform/window_state.h"

#include "fixture.h"
#include "platform/input.h"
#include "platform/window_lookup.h"

namespace {

using contract::AddForeignWindow;
using contract::AddSettledWindow;
using contract::kPlainClass;

class WindowState : public contract::Test {
 protected:
  // Whether the upper window comes first on a walk from the top.
  static bool StandsAbove(std::int32_t upper, std::int32_t lower) {
    for (auto h = upper; h != 0; h = platform::GetWindow(h, platform::GW_HWNDNEXT)) {
      if (h == lower) return true;
    }
    return false;
  }

  static bool SetOrder(std::int32_t hWnd, std::int32_t after) {
    return platform::SetWindowPos(hWnd, after, 0, 0, 0, 0, platform::SWP_NOMOVE | platform::SWP_NOSIZE);
  }

  static platform::Rect RectOf(std::int32_t hWnd) {
    platform::Rect rect;
    EXPECT_TRUE(platform::GetWindowRect(hWnd, rect));
    return rect;
  }

  static void ExpectRect(const platform::Rect& rect, std::int32_t left, std::int32_t top, std::int32_t right,
                         std::int32_t bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
  }
};

TEST_F(WindowState, TopMostWindowStaysAboveNewOnes) {
  const auto first = AddSettledWindow("erstes");
  EXPECT_TRUE(SetOrder(first, platform::HWND_TOPMOST));
  const auto second = AddSettledWindow("zweites");
  EXPECT_TRUE(StandsAbove(first, second));
}

TEST_F(WindowState, WindowThatIsNoLongerTopMostIsCoveredByNewOnes) {
  const auto first = AddSettledWindow("erstes");
  SetOrder(first, platform::HWND_TOPMOST);
  EXPECT_TRUE(SetOrder(first, platform::HWND_NOTOPMOST));
  const auto second = AddSettledWindow("zweites");
  EXPECT_TRUE(StandsAbove(second, first));
}

TEST_F(WindowState, WindowThatIsNoLongerTopMostStaysAboveTheOthers) {
  const auto first = AddSettledWindow("erstes");
  const auto second = AddSettledWindow("zweites");
  SetOrder(first, platform::HWND_TOPMOST);
  SetOrder(first, platform::HWND_NOTOPMOST);
  EXPECT_TRUE(StandsAbove(first, second));
}

TEST_F(WindowState, LaterTopMostWindowStandsAboveTheEarlierOne) {
  const auto first = AddSettledWindow("erstes");
  const auto second = AddSettledWindow("zweites");
  SetOrder(second, platform::HWND_TOPMOST);
  SetOrder(first, platform::HWND_TOPMOST);
  EXPECT_TRUE(StandsAbove(first, second));
}

TEST_F(WindowState, PositionAndSizeAreSetOrKeptByTheFlags) {
  const auto window = AddSettledWindow("Fenster");
  ExpectRect(RectOf(window), 40, 60, 340, 260);
  EXPECT_TRUE(platform::SetWindowPos(window, platform::HWND_NOTOPMOST, 70, 90, 0, 0, platform::SWP_NOSIZE));
  ExpectRect(RectOf(window), 70, 90, 370, 290);
  EXPECT_TRUE(platform::SetWindowPos(window, platform::HWND_NOTOPMOST, 0, 0, 400, 250, platform::SWP_NOMOVE));
  ExpectRect(RectOf(window), 70, 90, 470, 340);
}

TEST_F(WindowState, PlacementOfAForeignWindow) {
  const auto window = AddSettledWindow("Fenster");
  platform::WINDOWPLACEMENT placement;
  ASSERT_TRUE(platform::GetWindowPlacement(window, placement));
  EXPECT_EQ(placement.showCmd, platform::SW_SHOWNORMAL);
  ExpectRect(placement.normalPosition, 40, 60, 340, 260);
}

// A window of this process: not every version of the system sets the placement of another one's.
TEST_F(WindowState, MaximizedWindowRemembersItsNormalPlace) {
  const auto window = contract::AddOwnWindow("Fenster");
  platform::WINDOWPLACEMENT placement;
  ASSERT_TRUE(platform::GetWindowPlacement(window, placement));
  EXPECT_EQ(placement.length, 44u);
  EXPECT_EQ(placement.showCmd, platform::SW_SHOWNORMAL);
  ExpectRect(placement.normalPosition, 40, 60, 340, 260);

  placement.showCmd = platform::SW_SHOWMAXIMIZED;
  ASSERT_TRUE(platform::SetWindowPlacement(window, placement));
  EXPECT_GT(RectOf(window).right - RectOf(window).left, 900);

  platform::WINDOWPLACEMENT maximized;
  ASSERT_TRUE(platform::GetWindowPlacement(window, maximized));
  EXPECT_EQ(maximized.showCmd, platform::SW_SHOWMAXIMIZED);
  ExpectRect(maximized.normalPosition, 40, 60, 340, 260);

  maximized.showCmd = platform::SW_SHOWNORMAL;
  ASSERT_TRUE(platform::SetWindowPlacement(window, maximized));
  ExpectRect(RectOf(window), 40, 60, 340, 260);
}

TEST_F(WindowState, PlacementOfAnotherLengthIsRefused) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  platform::WINDOWPLACEMENT placement;
  ASSERT_TRUE(platform::GetWindowPlacement(window, placement));
  placement.length = 40;
  EXPECT_FALSE(platform::SetWindowPlacement(window, placement));
}

TEST_F(WindowState, WindowBecomesTheForegroundWindow) {
  const auto first = AddSettledWindow("erstes");
  const auto second = AddSettledWindow("zweites");
  for (const auto window : {first, second}) {
    EXPECT_TRUE(platform::SetForegroundWindow(window));
    contract::RunFor(500);
    EXPECT_EQ(platform::GetForegroundWindow(), window);
  }
}

TEST_F(WindowState, WindowThatComesToTheFrontByItselfGetsTheKeys) {
  const auto first = AddSettledWindow("erstes");
  const auto second = AddSettledWindow("zweites");
  platform::SetForegroundWindow(second);
  contract::RunFor(500);
  contract::ForeignWindowComesToFront(first);
  contract::RunFor(500);
  EXPECT_EQ(platform::GetForegroundWindow(), first);
  platform::keybd_event(contract::kSlowKey, 0, 0, 0);
  platform::keybd_event(contract::kSlowKey, 0, platform::KEYEVENTF_KEYUP, 0);
  contract::RunFor(1000);
  std::string text;
  platform::GetWindowTextA(first, text, 100);
  EXPECT_EQ(text, "langsam");
}

TEST_F(WindowState, DeadHandleIsRefused) {
  const auto window = AddForeignWindow({kPlainClass, "Fenster"});
  contract::DestroyForeignWindow(window);
  platform::WINDOWPLACEMENT placement;
  EXPECT_FALSE(SetOrder(window, platform::HWND_TOPMOST));
  EXPECT_FALSE(platform::GetWindowPlacement(window, placement));
  EXPECT_FALSE(platform::SetWindowPlacement(window, placement));
  EXPECT_FALSE(platform::SetForegroundWindow(window));
}

}  // namespace
