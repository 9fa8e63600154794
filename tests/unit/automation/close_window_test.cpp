// Closing a window of the target.
#include "automation/window_verbs.h"

#include <algorithm>

#include "engine/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

// "CLOSEWINDOW".

class CloseWindowTest : public SystemTest {
 protected:
  // A window that answers the message to close with this number.
  static std::int32_t Window(const std::string& title, std::int32_t answer, std::int32_t parent = 0) {
    return AddWindow({.className = "ThunderRT6FormDC",
                      .text = title,
                      .parent = parent,
                      .procedure = [answer](const Message& message) -> std::optional<std::int32_t> {
                        if (message.number != platform::WM_CLOSE) return std::nullopt;
                        return answer;
                      }});
  }

  static int TimesClosed(std::int32_t window) {
    return static_cast<int>(std::ranges::count(At(window).received, platform::WM_CLOSE, &Message::number));
  }
};

TEST_F(CloseWindowTest, AWindowIsSentTheMessageByAPartOfItsTitle) {
  const auto window = Window("Export läuft", 0);
  EXPECT_TRUE(RunLines({"CLOSEWINDOW=läuft"}));
  EXPECT_EQ(TimesClosed(window), 1);
  EXPECT_EQ(At(window).received.back().wParam, 0);
  EXPECT_EQ(At(window).received.back().lParam, 0);
  ExpectLog(Completed({"Fenster wurde geschlossen."}));
}

TEST_F(CloseWindowTest, OnlyA1MeansTheWholeTitle) {
  const auto other = Window("Export läuft", 0);
  const auto whole = Window("Export", 0);
  BringToFront(other);
  EXPECT_TRUE(CloseWindow("Export", "1"));
  EXPECT_EQ(TimesClosed(whole), 1);
  EXPECT_TRUE(CloseWindow("Export", "True"));
  EXPECT_EQ(TimesClosed(other), 1);
}

TEST_F(CloseWindowTest, AnAnswerOtherThan0IsAFailure) {
  Window("Export", 1);
  EXPECT_FALSE(RunLines({"CLOSEWINDOW=Export,1", "MSG=nie"}));
  ExpectLog({"Das Fenster kann nicht geschlossen werden."});
}

TEST_F(CloseWindowTest, WithoutAWindowTheMessageGoesToNoneAndCountsAsClosed) {
  EXPECT_TRUE(CloseWindow("fehlt", "1"));
  ExpectLog({"Fenster wurde geschlossen."});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(CloseWindowTest, WithoutAWindowAControlOfTheTargetWithThisTextIsSentTheMessage) {
  const auto target = TargetWindow("TeRu");
  const auto control = Window("Export", 0, target);
  EXPECT_TRUE(CloseWindow("export", "1"));
  EXPECT_EQ(TimesClosed(control), 1);
  EXPECT_EQ(TimesClosed(target), 0);
}

}  // namespace
