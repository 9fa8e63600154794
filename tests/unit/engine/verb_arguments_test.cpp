// Which argument of a line reaches which place of a handler: each line works with all its arguments, and no longer when
// one of them is wrong.
#include <array>

#include "automation/state.h"
#include "clients/frmInputANL.h"
#include "clients/frmInputEST.h"
#include "clients/frmInputMerFib.h"
#include "clients/state.h"
#include "engine/verbs.h"
#include "forms/simulated/user.h"
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
    const std::int32_t list = Child("SysListView32", "Liste", 5071);
    At(list).rows = {{{"Meier"}}};
    When(list, platform::WM_CHAR, [list](const Message&) {  // Ctrl+A
      At(list).rows[0].state = LVIS_SELECTED;
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
};

class GoodLineTest : public VerbArgumentsTest, public testing::WithParamInterface<const char*> {};
class BadLineTest : public VerbArgumentsTest, public testing::WithParamInterface<const char*> {};

TEST_P(GoodLineTest, Works) { EXPECT_TRUE(Works(GetParam())) << run.LastError; }
TEST_P(BadLineTest, DoesNotWork) { EXPECT_FALSE(Works(GetParam())); }

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
        "BUTTONCLICK=6,Export,,Start,ThunderRT6CommandButton", "IF BUTTONCLICK=6,Export,,Start,ThunderRT6CommandButton",
        "MENUCLICK=100,Export,,ThunderRT6Frame,5", "IF MENUCLICK=100,Export,,ThunderRT6Frame,5",
        "SETOPTION=13,Export,,ThunderRT6OptionButton,3,ThunderRT6Frame",
        "READTEXT=14,Export,,ThunderRT6Textbox,3,ThunderRT6Frame", "READLISTITEM=Meier,5072,Export",
        "IF READLISTITEM=Meier,5072,Export",
        // The window.
        "BUTTONCLICK=7,Import,,Start,ThunderRT6CommandButton", "IF BUTTONCLICK=7,Import,,Start,ThunderRT6CommandButton",
        "SETOPTION=12,Import,,ThunderRT6OptionButton,3,ThunderRT6Frame",
        "READTEXT=13,Import,,ThunderRT6Textbox,3,ThunderRT6Frame", "READCOMBO=8,ComboBox,Import",
        "SELECTCOMBO=01.01.2005,8,Import,,,ComboBox", "SELECTCOMBOINDEX=1,8,Import", "READLISTITEM=Meier,5071,Import",
        "IF READLISTITEM=Meier,5071,Import", "GETPATHFROMCTL=9,Import,,ThunderRT6Textbox",
        // The whole title, which the window does not have.
        "BUTTONCLICK=7,Export,1,Start,ThunderRT6CommandButton",
        "IF BUTTONCLICK=7,Export,1,Start,ThunderRT6CommandButton", "MENUCLICK=100,Export,1,ThunderRT6Frame,3",
        "IF MENUCLICK=100,Export,1,ThunderRT6Frame,3", "SETTEXT=neu,9,Export,1,ThunderRT6Textbox",
        "SETMERLATEXT=neu,9,Export,1,ThunderRT6Textbox", "GETTEXT=alt,9,Export,1", "IF GETTEXT=alt,9,Export,1",
        "GETPATHFROMCTL=9,Export,1,ThunderRT6Textbox", "SETCHECK=1,10,Export,1,3",
        "GETCHECK=11,Export,1,ThunderRT6CheckBox,3,ThunderRT6Frame",
        "SETOPTION=12,Export,1,ThunderRT6OptionButton,3,ThunderRT6Frame",
        "READTEXT=13,Export,1,ThunderRT6Textbox,3,ThunderRT6Frame", "SELECTCOMBO=01.01.2005,8,Export,1,,ComboBox",
        "IF SELECTCOMBO=01.01.2005,8,Export,1", "SELECTCOMBOINDEX=1,8,Export,1",
        "IF SELECTCOMBOINDEX=1,8,Export,1,,ComboBox", "READCOMBO=8,ComboBox,Export,1",
        "READCOMBOTEXT=8,Export,1,ComboBox", "SELECTLIST=5071,Export,1,Liste", "READLISTITEM=Meier,5071,Export,1",
        "IF READLISTITEM=Meier,5071,Export,1", "SELECTALL=5071,Export,1", "IF SELECTALL=5071,Export,1",
        "CREATEMATRIX=8,15,Export,1", "CREATEMERLAMATRIX=8,Export,1,ComboBox",
        // Text and class.
        "BUTTONCLICK=0,Export,,Ende,ThunderRT6CommandButton", "IF BUTTONCLICK=0,Export,,Ende,ThunderRT6CommandButton",
        "BUTTONCLICK=0,Export,,Start,Button", "IF BUTTONCLICK=0,Export,,Start,Button",
        "MENUCLICK=100,Export,,ThunderRT6Textbox,3", "IF MENUCLICK=100,Export,,ThunderRT6Textbox,3",
        "SETTEXT=neu,9,Export,,Edit", "SETMERLATEXT=neu,9,Export,,Edit", "GETPATHFROMCTL=9,Export,,Edit",
        "GETCHECK=11,Export,,Button,3,ThunderRT6Frame", "SETOPTION=12,Export,,Button,3,ThunderRT6Frame",
        "READTEXT=13,Export,,Edit,3,ThunderRT6Frame", "SELECTCOMBO=01.01.2005,8,Export,,Monat,ComboBox",
        "IF SELECTCOMBOINDEX=1,8,Export,,Monat,ComboBox", "SELECTCOMBO=01.01.2005,8,Export,,,Liste",
        "IF SELECTCOMBOINDEX=1,8,Export,,,Liste", "SELECTLIST=5071,Export,,Andere",
        "SENDKEY2=x,7,Export,ThunderRT6CommandButton,Ende", "CREATEMATRIX=8,15,Export,,Monat",
        "CREATEMERLAMATRIX=8,Export,,ComboBox,Monat"));

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
