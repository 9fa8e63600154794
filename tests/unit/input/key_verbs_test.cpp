// The verbs that send keys.
#include "engine/state.h"
#include "environment/window_order.h"
#include "frame/frmStatus.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using basMain::frmStatus;
using basMain::run;
using support::Completed;
using support::Log;
using support::RunLines;

using Lines = std::vector<std::string>;

class KeyVerbs : public support::SystemTest {
 protected:
  static std::uint32_t ThreadOf(std::int32_t hWnd) {
    std::uint32_t process = 0;
    return platform::GetWindowThreadProcessId(hWnd, process);
  }

  const std::int32_t main_ = support::TargetWindow("TeRu");
  const std::int32_t dialog_ = AddWindow({.className = "X", .text = "Zahlungen 2005", .process = At(main_).process});
  const std::int32_t field_ = AddWindow({.className = "Edit", .text = "", .parent = dialog_, .id = 7});
};

// SENDKEY.

TEST_F(KeyVerbs, SendKeyGoesToWhateverHasTheFocusAndActivatesNothing) {
  EXPECT_TRUE(RunLines({"SENDKEY=abc"}));
  EXPECT_EQ(TypedText(main_), "abc");
  for (const std::string& line : InputLog()) EXPECT_TRUE(line.starts_with("keybd_event")) << line;
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: abc"}));
}

TEST_F(KeyVerbs, SendKeySleepsBehindTheKeys) {
  const auto before = Clock();
  RunLines({"SENDKEY=a"});
  EXPECT_EQ(Clock() - before, 100);
}

TEST_F(KeyVerbs, SendKeyPumpsBeforeTheKeys) {
  frmStatus.Show();
  Activate(main_);
  platform::PostMessageA(frmStatus.hWnd(), platform::WM_COMMAND, 999, 0);
  bool first = false;
  At(main_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    const auto& received = At(frmStatus.hWnd()).received;
    if (message.number == platform::WM_CHAR) first = !received.empty() && received.back().wParam == 999;
    return std::nullopt;
  };
  RunLines({"SENDKEY=a"});
  EXPECT_TRUE(first);
}

TEST_F(KeyVerbs, TheVerbsWithAWindowPumpBetweenTheSearchAndTheKeys) {
  frmStatus.Show();
  basAPI::SetTopMost(frmStatus.hWnd());  // as a press of the hot key does
  for (const char* line : {"SENDKEY2=a,7,Zahlungen,Edit", "SENDKEY2WINDOW=a,Zahlungen"}) {
    Activate(dialog_);
    // Posted in the pause of the search at the window that it finds, which is the second one from the top.
    Schedule(15, [] { platform::PostMessageA(frmStatus.hWnd(), platform::WM_COMMAND, 999, 0); });
    At(frmStatus.hWnd()).received.clear();
    bool joined = false;
    At(frmStatus.hWnd()).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
      if (message.wParam == 999) joined = !InputLog().empty();
      return 0;
    };
    InputLog().clear();
    RunLines({line});
    EXPECT_FALSE(At(frmStatus.hWnd()).received.empty()) << line;
    EXPECT_FALSE(joined) << line;
  }
}

TEST_F(KeyVerbs, SendKeyOfSpaceInAnyLettersIsOneBlank) {
  EXPECT_TRUE(RunLines({"SENDKEY={space}", "SENDKEY={SPACE}"}));
  EXPECT_EQ(TypedText(main_), "  ");
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: {space}", "Taste wurde gesendet: {SPACE}"}));
}

TEST_F(KeyVerbs, SpaceInsideALongerStringIsPassedOnAndCannotBeSent) {
  EXPECT_TRUE(RunLines({"SENDKEY=a{SPACE}b"}));
  EXPECT_EQ(TypedText(main_), "");
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: a{SPACE}b"}));
}

TEST_F(KeyVerbs, ABadStringIsPassedOver) {
  EXPECT_TRUE(RunLines({"SENDKEY={TAB", "SENDKEY={NICHTS}", "SENDKEY=("}));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(run.LastError, "");
}

TEST_F(KeyVerbs, SendKeyOfNothingSendsNothing) {
  EXPECT_TRUE(RunLines({"SENDKEY="}));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: "}));
}

// SENDKEY2.

TEST_F(KeyVerbs, SendKeyToControlFillsTheFieldThatIsNamedByIdAndClass) {
  AddWindow({.className = "Edit", .parent = dialog_, .id = 8});
  EXPECT_TRUE(RunLines({"SENDKEY2=Text,7,Zahlungen,Edit"}));
  EXPECT_EQ(At(field_).text, "Text");
  EXPECT_EQ(Foreground(), dialog_);
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: Text"}));
}

TEST_F(KeyVerbs, SendKeyToControlFindsTheFieldByItsText) {
  const auto second = AddWindow({.className = "Feld", .text = "Konto", .parent = dialog_, .id = 8});
  EXPECT_TRUE(RunLines({"SENDKEY2=!,0,Zahlungen,feld,KONTO"}));
  EXPECT_EQ(TypedText(second), "!");
}

