// The mouse verbs.
#include "input/mouse.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include "automation/state.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace platform::simulated;
using support::Completed;
using support::Log;
using support::RunLines;

using Lines = std::vector<std::string>;

class MouseTest : public support::SystemTest {
 protected:
  // A form of the target's class, at a place in pixels.
  static std::int32_t Form(const std::string& caption, std::int32_t left, std::int32_t top) {
    return AddWindow(
        {.className = "ThunderRT6FormDC", .text = caption, .rectangle = {left, top, left + 400, top + 300}});
  }

  static std::string Move(std::int32_t dx, std::int32_t dy) {
    return "mouse_event 4294934529 " + std::to_string(dx) + " " + std::to_string(dy) + " 0 0";
  }

  static Lines LeftAt(std::int32_t dx, std::int32_t dy) {
    return {Move(dx, dy), "mouse_event 2 0 0 0 0", "mouse_event 4 0 0 0 0"};
  }
};

TEST_F(MouseTest, MoveGoesToAScreenPixel) {
  EXPECT_TRUE(RunLines({"MOUSEMOVE=100,200"}));
  EXPECT_EQ(InputLog(), Lines{"SetCursorPos 100 200"});
  EXPECT_EQ(Log(), Completed({"Maus an Koordinate bewegt: 100/200"}));
}

TEST_F(MouseTest, MoveTakesNegativeAndRoundedNumbers) {
  EXPECT_TRUE(RunLines({"MOUSEMOVE=-5,'2,5'"}));
  EXPECT_EQ(InputLog(), Lines{"SetCursorPos -5 2"});
  EXPECT_EQ(Log(), Completed({"Maus an Koordinate bewegt: -5/2"}));
}

TEST_F(MouseTest, MoveThatTheSystemRefusesIsLoggedAllTheSame) {
  Fail("SetCursorPos");
  EXPECT_TRUE(RunLines({"MOUSEMOVE=1,2"}));
  EXPECT_EQ(Log(), Completed({"Maus an Koordinate bewegt: 1/2"}));
}

TEST_F(MouseTest, LeftClickIsDownAndUpAtThePresentPosition) {
  EXPECT_TRUE(RunLines({"MOUSECLICK=LEFT"}));
  EXPECT_EQ(InputLog(), (Lines{"mouse_event 2 0 0 0 0", "mouse_event 4 0 0 0 0"}));
  EXPECT_EQ(Log(), Completed({"Maustaste gedrückt: 1"}));
}

TEST_F(MouseTest, RightClickInAnyLetters) {
  EXPECT_TRUE(RunLines({"mouseclick=right"}));
  EXPECT_EQ(InputLog(), (Lines{"mouse_event 8 0 0 0 0", "mouse_event 16 0 0 0 0"}));
  EXPECT_EQ(Log(), Completed({"Maustaste gedrückt: 2"}));
}

TEST_F(MouseTest, AnyOtherWordDoesNothingAndFailsWithAnUnchangedText) {
  EXPECT_FALSE(RunLines({"IF BUTTONCLICK=1,Nie", "ENDIF", "MOUSECLICK=MIDDLE"}));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(basMain::run.LastError, "Die Schaltfläche konnte nicht ausgewählt werden.");
}

TEST_F(MouseTest, AnyOtherWordFailsWithoutATextOfItsOwn) {
  EXPECT_FALSE(RunLines({"MOUSECLICK="}));
  EXPECT_EQ(Log(), Lines{""});
}

// MouseClick, which takes twips. The screen has 1024 by 768 pixels of 15 twips: 15360 by 11520 twips.

TEST_F(MouseTest, ClickAtTwipsMovesOnTheScaleOfTheWholeScreen) {
  EXPECT_TRUE(basMain::MouseClick(1, 15360, 5760));
  EXPECT_EQ(InputLog(), LeftAt(65535, 32768));  // 32767.5, and 32768 is the even one
  EXPECT_EQ(Log(), Lines{"Maustaste gedrückt: 1"});
}

TEST_F(MouseTest, ClickRoundsTiesToEven) {
  basMain::MouseClick(0, 3840, 2880);   // a quarter of 65535 is 16383.75
  basMain::MouseClick(0, 7680, 17280);  // 32767.5 and 98302.5: one up, one down
  EXPECT_EQ(InputLog(), (Lines{Move(16384, 16384), Move(32768, 98302)}));
}

