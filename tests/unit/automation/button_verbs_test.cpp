// The verbs that post a command.
#include "automation/button_verbs.h"

#include "frame/state.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

// "BUTTONCLICK".

class ButtonClickTest : public ControlTest {
 protected:
  void ExpectNoButton() {
    ExpectFailure("Die Schaltfläche konnte nicht ausgewählt werden.");
    EXPECT_FALSE(Command(window_).has_value());
  }

  static std::string Pressed(std::int32_t control, const std::string& id) {
    return "Schaltfläche wurde gedrückt. (" + std::to_string(control) + " " + id + ")";
  }
};

TEST_F(ButtonClickTest, ButtonClickPostsTheCommandOfAButton) {
  Child("Button", "Abbruch", 2);
  const std::int32_t button = Child("Button", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", ""));
  ExpectLog({Pressed(button, "7")});
  ExpectCommand(window_, 7, 0);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ButtonClickTest, ButtonClickDoesNotWaitForTheWork) {
  bool worked = false;
  At(window_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_COMMAND) worked = true;
    return std::nullopt;
  };
  Child("Button", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", ""));
  EXPECT_FALSE(worked);
  platform::Sleep(1);
  EXPECT_TRUE(worked);
}

TEST_F(ButtonClickTest, ButtonClickOfAnyOtherClassNamesTheControl) {
  const std::int32_t button = Child("ThunderRT6CommandButton", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", "ThunderRT6CommandButton"));
  ExpectLog({Pressed(button, "7")});
  ExpectCommand(window_, 7, button);
}

TEST_F(ButtonClickTest, ButtonClickOfAnyOtherClassGoesToTheWindowAlsoFromInsideAFrame) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
  const std::int32_t button = Child("ThunderRT6CommandButton", "Start", 7, frame);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", "ThunderRT6CommandButton"));
  ExpectCommand(window_, 7, button);
  EXPECT_FALSE(Command(frame).has_value());
}

TEST_F(ButtonClickTest, ButtonClickOfTheClassButtonNamesNoControlAlsoWhenTheLineGivesTheClass) {
  Child("Button", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", "Button"));
  ExpectCommand(window_, 7, 0);
}

TEST_F(ButtonClickTest, ButtonClickComparesTheClassExactlyWhenItChoosesTheForm) {
  const std::int32_t button = Child("Button", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", "BUTTON"));
  ExpectCommand(window_, 7, button);
}

TEST_F(ButtonClickTest, ButtonClickGoesByTextToo) {
  Child("Button", "Ende", 7);
  EXPECT_FALSE(ButtonClick("7", "Export", "1", "Start", ""));
  ExpectNoButton();
}

TEST_F(ButtonClickTest, ButtonClickPrefersTheDirectChildWithTheId) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
  Child("Button", "innen", 7, frame);
  const std::int32_t direct = Child("Button", "außen", 7);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", ""));
  ExpectLog({Pressed(direct, "7")});
}

TEST_F(ButtonClickTest, ButtonClickFindsADeepControl) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
  Child("Button", "anderer", 6, frame);
  const std::int32_t deep = Child("Button", "innen", 7, frame);
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", ""));
  ExpectLog({Pressed(deep, "7")});
  ExpectCommand(window_, 7, 0);
}

TEST_F(ButtonClickTest, ButtonClickWithAnIdThatIsNoNumberMeansTheFirstControlOfTheClass) {
  Child("Static", "", 3);
  const std::int32_t first = Child("Button", "Ende", 7);
  Child("Button", "Start", 8);
  EXPECT_TRUE(ButtonClick("x", "Export", "1", "", ""));
  ExpectLog({Pressed(first, "0")});
  ExpectCommand(window_, 0, 0);
}

TEST_F(ButtonClickTest, ButtonClickWithAnEmptyIdAndATextMeansTheControlWithThatText) {
  Child("Button", "Ende", 7);
  const std::int32_t start = Child("Button", "Start", 8);
  EXPECT_TRUE(ButtonClick("", "Export", "1", "start", ""));
  ExpectLog({Pressed(start, "0")});
}

TEST_F(ButtonClickTest, ButtonClickWithoutAWindowFails) {
  Child("Button", "Start", 7);
  EXPECT_FALSE(ButtonClick("7", "Import", "1", "", ""));
  ExpectNoButton();
}

TEST_F(ButtonClickTest, ButtonClickWithoutAButtonFails) {
  EXPECT_FALSE(ButtonClick("7", "Export", "1", "", ""));
  ExpectNoButton();
}

TEST_F(ButtonClickTest, ButtonClickReportsAControlOfTheFallbackAsMissing) {
  // There is no window "Import", so the button is found below MainWindow and comes back as if it were the window.
  Child("Button", "Start", 7);
  EXPECT_FALSE(ButtonClick("7", "Import", "0", "Start", ""));
  ExpectNoButton();
}

TEST_F(ButtonClickTest, ButtonClickDoesNotReachAWindowInsideTheMainWindow) {
  const std::int32_t inner = Child("ThunderRT6FormDC", "Mandant öffnen", 100);
  const std::int32_t button = Child("Button", "Start", 7, inner);
  // The fallback goes by class and id, not by the caption, so the button comes back and has nothing below it.
  EXPECT_FALSE(ButtonClick("7", "Mandant öffnen", "1", "", ""));
  ExpectNoButton();
  EXPECT_FALSE(Command(inner).has_value());
  EXPECT_FALSE(Command(button).has_value());
}

TEST_F(ButtonClickTest, ButtonClickWithAnIdAbove32767EndsInTheStandardHandler) {
  Child("Button", "Start", 40000);
  EXPECT_FALSE(ButtonClick("40000", "Export", "1", "", ""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ButtonClick:Überlauf");
  EXPECT_FALSE(Command(window_).has_value());
  EXPECT_TRUE(Log().empty());
}

TEST_F(ButtonClickTest, ButtonClickTakesTheLargestId) {
  const std::int32_t button = Child("ThunderRT6CommandButton", "Start", 32767);
  EXPECT_TRUE(ButtonClick("32767", "Export", "1", "", "ThunderRT6CommandButton"));
  ExpectCommand(window_, 32767, button);
}

TEST_F(ButtonClickTest, ButtonClickWithAnIdBeyond32BitsEndsInTheStandardHandler) {
  EXPECT_FALSE(ButtonClick("99999999999", "Export", "1", "", ""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ButtonClick:Überlauf");
}

TEST_F(ButtonClickTest, AnyExactArgumentOtherThan1MeansPartial) {
  const std::int32_t button = Child("Button", "Start", 7);
  EXPECT_TRUE(ButtonClick("7", "xpor", "", "", ""));
  for (const char* exact : {"x", "01", " 1", "1 ", "10"}) EXPECT_TRUE(ButtonClick("7", "xpor", exact, "", "")) << exact;
  EXPECT_FALSE(ButtonClick("7", "xpor", "1", "", ""));
  ExpectLog(Lines(6, Pressed(button, "7")));
}

TEST_F(ButtonClickTest, TheVerbsOfButtonClick) {
  const std::int32_t button = Child("ThunderRT6CommandButton", "Start", 7);
  EXPECT_TRUE(RunLines({"BUTTONCLICK=7,Export,1,Start,ThunderRT6CommandButton", "IF BUTTONCLICK=8,Export,1", "MSG=nie",
                        "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectLog(Completed({Pressed(button, "7"), "MSG: sonst"}));
}

TEST_F(ButtonClickTest, AFailedButtonClickFailsTheRun) {
  EXPECT_FALSE(RunLines({"BUTTONCLICK=7,Export,1", "MSG=nie"}));
  ExpectLog({"Die Schaltfläche konnte nicht ausgewählt werden."});
}

TEST_F(ButtonClickTest, AWindowThatDoesNotTakeTheCommandIsNotNoticed) {
  const std::int32_t button = Child("Button", "Start", 7);
  Fail("PostMessageA");
  EXPECT_TRUE(ButtonClick("7", "Export", "1", "", ""));
  ExpectLog({Pressed(button, "7")});
}

TEST_F(ButtonClickTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  Child("Button", "Start", 7);
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(ButtonClick("7", "Export", "1", "", ""));
  ExpectFailure("Die Schaltfläche konnte nicht ausgewählt werden.");
}

// "MENUCLICK".

class MenuClickTest : public ControlTest {
 protected:
  void ExpectNoMenu() {
    ExpectFailure("Das Menu konnte nicht gefunden werden.");
    EXPECT_FALSE(Command(window_).has_value());
  }

  static std::string Chosen(const std::string& id, std::int32_t window) {
    return "Menu wurde ausgewählt (" + id + " " + std::to_string(window) + ")";
  }
};

TEST_F(MenuClickTest, WithoutAClassTheWindowGetsTheCommand) {
  EXPECT_TRUE(MenuClick("7", "Export", "1", "", ""));
  ExpectLog({Chosen("7", window_)});
  ExpectCommand(window_, 7, 0);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MenuClickTest, WithoutAClassAControlWithTheMenusIdIsPassedBy) {
  const std::int32_t control = Child("Button", "", 7);
  EXPECT_TRUE(MenuClick("7", "Export", "1", "", "7"));
  ExpectCommand(window_, 7, 0);
  EXPECT_FALSE(Command(control).has_value());
}

TEST_F(MenuClickTest, AMenuIdMayBeBeyond16Bits) {
  EXPECT_TRUE(MenuClick("40001", "Export", "1", "", ""));
  ExpectLog({Chosen("40001", window_)});
  ExpectCommand(window_, 40001, 0);
}

TEST_F(MenuClickTest, ItDoesNotWaitForTheWork) {
  bool worked = false;
  When(window_, platform::WM_COMMAND, [&](const Message&) {
    worked = true;
    return std::nullopt;
  });
  EXPECT_TRUE(MenuClick("7", "Export", "1", "", ""));
  EXPECT_FALSE(worked);
  platform::Sleep(1);
  EXPECT_TRUE(worked);
}

TEST_F(MenuClickTest, TheWordMainwindowMeansTheTargetOfTheRunWithoutASearch) {
  At(window_).text = "";
  EXPECT_TRUE(MenuClick("7", "%MAINWINDOW%", "1", "", ""));
  EXPECT_EQ(Clock(), 0);
  ExpectLog({"MainWindow: " + std::to_string(window_), Chosen("7", window_)});
  ExpectCommand(window_, 7, 0);
}

TEST_F(MenuClickTest, TheWordMainwindowInSmallLettersIsATitle) {
  EXPECT_FALSE(MenuClick("7", "%mainwindow%", "1", "", ""));
  ExpectNoMenu();
  const std::int32_t named = AddWindow({.className = "X", .text = "%mainwindow%"});
  EXPECT_TRUE(MenuClick("7", "%mainwindow%", "1", "", ""));
  ExpectLog({Chosen("7", named)});
  ExpectCommand(named, 7, 0);
}

TEST_F(MenuClickTest, TheWordMainwindowWithMoreOrLessAroundItIsATitle) {
  for (const char* word : {" %MAINWINDOW%", "%MAINWINDOW% ", "%MAINWINDOW"}) {
    EXPECT_FALSE(MenuClick("7", word, "1", "", "")) << word;
    ExpectNoMenu();
  }
}

TEST_F(MenuClickTest, WithoutATargetOfTheRunTheMenuIsMissing) {
  frame.MainWindow = 0;
  EXPECT_FALSE(MenuClick("7", "%MAINWINDOW%", "1", "", ""));
  EXPECT_EQ(run.LastError, "Das Menu konnte nicht gefunden werden.");
  ExpectLog({"MainWindow: 0"});
}

TEST_F(MenuClickTest, WithAClassTheChildWithTheMenusIdGetsTheCommand) {
  const std::int32_t first = Child("ToolbarWindow32", "", 5);
  const std::int32_t second = Child("ToolbarWindow32", "", 7);
  EXPECT_TRUE(MenuClick("7", "Export", "1", "ToolbarWindow32", ""));
  ExpectLog({Chosen("7", window_)});
  ExpectCommand(second, 7, 0);
  EXPECT_FALSE(Command(first).has_value());
  EXPECT_FALSE(Command(window_).has_value());
}

TEST_F(MenuClickTest, WithAClassTheChildWithTheMenusIdWinsWhateverItsClass) {
  const std::int32_t bar = Child("ToolbarWindow32", "", 5);
  const std::int32_t other = Child("Static", "", 7);
  EXPECT_TRUE(MenuClick("7", "Export", "1", "ToolbarWindow32", "5"));
  ExpectCommand(other, 7, 0);
  EXPECT_FALSE(Command(bar).has_value());
}

TEST_F(MenuClickTest, WithAClassTheControlIsSearchedByItsOwnId) {
  const std::int32_t inner = Child("ThunderRT6Frame", "", 3);
  const std::int32_t first = Child("ToolbarWindow32", "", 4, inner);
  const std::int32_t second = Child("TOOLBARWINDOW32", "", 5, inner);
  EXPECT_TRUE(MenuClick("7", "Export", "1", "ToolbarWindow32", "5"));
  ExpectLog({Chosen("7", window_)});
  ExpectCommand(second, 7, 0);
  EXPECT_FALSE(Command(first).has_value());
}

TEST_F(MenuClickTest, AControlIdThatIsNoNumberMeansTheFirstOfTheClass) {
  const std::int32_t first = Child("ToolbarWindow32", "", 4);
  Child("ToolbarWindow32", "", 5);
  for (const char* id : {"", "x", "0"}) EXPECT_TRUE(MenuClick("7", "Export", "1", "ToolbarWindow32", id)) << id;
  EXPECT_EQ(ReceivedNumbers(first), Numbers(3, platform::WM_COMMAND));
}

TEST_F(MenuClickTest, WithAClassTheTargetOfTheRunIsLookedThroughToo) {
  const std::int32_t bar = Child("ToolbarWindow32", "", 5);
  EXPECT_TRUE(MenuClick("7", "%MAINWINDOW%", "", "ToolbarWindow32", "5"));
  ExpectLog({"MainWindow: " + std::to_string(window_), Chosen("7", window_)});
  ExpectCommand(bar, 7, 0);
}

TEST_F(MenuClickTest, WithAClassThatTheWindowLacksTheMenuIsMissing) {
  Child("ToolbarWindow32", "", 5);
  EXPECT_FALSE(MenuClick("7", "Export", "1", "Menu", ""));
  ExpectNoMenu();
  EXPECT_FALSE(MenuClick("7", "Export", "1", "ToolbarWindow32", "6"));
  ExpectNoMenu();
}

TEST_F(MenuClickTest, WithoutTheWindowTheMenuIsMissing) {
  EXPECT_FALSE(MenuClick("7", "Import", "1", "", ""));
  ExpectNoMenu();
}

TEST_F(MenuClickTest, AWindowInsideTheMainWindowIsReachedByItsCaption) {
  const std::int32_t inner = Child("ThunderRT6FormDC", "Mandant öffnen", 100);
  EXPECT_TRUE(MenuClick("7", "Mandant öffnen", "1", "", ""));
  ExpectLog({Chosen("7", inner)});
  ExpectCommand(inner, 7, 0);
}

TEST_F(MenuClickTest, AMenuIdThatIsNoNumberIsTheCommand0) {
  EXPECT_TRUE(MenuClick("Datei", "Export", "1", "", ""));
  ExpectLog({Chosen("0", window_)});
  ExpectCommand(window_, 0, 0);
}

TEST_F(MenuClickTest, AnIdBeyond32BitsEndsInTheStandardHandler) {
  EXPECT_FALSE(MenuClick("99999999999", "%MAINWINDOW%", "1", "", ""));
  ExpectFailure("Fehler in Funktion MenuClick:Überlauf");
  EXPECT_FALSE(MenuClick("7", "%MAINWINDOW%", "1", "", "99999999999"));
  ExpectFailure("Fehler in Funktion MenuClick:Überlauf");
}

TEST_F(MenuClickTest, AWindowThatDoesNotTakeTheCommandIsNotNoticed) {
  Fail("PostMessageA");
  EXPECT_TRUE(MenuClick("7", "Export", "1", "", ""));
  ExpectLog({Chosen("7", window_)});
}

TEST_F(MenuClickTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  Child("ToolbarWindow32", "", 5);
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(MenuClick("7", "Export", "1", "ToolbarWindow32", "5"));
  ExpectFailure("Das Menu konnte nicht gefunden werden.");
}

TEST_F(MenuClickTest, TheVerbsPassTheirFiveArgumentsInOrder) {
  const std::int32_t bar = Child("ToolbarWindow32", "", 5);
  EXPECT_TRUE(RunLines({"MENUCLICK=7,Expor,0,ToolbarWindow32,5", "IF MENUCLICK=8,Export,1,ToolbarWindow32,5", "MSG=ja",
                        "ENDIF", "IF MENUCLICK=8,Export,1,Menu", "MSG=nie", "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectLog(Completed({Chosen("7", window_), Chosen("8", window_), "MSG: ja", "MSG: sonst"}));
  ExpectCommand(bar, 8, 0);
}

TEST_F(MenuClickTest, AFailedMenuClickFailsTheRun) {
  EXPECT_FALSE(RunLines({"MENUCLICK=7,Import,1", "MSG=nie"}));
  ExpectLog({"Das Menu konnte nicht gefunden werden."});
}

}  // namespace
