// Recognising and answering the target's message boxes.
#include "automation/message_boxes.h"

#include "automation/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "frame/frmStatus.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

constexpr std::int32_t kStatic = 0xFFFF;

class MessageBoxTest : public SystemTest {
 protected:
  // A box that is gone when one of its buttons is pressed.
  std::int32_t Box(const std::string& title, const std::string& text, const Lines& buttons,
                   const std::string& buttonClass = "Button") {
    const std::int32_t box = AddWindow({.className = "#32770", .text = title});
    std::int32_t id = 0;
    for (const std::string& button : buttons)
      AddWindow({.className = buttonClass, .text = button, .parent = box, .id = ++id});
    AddWindow({.className = "Static", .text = text, .parent = box, .id = kStatic});
    return box;
  }

  // The ids of the commands that the window has got, once its process has run.
  std::vector<std::int32_t> Commands(std::int32_t window) {
    platform::Sleep(0);
    std::vector<std::int32_t> ids;
    for (const Message& message : At(window).received) {
      if (message.number != platform::WM_COMMAND) continue;
      EXPECT_EQ(message.lParam, 0);
      ids.push_back(message.wParam);
    }
    return ids;
  }

  using Ids = std::vector<std::int32_t>;
};

// "CONFIRMDIALOG".

TEST_F(MessageBoxTest, ABoxIsAnsweredWithOk) {
  const std::int32_t box = Box("Hinweis", "Der Export ist fertig.", {"OK"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "fertig"));
  ExpectLog({"ConfirmDialog: Hinweis / fertig", "Dialog Hinweis / Der Export ist fertig. wurde mit OK bestätigt."});
  EXPECT_EQ(Commands(box), Ids{1});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MessageBoxTest, WithoutOkItIsAnsweredWithJa) {
  const std::int32_t box = Box("Frage", "Überschreiben?", {"Nein", "Ja"});
  EXPECT_TRUE(ConfirmDialog("Frage", "Überschreiben"));
  ExpectLog({"ConfirmDialog: Frage / Überschreiben", "Dialog Frage / Überschreiben? wurde mit Ja bestätigt."});
  EXPECT_EQ(Commands(box), Ids{2});
}

TEST_F(MessageBoxTest, OkIsTriedBeforeJa) {
  const std::int32_t box = Box("Frage", "x", {"Ja", "Nein", "OK"});
  EXPECT_TRUE(ConfirmDialog("Frage", "x"));
  EXPECT_EQ(Commands(box), Ids{3});
}

TEST_F(MessageBoxTest, AButtonOfTheOtherClassIsPressedToo) {
  const std::int32_t ok = Box("A", "x", {"Ja", "ok"}, "ThunderRT6CommandButton");
  EXPECT_TRUE(ConfirmDialog("A", "x"));
  EXPECT_EQ(Commands(ok), Ids{2});
  const std::int32_t yes = Box("B", "y", {"Nein", "JA"}, "ThunderRT6CommandButton");
  EXPECT_TRUE(ConfirmDialog("B", "y"));
  EXPECT_EQ(Commands(yes), Ids{2});
}

TEST_F(MessageBoxTest, OkOfTheOtherClassIsTriedBeforeJaOfTheFirst) {
  const std::int32_t box = Box("A", "x", {"Ja"});
  AddWindow({.className = "ThunderRT6CommandButton", .text = "OK", .parent = box, .id = 9});
  EXPECT_TRUE(ConfirmDialog("A", "x"));
  EXPECT_EQ(Commands(box), Ids{9});
}

TEST_F(MessageBoxTest, ABoxWithNeitherButtonIsLoggedAsAnsweredWithJaAndGetsTheCommand0) {
  const std::int32_t box = Box("Frage", "Wirklich?", {"Nein", "Abbrechen"});
  EXPECT_TRUE(ConfirmDialog("Frage", "Wirklich"));
  ExpectLog({"ConfirmDialog: Frage / Wirklich", "Dialog Frage / Wirklich? wurde mit Ja bestätigt."});
  EXPECT_EQ(Commands(box), Ids{0});
}

