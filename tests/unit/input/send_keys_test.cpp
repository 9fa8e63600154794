// The sender of key strings, by what arrives in another program's window.
#include "input/send_keys.h"

#include "engine/state.h"
#include "forms/form.h"
#include "frame/frmStatus.h"
#include "platform/input.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using basAPI::SendKeys;

using Lines = std::vector<std::string>;

class SendKeysTest : public support::SystemTest {
 protected:
  SendKeysTest() { Activate(window_); }

  // The keys that went down in the window, with the modifiers that were down then.
  Lines Keys() const {
    Lines keys;
    bool shift = false, control = false, alt = false;
    for (const Message& message : At(window_).received) {
      const bool down = message.number == platform::WM_KEYDOWN || message.number == platform::WM_SYSKEYDOWN;
      const bool up = message.number == platform::WM_KEYUP || message.number == platform::WM_SYSKEYUP;
      if (!down && !up) continue;
      if (message.wParam == platform::VK_SHIFT) shift = down;
      else if (message.wParam == platform::VK_CONTROL) control = down;
      else if (message.wParam == platform::VK_MENU) alt = down;
      else if (down)
        keys.push_back(std::string(shift ? "+" : "") + (control ? "^" : "") + (alt ? "%" : "") +
                       std::to_string(message.wParam));
    }
    EXPECT_FALSE(shift || control || alt) << "a modifier stays down";
    return keys;
  }

  const std::int32_t window_ = AddWindow({.className = "X"});
};

TEST_F(SendKeysTest, TextArrivesAsItIsWritten) {
  SendKeys("Müller & Söhne 12,50 €, 100{%}");
  EXPECT_EQ(TypedText(window_), "Müller & Söhne 12,50 €, 100%");
}

TEST_F(SendKeysTest, EveryCharacterOfTheCodePageArrives) {
  for (int code = ' '; code <= 0xFF; ++code) {
    At(window_).received.clear();
    SendKeys(std::string("{") + static_cast<char>(code) + "}");
    EXPECT_EQ(TypedText(window_), std::string(1, static_cast<char>(code))) << code;
  }
}

TEST_F(SendKeysTest, CharactersWithAKeyComeByIt) {
  SendKeys("aB");
  EXPECT_EQ(Keys(), (Lines{"65", "+66"}));
}

TEST_F(SendKeysTest, CharactersWithoutAKeyAreTyped) {
  platform::simulated::Fail("VkKeyScanA");
  SendKeys("aß");
  EXPECT_EQ(TypedText(window_), "aß");
  EXPECT_EQ(Keys(), (Lines{"231", "231"}));
}

TEST_F(SendKeysTest, ModifiersGroupsNamesAndCounts) {
  SendKeys("^{a}+{TAB 3}%{F4}{ENTER}^(cv)~");
  EXPECT_EQ(Keys(), (Lines{"^65", "+9", "+9", "+9", "%115", "13", "^67", "^86", "13"}));
}

TEST_F(SendKeysTest, ACapitalUnderAModifierHoldsShiftAsWell) {
  SendKeys("^A+(B)%Ä");
  EXPECT_EQ(Keys(), (Lines{"+^65", "+66", "+%222"}));
}

TEST_F(SendKeysTest, KeysOfTheMiddlePadAreMarkedAsSuch) {
  SendKeys("{DEL}a");
  EXPECT_EQ(InputLog(),
            (Lines{"keybd_event 46 0 1 0", "keybd_event 46 0 3 0", "keybd_event 65 0 0 0", "keybd_event 65 0 2 0"}));
}

TEST_F(SendKeysTest, ABadStringSendsNothing) {
  EXPECT_THROW(SendKeys("abc{SPACE}d"), runtime::Fault);
  EXPECT_THROW(SendKeys("abc{TAB"), runtime::Fault);
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(SendKeysTest, KeysHaveBeenProcessedWhenItReturns) {
  std::string text;
  At(window_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_CHAR) text += static_cast<char>(message.wParam);
    return std::nullopt;
  };
  SendKeys("abc");
  EXPECT_EQ(text, "abc");
}

TEST_F(SendKeysTest, KeysTheUserHoldsAreLetGoFirstAndAltOpensNoMenu) {
  HoldKey(platform::VK_MENU);
  HoldKey(platform::VK_SHIFT);
  SendKeys("a");
  EXPECT_EQ(TypedText(window_), "a");
  EXPECT_EQ(InputLog().front(), "keybd_event 17 0 0 0");
  EXPECT_GE(platform::GetAsyncKeyState(platform::VK_MENU), 0);
}

TEST_F(SendKeysTest, KeysTheUserHoldsOnTheRightAreLetGo) {
  for (const std::uint8_t key : {platform::VK_RSHIFT, platform::VK_RCONTROL, platform::VK_RMENU}) HoldKey(key);
  SendKeys("a");
  for (const std::uint8_t key : {platform::VK_RSHIFT, platform::VK_RCONTROL, platform::VK_RMENU})
    EXPECT_GE(platform::GetAsyncKeyState(key), 0) << int{key};
}