TEST_F(MouseTest, ClickStaysOnlyWhereBothCoordinatesAreMinusOne) {
  basMain::MouseClick(0, -1, -1);
  EXPECT_TRUE(InputLog().empty());
  basMain::MouseClick(0, -1, 0);  // -1 / 15360 * 65535 is -4.27
  basMain::MouseClick(0, 0, -1);  // -1 / 11520 * 65535 is -5.69
  EXPECT_EQ(InputLog(), (Lines{Move(-4, 0), Move(0, -6)}));
}

TEST_F(MouseTest, MiddleButtonIsNumberFour) {
  EXPECT_TRUE(basMain::MouseClick(4, -1, -1));
  EXPECT_EQ(InputLog(), (Lines{"mouse_event 32 0 0 0 0", "mouse_event 64 0 0 0 0"}));
  EXPECT_EQ(Log(), Lines{"Maustaste gedrückt: 4"});
}

TEST_F(MouseTest, AnyOtherButtonPressesNothingAndIsLogged) {
  for (const std::int32_t button : {0, 3, 5, -1}) EXPECT_TRUE(basMain::MouseClick(button, -1, -1));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(Log(), (Lines{"Maustaste gedrückt: 0", "Maustaste gedrückt: 3", "Maustaste gedrückt: 5",
                          "Maustaste gedrückt: -1"}));
}

TEST_F(MouseTest, APlaceBeyondTheScaleIsPassedOver) {
  EXPECT_TRUE(basMain::MouseClick(1, INT32_MAX, 0));
  EXPECT_EQ(InputLog(), LeftAt(0, 0));
}

// MOUSECLICKBYWINDOWOFFSET.

TEST_F(MouseTest, OffsetCountsPixelsFromTheOuterCorner) {
  Form("Zahlungen", 100, 50);
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,10,20"}));
  EXPECT_EQ(InputLog(), LeftAt(7040, 5973));
  EXPECT_EQ(Log(), Completed({"Maustaste gedrückt: 1"}));
}

TEST_F(MouseTest, AnyWordButLeftIsTheRightButton) {
  Form("Zahlungen", 0, 0);
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,MIDDLE,0,0", "MOUSECLICKBYWINDOWOFFSET=Zahlungen,,0,0",
                        "MOUSECLICKBYWINDOWOFFSET=Zahlungen,left,0,0"}));
  const std::string down = "mouse_event 8 0 0 0 0", up = "mouse_event 16 0 0 0 0";
  EXPECT_EQ(InputLog(), (Lines{Move(0, 0), down, up, Move(0, 0), down, up, Move(0, 0), "mouse_event 2 0 0 0 0",
                               "mouse_event 4 0 0 0 0"}));
  EXPECT_EQ(Log(), Completed({"Maustaste gedrückt: 2", "Maustaste gedrückt: 2", "Maustaste gedrückt: 1"}));
}

TEST_F(MouseTest, TheFourProductsAreRoundedEachByItself) {
  SetTwipsPerPixel(14.5, 12.5);                                                // a screen of 14848 by 9600 twips
  Form("Zahlungen", 1, 1);                                                     // 14.5 becomes 14, 12.5 becomes 12
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,1,'0,6'"}));  // 14, and 7.5 becomes 8
  // 28 / 14848 * 65535 is 123.58; 20 / 9600 * 65535 is 136.53. Together rounded it were 29 (128.0) and 20.
  EXPECT_EQ(InputLog(), LeftAt(124, 137));
}

TEST_F(MouseTest, OffsetsMayBeNegativeAndHaveDecimals) {
  Form("Zahlungen", 100, 50);
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,'-100,5','0,5'"}));
  // 1500 + round(-1507.5) = 1500 - 1508 = -8, on the scale -34.13; 750 + round(7.5) = 758, on the scale 4312.11.
  EXPECT_EQ(InputLog(), LeftAt(-34, 4312));
}

