// The client range dialog and "SHOWINPUTDLG".
#include "clients/frmInputEST.h"

#include <algorithm>

#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;
using forms::simulated::Close;
using forms::simulated::Press;
using forms::simulated::Type;

using Lines = std::vector<std::string>;

constexpr char kNotNumeric[] = "Bitte geben Sie eine numerische Mandantennummer ein!";

class InputEstTest : public SystemTest {
 protected:
  void ExpectState(std::int32_t state) {
    EXPECT_EQ(clients.InputState, state);
    ExpectLog({"ShowInputDlg (" + std::to_string(state) + ")"});
    EXPECT_FALSE(frmInputEST.Loaded());
  }

  // The user types a range and confirms; the dialog must refuse it and stay open.
  void ExpectRefused(const std::string& from, const std::string& to) {
    SCOPED_TRACE(from + " to " + to);
    const std::size_t shown = MessageBoxes().size();
    User([&] {
      Press(frmInputEST.optFromTo);
      Type(frmInputEST.txtFrom, from);
      Type(frmInputEST.txtTo, to);
      Press(frmInputEST.cmdOK);
      EXPECT_TRUE(frmInputEST.Visible());
      EXPECT_EQ(frmInputEST.InputState(), 0);
      Press(frmInputEST.cmdCancel);
    });
    EXPECT_TRUE(ShowInputDlg(""));
    ASSERT_EQ(MessageBoxes().size(), shown + 1);
    EXPECT_EQ(MessageBoxes().back().text, kNotNumeric);
    EXPECT_EQ(MessageBoxes().back().caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes().back().type, 16u);
  }

  void ConfirmRange(const std::string& from, const std::string& to) {
    User([=] {
      Press(frmInputEST.optFromTo);
      Type(frmInputEST.txtFrom, from);
      Type(frmInputEST.txtTo, to);
      Press(frmInputEST.cmdOK);
    });
    EXPECT_TRUE(ShowInputDlg(""));
  }
};

TEST_F(InputEstTest, WordsPictureAndTheMacrosText) {
  User([] {
    EXPECT_EQ(At(frmInputEST.Window()).text, "TARVEN Datenexport");
    EXPECT_TRUE(At(frmInputEST.Window()).topMost);
    EXPECT_EQ(frmInputEST.imgQuest.Icon(), "ICOQST");
    EXPECT_EQ(frmInputEST.lblInfo.Caption(), "Welche Mandanten? %1");
    EXPECT_EQ(frmInputEST.optAll.Caption(), "alle Mandanten");
    EXPECT_EQ(frmInputEST.optCurrent.Caption(), "zuletzt bearbeiteter Mandant");
    EXPECT_EQ(frmInputEST.optFromTo.Caption(), "Mandantennummer");
    EXPECT_EQ(frmInputEST.Label1.Caption(), "von");
    EXPECT_EQ(frmInputEST.Label2.Caption(), "bis");
    EXPECT_EQ(frmInputEST.cmdOK.Caption(), "OK");
    EXPECT_EQ(frmInputEST.cmdCancel.Caption(), "Abbrechen");
    EXPECT_EQ(frmInputEST.InputState(), 0);
  });
  EXPECT_TRUE(ShowInputDlg("Welche Mandanten? %1"));
}

TEST_F(InputEstTest, TheFirstOptionIsTheFirstStopOfTheTabKey) {
  const auto order = forms::ControlsOf(frmInputEST.Layout());
  const auto first = std::find_if(order.begin(), order.end(), [](const forms::Control* control) {
    return control->kind != forms::ControlKind::Label && control->kind != forms::ControlKind::Picture;
  });
  EXPECT_EQ(*first, &frmInputEST.optAll);
}