TEST_F(MessageBoxTest, AButtonWithAnAcceleratorMarkDoesNotMatchJa) {
  const std::int32_t box = Box("Frage", "x", {"&Ja", "&Nein"});
  EXPECT_TRUE(ConfirmDialog("Frage", "x"));
  EXPECT_EQ(Commands(box), Ids{0});
}

TEST_F(MessageBoxTest, TheButtonItselfGetsNoMessageAndTheVerbDoesNotWait) {
  const std::int32_t box = Box("Hinweis", "x", {"OK"});
  At(box).procedure = [box](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_COMMAND) return std::nullopt;
    DestroyWindow(box);
    return 0;
  };
  const std::int32_t button = At(box).children.front();
  EXPECT_TRUE(ConfirmDialog("Hinweis", "x"));
  EXPECT_TRUE(At(button).received.empty());
  EXPECT_TRUE(Exists(box));
  platform::Sleep(1);
  EXPECT_FALSE(Exists(box));
}

TEST_F(MessageBoxTest, TheUpperWindowWithoutTheTextIsPassedByAndTheLowerOneAnswered) {
  const std::int32_t lower = Box("Hinweis", "Der Export ist fertig.", {"OK"});
  const std::int32_t upper = Box("Hinweis", "Etwas anderes.", {"OK"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "fertig"));
  EXPECT_EQ(Commands(lower), Ids{1});
  EXPECT_EQ(Commands(upper), Ids{});
}

TEST_F(MessageBoxTest, OfTwoFittingBoxesTheUpperOneIsAnswered) {
  const std::int32_t lower = Box("Hinweis", "x", {"OK"});
  const std::int32_t upper = Box("Hinweis", "x", {"OK"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "x"));
  EXPECT_EQ(Commands(lower), Ids{});
  EXPECT_EQ(Commands(upper), Ids{1});
}

TEST_F(MessageBoxTest, TheTitleFragmentMindsTheCase) {
  Box("Hinweis", "x", {"OK"});
  EXPECT_FALSE(ConfirmDialog("hinweis", "x"));
  ExpectLog({"ConfirmDialog: hinweis / x"});
}

TEST_F(MessageBoxTest, TheTitleFragmentMayStandAnywhere) {
  const std::int32_t box = Box("TeRu - Hinweis 5", "x", {"OK"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "x"));
  EXPECT_EQ(Commands(box), Ids{1});
}

TEST_F(MessageBoxTest, AStaticTextInOtherCapitalsIsRecognised) {
  const std::int32_t box = Box("Hinweis", "Die ÜBERNAHME ist Fertig", {"OK"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "Übernahme IST fertig"));
  EXPECT_EQ(Commands(box), Ids{1});
}

TEST_F(MessageBoxTest, TheClassOfTheTextIsComparedWithoutCase) {
  const std::int32_t box = AddWindow({.className = "X", .text = "Hinweis"});
  AddWindow({.className = "sTATIC", .text = "text", .parent = box, .id = 5});
  EXPECT_TRUE(ConfirmDialog("Hinweis", "text"));
  EXPECT_EQ(Commands(box), Ids{0});
}

TEST_F(MessageBoxTest, ATextInAControlOfAnotherClassIsNone) {
  const std::int32_t box = AddWindow({.className = "X", .text = "Hinweis"});
  AddWindow({.className = "StaticText", .text = "text", .parent = box, .id = 4});
  AddWindow({.className = "Edit", .text = "text", .parent = box, .id = 5});
  AddWindow({.className = "Button", .text = "text", .parent = box, .id = 6});
  EXPECT_FALSE(ConfirmDialog("Hinweis", "text"));
}

TEST_F(MessageBoxTest, AnEmptyTitleFragmentFitsEveryTitledWindow) {
  const std::int32_t box = Box("irgendwas", "text", {"OK"});
  Box("", "text", {"OK"});
  EXPECT_TRUE(ConfirmDialog("", "text"));
  EXPECT_EQ(Commands(box), Ids{1});
}

TEST_F(MessageBoxTest, AnEmptyTextFragmentFitsEveryWindowThatHasAStaticChild) {
  const std::int32_t box = Box("Hinweis 1", "irgendwas", {"OK"});
  const std::int32_t without = AddWindow({.className = "X", .text = "Hinweis 2"});
  EXPECT_TRUE(ConfirmDialog("Hinweis", ""));
  EXPECT_EQ(Commands(box), Ids{1});
  EXPECT_EQ(Commands(without), Ids{});
}

