// A window "Export" of another process, in front of all others, and what its controls do.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "support/press.h"

namespace support {

using Lines = std::vector<std::string>;

class ControlTest : public SystemTest {
 protected:
  using Message = platform::simulated::Message;
  using Numbers = std::vector<std::uint32_t>;

  ControlTest() { window_ = TargetWindow("Export"); }

  std::int32_t Child(const std::string& cls, const std::string& text, std::int32_t id, std::int32_t parent = 0) {
    return platform::simulated::AddWindow(
        {.className = cls, .text = text, .parent = parent == 0 ? window_ : parent, .id = id});
  }

  // The application does this when the message arrives, before the control's own behaviour; an answer ends the matter.
  static void When(std::int32_t hWnd, std::uint32_t number,
                   std::function<std::optional<std::int32_t>(const Message&)> reaction) {
    const auto others = platform::simulated::At(hWnd).procedure;
    platform::simulated::At(hWnd).procedure = [=](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == number) return reaction(message);
      return others ? others(message) : std::nullopt;
    };
  }

  // Answers the message with a fixed number, whatever the control is.
  static void Answer(std::int32_t hWnd, std::uint32_t number, std::int32_t answer) {
    When(hWnd, number, [answer](const Message&) { return answer; });
  }

  // The window is gone when the message reaches it.
  static void VanishAt(std::int32_t hWnd, std::uint32_t number) {
    When(hWnd, number, [hWnd](const Message&) {
      platform::simulated::DestroyWindow(hWnd);
      return std::nullopt;
    });
  }

  // What the window has got, in its order, once its process has run.
  static std::vector<Message> Received(std::int32_t hWnd) {
    platform::Sleep(0);
    return platform::simulated::At(hWnd).received;
  }
  static Numbers ReceivedNumbers(std::int32_t hWnd) {
    Numbers numbers;
    for (const Message& message : Received(hWnd)) numbers.push_back(message.number);
    return numbers;
  }

  // The last WM_COMMAND that the window has got, once its process has run.
  static std::optional<Message> Command(std::int32_t hWnd) {
    std::optional<Message> last;
    for (const Message& message : Received(hWnd))
      if (message.number == platform::WM_COMMAND) last = message;
    return last;
  }

  static void ExpectCommand(std::int32_t hWnd, std::int32_t wParam, std::int32_t lParam,
                            std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    const auto command = Command(hWnd);
    ASSERT_TRUE(command.has_value());
    EXPECT_EQ(command->wParam, wParam);
    EXPECT_EQ(command->lParam, lParam);
  }

  // The verb has failed with this text and has logged nothing.
  static void ExpectFailure(const std::string& text, std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    EXPECT_EQ(basMain::run.LastError, text);
    EXPECT_EQ(Log(), Lines{});
  }

  std::int32_t window_;
};

}  // namespace support
