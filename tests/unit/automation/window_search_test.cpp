// Turning the words of a macro line into window handles.
#include "automation/window_search.h"

#include "automation/state.h"
#include "automation/window_verbs.h"
#include "engine/state.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "platform/window_state.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

class WindowSearchTest : public SystemTest {
 protected:
  std::int32_t Top(const std::string& title) { return AddWindow({.className = "ThunderRT6FormDC", .text = title}); }

  std::int32_t Child(std::int32_t parent, const std::string& cls, const std::string& text, std::int32_t id) {
    return AddWindow({.className = cls, .text = text, .parent = parent, .id = id});
  }

  // SearchWindow as the verbs call it, both handles set to 0 first.
  bool Search(const std::string& window, bool exact, const std::string& text = "", const std::string& cls = "",
              const std::string& id = "0", const std::string& frameId = "") {
    hWindow_ = 0;
    hControl_ = 0;
    return SearchWindow(window, hWindow_, exact, text, cls, id, frameId, hControl_);
  }

  void ExpectFound(std::int32_t window, std::int32_t control = 0) {
    EXPECT_EQ(hWindow_, window);
    EXPECT_EQ(hControl_, control);
  }

  std::int32_t hWindow_ = 0;
  std::int32_t hControl_ = 0;
};

// Titles.

TEST_F(WindowSearchTest, ExactComparesTheWholeTitle) {
  const std::int32_t whole = Top("Export");
  Top("Export von Daten");
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(whole);
}

TEST_F(WindowSearchTest, NotExactAcceptsAPartOfTheTitle) {
  Top("Export");
  const std::int32_t part = Top("Datenexport: Export von Daten");
  EXPECT_TRUE(Search("Export", false));
  ExpectFound(part);
  EXPECT_TRUE(Search("von Da", false));
  ExpectFound(part);
}

TEST_F(WindowSearchTest, AWindowWordInOtherCapitalsMatchesInNeitherMode) {
  Top("Export");
  EXPECT_FALSE(Search("EXPORT", true));
  EXPECT_FALSE(Search("EXPORT", false));
  EXPECT_FALSE(Search("xpORt", false));
  ExpectFound(0);
}

TEST_F(WindowSearchTest, AWindowWordIsPlainTextWithoutWildcards) {
  Top("Export 1");
  EXPECT_FALSE(Search("Exp*", false));
  EXPECT_FALSE(Search("Export ?", false));
  EXPECT_FALSE(Search(".*", false));
}

TEST_F(WindowSearchTest, AnEmptyWindowWordMatchesTheFirstTitledWindow) {
  Top("unten");
  const std::int32_t titled = Top("oben");
  Top("");
  EXPECT_TRUE(Search("", false));
  ExpectFound(titled);
}

TEST_F(WindowSearchTest, AnEmptyWindowWordMatchesNoTitleExactly) {
  Top("oben");
  Top("");
  EXPECT_FALSE(Search("", true));
}

TEST_F(WindowSearchTest, TheTopmostWindowWinsATie) {
  const std::int32_t lower = Top("Export");
  const std::int32_t upper = Top("Export");
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(upper);
  BringToFront(lower);
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(lower);
}

TEST_F(WindowSearchTest, HiddenAndDisabledWindowsAreFoundToo) {
  const std::int32_t hidden = AddWindow({.className = "X", .text = "Export", .visible = false, .enabled = false});
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(hidden);
}

TEST_F(WindowSearchTest, WithoutAnyWindowNothingIsFoundAndNothingIsWritten) {
  EXPECT_FALSE(Search("Export", false));
  ExpectFound(0);
  EXPECT_EQ(run.LastError, "");
  EXPECT_TRUE(Log().empty());
}

TEST_F(WindowSearchTest, WithTheWindowAloneHControlIsTouchedInTheExactModeOnly) {
  Top("Export");
  hWindow_ = 0;
  hControl_ = 77;
  EXPECT_TRUE(SearchWindow("Export", hWindow_, false, "", "", "0", "", hControl_));
  EXPECT_EQ(hControl_, 77);
  EXPECT_TRUE(SearchWindow("Export", hWindow_, true, "", "", "0", "", hControl_));
  EXPECT_EQ(hControl_, 0);
}

TEST_F(WindowSearchTest, TheWindowAloneNeedsNoNumberAsId) {
  const std::int32_t window = Top("Export");
  EXPECT_TRUE(Search("Export", true, "", "", ""));
  ExpectFound(window);
  EXPECT_TRUE(Search("Export", false, "", "", "x"));
  ExpectFound(window);
  EXPECT_EQ(run.LastError, "");
}

