#include "platform/input.h"

#include "fixture.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"

namespace {

using contract::AddForeignWindow;

std::uint32_t ThreadOf(std::int32_t hWnd) {
  std::uint32_t process = 0;
  return platform::GetWindowThreadProcessId(hWnd, process);
}

std::string TextOf(std::int32_t hWnd) {
  platform::TextBuffer buffer(100);
  const auto count = platform::SendMessageA(hWnd, platform::WM_GETTEXT, 100, buffer);
  return buffer.bytes.substr(0, static_cast<std::size_t>(count));
}

void Stroke(std::uint8_t key) {
  platform::keybd_event(key, 0, 0, 0);
  platform::keybd_event(key, 0, platform::KEYEVENTF_KEYUP, 0);
}

// Waits as the program does while it sends.
void WaitForAll(platform::KeyReceiver& receiver) {
  while (!receiver.TookAll()) contract::RunFor(10);
}

void StrokeAndWait(std::uint8_t key) {
  platform::KeyReceiver receiver;
  receiver.Follow();
  Stroke(key);
  WaitForAll(receiver);
}

// A field in a window of another process, and the two threads.
class Keys : public contract::Test {
 protected:
  void SetUp() override {
    Test::SetUp();
    own_ = contract::AddOwnWindow("eigenes");
    window_ = contract::AddSettledWindow("fremdes");
    field_ = AddForeignWindow({.className = "Edit", .parent = window_, .id = 7, .width = 100, .height = 24});
  }
  void TearDown() override {
    platform::AttachThreadInput(ThreadOf(window_), ThreadOf(own_), false);
    Test::TearDown();
  }

  bool Join(bool join = true) const { return platform::AttachThreadInput(ThreadOf(window_), ThreadOf(own_), join); }

  std::int32_t own_ = 0, window_ = 0, field_ = 0;
};

TEST_F(Keys, GoToTheFieldThatGetsTheFocusThroughJoinedQueues) {
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  platform::SetFocus(field_);
  platform::KeyReceiver receiver;
  receiver.Follow();
  Stroke('A');
  platform::keybd_event(platform::VK_SHIFT, 0, 0, 0);
  Stroke('B');
  platform::keybd_event(platform::VK_SHIFT, 0, platform::KEYEVENTF_KEYUP, 0);
  WaitForAll(receiver);
  EXPECT_EQ(TextOf(field_), "aB");
}

TEST_F(Keys, CharactersWithoutAKeyOnTheLayoutAreTyped) {
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  platform::SetFocus(field_);
  platform::KeyReceiver receiver;
  receiver.Follow();
  for (const char character : std::string("äÖß€éz")) platform::TypeCharacter(character);
  WaitForAll(receiver);
  EXPECT_EQ(TextOf(field_), "äÖß€éz");
}

TEST_F(Keys, AreWaitedForUntilTheyAreWorkedAt) {
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  platform::SetFocus(window_);
  StrokeAndWait(contract::kSlowKey);
  std::string text;
  platform::GetWindowTextA(window_, text, 100);
  EXPECT_EQ(text, "langsam");
}

TEST_F(Keys, GoToTheForegroundWindowWithoutJoinedQueues) {
  platform::SetForegroundWindow(window_);
  contract::RunFor(200);
  StrokeAndWait(contract::kSlowKey);
  std::string text;
  platform::GetWindowTextA(window_, text, 100);
  EXPECT_EQ(text, "langsam");
}

TEST_F(Keys, ForTheProgramItselfAreNotWaitedFor) {
  platform::SetForegroundWindow(own_);
  contract::RunFor(200);
  platform::KeyReceiver receiver;
  receiver.Follow();
  EXPECT_TRUE(receiver.IsOwn());
  platform::keybd_event(platform::VK_SHIFT, 0, 0, 0);
  EXPECT_TRUE(receiver.Took(platform::VK_SHIFT, true));
  platform::keybd_event(platform::VK_SHIFT, 0, platform::KEYEVENTF_KEYUP, 0);
  EXPECT_TRUE(receiver.TookAll());
}

TEST_F(Keys, FocusStaysWithinItsQueue) {
  EXPECT_EQ(platform::SetFocus(field_), 0);
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  EXPECT_NE(platform::SetFocus(field_), 0);
  EXPECT_EQ(platform::SetFocus(window_), field_);
}

TEST_F(Keys, QueuesAreJoinedAndPartedOnce) {
  EXPECT_FALSE(Join(false));
  EXPECT_TRUE(Join());
  EXPECT_TRUE(Join(false));
  EXPECT_FALSE(Join(false));
}

TEST_F(Keys, QueuesOfOneThreadOrNoneAreNotJoined) {
  EXPECT_FALSE(platform::AttachThreadInput(ThreadOf(own_), ThreadOf(own_), true));
  EXPECT_FALSE(platform::AttachThreadInput(0, ThreadOf(own_), true));
  EXPECT_FALSE(platform::AttachThreadInput(ThreadOf(own_), 0, true));
}

TEST_F(Keys, TheWindowInFrontStaysOverJoiningAndParting) {
  platform::SetForegroundWindow(window_);
  contract::RunFor(200);
  ASSERT_TRUE(Join());
  EXPECT_EQ(platform::GetForegroundWindow(), window_);
  platform::SetFocus(field_);
  EXPECT_EQ(platform::GetForegroundWindow(), window_);
  EXPECT_TRUE(Join(false));
  EXPECT_EQ(platform::GetForegroundWindow(), window_);
}

// A field that takes 100 milliseconds for a character.
class SlowKeys : public Keys {
 protected:
  void SetUp() override {
    Keys::SetUp();
    slow_ = AddForeignWindow({.className = "Edit", .parent = window_, .width = 100, .height = 24, .keyTime = 100});
    ASSERT_TRUE(Join());
    platform::SetForegroundWindow(window_);
    platform::SetFocus(slow_);
    ASSERT_TRUE(Join(false));
    contract::RunFor(200);
  }
  static void StrokeAll(const std::string& letters) {
    for (const char letter : letters) Stroke(static_cast<std::uint8_t>(letter));
  }