TEST_F(SendKeysTest, CapsLockIsOffMeanwhileAndOnAgain) {
  SwitchOn(platform::VK_CAPITAL);
  SendKeys("aBc");
  EXPECT_EQ(TypedText(window_), "aBc");
  EXPECT_EQ(platform::GetKeyState(platform::VK_CAPITAL) & 1, 1);
}

TEST_F(SendKeysTest, WithoutAForegroundWindowTheKeysAreLost) {
  DestroyWindow(window_);
  SendKeys("abc");
  const auto later = AddWindow({.className = "X"});
  Activate(later);
  platform::Sleep(100);
  EXPECT_EQ(TypedText(later), "");
}

TEST_F(SendKeysTest, KeysForTheProgramItselfAreHandledInsideTheCall) {
  basMain::frmStatus.Show();
  Activate(basMain::frmStatus.hWnd());
  SendKeys("abc");
  EXPECT_EQ(TypedText(basMain::frmStatus.hWnd()), "abc");
}

TEST_F(SendKeysTest, AKeyThatClosesTheWindowSendsTheRestToTheNextOne) {
  const auto next = AddWindow({.className = "X"});
  Activate(window_);
  At(window_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_KEYDOWN || message.wParam != platform::VK_RETURN) return std::nullopt;
    DestroyWindow(window_);
    return 0;
  };
  SendKeys("a~b");
  EXPECT_FALSE(Exists(window_));
  EXPECT_EQ(TypedText(next), "b");
}

TEST_F(SendKeysTest, ASlowWindowGetsAllKeysInOrderBeforeTheCallReturns) {
  At(window_).keyTime = 300;
  const auto before = Clock();
  SendKeys("Die GmbH & Co zahlt 12,50");
  EXPECT_EQ(TypedText(window_), "Die GmbH & Co zahlt 12,50");
  EXPECT_GE(Clock() - before, 25 * 300);
}

TEST_F(SendKeysTest, AHeldModifierLastsOverTheHandlingOfMessages) {
  At(window_).keyTime = 300;
  SendKeys("+(abcdefghijklmnopqrstuvwxyz)");
  EXPECT_EQ(TypedText(window_), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

TEST_F(SendKeysTest, ADialogOfItsOwnThatComesUpMeanwhileGetsNone) {
  basMain::frmStatus.Show();
  Activate(window_);
  At(window_).keyTime = 300;
  Schedule(1'000, [] { Activate(basMain::frmStatus.hWnd()); });
  SendKeys("abcdefgh");
  EXPECT_EQ(TypedText(window_), "abcdefgh");
  EXPECT_EQ(Foreground(), window_);
}

// A window whose F5 takes 12 seconds, with the status dialog shown beside it.
class HangingTargetTest : public SendKeysTest {
 protected:
  HangingTargetTest() {
    basMain::frmStatus.Show();
    Activate(window_);
    At(window_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == platform::WM_KEYDOWN && message.wParam == platform::VK_F1 + 4) Occupy(window_, 12'000);
      return std::nullopt;
    };
  }

  // The user clicks "Abbrechen"; the click takes effect when the program handles its messages.
  static void ClickCancelAt(std::int32_t milliseconds) {
    Schedule(milliseconds, [] {
      platform::PostMessageA(basMain::frmStatus.hWnd(), platform::WM_COMMAND, 0,
                             basMain::frmStatus.cmdCancel.now.handle);
    });
  }
};

TEST_F(HangingTargetTest, AHandlerIsWaitedForHoweverLongItTakes) {
  SendKeys("{F5}xyb");
  EXPECT_GE(Clock(), 12'000);
  EXPECT_EQ(TypedText(window_), "xyb");
  EXPECT_TRUE(basMain::frmStatus.Visible());
}

TEST_F(HangingTargetTest, ACancelDuringTheWaitEndsItAndTheRestIsNotSent) {
  ClickCancelAt(6'000);
  SendKeys("{F5}xyb~");
  EXPECT_TRUE(basMain::run.StopRun);
  EXPECT_GE(Clock(), 6'000);
  EXPECT_LT(Clock(), 6'500);
  platform::Sleep(20'000);
  EXPECT_EQ(TypedText(window_), "");
}

TEST_F(HangingTargetTest, MessagesAreHandledAfterFiveSeconds) {
  ClickCancelAt(1'000);
  SendKeys("{F5}x");
  EXPECT_GE(Clock(), 5'000);
  EXPECT_LT(Clock(), 5'500);
}

TEST_F(HangingTargetTest, ATargetThatGoesIsNotWaitedFor) {
  Schedule(2'000, [this] { DestroyWindow(window_); });
  SendKeys("{F5}x");
  EXPECT_LT(Clock(), 2'500);
  EXPECT_FALSE(basMain::run.StopRun);
}

TEST_F(SendKeysTest, NoKeyOfTheProgramOperatesItsOwnWindowsAndThoseOfAPersonDo) {
  basMain::frmStatus.Show();
  Activate(basMain::frmStatus.hWnd());
  SendKeys("%b");
  SendKeys("~ b{ESC}");
  EXPECT_TRUE(basMain::frmStatus.Visible());
  EXPECT_FALSE(basMain::run.StopRun);
  PressKey('B');
  forms::Pump();
  EXPECT_TRUE(basMain::run.StopRun);
}

}  // namespace
