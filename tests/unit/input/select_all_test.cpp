// "SELECTALL": keys that select every row of a list.
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "input/key_verbs.h"
#include "platform/input.h"
#include "platform/window_lookup.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

class SelectAllTest : public ControlTest {
 protected:
  SelectAllTest() { frmStatus.Show(); }

  // A list of so many rows, all of which Ctrl+A selects.
  std::int32_t List(std::int32_t id, std::size_t rows, std::int32_t parent = 0) {
    const std::int32_t list = Child("SysListView32", "", id, parent);
    At(list).rows.resize(rows);
    When(list, platform::WM_CHAR, [list](const Message& message) {
      if (message.wParam == 1)
        for (ListRow& row : At(list).rows) row.state |= platform::LVIS_SELECTED;
      return std::nullopt;
    });
    return list;
  }

  static std::string Selected(int rows) { return "Die Liste wurde ausgewählt (" + std::to_string(rows) + ")"; }
  static void ExpectNotSelected() { ExpectFailure("Die Liste konnte nicht ausgewählt werden."); }
};

TEST_F(SelectAllTest, AllRowsAreSelectedByTheKeys) {
  const std::int32_t other = List(4, 1);
  List(5, 3);
  EXPECT_TRUE(SelectAll("5", "Export", "1", ""));
  ExpectLog({Selected(3)});
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(At(other).rows[0].state, 0u);
}

TEST_F(SelectAllTest, TheFocusMovesToTheListWhileTheQueuesAreJoined) {
  const std::int32_t list = List(5, 3);
  std::uint32_t process = 0;
  const std::string threads = std::to_string(platform::GetWindowThreadProcessId(window_, process)) + " " +
                              std::to_string(platform::GetWindowThreadProcessId(frmStatus.hWnd(), process));
  EXPECT_TRUE(SelectAll("5", "Export", "1", ""));
  const Lines& input = InputLog();
  ASSERT_GE(input.size(), 5u);
  const std::string status = "SetWindowPos " + std::to_string(frmStatus.hWnd());
  EXPECT_EQ(input.front(), status + " -2");
  EXPECT_EQ(input[1], "AttachThreadInput " + threads + " 1");
  EXPECT_EQ(input[2], "SetForegroundWindow " + std::to_string(window_));
  EXPECT_EQ(input[3], "SetFocus " + std::to_string(list));
  EXPECT_EQ(*std::prev(input.end(), 2), "AttachThreadInput " + threads + " 0");
  EXPECT_EQ(input.back(), status + " -1");
  EXPECT_EQ(TypedText(list), "\x01");
  EXPECT_TRUE(At(frmStatus.hWnd()).topMost);
}

TEST_F(SelectAllTest, TheQueueIsThatOfTheWindowAlsoWhenAnotherIsTheTarget) {
  List(5, 3);
  frame.MainWindow = AddWindow({.className = "X", .text = "Ziel", .process = At(window_).process + 1});
  std::uint32_t process = 0;
  const std::string thread = std::to_string(platform::GetWindowThreadProcessId(window_, process));
  EXPECT_TRUE(SelectAll("5", "Export", "1", ""));
  EXPECT_TRUE(InputLog()[1].starts_with("AttachThreadInput " + thread + " ")) << InputLog()[1];
}

TEST_F(SelectAllTest, TheCountsAreAskedForAfterTheKeys) {
  const std::int32_t list = List(5, 3);
  EXPECT_TRUE(SelectAll("5", "Export", "1", ""));
  const Numbers numbers = ReceivedNumbers(list);
  ASSERT_GE(numbers.size(), 3u);
  EXPECT_EQ(Numbers(numbers.end() - 2, numbers.end()),
            (Numbers{platform::LVM_GETSELECTEDCOUNT, platform::LVM_GETITEMCOUNT}));
}

TEST_F(SelectAllTest, TheListMayBeBelowAParent) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 13);
  List(5, 2);
  const std::int32_t list = List(5, 3, frame);
  EXPECT_TRUE(SelectAll("5", "Export", "1", "13"));
  ExpectLog({Selected(3)});
  EXPECT_EQ(TypedText(list), "\x01");
  // The parent stands for the window in all that follows.
  EXPECT_EQ(InputLog()[2], "SetForegroundWindow " + std::to_string(frame));
}

TEST_F(SelectAllTest, TheFirstChildStandsInForAParentThatIsMissing) {
  List(5, 3, Child("ThunderRT6Frame", "", 12));
  List(5, 4, Child("ThunderRT6Frame", "", 14));
  EXPECT_TRUE(SelectAll("5", "Export", "1", "13"));
  EXPECT_TRUE(SelectAll("5", "Export", "1", "x"));
  EXPECT_TRUE(SelectAll("5", "Export", "1", "14"));
  ExpectLog({Selected(3), Selected(3), Selected(4)});
}