TEST_F(MessageBoxTest, AnEmptyTextFragmentAcceptsTheFirstStaticChild) {
  const std::int32_t box = AddWindow({.className = "X", .text = "Hinweis"});
  AddWindow({.className = "Static", .text = "", .parent = box, .id = 4});
  AddWindow({.className = "Static", .text = "zweiter", .parent = box, .id = 5});
  EXPECT_TRUE(ConfirmDialog("Hinweis", ""));
  ExpectLog({"ConfirmDialog: Hinweis / ", "Dialog Hinweis /  wurde mit Ja bestätigt."});
}

TEST_F(MessageBoxTest, ATextOfAnEarlierWindowIsLookedAtAgain) {
  // The upper window's text is collected when its title fits; it does not fit there, because its own process changes
  // it only afterwards. The lower window is then the one that is answered.
  const std::int32_t lower = AddWindow({.className = "X", .text = "Hinweis unten"});
  AddWindow({.className = "Button", .text = "OK", .parent = lower, .id = 8});
  const std::int32_t upper = Box("Hinweis oben", "noch nicht", {"OK"});
  const std::int32_t text = At(upper).children.back();
  Schedule(15, [text] { At(text).text = "fertig"; });
  EXPECT_TRUE(ConfirmDialog("Hinweis", "fertig"));
  ExpectLog({"ConfirmDialog: Hinweis / fertig", "Dialog Hinweis unten / fertig wurde mit OK bestätigt."});
  EXPECT_EQ(Commands(lower), Ids{8});
  EXPECT_EQ(Commands(upper), Ids{});
}

TEST_F(MessageBoxTest, TheListIsEmptiedAtTheStartOfTheVerb) {
  const std::int32_t gone = Box("Anderes", "fertig", {"OK"});
  automation.ChildWindowList = {At(gone).children.back(), 0};
  AddWindow({.className = "X", .text = "Hinweis"});
  EXPECT_FALSE(ConfirmDialog("Hinweis", "fertig"));
}

TEST_F(MessageBoxTest, EachTitledWindowCosts10Milliseconds) {
  for (const char* title : {"a", "", "b", "", "c"}) AddWindow({.className = "X", .text = title});
  EXPECT_FALSE(ConfirmDialog("Hinweis", "x"));
  EXPECT_EQ(Clock(), 30);
}

TEST_F(MessageBoxTest, WithoutABoxTheResultIsFalseAndLastErrorStays) {
  run.LastError = "vorher";
  EXPECT_FALSE(ConfirmDialog("Hinweis", "x"));
  EXPECT_EQ(run.LastError, "vorher");
  ExpectLog({"ConfirmDialog: Hinweis / x"});
}

TEST_F(MessageBoxTest, TheFragmentsAreKept) {
  ConfirmDialog("Titel", "Text");
  EXPECT_EQ(automation.DialogTitle, "Titel");
  EXPECT_EQ(automation.DialogText, "Text");
}

TEST_F(MessageBoxTest, AStopEndsThePassBehindItsFirstWindow) {
  const std::int32_t box = Box("Hinweis", "x", {"OK"});
  AddWindow({.className = "X", .text = "oben"});
  run.StopRun = true;
  EXPECT_FALSE(ConfirmDialog("Hinweis", "x"));
  EXPECT_EQ(Commands(box), Ids{});
}

TEST_F(MessageBoxTest, AFailingPostIsPassedOver) {
  Box("Hinweis", "x", {"OK"});
  Fail("PostMessageA");
  EXPECT_TRUE(ConfirmDialog("Hinweis", "x"));
}

TEST_F(MessageBoxTest, ABoxThatVanishesInThePauseIsNoBox) {
  const std::int32_t box = Box("Hinweis", "fertig", {"OK"});
  Schedule(5, [box] { DestroyWindow(box); });
  EXPECT_FALSE(ConfirmDialog("Hinweis", "fertig"));
  ExpectLog({"ConfirmDialog: Hinweis / fertig"});
}