// Controls.

TEST_F(WindowSearchTest, TheControlComesBackBesideItsWindow) {
  const std::int32_t window = Top("Export");
  Child(window, "Button", "Andere", 1);
  const std::int32_t control = Child(window, "Button", "Start", 2);
  EXPECT_TRUE(Search("Export", true, "Start", "Button", "2"));
  ExpectFound(window, control);
}

TEST_F(WindowSearchTest, OfTwoWindowsWithTheSameTitleTheOneWithTheControlCounts) {
  const std::int32_t lower = Top("Export");
  const std::int32_t control = Child(lower, "Button", "Start", 2);
  const std::int32_t upper = Top("Export");
  Child(upper, "Button", "Ende", 2);
  for (const bool exact : {true, false}) {
    EXPECT_TRUE(Search("Export", exact, "Start", "Button", "2"));
    ExpectFound(lower, control);
  }
}

TEST_F(WindowSearchTest, ATextOrIdThatIsNotANumberEndsInTheStandardHandler) {
  const std::int32_t window = Top("Export");
  Child(window, "Button", "Start", 2);
  for (const char* id : {"", "x", "2x"}) {
    run.LastError.clear();
    EXPECT_FALSE(Search("Export", true, "", "Button", id)) << id;
    ExpectFound(0);
    EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich") << id;
  }
  EXPECT_FALSE(Search("Export", false, "Start", "", ""));
  ExpectFound(0);
  EXPECT_TRUE(Log().empty());
}

