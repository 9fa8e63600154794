#include "platform/messages.h"

#include "fixture.h"
#include "platform/window_lookup.h"

namespace {

using contract::AddForeignWindow;
using contract::kPlainClass;
using platform::SendMessageA;
using platform::TextBuffer;

class Messages : public contract::Test {
 protected:
  void SetUp() override {
    Test::SetUp();
    window = AddForeignWindow({kPlainClass, "Fenster"});
    button = AddForeignWindow({"Button", "Knopf", window, 7});
    edit = AddForeignWindow({"Edit", "", window, 8});
  }

  std::string TextOf(std::int32_t hWnd) {
    std::string text;
    platform::GetWindowTextA(hWnd, text, 1000);
    return text;
  }

  // What the window shows after the button has told it of a click.
  std::string Click(std::int32_t hWnd) { return std::to_string(7) + " 0 " + std::to_string(hWnd); }

  std::int32_t window = 0;
  std::int32_t button = 0;
  std::int32_t edit = 0;
};

TEST_F(Messages, SetTextChangesTheTextAndAnswersOne) {
  for (const auto hWnd : {window, button, edit}) {
    EXPECT_EQ(SendMessageA(hWnd, platform::WM_SETTEXT, 0, "Müller & Söhne"), 1);
    TextBuffer buffer(64);
    EXPECT_EQ(SendMessageA(hWnd, platform::WM_GETTEXT, 64, buffer), 14);
    EXPECT_STREQ(buffer.bytes.c_str(), "Müller & Söhne");
  }
}

TEST_F(Messages, GetTextIsCutToTheSizeThatIsNamed) {
  SendMessageA(edit, platform::WM_SETTEXT, 0, "abcdef");
  TextBuffer buffer(8);
  EXPECT_EQ(SendMessageA(edit, platform::WM_GETTEXT, 4, buffer), 3);
  EXPECT_EQ(buffer.bytes, std::string("abc\0\0\0\0\0", 8));
}

TEST_F(Messages, GetTextOfAWindowIsCutToTheSizeThatIsNamed) {
  SendMessageA(window, platform::WM_SETTEXT, 0, "abcdef");
  TextBuffer buffer(8);
  EXPECT_EQ(SendMessageA(window, platform::WM_GETTEXT, 4, buffer), 3);
  EXPECT_EQ(buffer.bytes, std::string("abc\0\0\0\0\0", 8));
}

TEST_F(Messages, GetTextNeverWritesBeyondTheBuffer) {
  SendMessageA(edit, platform::WM_SETTEXT, 0, "abcdef");
  TextBuffer buffer(4);
  EXPECT_EQ(SendMessageA(edit, platform::WM_GETTEXT, 100, buffer), 3);
  EXPECT_EQ(buffer.bytes, std::string("abc\0", 4));
}

TEST_F(Messages, EmptyTextIsTakenAndGiven) {
  SendMessageA(button, platform::WM_SETTEXT, 0, "");
  TextBuffer buffer(10);
  EXPECT_EQ(SendMessageA(button, platform::WM_GETTEXT, 10, buffer), 0);
  EXPECT_EQ(buffer.bytes, std::string(10, '\0'));
}

TEST_F(Messages, ClickTellsTheParent) {
  SendMessageA(button, platform::BM_CLICK, 0, 0);
  EXPECT_EQ(TextOf(window), Click(button));
}

TEST_F(Messages, PostedClickIsHandledByTheOtherProcessInItsTime) {
  EXPECT_TRUE(platform::PostMessageA(button, platform::BM_CLICK, 0, 0));
  contract::RunFor(300);
  EXPECT_EQ(TextOf(window), Click(button));
}

TEST_F(Messages, ClickOnWhatIsNoButtonTellsNobody) {
  SendMessageA(AddForeignWindow({"Static", "Text", window, 7}), platform::BM_CLICK, 0, 0);
  EXPECT_EQ(TextOf(window), "Fenster");
}

TEST_F(Messages, ClickOnADisabledButtonTellsTheParentAllTheSame) {
  const auto disabled = AddForeignWindow({.className = "Button", .parent = window, .id = 7, .enabled = false});
  SendMessageA(disabled, platform::BM_CLICK, 0, 0);
  EXPECT_EQ(TextOf(window), Click(disabled));
}

TEST_F(Messages, PostedCommandReachesTheWindow) {
  EXPECT_TRUE(platform::PostMessageA(window, platform::WM_COMMAND, 5 * 65536 + 12, 0));
  contract::RunFor(300);
  EXPECT_EQ(TextOf(window), "12 5 0");
}

TEST_F(Messages, CloseDestroysTheWindowWithItsControls) {
  EXPECT_EQ(SendMessageA(window, platform::WM_CLOSE, 0, 0), 0);
  EXPECT_FALSE(platform::IsWindow(window));
  EXPECT_FALSE(platform::IsWindow(button));
}

TEST_F(Messages, PostedCloseDestroysTheWindow) {
  EXPECT_TRUE(platform::PostMessageA(window, platform::WM_CLOSE, 0, 0));
  contract::RunFor(300);
  EXPECT_FALSE(platform::IsWindow(window));
}

TEST_F(Messages, DeadHandleGetsNothing) {
  contract::DestroyForeignWindow(window);
  for (const auto dead : {window, button, std::int32_t{0}}) {
    TextBuffer buffer(8);
    EXPECT_EQ(SendMessageA(dead, platform::WM_SETTEXT, 0, "Text"), 0);
    EXPECT_EQ(SendMessageA(dead, platform::WM_GETTEXT, 8, buffer), 0);
    EXPECT_EQ(buffer.bytes, std::string(8, '\0'));
    EXPECT_EQ(SendMessageA(dead, platform::WM_CLOSE, 0, 0), 0);
    EXPECT_FALSE(platform::PostMessageA(dead, platform::WM_CLOSE, 0, 0));
  }
}

}  // namespace