TEST_F(MessageBoxTest, ATitleIsReadBehindThePumpAndBeforeThePause) {
  const std::int32_t box = Box("vorher", "fertig", {"OK"});
  At(box).procedure = [box](const Message& message) -> std::optional<std::int32_t> {
    if (message.wParam == 77) At(box).text = "Hinweis";
    return 0;
  };
  platform::PostMessageA(box, platform::WM_COMMAND, 77, 0);
  Schedule(5, [box] { At(box).text = "nachher"; });
  EXPECT_TRUE(ConfirmDialog("Hinweis", "fertig"));
  ExpectLog({"ConfirmDialog: Hinweis / fertig", "Dialog Hinweis / fertig wurde mit OK bestätigt."});
}

TEST_F(MessageBoxTest, AChildOfAWindowThatHasVanishedFitsNoMore) {
  const std::int32_t lower = AddWindow({.className = "X", .text = "Hinweis unten"});
  AddWindow({.className = "Static", .text = "etwas", .parent = lower, .id = 3});
  const std::int32_t upper = Box("Hinweis oben", "noch nicht", {"OK"});
  const std::int32_t text = At(upper).children.back();
  Schedule(12, [text] { At(text).text = "fertig"; });
  Schedule(15, [upper] { DestroyWindow(upper); });
  EXPECT_FALSE(ConfirmDialog("Hinweis", "fertig"));
  EXPECT_EQ(automation.ChildWindowList.size(), 4u);  // two that are gone, the static text and the spare slot
}

TEST_F(MessageBoxTest, ConfirmDialogWithoutABoxLetsTheRunGoOnAndTheConditionTakesTheOtherBranch) {
  EXPECT_TRUE(RunLines(
      {"CONFIRMDIALOG=Hinweis,x", "MSG=1", "IF CONFIRMDIALOG=Hinweis,x", "MSG=nie", "ELSE", "MSG=2", "ENDIF"}));
  ExpectLog(Completed({"ConfirmDialog: Hinweis / x", "MSG: 1", "ConfirmDialog: Hinweis / x", "MSG: 2"}));
}

TEST_F(MessageBoxTest, ConfirmDialogAsAConditionTakesItsBranch) {
  Box("Hinweis", "x", {"OK"});
  EXPECT_TRUE(RunLines({"IF CONFIRMDIALOG=Hinweis,x", "MSG=1", "ELSE", "MSG=nie", "ENDIF"}));
  ExpectLog(Completed({"ConfirmDialog: Hinweis / x", "Dialog Hinweis / x wurde mit OK bestätigt.", "MSG: 1"}));
}

TEST_F(MessageBoxTest, TheProgramsOwnStatusDialogIsNoMessageBox) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"DISPLAYSTATUS=fertig", "IF CONFIRMDIALOG=TARVEN,fertig", "MSG=nie", "ENDIF", "IF CONFIRMDIALOG=,",
                  "MSG=nie", "ENDIF"});
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("A.MAK") + Completed({"fertig", "ConfirmDialog: TARVEN / fertig", "ConfirmDialog:  / "}));
}

// "WAITFORDIALOG".

class WaitForDialogTest : public MessageBoxTest {};

TEST_F(WaitForDialogTest, ABoxThatIsThereIsAnsweredAfterASecondAndItsPause) {
  const std::int32_t box = Box("Hinweis", "fertig", {"OK"});
  EXPECT_TRUE(WaitForDialog("Hinweis", "fertig"));
  EXPECT_EQ(Clock(), 1100);
  ExpectLog({"WaitForDialog: Hinweis / fertig", "Dialog Hinweis / fertig wurde mit OK bestätigt."});
  EXPECT_EQ(Commands(box), Ids{1});
}

TEST_F(WaitForDialogTest, EachTitledWindowCosts100MillisecondsAndEachPassASecond) {
  AddWindow({.className = "X", .text = "eins"});
  AddWindow({.className = "X", .text = ""});
  AddWindow({.className = "X", .text = "zwei"});
  // Passes begin at 1000 and 2200 ms; the box, on top of all, is met at 3400 ms.
  Schedule(3000, [this] { Box("Hinweis", "fertig", {"OK"}); });
  EXPECT_TRUE(WaitForDialog("Hinweis", "fertig"));
  EXPECT_EQ(Clock(), 3500);
}