TEST_F(WindowSearchTest, AnIdBeyond32BitsEndsInTheStandardHandler) {
  const std::int32_t window = Top("Export");
  Child(window, "Button", "Start", 2);
  EXPECT_FALSE(Search("Export", true, "", "Button", "3000000000"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Überlauf");
}

TEST_F(WindowSearchTest, WithoutAFittingTitleTheIdFailsOnlyInTheFallback) {
  Top("Anderes");
  hWindow_ = 55;
  EXPECT_FALSE(SearchWindow("Export", hWindow_, true, "", "Button", "x", "", hControl_));
  EXPECT_EQ(hWindow_, 55);
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich");
}

TEST_F(WindowSearchTest, AnId0WithAClassTakesTheFirstControlOfThatClass) {
  const std::int32_t window = Top("Export");
  Child(window, "Static", "", 9);
  const std::int32_t first = Child(window, "Button", "A", 7);
  Child(window, "Button", "B", 8);
  EXPECT_TRUE(Search("Export", true, "", "Button", "0"));
  ExpectFound(window, first);
}

TEST_F(WindowSearchTest, AFrameIdTakesThePlaceOfTheControlId) {
  const std::int32_t window = Top("Export");
  const std::int32_t frame = Child(window, "ThunderRT6Frame", "Rahmen", 19);
  Child(frame, "ThunderRT6ComboBox", "", 20);
  EXPECT_TRUE(Search("Export", true, "", "ThunderRT6Frame", "20", "19"));
  ExpectFound(window, frame);
  EXPECT_TRUE(Search("Export", true, "", "ThunderRT6Frame", "kein", "19"));
  ExpectFound(window, frame);
  EXPECT_FALSE(Search("Export", true, "", "ThunderRT6Frame", "19", "20"));
}

TEST_F(WindowSearchTest, AFrameIdThatIsNoNumberEndsInTheStandardHandler) {
  const std::int32_t window = Top("Export");
  Child(window, "ThunderRT6Frame", "Rahmen", 19);
  EXPECT_FALSE(Search("Export", true, "", "ThunderRT6Frame", "19", "x"));
  ExpectFound(0);
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich");
}

// The pause and the stop.

TEST_F(WindowSearchTest, EachTitledWindowCosts10MillisecondsAndAnUntitledOneNothing) {
  const std::int32_t last = Top("Export");
  Top("eins");
  Top("");
  Top("zwei");
  Top("");
  const std::int64_t before = Clock();
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(last);
  EXPECT_EQ(Clock() - before, 30);
}

TEST_F(WindowSearchTest, TheWalkEndsAtTheMatch) {
  Top("unten");
  Top("Export");
  const std::int64_t before = Clock();
  EXPECT_TRUE(Search("Export", true));
  EXPECT_EQ(Clock() - before, 10);
}

TEST_F(WindowSearchTest, TheFallbackCostsNoPause) {
  Top("eins");
  frame.MainWindow = Top("zwei");
  Child(frame.MainWindow, "X", "Export", 1);
  const std::int64_t before = Clock();
  EXPECT_TRUE(Search("Export", true));
  EXPECT_EQ(Clock() - before, 20);
}

TEST_F(WindowSearchTest, AStopDuringTheWalkEndsItAndTheFallbackStillRunsOnce) {
  frame.MainWindow = Top("Export");
  const std::int32_t child = Child(frame.MainWindow, "X", "Export", 1);
  Top("zwei");
  Top("eins");
  Schedule(5, [] { run.StopRun = true; });
  const std::int64_t before = Clock();
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(child);
  EXPECT_EQ(Clock() - before, 10);
}

TEST_F(WindowSearchTest, AStopBeforeTheWalkStillLooksAtTheFirstWindow) {
  Top("zwei");
  const std::int32_t first = Top("eins");
  run.StopRun = true;
  EXPECT_TRUE(Search("eins", true));
  ExpectFound(first);
  EXPECT_FALSE(Search("zwei", true));
}

TEST_F(WindowSearchTest, TheProgramsOwnWindowsLiveDuringTheWalk) {
  StartProgram();
  MacroEntry(1, ",A.MAK");
  Macro("A.MAK", {"MSG=1"});
  Top("zwei");
  Top("eins");
  PressHotKeyAfter(5);
  EXPECT_FALSE(Search("Export", true));
  ExpectLog(Header("A.MAK") + Completed({"MSG: 1"}));
}

TEST_F(WindowSearchTest, TheProgramsOwnWindowsLiveAlsoWhenNoWindowHasATitle) {
  StartProgram();
  MacroEntry(1, ",A.MAK");
  Macro("A.MAK", {"MSG=1"});
  PressHotKeyAfter(0);
  platform::Sleep(0);
  EXPECT_TRUE(Log().empty());
  EXPECT_FALSE(Search("Export", true));
  ExpectLog(Header("A.MAK") + Completed({"MSG: 1"}));
}

TEST_F(WindowSearchTest, ATitleIsReadBehindThePump) {
  const std::int32_t window = Top("vorher");
  At(window).procedure = [window](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_COMMAND) At(window).text = "nachher";
    return 0;
  };
  platform::PostMessageA(window, platform::WM_COMMAND, 1, 0);
  EXPECT_TRUE(Search("nachher", true));
  ExpectFound(window);
}

TEST_F(WindowSearchTest, AWindowThatVanishesDuringItsPauseDoesNotHarm) {
  const std::int32_t window = Top("Export");
  Child(window, "Button", "Start", 2);
  Schedule(5, [window] { DestroyWindow(window); });
  EXPECT_FALSE(Search("Export", true, "", "Button", "2"));
  ExpectFound(0);
}

// The fallback.

TEST_F(WindowSearchTest, ADescendantOfTheMainWindowWithThatTextComesBackThroughHWindow) {
  frame.MainWindow = Top("TeRu");
  const std::int32_t area = Child(frame.MainWindow, "MDIClient", "", 1);
  const std::int32_t child = Child(area, "ThunderRT6FormDC", "Export", 2);
  for (const bool exact : {true, false}) {
    hWindow_ = 0;
    hControl_ = 77;
    EXPECT_TRUE(SearchWindow("EXPORT", hWindow_, exact, "", "", "0", "", hControl_));
    EXPECT_EQ(hWindow_, child);
    EXPECT_EQ(hControl_, 77);
  }
}

TEST_F(WindowSearchTest, AnEmptyWindowWordIsInTheFallbackTheFirstDescendantWithoutText) {
  frame.MainWindow = Top("TeRu");
  Child(frame.MainWindow, "Static", "Name:", 1);
  const std::int32_t empty = Child(frame.MainWindow, "X", "", 2);
  EXPECT_TRUE(Search("", true));
  ExpectFound(empty);
}

TEST_F(WindowSearchTest, TheFallbackComparesTheWholeText) {
  frame.MainWindow = Top("TeRu");
  Child(frame.MainWindow, "X", "Export von Daten", 2);
  EXPECT_FALSE(Search("Export", false));
  ExpectFound(0);
}

TEST_F(WindowSearchTest, TheFallbackLooksBelowTheMainWindowOnly) {
  frame.MainWindow = Top("TeRu");
  const std::int32_t other = Top("Anderes");
  Child(other, "X", "Export", 2);
  EXPECT_FALSE(Search("Export", false));
}

TEST_F(WindowSearchTest, TheControlOfTheFallbackComesBackThroughHWindow) {
  frame.MainWindow = Top("TeRu");
  const std::int32_t control = Child(frame.MainWindow, "Button", "Start", 2);
  EXPECT_TRUE(Search("Export", true, "start", "BUTTON", "2"));
  ExpectFound(control, 0);
}

TEST_F(WindowSearchTest, TheFallbackGoesByTheFrameIdToo) {
  frame.MainWindow = Top("TeRu");
  const std::int32_t control = Child(frame.MainWindow, "ThunderRT6Frame", "", 19);
  EXPECT_TRUE(Search("Export", true, "", "ThunderRT6Frame", "20", "19"));
  ExpectFound(control);
}

TEST_F(WindowSearchTest, AFallbackThatFindsNothingSetsHWindowTo0) {
  frame.MainWindow = Top("TeRu");
  hWindow_ = 55;
  EXPECT_FALSE(SearchWindow("Export", hWindow_, true, "", "", "0", "", hControl_));
  EXPECT_EQ(hWindow_, 0);
}

TEST_F(WindowSearchTest, ATopLevelWindowWinsOverADescendantOfTheMainWindow) {
  const std::int32_t window = Top("Export");
  frame.MainWindow = Top("TeRu");
  Child(frame.MainWindow, "X", "Export", 2);
  EXPECT_TRUE(Search("Export", true));
  ExpectFound(window);
}

// SearchControl.

class SearchControlTest : public WindowSearchTest {
 protected:
  SearchControlTest() {
    window_ = Top("Export");
    frame_ = Child(window_, "ThunderRT6Frame", "Rahmen", 10);
    inner_ = Child(frame_, "Button", "Start", 5);
    second_ = Child(window_, "Button", "Start", 6);
    third_ = Child(window_, "Button", "Ende", 6);
  }

  std::int32_t window_, frame_, inner_, second_, third_;
};

TEST_F(SearchControlTest, WithoutTextAndIdTheClassDecides) {
  EXPECT_EQ(SearchControl(window_, "", "Button", 0), inner_);
  EXPECT_EQ(SearchControl(window_, "", "ThunderRT6Frame", 0), frame_);
}

TEST_F(SearchControlTest, WithoutTextClassAndIdDecide) {
  EXPECT_EQ(SearchControl(window_, "", "Button", 6), second_);
  EXPECT_EQ(SearchControl(window_, "", "ThunderRT6Frame", 6), 0);
}

TEST_F(SearchControlTest, WithoutIdClassAndTextDecide) {
  EXPECT_EQ(SearchControl(window_, "Ende", "Button", 0), third_);
  EXPECT_EQ(SearchControl(window_, "Rahmen", "Button", 0), 0);
}

TEST_F(SearchControlTest, WithAllThreeAllThreeDecide) {
  EXPECT_EQ(SearchControl(window_, "Start", "Button", 6), second_);
  EXPECT_EQ(SearchControl(window_, "Ende", "Button", 6), third_);
  EXPECT_EQ(SearchControl(window_, "Ende", "Button", 5), 0);
}

TEST_F(SearchControlTest, ClassAndTextAreComparedWithoutCaseAndAsAWhole) {
  EXPECT_EQ(SearchControl(window_, "eNDE", "bUTTON", 0), third_);
  EXPECT_EQ(SearchControl(window_, "", "Butto", 0), 0);
  EXPECT_EQ(SearchControl(window_, "End", "Button", 0), 0);
  const std::int32_t umlaut = Child(window_, "Button", "Öffnen", 9);
  EXPECT_EQ(SearchControl(window_, "öFFNEN", "Button", 0), umlaut);
}

TEST_F(SearchControlTest, AnEmptyClassMatchesNothing) {
  EXPECT_EQ(SearchControl(window_, "", "", 6), 0);
  EXPECT_EQ(SearchControl(window_, "Start", "", 0), 0);
}

TEST_F(SearchControlTest, AnEmptyClassMatchesNotEvenAWindowThatVanishes) {
  // Its class reads as empty.
  Fail("GetClassNameA");
  EXPECT_EQ(SearchControl(window_, "", "", 0), 0);
}

TEST_F(SearchControlTest, AWindowWithoutDescendantsHasNone) {
  EXPECT_EQ(SearchControl(third_, "", "Button", 0), 0);
  EXPECT_EQ(SearchControl(0, "", "Button", 0), 0);
}

TEST_F(SearchControlTest, TheListHoldsTheLastWalkAndASpareSlot) {
  SearchControl(window_, "", "keine", 0);
  EXPECT_EQ(automation.ChildWindowList.size(), 5u);
  EXPECT_EQ(std::vector<std::int32_t>(automation.ChildWindowList.begin(), automation.ChildWindowList.end() - 1),
            (std::vector<std::int32_t>{frame_, inner_, second_, third_}));
  SearchControl(third_, "", "keine", 0);
  EXPECT_EQ(automation.ChildWindowList.size(), 1u);
}

TEST_F(SearchControlTest, AClassNameIsReadInto128Characters) {
  const std::string shortEnough(127, 'c');
  const std::string tooLong(128, 'd');
  const std::int32_t a = Child(window_, shortEnough, "", 20);
  Child(window_, tooLong, "", 21);
  EXPECT_EQ(SearchControl(window_, "", shortEnough, 0), a);
  EXPECT_EQ(SearchControl(window_, "", tooLong, 0), 0);
  EXPECT_NE(SearchControl(window_, "", std::string(127, 'd'), 0), 0);
}

// SearchChildWindow.

TEST_F(SearchControlTest, WithTextAndClassEmptyTheCaptionDecides) {
  EXPECT_EQ(SearchChildWindow(window_, "START", "", "", 6), inner_);
  EXPECT_EQ(SearchChildWindow(window_, "Star", "", "", 0), 0);
}

TEST_F(SearchControlTest, WithAClassTheCaptionPlaysNoRole) {
  EXPECT_EQ(SearchChildWindow(window_, "nichts", "", "Button", 6), second_);
  EXPECT_EQ(SearchChildWindow(window_, "nichts", "Ende", "Button", 0), third_);
}

TEST_F(SearchControlTest, WithATextAloneNothingMatches) { EXPECT_EQ(SearchChildWindow(window_, "", "Ende", "", 0), 0); }

// The small helpers.

TEST_F(WindowSearchTest, TheTitleOfAWindow) {
  EXPECT_EQ(GetWindowTitle(Top("Größe")), "Größe");
  EXPECT_EQ(GetWindowTitle(Top("")), "");
  EXPECT_EQ(GetWindowTitle(0), "");
  EXPECT_EQ(GetWindowTitle(Top(std::string(5000, 'x'))), std::string(5000, 'x'));
}

TEST_F(WindowSearchTest, ATitleThatCannotBeReadIsEmpty) {
  const std::int32_t window = Top("Export");
  Fail("GetWindowTextA", 1);
  EXPECT_EQ(GetWindowTitle(window), "");
  Fail("GetWindowTextLengthA", 1);
  EXPECT_EQ(GetWindowTitle(window), "");
}

TEST_F(WindowSearchTest, TheCallbackFillsTheSpareSlotAndGoesOn) {
  EmptyChildWindowList();
  EXPECT_EQ(CollectChildProc(11, 99), 1);
  EXPECT_EQ(CollectChildProc(12, 0), 1);
  ASSERT_EQ(automation.ChildWindowList.size(), 3u);
  EXPECT_EQ(automation.ChildWindowList[0], 11);
  EXPECT_EQ(automation.ChildWindowList[1], 12);
}

TEST_F(WindowSearchTest, MakeLongIsHighTimes65536PlusLow) {
  EXPECT_EQ(MakeLong(5, 0), 5);
  EXPECT_EQ(MakeLong(0, 1), 65536);
  EXPECT_EQ(MakeLong(7, 3), 196615);
  EXPECT_EQ(MakeLong(-1, 0), -1);
  EXPECT_EQ(MakeLong(-1, 1), 65535);
}

// "WAITFORWINDOW".

class WaitForWindowTest : public WindowSearchTest {};

TEST_F(WaitForWindowTest, AWindowThatIsThereStillCosts500Milliseconds) {
  Top("Export");
  EXPECT_TRUE(WaitForWindow("Export", "1", "", "", ""));
  EXPECT_EQ(Clock(), 510);
  ExpectLog({"Warten auf Fenster war erfolgreich."});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(WaitForWindowTest, ItWaitsUntilTheWindowIsThere) {
  Schedule(3600 * 1000, [this] { Top("Export"); });
  EXPECT_TRUE(WaitForWindow("Export", "1", "", "", "0"));
  EXPECT_GE(Clock(), 3600 * 1000);
  EXPECT_LE(Clock(), 3600 * 1000 + 1010);
}

TEST_F(WaitForWindowTest, ItWaitsForAControlToo) {
  const std::int32_t window = Top("Export");
  Schedule(2000, [=, this] { Child(window, "Button", "Start", 2); });
  EXPECT_TRUE(WaitForWindow("Export", "1", "", "Button", "2"));
  EXPECT_GE(Clock(), 2000);
}

TEST_F(WaitForWindowTest, AnyExactArgumentOtherThan1MeansPartial) {
  Top("Datenexport");
  for (const char* exact : {"", "0", "True", "2", " 1", "01"}) {
    const std::int64_t before = Clock();
    EXPECT_TRUE(WaitForWindow("export", exact, "", "", "0"));
    EXPECT_EQ(Clock() - before, 510) << exact;
  }
}

TEST_F(WaitForWindowTest, ATitleThatNeverShowsUpIsWaitedForUntilTheStopAndThenLoggedAsASuccess) {
  Schedule(60 * 60 * 1000, [] { run.StopRun = true; });
  EXPECT_TRUE(WaitForWindow("Nie", "1", "", "", "0"));
  EXPECT_GE(Clock(), 60 * 60 * 1000);
  ExpectLog({"Warten auf Fenster war erfolgreich."});
}

TEST_F(WaitForWindowTest, ItHasNoTimeLimit) {
  EXPECT_THROW(WaitForWindow("Nie", "1", "", "", "0"), TimeLimitPassed);
  EXPECT_TRUE(Log().empty());
}

TEST_F(WaitForWindowTest, AnEmptyIdLeavesAnErrorTextThatNothingReads) {
  Schedule(2000, [this] { Top("Export"); });
  EXPECT_TRUE(WaitForWindow("Export", "1", "", "", ""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich");
  ExpectLog({"Warten auf Fenster war erfolgreich."});
}

TEST_F(WaitForWindowTest, TheVerbPassesItsFiveArgumentsInOrder) {
  const std::int32_t window = Top("Export von Daten");
  Child(window, "Button", "Start", 2);
  EXPECT_TRUE(RunLines({"WAITFORWINDOW=Export,0,Start,Button,2"}));
  ExpectLog(Completed({"Warten auf Fenster war erfolgreich."}));
}

TEST_F(WaitForWindowTest, ACancelDuringItEndsTheRun) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAITFORWINDOW=Nie", "MSG=nie"});
  TargetWindow("TeRu");
  Schedule(10 * 60 * 1000, [] { run.StopRun = true; });
  PressHotKey();
  ExpectLog(Header("A.MAK") + Lines{"Warten auf Fenster war erfolgreich.", kStopped, kStars});
}

// "MAXWINDOW".

TEST_F(WindowSearchTest, MaximizeWindowMaximizesTheMainWindow) {
  const std::int32_t other = TargetWindow("Anderes");
  const std::int32_t target = TargetWindow("TeRu");
  EXPECT_TRUE(RunLines({"MAXWINDOW"}));
  EXPECT_EQ(At(target).showCmd, 3u);
  EXPECT_EQ(At(other).showCmd, platform::SW_SHOWNORMAL);
  ExpectLog(Completed({"Fenster wurde maximiert."}));
}

TEST_F(WindowSearchTest, MaximizeWindowKeepsTheNormalPlace) {
  const std::int32_t target = TargetWindow("TeRu");
  At(target).rectangle = {10, 20, 300, 400};
  EXPECT_TRUE(MaximizeWindow());
  platform::WINDOWPLACEMENT placement;
  ASSERT_TRUE(platform::GetWindowPlacement(target, placement));
  EXPECT_EQ(placement.normalPosition.left, 10);
  EXPECT_EQ(placement.normalPosition.bottom, 400);
}

TEST_F(WindowSearchTest, MaximizeWindowIgnoresErrors) {
  EXPECT_TRUE(MaximizeWindow());
  Fail("GetWindowPlacement");
  Fail("SetWindowPlacement");
  TargetWindow("TeRu");
  EXPECT_TRUE(MaximizeWindow());
  ExpectLog({"Fenster wurde maximiert.", "Fenster wurde maximiert."});
}

}  // namespace
