// A press of the hot key while a command pumps: the inner run replaces the line table and the variables under the line
// that is running.
#include <algorithm>

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using support::Log;

using Texts = std::vector<std::string>;

const std::string kWaited = "Warten auf Fenster war erfolgreich.";

// Waits, with pumps, for the window that comes up after 2 s.
const std::string kWait = "WAITFORWINDOW(Später,1,,,0)";

class NestedRunTest : public support::SystemTest {
 protected:
  // Runs the outer macro; the inner one is chosen by a press after 1 s.
  static bool Run(const Texts& outer, const Texts& inner) {
    support::StartProgram();
    support::Setting("Makro", "Makro1", "Innen,INNEN.MAK");
    support::TargetWindow("Innen");
    std::string text;
    for (const std::string& line : inner) text += line + "\r\n";
    PutFile(support::kProgram + "\\INNEN.MAK", text);
    Schedule(1000, [] { PressHotKey(platform::MOD_ALT, platform::VK_F12); });
    Schedule(2000, [] { AddWindow({.className = "X", .text = "Später"}); });
    return support::RunLines(outer);
  }

  // The log behind the header of the inner run.
  static Texts LogOfBoth() {
    const Texts log = Log();
    const auto header = std::find(log.begin(), log.end(), "MakroFile: INNEN.MAK");
    EXPECT_NE(header, log.end());
    return {header + 1, log.end()};
  }
};

TEST_F(NestedRunTest, TheOuterRunGoesOnAtItsOwnIndexInTheNewTable) {
  EXPECT_TRUE(Run({"MSG=a", "WAITFORWINDOW=Später,1,,,0", "MSG=nie"}, {"MSG=0", "MSG=1", "MSG=2", "MSG=3"}));
  EXPECT_EQ(LogOfBoth(), (Texts{"MSG: 0", "MSG: 1", "MSG: 2", "MSG: 3", support::kCompleted, support::kStars, kWaited,
                                "MSG: 2", "MSG: 3", support::kCompleted, support::kStars}));
  EXPECT_EQ(run.CurrentLine, 9);  // counted on from the 5 of the inner run
}

TEST_F(NestedRunTest, AnAssignmentWhoseRecordIsGoneFailsTheRun) {
  EXPECT_FALSE(Run({"DIM a", "DIM b", "DIM c", "c=" + kWait, "MSG=nie"}, {"DIM z"}));
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(LogOfBoth(), (Texts{support::kCompleted, support::kStars, kWaited,
                                "Fehler in Funktion MakroAction:Index außerhalb des gültigen Bereichs"}));
}

TEST_F(NestedRunTest, AnAssignmentStoresIntoTheRecordThatHasItsPlaceNow) {
  EXPECT_TRUE(Run({"DIM a", "a=" + kWait, "MSG=nie"}, {"DIM z", "z=VALUE(1)", "MSG=z"}));
  EXPECT_EQ(LogOfBoth(), (Texts{"Variable wurde befüllt: 1", "MSG: 1", support::kCompleted, support::kStars, kWaited,
                                "MSG: ", support::kCompleted, support::kStars}));
}

TEST_F(NestedRunTest, TheSpareRecordIsAPlaceAsWell) {
  EXPECT_TRUE(Run({"DIM a", "a=" + kWait, "MSG=nie"}, {"MSG=0", "MSG=1", "DIM z", "MSG=z"}));
  EXPECT_EQ(LogOfBoth(), (Texts{"MSG: 0", "MSG: 1", "MSG: ", support::kCompleted, support::kStars, kWaited,
                                "MSG: ", support::kCompleted, support::kStars}));
}

TEST_F(NestedRunTest, ALoopOfTheInnerRunIsOpenForTheOuterOne) {
  // The inner run fails inside its loop; the outer one ends with it.
  EXPECT_FALSE(Run({"MSG=a", "WAITFORWINDOW=Später,1,,,0", "MSG=nie"}, {"MSG=0", "DO", "RAISEERROR=kaputt"}));
  EXPECT_EQ(run.LoopStart, 1);
  EXPECT_EQ(LogOfBoth(), (Texts{"MSG: 0", "kaputt", kWaited, "kaputt"}));
}

TEST_F(NestedRunTest, TheBranchOfTheInnerRunIsThatOfTheOuterOne) {
  EXPECT_TRUE(Run({"MSG=a", "WAITFORWINDOW=Später,1,,,0"}, {"MSG=0", "MSG=1", "MSG=2", "IF STRCOMP=a,b"}));
  EXPECT_EQ(LogOfBoth(), (Texts{"MSG: 0", "MSG: 1", "MSG: 2", "STRCOMP: a, b = False", support::kCompleted,
                                support::kStars, kWaited, support::kCompleted, support::kStars}));
}

}  // namespace
