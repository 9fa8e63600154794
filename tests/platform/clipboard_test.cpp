#include "platform/clipboard.h"

#include "fixture.h"
#include "runtime/fault.h"

namespace {

class Clipboard : public contract::Test {
 protected:
  static void ExpectBusy(void (*operation)()) {
    try {
      operation();
      ADD_FAILURE() << "no fault";
    } catch (const runtime::Fault& fault) {
      EXPECT_EQ(fault.number, runtime::FaultNumber::ClipboardBusy);
    }
  }
};

TEST_F(Clipboard, GivesTheTextOfAnotherProcess) {
  contract::PutOnClipboard("Umsätze\t1.234,56 €\r\nZeile 2");
  EXPECT_TRUE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  EXPECT_FALSE(platform::IsClipboardFormatAvailable(2));
  EXPECT_EQ(platform::GetClipboardText(), "Umsätze\t1.234,56 €\r\nZeile 2");
}

TEST_F(Clipboard, KeepsItsTextWhenItIsRead) {
  contract::PutOnClipboard("Text");
  EXPECT_EQ(platform::GetClipboardText(), "Text");
  EXPECT_EQ(platform::GetClipboardText(), "Text");
}

TEST_F(Clipboard, TextEndsAtItsFirstNul) {
  contract::PutOnClipboard(std::string("ab\0cd", 5));
  EXPECT_EQ(platform::GetClipboardText(), "ab");
}

TEST_F(Clipboard, EmptyTextIsText) {
  contract::PutOnClipboard("");
  EXPECT_TRUE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  EXPECT_EQ(platform::GetClipboardText(), "");
}

TEST_F(Clipboard, LongTextComesWhole) {
  const std::string text(200'000, 'x');
  contract::PutOnClipboard(text);
  EXPECT_TRUE(platform::GetClipboardText() == text);
}

TEST_F(Clipboard, HoldsNothingWhenItIsCleared) {
  contract::PutOnClipboard("Text");
  platform::ClearClipboard();
  EXPECT_FALSE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  EXPECT_EQ(platform::GetClipboardText(), "");
  platform::ClearClipboard();
}

TEST_F(Clipboard, HeldByAnotherProcessIsAFaultUntilItIsLetGo) {
  contract::PutOnClipboard("Text");
  contract::HoldClipboard(true);
  EXPECT_TRUE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  ExpectBusy([] { platform::GetClipboardText(); });
  ExpectBusy([] { platform::ClearClipboard(); });
  contract::HoldClipboard(false);
  EXPECT_EQ(platform::GetClipboardText(), "Text");
}

}  // namespace
