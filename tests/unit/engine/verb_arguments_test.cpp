// Which argument of a line reaches which place of a handler: each line works with all its arguments, and no longer when
// one of them is wrong.
#include <array>
#include <ostream>

#include "automation/state.h"
#include "clients/frmInputANL.h"
#include "clients/frmInputEST.h"
#include "clients/frmInputMerFib.h"
#include "clients/state.h"
#include "engine/verbs.h"
#include "forms/simulated/user.h"
#include "runtime/text.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace support;
using namespace platform::simulated;

// A desktop with a control of each kind in the window "Export GDPdU" and in its frame 3.
class VerbArgumentsTest : public ControlTest {
 protected:
  VerbArgumentsTest() {
    At(window_).text = "Export GDPdU";
    Child("ThunderRT6CommandButton", "Start", 7);
    const std::int32_t years = Child("ComboBox", "", 8);
    At(years).entries = {"01.01.2004", "01.01.2005"};
    At(years).selection = 0;
    At(Child("ComboBox", "", 15)).entries = {"Anlagen"};
    Child("ThunderRT6Textbox", "alt", 9);
    list_ = Child("SysListView32", "Liste", 5071);
    At(list_).rows = {{{"Meier"}}};
    When(list_, platform::WM_CHAR, [this](const Message&) {  // Ctrl+A
      At(list_).rows[0].state = platform::LVIS_SELECTED;
      return std::nullopt;
    });
    const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
    Child("ThunderRT6CheckBox", "", 10, frame);
    const std::int32_t inner = Child("ThunderRT6Frame", "", 4, frame);
    At(Child("ThunderRT6CheckBox", "", 11, inner)).check = 1;
    Child("ThunderRT6OptionButton", "", 12, inner);
    Child("ThunderRT6Textbox", "innen", 13, inner);
    run.ExecEnabled = true;
  }

  // The line has not failed and has left the branch live.
  static bool Works(const std::string& line) {
    MakroExecute(line);
    return run.ExecEnabled && !run.RunFailed;
  }

  std::int32_t list_ = 0;
};

class GoodLineTest : public VerbArgumentsTest, public testing::WithParamInterface<const char*> {};

struct BadLine {
  const char* line;
  std::string lastError;  // after it
};

// Shows the line in the name of a failing test.
void PrintTo(const BadLine& bad, std::ostream* out) { *out << bad.line; }

class BadLineTest : public VerbArgumentsTest, public testing::WithParamInterface<BadLine> {};

const std::string kEarlier = "von früher";
const std::string kNoButton = "Die Schaltfläche konnte nicht ausgewählt werden.";
const std::string kNoMenu = "Das Menu konnte nicht gefunden werden.";
const std::string kNoTextBox = "Das Textfeld konnte nicht ausgefüllt werden. (0)";
const std::string kNoText = "ReadText konnte das Control nicht finden";
const std::string kNoOption = "SetOption konnte das Control nicht finden";
const std::string kNoCheckBox = "Das Optionsfeld konnte nicht gefunden werden.";
const std::string kNoCombo = "Der Eintrag aus der Combobox konnte nicht ausgewählt werden.";
const std::string kNoYear = kNoCombo + " Sel: 01.01.2005";
const std::string kNoIndex = kNoCombo + " Sel: 1";
const std::string kNoComboText = "Der Text aus der Combobox konnte nicht gelesen werden.";
const std::string kNoList = "Die Liste konnte nicht ausgewählt werden.";
const std::string kNoListInWindow = kNoList + " 0";
// The fallback of the window search has found the list itself; below it there is none.
const std::string kNoListInList = kNoList + " %1";
const std::string kNoPath = "Pfad konnte nicht ermittelt werden.";
const std::string kNoItem = "Der Wert Meier konnte in der Liste nicht gefunden werden.";
const std::string kNoMatrix = "Matrix konnte nicht erstellt werden";

TEST_P(GoodLineTest, Works) { EXPECT_TRUE(Works(GetParam())) << run.LastError; }