TEST_F(InputEstTest, AllClients) {
  User([] {
    Press(frmInputEST.optAll);
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(1);
}

TEST_F(InputEstTest, TheClientWorkedOnLast) {
  User([] {
    Press(frmInputEST.optCurrent);
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(2);
}

TEST_F(InputEstTest, ARangeIsKeptAsTyped) {
  ConfirmRange("1000", " 2000 ");
  ExpectState(4);
  EXPECT_EQ(clients.MandantNrFrom, "1000");
  EXPECT_EQ(clients.MandantNrTo, " 2000 ");
  EXPECT_FALSE(run.StopRun);
}

TEST_F(InputEstTest, ARangeWhoseFirstNumberIsAboveItsLastIsTaken) {
  ConfirmRange("2000", "1000");
  ExpectState(4);
  EXPECT_EQ(clients.MandantNrFrom, "2000");
  EXPECT_EQ(clients.MandantNrTo, "1000");
}

TEST_F(InputEstTest, ANumberThatIsNoneIsRefusedAndTheDialogStaysOpen) {
  ExpectRefused("1000", "Meier");
  ExpectRefused("Meier", "1000");
}

TEST_F(InputEstTest, AnEmptyRangeIsRefused) {
  ExpectRefused("", "");
  ExpectRefused("1000", "");
  ExpectRefused("", "1000");
}

TEST_F(InputEstTest, ARefusedRangeLeavesTheOneOfBefore) {
  clients.MandantNrFrom = "1";
  clients.MandantNrTo = "2";
  ExpectRefused("1000", "x");
  EXPECT_EQ(clients.MandantNrFrom, "1");
  EXPECT_EQ(clients.MandantNrTo, "2");
}

TEST_F(InputEstTest, ARangeCanBeCorrectedAfterTheMessage) {
  User([] {
    Press(frmInputEST.optFromTo);
    Type(frmInputEST.txtFrom, "1000");
    Press(frmInputEST.cmdOK);
    Type(frmInputEST.txtTo, "2000");
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(4);
}

TEST_F(InputEstTest, TheRangeDoesNotCountWithAnotherOption) {
  User([] {
    Type(frmInputEST.txtFrom, "x");
    Press(frmInputEST.optFromTo);
    Press(frmInputEST.optAll);
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(1);
  EXPECT_EQ(clients.MandantNrFrom, "");
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(InputEstTest, WithoutAnOptionItClosesUnanswered) {
  clients.InputState = 4;
  User([] { Press(frmInputEST.cmdOK); });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(0);
  EXPECT_FALSE(run.StopRun);
}

TEST_F(InputEstTest, CancelStopsTheRun) {
  clients.MandantNrFrom = "1";
  User([] {
    Press(frmInputEST.optFromTo);
    Type(frmInputEST.txtFrom, "1000");
    Press(frmInputEST.cmdCancel);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(-1);
  EXPECT_TRUE(run.StopRun);
  EXPECT_EQ(clients.MandantNrFrom, "1");
}

TEST_F(InputEstTest, ClosingItBySystemMenuIsACancel) {
  User([] {
    Press(frmInputEST.optAll);
    Close(frmInputEST);
  });
  EXPECT_TRUE(ShowInputDlg(""));
  ExpectState(-1);
  EXPECT_TRUE(run.StopRun);
}

TEST_F(InputEstTest, EachCallOpensAFreshDialog) {
  ConfirmRange("1000", "2000");
  User([] {
    EXPECT_EQ(frmInputEST.InputState(), 0);
    EXPECT_FALSE(frmInputEST.optFromTo.Value());
    EXPECT_EQ(frmInputEST.txtFrom.Text(), "");
    Press(frmInputEST.cmdCancel);
  });
  EXPECT_TRUE(ShowInputDlg(""));
}

TEST_F(InputEstTest, WaitingMessagesAreHandledBeforeItIsFilledAndShown) {
  User([] { Press(frmInputEST.cmdCancel); });
  const std::int32_t own = AddWindow({.className = "X", .process = kOwnProcess});
  bool handled = false;
  At(own).procedure = [&](const Message&) -> std::optional<std::int32_t> {
    handled = true;
    EXPECT_TRUE(At(frmInputEST.Window()).topMost);
    EXPECT_FALSE(frmInputEST.Visible());
    EXPECT_EQ(frmInputEST.lblInfo.Caption(), "");
    return std::nullopt;
  };
  platform::PostMessageA(own, 1024, 0, 0);
  EXPECT_TRUE(ShowInputDlg("Welche Mandanten?"));
  EXPECT_TRUE(handled);
}

TEST_F(InputEstTest, AFaultWhileTheDialogWaitsClosesIt) {
  User([] { throw runtime::Fault(runtime::FaultNumber::Overflow); });
  EXPECT_FALSE(ShowInputDlg(""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ShowInputDlg:Überlauf");
  EXPECT_FALSE(frmInputEST.Loaded());
  EXPECT_FALSE(run.StopRun);
}

TEST_F(InputEstTest, ANestedRunCannotAskWhileTheDialogWaits) {
  User([] {
    EXPECT_FALSE(ShowInputDlg("noch einmal"));
    EXPECT_EQ(run.LastError,
              "Fehler in Funktion ShowInputDlg:Formular wird bereits angezeigt; kann nicht als modal angezeigt werden");
    EXPECT_TRUE(frmInputEST.Visible());
    EXPECT_EQ(frmInputEST.lblInfo.Caption(), "einmal");
    Press(frmInputEST.optAll);
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(ShowInputDlg("einmal"));
  ExpectState(1);
}

TEST_F(InputEstTest, TheVerbSetsTheStateAndTheRunGoesOn) {
  User([] {
    Press(frmInputEST.optCurrent);
    Press(frmInputEST.cmdOK);
  });
  EXPECT_TRUE(RunLines({"SHOWINPUTDLG=Welche Mandanten?", "MSG=weiter"}));
  ExpectLog(Completed({"ShowInputDlg (2)", "MSG: weiter"}));
}

TEST_F(InputEstTest, CancelEndsTheRunBehindTheVerb) {
  User([] { Press(frmInputEST.cmdCancel); });
  EXPECT_TRUE(RunLines({"SHOWINPUTDLG=Welche Mandanten?", "MSG=weiter"}));
  ExpectLog({"ShowInputDlg (-1)", kStopped, kStars});
}

}  // namespace
