// The delivery of keys into a window of another application.
#include "input/key_delivery.h"

#include "automation/window_search.h"
#include "engine/state.h"
#include "environment/window_order.h"
#include "frame/frmStatus.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using basMain::DeliverKeys;
using basMain::frmStatus;
using support::Log;

using Lines = std::vector<std::string>;

class KeyDelivery : public support::SystemTest {
 protected:
  KeyDelivery() {
    frmStatus.Show();
    basAPI::SetTopMost(frmStatus.hWnd());  // as a press of the hot key does
    InputLog().clear();
  }

  static std::string ThreadOf(std::int32_t hWnd) {
    std::uint32_t process = 0;
    return std::to_string(platform::GetWindowThreadProcessId(hWnd, process));
  }

  // The joining or parting of the queues as the input log tells it.
  std::string Attach(int attach) const {
    return "AttachThreadInput " + ThreadOf(main_) + " " + ThreadOf(frmStatus.hWnd()) + " " + std::to_string(attach);
  }

  // The status dialog steps back (-2) or comes back up (-1).
  static std::string Place(int place) {
    return "SetWindowPos " + std::to_string(frmStatus.hWnd()) + " " + std::to_string(place);
  }

  static bool StatusIsTopMost() { return At(frmStatus.hWnd()).topMost; }

  // Everything but the keys themselves.
  static Lines Steps() {
    Lines steps = InputLog();
    std::erase_if(steps, [](const std::string& line) { return line.starts_with("keybd_event"); });
    return steps;
  }

  const std::int32_t main_ = support::TargetWindow("TeRu");
  const std::int32_t window_ = AddWindow({.className = "X", .process = At(main_).process});
  const std::int32_t field_ = AddWindow({.className = "Edit", .parent = window_});
};

TEST_F(KeyDelivery, GoesItsStepsInOrder) {
  DeliverKeys(main_, window_, field_, "Text");
  EXPECT_EQ(Steps(), (Lines{Place(-2), Attach(1), "SetForegroundWindow " + std::to_string(window_),
                            "SetFocus " + std::to_string(field_), Attach(0), Place(-1)}));
  EXPECT_EQ(At(field_).text, "Text");
  EXPECT_TRUE(Log().empty());
}

TEST_F(KeyDelivery, WithoutAControlTheFocusIsLeftToTheWindow) {
  DeliverKeys(main_, window_, 0, "Text");
  EXPECT_EQ(Steps(),
            (Lines{Place(-2), Attach(1), "SetForegroundWindow " + std::to_string(window_), Attach(0), Place(-1)}));
  EXPECT_EQ(TypedText(window_), "Text");
}

TEST_F(KeyDelivery, TheStatusDialogStepsBackForTheKeysAlone) {
  EXPECT_TRUE(StatusIsTopMost());
  bool topMost = true;
  At(field_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_CHAR) topMost = StatusIsTopMost();
    return std::nullopt;
  };
  DeliverKeys(main_, window_, field_, "a");
  EXPECT_FALSE(topMost);
  EXPECT_TRUE(StatusIsTopMost());
}

TEST_F(KeyDelivery, TheWindowIsAboveTheStatusDialogWhenTheKeysArrive) {
  std::int32_t first = 0;
  At(field_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_CHAR) first = platform::FindWindowA(nullptr, nullptr);
    return std::nullopt;
  };
  DeliverKeys(main_, window_, field_, "a");
  EXPECT_EQ(first, window_);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), frmStatus.hWnd());
}

TEST_F(KeyDelivery, ABadStringSendsNothingAndTheQueuesAreParted) {
  DeliverKeys(main_, window_, field_, "a{SPACE}b");
  EXPECT_EQ(InputLog(), (Lines{Place(-2), Attach(1), "SetForegroundWindow " + std::to_string(window_),
                               "SetFocus " + std::to_string(field_), Attach(0), Place(-1)}));
  EXPECT_EQ(At(field_).text, "");
  EXPECT_TRUE(StatusIsTopMost());
  EXPECT_EQ(basMain::run.LastError, "");
}

TEST_F(KeyDelivery, StepsThatFailArePassedOver) {
  for (const char* operation :
       {"SetWindowPos", "GetWindowThreadProcessId", "AttachThreadInput", "SetForegroundWindow", "SetFocus"}) {
    InputLog().clear();
    Fail(operation);
    DeliverKeys(main_, window_, field_, "a");
    Fail(operation, 0);
    EXPECT_TRUE(std::prev(InputLog().end(), 2)->starts_with("AttachThreadInput")) << operation;
    EXPECT_TRUE(StatusIsTopMost()) << operation;
  }
}

TEST_F(KeyDelivery, WindowsThatAreGoneAreNoTrouble) {
  DestroyWindow(main_);
  DestroyWindow(window_);
  DeliverKeys(main_, window_, field_, "a");
  EXPECT_TRUE(StatusIsTopMost());
}

TEST_F(KeyDelivery, SpaceAsTheWholeStringIsOneBlank) {
  for (const char* keys : {"{SPACE}", "{space}", "{Space}"}) {
    At(field_).text.clear();
    DeliverKeys(main_, window_, field_, keys);
    EXPECT_EQ(At(field_).text, " ") << keys;
  }
}

}  // namespace