TEST_F(SelectAllTest, ThereIsNoDeepSearch) {
  List(5, 3, Child("ThunderRT6Frame", "", 13));
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectNotSelected();
  EXPECT_TRUE(InputLog().empty());
}

TEST_F(SelectAllTest, WithoutAListItFails) {
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectNotSelected();
  EXPECT_FALSE(SelectAll("5", "Export", "1", "13"));
  ExpectNotSelected();
  EXPECT_FALSE(SelectAll("5", "Import", "1", ""));
  ExpectNotSelected();
  EXPECT_FALSE(SelectAll("5", "Import", "1", "13"));
  ExpectNotSelected();
}

TEST_F(SelectAllTest, AnEmptyListWritesTheLineOfSuccessAndFails) {
  List(5, 0);
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectLog({Selected(0)});
  EXPECT_EQ(run.LastError, "In der Liste sind keine Einträge vorhanden.");
}

TEST_F(SelectAllTest, RowsThatAreLeftOutFail) {
  Answer(List(5, 3), platform::LVM_GETSELECTEDCOUNT, 2);
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectNotSelected();
}

TEST_F(SelectAllTest, MoreSelectedRowsThanThereAreFail) {
  Answer(List(5, 3), platform::LVM_GETSELECTEDCOUNT, 4);
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectNotSelected();
}

TEST_F(SelectAllTest, AnEmptyListThatTellsOfSelectedRowsIsEmpty) {
  Answer(List(5, 0), platform::LVM_GETSELECTEDCOUNT, 2);
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectFailure("In der Liste sind keine Einträge vorhanden.");
}

TEST_F(SelectAllTest, AListThatVanishesByTheKeysIsEmpty) {
  VanishAt(List(5, 3), platform::WM_CHAR);
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectLog({Selected(0)});
  EXPECT_EQ(run.LastError, "In der Liste sind keine Einträge vorhanden.");
}

TEST_F(SelectAllTest, AWindowThatVanishesByTheKeysLeavesNoQueuesJoined) {
  When(List(5, 3), platform::WM_KEYDOWN, [this](const Message&) {
    DestroyWindow(window_);
    return 0;
  });
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  const std::string parting = *std::prev(InputLog().end(), 2);
  EXPECT_TRUE(parting.starts_with("AttachThreadInput") && parting.ends_with("0")) << parting;
  EXPECT_TRUE(At(frmStatus.hWnd()).topMost);
}

TEST_F(SelectAllTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  List(5, 3);
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(SelectAll("5", "Export", "1", ""));
  ExpectNotSelected();
}

TEST_F(SelectAllTest, AnIdThatIsNoNumberMeansTheId0) {
  List(0, 3);
  EXPECT_TRUE(SelectAll("x", "Export", "1", ""));
  ExpectLog({Selected(3)});
}

TEST_F(SelectAllTest, AnIdMayBeBeyond16Bits) {
  List(40000, 3, Child("ThunderRT6Frame", "", 40001));
  EXPECT_TRUE(SelectAll("40000", "Export", "1", "40001"));
  ExpectLog({Selected(3)});
}

TEST_F(SelectAllTest, AnIdBeyond32BitsEndsInTheStandardHandler) {
  EXPECT_FALSE(SelectAll("99999999999", "Export", "1", ""));
  ExpectFailure("Fehler in Funktion SelectAll:Überlauf");
  EXPECT_FALSE(SelectAll("5", "Export", "1", "99999999999"));
  ExpectFailure("Fehler in Funktion SelectAll:Überlauf");
}

TEST_F(SelectAllTest, TheVerbsPassTheirFourArgumentsInOrder) {
  List(5, 3, Child("ThunderRT6Frame", "", 13));
  EXPECT_TRUE(RunLines({"SELECTALL=5,Expor,0,13", "IF SELECTALL=5,Export,1,13", "MSG=ja", "ENDIF",
                        "IF SELECTALL=5,Export,1", "MSG=nie", "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectLog(Completed({Selected(3), Selected(3), "MSG: ja", "MSG: sonst"}));
}

TEST_F(SelectAllTest, AFailureFailsTheRun) {
  List(5, 0);
  EXPECT_FALSE(RunLines({"SELECTALL=5,Export,1", "MSG=nie"}));
  ExpectLog({Selected(0), "In der Liste sind keine Einträge vorhanden."});
}

}  // namespace