TEST_F(WaitForDialogTest, TheTextsOfEarlierPassesStayInTheList) {
  const std::int32_t box = Box("Hinweis", "noch nicht", {"OK"});
  const std::int32_t text = At(box).children.back();
  Schedule(3500, [text] { At(text).text = "fertig"; });
  EXPECT_TRUE(WaitForDialog("Hinweis", "fertig"));
  // Three passes that end at 1100, 2200 and 3300 ms have met the box in vain.
  EXPECT_EQ(Clock(), 4400);
  EXPECT_EQ(Commands(box), Ids{1});
}

TEST_F(WaitForDialogTest, TheListGrowsWithEveryPassOverAFittingTitle) {
  Box("Hinweis", "noch nicht", {"OK"});
  SetTimeLimit(3600);
  EXPECT_THROW(WaitForDialog("Hinweis", "fertig"), TimeLimitPassed);
  // Two children in each of three passes, and the spare slot.
  EXPECT_EQ(automation.ChildWindowList.size(), 7u);
}

TEST_F(WaitForDialogTest, ABoxThatComesAndGoesIsWaitedForAgain) {
  Schedule(500, [this] {
    const std::int32_t box = Box("Hinweis", "fertig", {"OK"});
    Schedule(550, [box] { DestroyWindow(box); });
  });
  Schedule(5000, [this] { Box("Hinweis", "fertig", {"OK"}); });
  EXPECT_TRUE(WaitForDialog("Hinweis", "fertig"));
  EXPECT_GE(Clock(), 5000);
}

TEST_F(WaitForDialogTest, AStopDoesNotEndItAndItGoesOnWaking) {
  run.StopRun = true;
  Box("Hinweis", "fertig", {"OK"});
  AddWindow({.className = "X", .text = "oben"});
  EXPECT_THROW(WaitForDialog("Hinweis", "fertig"), TimeLimitPassed);
  ExpectLog({"WaitForDialog: Hinweis / fertig"});
}

TEST_F(WaitForDialogTest, AStopEndsEachPassBehindItsFirstWindow) {
  run.StopRun = true;
  for (int i = 0; i < 5; ++i) AddWindow({.className = "X", .text = "Fenster"});
  Schedule(5000, [this] { Box("Hinweis", "fertig", {"OK"}); });
  EXPECT_TRUE(WaitForDialog("Hinweis", "fertig"));
  // A pass costs one pause: they begin every 1100 ms, and the one at 5400 ms meets the box.
  EXPECT_EQ(Clock(), 5500);
}

TEST_F(WaitForDialogTest, AStopTakesEffectOnTheLineBehindIt) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAITFORDIALOG=Hinweis,fertig", "MSG=nie"});
  TargetWindow("TeRu");
  Schedule(5000, [] { Click(frmStatus.cmdCancel); });
  Schedule(60000, [this] { Box("Hinweis", "fertig", {"OK"}); });
  PressHotKey();
  EXPECT_GE(Clock(), 60000);
  ExpectLog(Header("A.MAK") + Lines{"WaitForDialog: Hinweis / fertig", "<Cancel>",
                                    "Dialog Hinweis / fertig wurde mit OK bestätigt.", kStopped, kStars});
}

TEST_F(WaitForDialogTest, WithoutAnyBoxItHasNoEnd) {
  EXPECT_THROW(RunLines({"WAITFORDIALOG=Hinweis,x", "MSG=nie"}), TimeLimitPassed);
}

TEST_F(WaitForDialogTest, TheFragmentsAreKeptUntilTheNextRun) {
  Box("Hinweis", "fertig", {"OK"});
  WaitForDialog("Hinweis", "fertig");
  EXPECT_EQ(automation.DialogTitle, "Hinweis");
  EXPECT_EQ(automation.DialogText, "fertig");
  EXPECT_TRUE(RunLines({}));
  EXPECT_EQ(automation.DialogTitle, "");
  EXPECT_EQ(automation.DialogText, "");
}

TEST_F(WaitForDialogTest, TheButtonsOfTheStatusDialogLiveDuringIt) {
  frmStatus.Show();
  frmStatus.ProcessComplete();
  Click(frmStatus.cmdOK);
  Box("Hinweis", "fertig", {"OK"});
  WaitForDialog("Hinweis", "fertig");
  EXPECT_FALSE(frmStatus.Loaded());
}

}  // namespace