TEST_F(KeyVerbs, SendKeyToControlJoinsTheThreadOfTheMainWindow) {
  const auto foreign = AddWindow({.className = "X", .text = "Fremdes"});
  AddWindow({.className = "Edit", .parent = foreign, .id = 7});
  RunLines({"SENDKEY2=a,7,Fremdes,Edit"});
  const std::string threads = std::to_string(ThreadOf(main_)) + " " + std::to_string(ThreadOf(frmStatus.hWnd()));
  ASSERT_FALSE(InputLog().empty());
  EXPECT_EQ(*std::next(InputLog().begin()), "AttachThreadInput " + threads + " 1");
  EXPECT_EQ(*std::prev(InputLog().end(), 2), "AttachThreadInput " + threads + " 0");
}

TEST_F(KeyVerbs, SendKeyToControlWithoutTheControlFailsAndSendsNothing) {
  for (const char* line : {"SENDKEY2=a,99,Zahlungen,Edit", "SENDKEY2=a,7,Andere,Edit", "SENDKEY2=a,7,Zahlungen,Button",
                           "SENDKEY2=a,7,Zahlungen", "SENDKEY2=a"}) {
    EXPECT_FALSE(RunLines({line})) << line;
    EXPECT_TRUE(InputLog().empty()) << line;
    EXPECT_EQ(run.LastError, "") << line;
  }
}

TEST_F(KeyVerbs, SendKeyToControlDoesNotReachAControlOfAWindowInsideTheMainWindow) {
  const auto inner = AddWindow({.className = "X", .text = "Innen", .parent = main_});
  AddWindow({.className = "Edit", .parent = inner, .id = 7});
  EXPECT_FALSE(RunLines({"SENDKEY2=a,7,Innen,Edit"}));
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(KeyVerbs, SendKeyToControlLooksBelowAControlThatStandsInForTheWindow) {
  const auto outer = AddWindow({.className = "Feld", .parent = main_, .id = 7});
  const auto inner = AddWindow({.className = "Feld", .parent = outer, .id = 7});
  EXPECT_TRUE(RunLines({"SENDKEY2=a,7,Innen,Feld"}));
  EXPECT_EQ(TypedText(inner), "a");
}

TEST_F(KeyVerbs, SendKeyToControlWithAnIdThatIsNoNumberFailsByTheSearch) {
  EXPECT_FALSE(RunLines({"SENDKEY2=a,x,Zahlungen,Edit"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich");
}

TEST_F(KeyVerbs, SendKeyToControlSleepsBehindTheKeys) {
  std::int64_t keys = 0;
  At(field_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_CHAR) keys = Clock();
    return std::nullopt;
  };
  RunLines({"SENDKEY2=a,7,Zahlungen,Edit"});
  EXPECT_EQ(Clock() - keys, 100);
}

// SENDKEY2WINDOW.

TEST_F(KeyVerbs, SendKeyToWindowBringsItToTheFrontAndMovesNoFocus) {
  EXPECT_TRUE(RunLines({"SENDKEY2WINDOW=^{a}x,Zahlungen"}));
  EXPECT_EQ(TypedText(dialog_), "\x01x");
  for (const std::string& line : InputLog()) EXPECT_FALSE(line.starts_with("SetFocus")) << line;
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: ^{a}x"}));
}

TEST_F(KeyVerbs, SendKeyToWindowJoinsTheThreadOfTheMainWindow) {
  AddWindow({.className = "X", .text = "Fremdes"});
  RunLines({"SENDKEY2WINDOW=a,Fremdes"});
  const std::string threads = std::to_string(ThreadOf(main_)) + " " + std::to_string(ThreadOf(frmStatus.hWnd()));
  EXPECT_EQ(*std::next(InputLog().begin()), "AttachThreadInput " + threads + " 1");
  EXPECT_EQ(*std::prev(InputLog().end(), 2), "AttachThreadInput " + threads + " 0");
}

TEST_F(KeyVerbs, SendKeyToWindowWithoutTheWindowSendsTheKeysAllTheSame) {
  EXPECT_TRUE(RunLines({"SENDKEY2WINDOW=a,Gibt es nicht"}));
  EXPECT_EQ(TypedText(main_), "a");
  EXPECT_EQ(Log(), Completed({"Taste wurde gesendet: a"}));
}

TEST_F(KeyVerbs, SendKeyToWindowPartsTheQueuesAlsoBehindABadString) {
  EXPECT_TRUE(RunLines({"SENDKEY2WINDOW={TAB,Zahlungen"}));
  EXPECT_EQ(std::prev(InputLog().end(), 2)->back(), '0');
  EXPECT_TRUE(At(frmStatus.hWnd()).topMost);
}

}  // namespace