// An action fails the run, a condition takes the other branch; both with the verb's own text, or with the earlier one
// where the verb has none.
TEST_P(BadLineTest, FailsWithTheTextOfItsVerb) {
  const auto& [line, lastError] = GetParam();
  const bool condition = std::string(line).starts_with("IF ");
  run.LastError = kEarlier;
  MakroExecute(line);
  EXPECT_EQ(run.LastError, runtime::Replace(lastError, "%1", std::to_string(list_)));
  EXPECT_EQ(run.RunFailed, !condition);
  EXPECT_EQ(run.ExecEnabled, !condition);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, GoodLineTest,
    testing::Values(
        "BUTTONCLICK=7,Export,,Start,ThunderRT6CommandButton", "IF BUTTONCLICK=7,Export,,Start,ThunderRT6CommandButton",
        "MENUCLICK=100,Export,,ThunderRT6Frame,3", "IF MENUCLICK=100,Export,,ThunderRT6Frame,3",
        "SETTEXT=neu,9,Export,,ThunderRT6Textbox", "SETMERLATEXT=neu,9,Export,,ThunderRT6Textbox",
        "GETTEXT=alt,9,Export", "IF GETTEXT=alt,9,Export", "GETPATHFROMCTL=9,Export,,ThunderRT6Textbox",
        "SETCHECK=1,10,Export,,3", "GETCHECK=11,Export,,ThunderRT6CheckBox,3,ThunderRT6Frame",
        "SETOPTION=12,Export,,ThunderRT6OptionButton,3,ThunderRT6Frame",
        "READTEXT=13,Export,,ThunderRT6Textbox,3,ThunderRT6Frame", "SELECTCOMBO=01.01.2005,8,Export,,,ComboBox",
        "IF SELECTCOMBO=01.01.2005,8,Export,,nicht gelesen,auch nicht",
        "SELECTCOMBOINDEX=1,8,Export,,nicht gelesen,auch nicht", "IF SELECTCOMBOINDEX=1,8,Export,,,ComboBox",
        "READCOMBO=8,ComboBox,Export", "READCOMBOTEXT=8,Export,,ComboBox", "SELECTLIST=5071,Export,,Liste",
        "READLISTITEM=Meier,5071,Export", "IF READLISTITEM=Meier,5071,Export", "SELECTALL=5071,Export",
        "IF SELECTALL=5071,Export", "SENDKEY2=x,7,Export,ThunderRT6CommandButton,Start", "CREATEMATRIX=8,15,Export",
        "CREATEMERLAMATRIX=8,Export,,ComboBox"));