  std::int32_t slow_ = 0;
};

TEST_F(SlowKeys, AreWaitedForWithoutJoinedQueues) {
  platform::KeyReceiver receiver;
  receiver.Follow();
  StrokeAll("ABCDEFGH");
  WaitForAll(receiver);
  EXPECT_EQ(TextOf(slow_), "abcdefgh");
}

TEST_F(SlowKeys, AreWaitedForThroughJoinedQueues) {
  ASSERT_TRUE(Join());
  platform::KeyReceiver receiver;
  receiver.Follow();
  StrokeAll("ABCDEFGH");
  WaitForAll(receiver);
  EXPECT_EQ(TextOf(slow_), "abcdefgh");
}

TEST_F(SlowKeys, AreWaitedForOneByOne) {
  platform::KeyReceiver receiver;
  receiver.Follow();
  for (int i = 1; i <= 4; ++i) {
    platform::keybd_event('A', 0, 0, 0);
    while (!receiver.Took('A', true)) contract::RunFor(10);
    platform::keybd_event('A', 0, platform::KEYEVENTF_KEYUP, 0);
    while (!receiver.Took('A', false)) contract::RunFor(10);
    EXPECT_EQ(TextOf(slow_), std::string(static_cast<std::size_t>(i), 'a'));
  }
}

TEST_F(SlowKeys, AreStillWaitingWhenASentMessageIsAnswered) {
  StrokeAll("ABCDEFGH");
  EXPECT_LT(TextOf(slow_).size(), 8u);
  contract::RunFor(2000);
  EXPECT_EQ(TextOf(slow_), "abcdefgh");
}

TEST_F(SlowKeys, ThatWaitSurviveJoiningAndParting) {
  StrokeAll("ABCDEFGH");
  ASSERT_TRUE(Join());
  ASSERT_TRUE(Join(false));
  EXPECT_EQ(platform::GetForegroundWindow(), window_);
  contract::RunFor(2000);
  EXPECT_EQ(TextOf(slow_), "abcdefgh");
}

TEST_F(Keys, ThatTakeMoreThanFiveSecondsLetTheProgramHandleItsMessages) {
  platform::SetForegroundWindow(window_);
  contract::RunFor(200);
  platform::KeyReceiver receiver;
  receiver.Follow();
  Stroke(contract::kEndlessKey);
  int pumps = 0;
  for (; !receiver.TookAll(); ++pumps) {
    std::string text;
    platform::GetWindowTextA(own_, text, 100);
    ASSERT_EQ(text, "eigenes");
    contract::RunFor(10);
  }
  EXPECT_GT(pumps, 1);
  EXPECT_EQ(TextOf(window_), "endlos");
}

TEST_F(Keys, ForAWindowThatGoesAreNoLongerWaitedFor) {
  platform::SetForegroundWindow(window_);
  contract::RunFor(200);
  platform::KeyReceiver receiver;
  receiver.Follow();
  contract::DestroyForeignWindow(window_);
  Stroke('A');
  WaitForAll(receiver);
  std::string name;
  EXPECT_EQ(platform::GetClassNameA(window_, name, 100), 0);
}

TEST_F(Keys, FocusIsKeptWhenTheQueuesAreParted) {
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  platform::SetFocus(field_);
  EXPECT_TRUE(Join(false));
  contract::RunFor(200);
  StrokeAndWait('C');
  EXPECT_EQ(TextOf(field_), "c");
}

TEST_F(Keys, LettersHaveKeysOfTheirOwn) {
  EXPECT_EQ(platform::VkKeyScanA('a'), 'A');
  EXPECT_EQ(platform::VkKeyScanA('A'), 'A' + 256);
  EXPECT_EQ(platform::VkKeyScanA(' '), ' ');
}

TEST_F(Keys, HeldOnesAreSeen) {
  EXPECT_GE(platform::GetAsyncKeyState(platform::VK_CONTROL), 0);
  platform::keybd_event(platform::VK_CONTROL, 0, 0, 0);
  EXPECT_LT(platform::GetAsyncKeyState(platform::VK_CONTROL), 0);
  platform::keybd_event(platform::VK_CONTROL, 0, platform::KEYEVENTF_KEYUP, 0);
  EXPECT_GE(platform::GetAsyncKeyState(platform::VK_CONTROL), 0);
}

TEST_F(Keys, RightOnesAreExtended) {
  for (const std::uint8_t key : {platform::VK_RCONTROL, platform::VK_RMENU}) {
    platform::keybd_event(key, 0, platform::KEYEVENTF_EXTENDEDKEY, 0);
    platform::keybd_event(key, 0, platform::KEYEVENTF_KEYUP, 0);
    EXPECT_LT(platform::GetAsyncKeyState(key), 0) << "the left one has been let go";
    platform::keybd_event(key, 0, platform::KEYEVENTF_EXTENDEDKEY | platform::KEYEVENTF_KEYUP, 0);
    EXPECT_GE(platform::GetAsyncKeyState(key), 0);
  }
}

TEST_F(Keys, NoFocusForADeadWindow) {
  contract::DestroyForeignWindow(field_);
  ASSERT_TRUE(Join());
  EXPECT_EQ(platform::SetFocus(field_), 0);
}

TEST_F(Keys, FocusGoesFromAControlThatGoesToItsParent) {
  const auto frame = AddForeignWindow({contract::kPlainClass, "Rahmen", window_, 6});
  const auto inner = AddForeignWindow({.className = "Edit", .parent = frame, .id = 7, .width = 100, .height = 24});
  const auto other = AddForeignWindow({.className = "Edit", .parent = frame, .id = 8, .width = 100, .height = 24});
  ASSERT_TRUE(Join());
  platform::SetForegroundWindow(window_);
  platform::SetFocus(inner);
  contract::DestroyForeignWindow(other);
  EXPECT_EQ(platform::SetFocus(inner), inner);
  contract::DestroyForeignWindow(inner);
  EXPECT_EQ(platform::SetFocus(field_), frame);
}

}  // namespace