TEST_F(MouseTest, ThePlaceOfMinusOneTwipOnBothAxesIsThePresentOne) {
  SetTwipsPerPixel(1, 1);
  Form("Zahlungen", 0, 0);
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,-1,-1"}));
  EXPECT_EQ(InputLog(), (Lines{"mouse_event 2 0 0 0 0", "mouse_event 4 0 0 0 0"}));
}

TEST_F(MouseTest, TheCaptionMustBeWholeAndOfAForm) {
  Form("Zahlungen 2005", 0, 0);
  AddWindow({.className = "X", .text = "Zahlungen"});
  EXPECT_FALSE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,10,20"}));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(Log(), Lines{"Fehler in Funktion MouseClickbyWindowOffset:Fenster konnte nicht gefunden werden."});
}

TEST_F(MouseTest, AnEmptyCaptionIsNotThatOfAnyForm) {
  Form("Zahlungen", 0, 0);
  EXPECT_FALSE(RunLines({"MOUSECLICKBYWINDOWOFFSET=,LEFT,10,20"}));
  EXPECT_TRUE(InputLog().empty());
  EXPECT_EQ(Log(), Lines{"Fehler in Funktion MouseClickbyWindowOffset:Fenster konnte nicht gefunden werden."});
}

TEST_F(MouseTest, AnOffsetThatIsNoNumberIsAFault) {
  Form("Zahlungen", 0, 0);
  for (const char* offsets : {"x,0", "0,x", ",0", "0"}) {
    EXPECT_FALSE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT," + std::string(offsets)})) << offsets;
    EXPECT_EQ(basMain::run.LastError, "Fehler in Funktion MouseClickbyWindowOffset:Typen unverträglich") << offsets;
  }
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(MouseTest, AnOffsetBeyondTheRangeIsAFault) {
  Form("Zahlungen", 100, 0);
  for (const char* offset : {"999999999", "143165576"}) {  // the product; the sum of 1500 and 2147483640
    EXPECT_FALSE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT," + std::string(offset) + ",0"}));
    EXPECT_EQ(basMain::run.LastError, "Fehler in Funktion MouseClickbyWindowOffset:Überlauf") << offset;
  }
}

// MOUSEMOVETOCTL.

TEST_F(MouseTest, MoveToControlGoesFivePixelsInside) {
  const auto window = support::TargetWindow("TeRu");
  const auto button =
      AddWindow({.className = "Button", .text = "Drucken", .parent = window, .rectangle = {200, 300, 280, 324}});
  EXPECT_TRUE(RunLines({"MOUSEMOVETOCTL=BUTTON,drucken"}));
  EXPECT_EQ(InputLog(), Lines{"SetCursorPos 205 305"});
  EXPECT_EQ(Log(), Completed({"Maus an Koordinate bewegt: 205/305",
                              "Die Maus wurde positioniert. (" + std::to_string(button) + ")"}));
}

TEST_F(MouseTest, MoveToControlWithoutACaptionTakesTheFirstOfTheClassAtAnyDepth) {
  const auto window = support::TargetWindow("TeRu");
  const auto frame = AddWindow({.className = "Frame", .parent = window});
  AddWindow({.className = "Edit", .text = "Feld", .parent = frame, .rectangle = {1, 2, 3, 4}});
  AddWindow({.className = "Edit", .text = "anderes", .parent = window, .rectangle = {50, 60, 70, 80}});
  EXPECT_TRUE(RunLines({"MOUSEMOVETOCTL=Edit"}));
  EXPECT_EQ(InputLog(), Lines{"SetCursorPos 6 7"});
}

TEST_F(MouseTest, MoveToControlWantsTheWholeCaptionAndAClass) {
  const auto window = support::TargetWindow("TeRu");
  AddWindow({.className = "Button", .text = "Drucken...", .parent = window});
  for (const char* line : {"MOUSEMOVETOCTL=Button,Drucken", "MOUSEMOVETOCTL=,Drucken...", "MOUSEMOVETOCTL=Edit"}) {
    EXPECT_FALSE(RunLines({line}));
    EXPECT_EQ(basMain::run.LastError, "Das Steuerelement konnte nicht gefunden werden!") << line;
  }
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(MouseTest, MoveToControlWithNeitherFailsWithoutAMessage) {
  const auto window = support::TargetWindow("TeRu");
  AddWindow({.className = "Button", .parent = window});
  EXPECT_FALSE(RunLines({"MOUSEMOVETOCTL=,"}));
  EXPECT_EQ(basMain::run.LastError, "");
}

TEST_F(MouseTest, MoveToControlWithoutChildrenFails) {
  support::TargetWindow("TeRu");
  EXPECT_FALSE(RunLines({"MOUSEMOVETOCTL=Button,"}));
  EXPECT_EQ(basMain::run.LastError, "Das Steuerelement konnte nicht gefunden werden!");
}

TEST_F(MouseTest, MoveToControlMakesTheListOfChildrenAnew) {
  const auto window = support::TargetWindow("TeRu");
  basMain::automation.ChildWindowList = {1, 2, 3, 0};
  AddWindow({.className = "Button", .parent = window});
  EXPECT_TRUE(RunLines({"MOUSEMOVETOCTL=Button,"}));
  EXPECT_EQ(basMain::automation.ChildWindowList.size(), 2u);
}

TEST_F(MouseTest, MoveToAControlWhosePlaceIsUnknownGoesToTheCorner) {
  const auto window = support::TargetWindow("TeRu");
  AddWindow({.className = "Button", .parent = window, .rectangle = {200, 300, 280, 324}});
  Fail("GetWindowRect");
  EXPECT_TRUE(RunLines({"MOUSEMOVETOCTL=Button,"}));
  EXPECT_EQ(InputLog(), Lines{"SetCursorPos 5 5"});
}

// Scaled windows, at 96, 120, 144 and 192 dots to the inch.

struct Screen {
  double twips;       // per pixel
  std::int32_t left, top;  // of the window as it is seen, 100 and 40 in its own pixels
  std::int32_t dx, dy;
};

TEST_F(MouseTest, AnOffsetIntoAScaledWindowHitsTheSamePlaceOfItAtEveryResolution) {
  // 120 and 80 in the window's pixels: 120 / 1024 * 65535 is 7679.9, 80 / 768 * 65535 is 6826.6, and so on.
  for (const Screen& screen : {Screen{15, 100, 40, 7680, 6827}, Screen{12, 125, 50, 9600, 8533},
                               Screen{10, 150, 60, 11520, 10240}, Screen{7.5, 200, 80, 15360, 13653}}) {
    SetTwipsPerPixel(screen.twips, screen.twips);
    const auto window = Form("Zahlungen", screen.left, screen.top);
    At(window).knowsResolution = false;
    InputLog().clear();
    EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,20,40"}));
    EXPECT_EQ(InputLog(), LeftAt(screen.dx, screen.dy)) << screen.twips;
    DestroyWindow(window);
  }
}

TEST_F(MouseTest, AnOffsetIntoAWindowThatKnowsTheResolutionCountsPixelsOfTheScreen) {
  SetTwipsPerPixel(10, 10);
  Form("Zahlungen", 150, 60);
  EXPECT_TRUE(RunLines({"MOUSECLICKBYWINDOWOFFSET=Zahlungen,LEFT,20,40"}));
  EXPECT_EQ(InputLog(), LeftAt(10880, 8533));  // 170 / 1024 * 65535 is 10879.8, 100 / 768 * 65535 is 8533.2
}

TEST_F(MouseTest, MoveToAControlOfAScaledWindowGoesFiveOfItsPixelsInside) {
  const auto window = support::TargetWindow("TeRu");
  AddWindow({.className = "Button", .parent = window, .rectangle = {300, 450, 420, 486}});
  At(window).knowsResolution = false;
  // 5 pixels are 5, 6.25, 7.5 and 10 on the screen.
  for (const auto& [twips, inside] : std::map<double, std::int32_t>{{15, 5}, {12, 6}, {10, 8}, {7.5, 10}}) {
    SetTwipsPerPixel(twips, twips);
    InputLog().clear();
    EXPECT_TRUE(RunLines({"MOUSEMOVETOCTL=Button"}));
    const std::string x = std::to_string(300 + inside);
    const std::string y = std::to_string(450 + inside);
    EXPECT_EQ(InputLog(), Lines{"SetCursorPos " + x + " " + y});
    EXPECT_EQ(std::ranges::count(Log(), "Maus an Koordinate bewegt: " + x + "/" + y), 1);
  }
}

}  // namespace
