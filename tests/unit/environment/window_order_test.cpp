// The top-most band.
#include "environment/window_order.h"

#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;

class WindowOrderTest : public support::SystemTest {};

TEST_F(WindowOrderTest, ATopMostWindowStaysAboveAllOthers) {
  const std::int32_t window = AddWindow({.className = "X", .text = "unser"});
  At(window).rectangle = {10, 20, 110, 220};
  basAPI::SetTopMost(window);
  Activate(AddWindow({.className = "X", .text = "Ziel"}));
  EXPECT_TRUE(At(window).topMost);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), window);
  const platform::Rect& place = At(window).rectangle;
  EXPECT_EQ(place.left, 10);
  EXPECT_EQ(place.top, 20);
  EXPECT_EQ(place.right, 110);
  EXPECT_EQ(place.bottom, 220);
}

TEST_F(WindowOrderTest, ItCanStepBack) {
  const std::int32_t window = AddWindow({.className = "X", .text = "unser"});
  const std::int32_t target = AddWindow({.className = "X", .text = "Ziel"});
  basAPI::SetTopMost(window);
  basAPI::SetNotTopMost(window);
  EXPECT_FALSE(At(window).topMost);
  Activate(target);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), target);
}

TEST_F(WindowOrderTest, NoWindowIsNoFault) {
  basAPI::SetTopMost(0);
  basAPI::SetNotTopMost(12345);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), 0);
}

}  // namespace