INSTANTIATE_TEST_SUITE_P(
    Lines, BadLineTest,
    testing::Values(
        // The id.
        BadLine{"BUTTONCLICK=6,Export,,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"IF BUTTONCLICK=6,Export,,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"MENUCLICK=100,Export,,ThunderRT6Frame,5", kNoMenu},
        BadLine{"IF MENUCLICK=100,Export,,ThunderRT6Frame,5", kNoMenu},
        BadLine{"SETOPTION=13,Export,,ThunderRT6OptionButton,3,ThunderRT6Frame", kNoOption},
        BadLine{"READTEXT=14,Export,,ThunderRT6Textbox,3,ThunderRT6Frame", kNoText},
        BadLine{"READLISTITEM=Meier,5072,Export", kNoItem}, BadLine{"IF READLISTITEM=Meier,5072,Export", kNoItem},
        // The window.
        BadLine{"BUTTONCLICK=7,Import,,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"IF BUTTONCLICK=7,Import,,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"SETOPTION=12,Import,,ThunderRT6OptionButton,3,ThunderRT6Frame", kNoOption},
        BadLine{"READTEXT=13,Import,,ThunderRT6Textbox,3,ThunderRT6Frame", kNoText},
        BadLine{"READCOMBO=8,ComboBox,Import", kNoCombo},
        BadLine{"SELECTCOMBO=01.01.2005,8,Import,,,ComboBox", kNoYear},
        BadLine{"SELECTCOMBOINDEX=1,8,Import", kNoIndex}, BadLine{"READLISTITEM=Meier,5071,Import", kNoItem},
        BadLine{"IF READLISTITEM=Meier,5071,Import", kNoItem},
        BadLine{"GETPATHFROMCTL=9,Import,,ThunderRT6Textbox", kNoPath},
        // The whole title, which the window does not have.
        BadLine{"BUTTONCLICK=7,Export,1,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"IF BUTTONCLICK=7,Export,1,Start,ThunderRT6CommandButton", kNoButton},
        BadLine{"MENUCLICK=100,Export,1,ThunderRT6Frame,3", kNoMenu},
        BadLine{"IF MENUCLICK=100,Export,1,ThunderRT6Frame,3", kNoMenu},
        BadLine{"SETTEXT=neu,9,Export,1,ThunderRT6Textbox", kNoTextBox},
        BadLine{"SETMERLATEXT=neu,9,Export,1,ThunderRT6Textbox", kNoTextBox},
        BadLine{"GETTEXT=alt,9,Export,1", kEarlier}, BadLine{"IF GETTEXT=alt,9,Export,1", kEarlier},
        BadLine{"GETPATHFROMCTL=9,Export,1,ThunderRT6Textbox", kNoPath},
        BadLine{"SETCHECK=1,10,Export,1,3", kNoCheckBox},
        BadLine{"GETCHECK=11,Export,1,ThunderRT6CheckBox,3,ThunderRT6Frame", kEarlier},
        BadLine{"SETOPTION=12,Export,1,ThunderRT6OptionButton,3,ThunderRT6Frame", kNoOption},
        BadLine{"READTEXT=13,Export,1,ThunderRT6Textbox,3,ThunderRT6Frame", kNoText},
        BadLine{"SELECTCOMBO=01.01.2005,8,Export,1,,ComboBox", kNoYear},
        BadLine{"IF SELECTCOMBO=01.01.2005,8,Export,1", kNoYear}, BadLine{"SELECTCOMBOINDEX=1,8,Export,1", kNoIndex},
        BadLine{"IF SELECTCOMBOINDEX=1,8,Export,1,,ComboBox", kNoIndex},
        BadLine{"READCOMBO=8,ComboBox,Export,1", kNoCombo}, BadLine{"READCOMBOTEXT=8,Export,1,ComboBox", kNoComboText},
        BadLine{"SELECTLIST=5071,Export,1,Liste", kNoListInList}, BadLine{"READLISTITEM=Meier,5071,Export,1", kNoItem},
        BadLine{"IF READLISTITEM=Meier,5071,Export,1", kNoItem}, BadLine{"SELECTALL=5071,Export,1", kNoList},
        BadLine{"IF SELECTALL=5071,Export,1", kNoList}, BadLine{"CREATEMATRIX=8,15,Export,1", kNoMatrix},
        BadLine{"CREATEMERLAMATRIX=8,Export,1,ComboBox", kNoMatrix},
        // Text and class.
        BadLine{"BUTTONCLICK=0,Export,,Ende,ThunderRT6CommandButton", kNoButton},
        BadLine{"IF BUTTONCLICK=0,Export,,Ende,ThunderRT6CommandButton", kNoButton},
        BadLine{"BUTTONCLICK=0,Export,,Start,Button", kNoButton},
        BadLine{"IF BUTTONCLICK=0,Export,,Start,Button", kNoButton},
        BadLine{"MENUCLICK=100,Export,,ThunderRT6Textbox,3", kNoMenu},
        BadLine{"IF MENUCLICK=100,Export,,ThunderRT6Textbox,3", kNoMenu},
        BadLine{"SETTEXT=neu,9,Export,,Edit", kNoTextBox}, BadLine{"SETMERLATEXT=neu,9,Export,,Edit", kNoTextBox},
        BadLine{"GETPATHFROMCTL=9,Export,,Edit", kNoPath},
        BadLine{"GETCHECK=11,Export,,Button,3,ThunderRT6Frame", kEarlier},
        BadLine{"SETOPTION=12,Export,,Button,3,ThunderRT6Frame", kNoOption},
        BadLine{"READTEXT=13,Export,,Edit,3,ThunderRT6Frame", kNoText},
        BadLine{"SELECTCOMBO=01.01.2005,8,Export,,Monat,ComboBox", kNoYear},
        BadLine{"IF SELECTCOMBOINDEX=1,8,Export,,Monat,ComboBox", kNoIndex},
        BadLine{"SELECTCOMBO=01.01.2005,8,Export,,,Liste", kNoYear},
        BadLine{"IF SELECTCOMBOINDEX=1,8,Export,,,Liste", kNoIndex},
        BadLine{"SELECTLIST=5071,Export,,Andere", kNoListInWindow},
        BadLine{"SENDKEY2=x,7,Export,ThunderRT6CommandButton,Ende", kEarlier},
        BadLine{"CREATEMATRIX=8,15,Export,,Monat", kNoMatrix},
        BadLine{"CREATEMERLAMATRIX=8,Export,,ComboBox,Monat", kNoMatrix}));

TEST_F(VerbArgumentsTest, DisplayTakesItsValue) {
  EXPECT_TRUE(Works("DISPLAY=Jahr %1,2005"));
  EXPECT_EQ(Log(), Lines{"Jahr 2005"});
}

TEST_F(VerbArgumentsTest, ClosewindowTakesTheWholeTitle) {
  EXPECT_TRUE(Works("CLOSEWINDOW=Export,1"));
  EXPECT_EQ(ReceivedNumbers(window_), Numbers{});
  EXPECT_TRUE(Works("CLOSEWINDOW=Export,0"));
  EXPECT_FALSE(Exists(window_));
}

TEST_F(VerbArgumentsTest, SetfocusTakesItsWindow) {
  const std::int32_t other = AddWindow({.className = "X", .text = "Andere"});
  EXPECT_TRUE(Works("SETFOCUS=Andere"));
  EXPECT_EQ(Foreground(), other);
}

TEST_F(VerbArgumentsTest, SetfocusctlTakesItsText) {
  const std::int32_t second = Child("ThunderRT6CommandButton", "Ende", 20);
  EXPECT_TRUE(Works("SETFOCUSCTL=ThunderRT6CommandButton,Ende,0"));
  EXPECT_EQ(Log(), Lines{"Der Fokus wurde auf das Feld gesetzt. (" + std::to_string(second) + ")"});
}

TEST_F(VerbArgumentsTest, WaitforwindowTakesTheWholeTitle) {
  Schedule(1000, [] { AddWindow({.className = "X", .text = "Export"}); });
  EXPECT_TRUE(Works("WAITFORWINDOW=Export,1,,,0"));
  EXPECT_GE(Clock(), 1000);
}

TEST_F(VerbArgumentsTest, WaitforwindowTakesTheTextOfAControl) {
  Schedule(1000, [this] { Child("ThunderRT6CommandButton", "Ende", 20); });
  EXPECT_TRUE(Works("WAITFORWINDOW=Export,,Ende,ThunderRT6CommandButton,0"));
  EXPECT_GE(Clock(), 1000);
}

TEST_F(VerbArgumentsTest, GetanllistTakesWindowAndClass) {
  automation.ListIndex = 1;
  EXPECT_TRUE(Works("GETANLLIST=0,5071,Import,SysListView32"));
  EXPECT_TRUE(Works("GETANLLIST=0,5071,Export,Anlagenliste"));
  EXPECT_EQ(Log(), Lines(2, "<unbekannt>"));
  EXPECT_TRUE(Works("GETANLLIST=0,5071,Export,SysListView32"));
  EXPECT_EQ(Log().back(), "Meier");
}

TEST_F(VerbArgumentsTest, VerifylistTakesExactAndText) {
  clients.InputState = 1;
  EXPECT_TRUE(Works("VERIFYLIST=5071,Export,1,Liste"));
  EXPECT_TRUE(Works("VERIFYLIST=5071,Export,,Andere"));
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_TRUE(Works("VERIFYLIST=5071,Export,,Liste"));
  EXPECT_EQ(automation.ListIndex, 1);
}

TEST_F(VerbArgumentsTest, SetfolderpathTakesTheWholeTitle) {
  EXPECT_TRUE(Works("SETFOLDERPATH=Export,1,C:\\Daten"));
  EXPECT_EQ(ReceivedNumbers(window_), Numbers{});
  EXPECT_TRUE(Works("SETFOLDERPATH=Export,0,C:\\Daten"));
  EXPECT_EQ(ReceivedNumbers(window_), Numbers{platform::BFFM_SETSELECTIONA});
}

TEST_F(VerbArgumentsTest, TheDialogsThatAskTheUserShowTheirText) {
  clients.Matrix.assign(1, {});
  PutFile("C:\\Mandanten.txt", "1\r\n2\r\n");
  std::array<std::string, 3> shown;
  const auto look = [](std::string& text, forms::Label& label) {
    return [&](forms::Form& form) {
      text = label.Caption();
      forms::simulated::Close(form);
    };
  };
  forms::simulated::WhenModal(look(shown[0], frmInputEST.lblInfo));
  forms::simulated::WhenModal(look(shown[1], frmInputANL.lblInfo));
  forms::simulated::WhenModal(look(shown[2], frmInputMerFib.lblInfo));
  MakroExecute("SHOWINPUTDLG=Welche Mandanten?");
  MakroExecute("SHOWINPUTANL=Welche Jahre?");
  MakroExecute("SHOWINPUTMERFIB=Welche beiden?,C:\\Mandanten.txt");
  EXPECT_EQ(shown, (std::array<std::string, 3>{"Welche Mandanten?", "Welche Jahre?", "Welche beiden?"}));
}

}  // namespace
