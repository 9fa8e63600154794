// Selecting rows and reading cells in the target's list views, on both Windows families.
#include "automation/list_views.h"

#include <limits>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/memory.h"
#include "platform/system.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

const std::string kNotSelected = "Die Liste konnte nicht ausgewählt werden. ";

void ToNine() { SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10); }

// The record as the list's process finds it.
struct Record {
  std::uint32_t mask = 99;
  std::int32_t iItem = 99, iSubItem = 99;
  std::uint32_t state = 99, stateMask = 99;
  std::int32_t pszText = 99, cchTextMax = 99, iImage = 99, lParam = 99, iIndent = 99;
};

class ListTest : public SystemTest {
 protected:
  ListTest() {
    window_ = TargetWindow("Mandant öffnen");
    Rows({{"4711", "Müller"}, {"4712", "Maier"}, {"4713", "Schulz & Söhne"}});
    run.LastError = "alt";
  }

  // The window's only list.
  void Rows(const std::vector<std::vector<std::string>>& rows) {
    if (list_ != 0) DestroyWindow(list_);
    list_ = AddWindow({.className = "SysListView32", .parent = window_, .id = 5071});
    for (const auto& columns : rows) At(list_).rows.push_back({columns});
  }

  void ManyRows(std::size_t count) { At(list_).rows.assign(count, {{"x"}}); }

  // Carries this out when the list gets the message, before it answers.
  void When(std::uint32_t number, std::function<void(const Message&)> work) {
    At(list_).procedure = [number, work](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == number) work(message);
      return std::nullopt;
    };
  }

  // Keeps the record of each such message.
  void Watch(std::uint32_t number) {
    When(number, [this](const Message& message) {
      Record record;
      EXPECT_TRUE(ReadMemory(At(list_).process, message.lParam, &record, sizeof record));
      records_.push_back(record);
      sizes_.push_back({SizeAskedFor(message.lParam), SizeAskedFor(record.pszText)});
    });
  }

  std::vector<Message> Messages(std::uint32_t number) {
    std::vector<Message> messages;
    for (const Message& message : At(list_).received)
      if (message.number == number) messages.push_back(message);
    return messages;
  }

  std::vector<std::int32_t> Parameters(std::uint32_t number) {
    std::vector<std::int32_t> parameters;
    for (const Message& message : Messages(number)) parameters.push_back(message.wParam);
    return parameters;
  }

  std::vector<std::uint32_t> States() {
    std::vector<std::uint32_t> states;
    for (const ListRow& row : At(list_).rows) states.push_back(row.state);
    return states;
  }

  bool Select() { return SelectList("5071", "Mandant öffnen", "1", ""); }
  bool Read(const std::string& value) { return ReadListItem(value, "5071", "Mandant öffnen", "1"); }
  std::string Cell(std::int32_t column) { return GetListItemText(column, "5071", "Mandant öffnen", "1", ""); }

  static void ExpectNothingLeft() {
    EXPECT_EQ(BlocksLeft(), 0u);
    EXPECT_EQ(HandlesLeft(), 0u);
    EXPECT_EQ(ViewsLeft(), 0u);
  }

  static std::string Found(const std::string& value) { return "Der Wert " + value + " wurde in der Liste gefunden."; }
  static void ExpectNotFound(const std::string& value) {
    EXPECT_EQ(run.LastError, "Der Wert " + value + " konnte in der Liste nicht gefunden werden.");
  }

  std::int32_t window_ = 0;
  std::int32_t list_ = 0;
  std::vector<Record> records_;
  std::vector<std::pair<std::size_t, std::size_t>> sizes_;  // of the record and of its text buffer
};

using SelectListTest = ListTest;
using ReadListItemTest = ListTest;
using GetListItemTextTest = ListTest;
using GetAnlListTest = ListTest;

// "SELECTLIST".

TEST_F(SelectListTest, EachCallSelectsAndFocusesTheNextRow) {
  EXPECT_TRUE(Select());
  EXPECT_EQ(automation.ListIndex, 1);
  EXPECT_EQ(automation.ListCount, 3);
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{3, 0, 0}));
  EXPECT_TRUE(Select());
  EXPECT_EQ(automation.ListIndex, 2);
  ExpectLog({"SelectList 1", "SelectList 2"});
  EXPECT_EQ(run.LastError, "alt");
}

TEST_F(SelectListTest, SelectionOfOtherRowsStays) {
  At(list_).rows[2].state = platform::LVIS_SELECTED;
  Select();
  Select();
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{platform::LVIS_SELECTED, 3, platform::LVIS_SELECTED}));
}

TEST_F(SelectListTest, RecordHoldsRowAndStateAlone) {
  automation.ListIndex = 2;
  Watch(platform::LVM_SETITEMSTATE);
  Select();
  EXPECT_EQ(Parameters(platform::LVM_SETITEMSTATE), std::vector<std::int32_t>{2});
  ASSERT_EQ(records_.size(), 1u);
  const Record& record = records_[0];
  EXPECT_EQ(record.mask, 0u);
  EXPECT_EQ(record.iItem, 2);
  EXPECT_EQ(record.iSubItem, 0);
  EXPECT_EQ(record.state, 3u);
  EXPECT_EQ(record.stateMask, 3u);
  EXPECT_EQ(record.pszText, 0);
  EXPECT_EQ(record.cchTextMax, 0);
  EXPECT_EQ(record.iImage, 0);
  EXPECT_EQ(record.lParam, 0);
  EXPECT_EQ(record.iIndent, 0);
  EXPECT_EQ(sizes_[0].first, 40u);
}

TEST_F(SelectListTest, MarkAndCountAreAskedBeforeTheState) {
  Select();
  std::vector<std::uint32_t> numbers;
  for (const Message& message : At(list_).received) numbers.push_back(message.number);
  EXPECT_EQ(numbers, (std::vector<std::uint32_t>{platform::LVM_GETSELECTIONMARK, platform::LVM_GETITEMCOUNT,
                                                 platform::LVM_SETITEMSTATE}));
}

TEST_F(SelectListTest, NothingIsLeftInTheOtherProcess) {
  for (int i = 0; i < 1000; ++i) Select();
  ExpectNothingLeft();
}

TEST_F(SelectListTest, On9xTheRecordLiesInAMapping) {
  ToNine();
  Watch(platform::LVM_SETITEMSTATE);
  EXPECT_TRUE(Select());
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{3, 0, 0}));
  EXPECT_EQ(automation.ListIndex, 1);
  EXPECT_EQ(automation.ListCount, 3);
  ExpectLog({"SelectList 1"});
  ASSERT_EQ(records_.size(), 1u);
  EXPECT_EQ(records_[0].state, 3u);
  EXPECT_EQ(records_[0].stateMask, 3u);
  EXPECT_EQ(sizes_[0].first, 40u);
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_F(SelectListTest, FamilyIsAskedEachTime) {
  Select();
  ToNine();
  EXPECT_TRUE(Select());
  SetVersion(platform::VER_PLATFORM_WIN32_NT, 5, 1);
  EXPECT_TRUE(Select());
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{platform::LVIS_SELECTED, platform::LVIS_SELECTED, 3}));
}

TEST_F(SelectListTest, EmptyListFailsWithoutAText) {
  Rows({});
  automation.ListIndex = 5;
  automation.ListCount = 7;
  EXPECT_FALSE(Select());
  EXPECT_EQ(run.LastError, "alt");
  EXPECT_EQ(automation.ListIndex, 5);
  EXPECT_EQ(automation.ListCount, 7);
  ExpectLog({});
  EXPECT_TRUE(Messages(platform::LVM_SETITEMSTATE).empty());
}

// A loop over the list would never meet such a count.
TEST_F(SelectListTest, NegativeCountIsNoRow) {
  At(list_).procedure = [](const Message& message) {
    return message.number == platform::LVM_GETITEMCOUNT ? std::optional<std::int32_t>(-3) : std::nullopt;
  };
  EXPECT_FALSE(Select());
  EXPECT_FALSE(Read("4711"));
  EXPECT_EQ(Cell(1), "");
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_EQ(automation.ListCount, 0);
  EXPECT_TRUE(Messages(platform::LVM_GETITEMTEXTW).empty());
  EXPECT_TRUE(Messages(platform::LVM_SETITEMSTATE).empty());
}

TEST_F(SelectListTest, WithoutAControlTheWindowIsNamed) {
  EXPECT_FALSE(SelectList("1", "Mandant öffnen", "1", ""));
  EXPECT_EQ(run.LastError, kNotSelected + "0");
  ExpectLog({});
}

TEST_F(SelectListTest, ControlThatTheSearchTakesForTheWindowIsNamed) {
  EXPECT_FALSE(SelectList("5071", "Import", "1", ""));
  EXPECT_EQ(run.LastError, kNotSelected + std::to_string(list_));
}

TEST_F(SelectListTest, IdThatIsNoNumberFindsNoList) {
  EXPECT_FALSE(SelectList("x", "Mandant öffnen", "1", ""));
  EXPECT_EQ(run.LastError, kNotSelected + "0");
}

TEST_F(SelectListTest, ListIsFoundByItsTextToo) {
  EXPECT_FALSE(SelectList("5071", "Mandant öffnen", "1", "Mandanten"));
  At(list_).text = "Mandanten";
  EXPECT_TRUE(SelectList("5071", "Mandant öffnen", "1", "Mandanten"));
}

TEST_F(SelectListTest, WholeTitleCountsOnlyWhenExactIsOne) {
  EXPECT_FALSE(SelectList("5071", "Mandant", "1", ""));
  EXPECT_TRUE(SelectList("5071", "Mandant", "0", ""));
}

TEST_F(SelectListTest, RowBehindTheLastOneCountsOnAllTheSame) {
  automation.ListIndex = 3;
  EXPECT_TRUE(Select());
  EXPECT_EQ(automation.ListIndex, 4);
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{0, 0, 0}));
  ExpectLog({"SelectList 4"});
}

TEST_F(SelectListTest, CurrentClientIsTheRowThatTheUserHasSelected) {
  clients.InputState = 2;
  At(list_).selectionMark = 1;
  EXPECT_TRUE(Select());
  EXPECT_TRUE(Select());
  EXPECT_EQ(Parameters(platform::LVM_SETITEMSTATE), (std::vector<std::int32_t>{1, 1}));
  EXPECT_EQ(automation.ListIndex, 2);
  At(list_).selectionMark = 2;
  EXPECT_TRUE(Select());
  EXPECT_EQ(automation.ListIndex, 3);
  ExpectLog({"SelectList 2", "SelectList 2", "SelectList 3"});
}

TEST_F(SelectListTest, OtherEndsOfTheInputDialogKeepTheCounter) {
  At(list_).selectionMark = 2;
  for (const std::int32_t state : {0, 1, 3, 4}) {
    clients.InputState = state;
    automation.ListIndex = 0;
    Select();
    EXPECT_EQ(automation.ListIndex, 1) << state;
  }
}

TEST_F(SelectListTest, CurrentClientWithoutASelectionMeansRowMinusOne) {
  clients.InputState = 2;
  automation.ListIndex = 2;
  Watch(platform::LVM_SETITEMSTATE);
  EXPECT_TRUE(Select());
  EXPECT_EQ(Parameters(platform::LVM_SETITEMSTATE), std::vector<std::int32_t>{-1});
  EXPECT_EQ(records_.at(0).iItem, -1);
  EXPECT_EQ(automation.ListIndex, 0);
  ExpectLog({"SelectList 0"});
}

TEST_F(SelectListTest, RowNumberBeyondTheRangeIsAFault) {
  clients.InputState = 2;
  At(list_).selectionMark = std::numeric_limits<std::int32_t>::max();
  EXPECT_FALSE(Select());
  EXPECT_EQ(run.LastError, "Fehler in Funktion SelectList:Überlauf");
  ExpectLog({});
}

TEST_F(SelectListTest, WindowThatVanishesBeforeTheMessageGetsNone) {
  for (const bool nt : {true, false}) {
    if (!nt) ToNine();
    const std::int32_t gone = AddWindow({.className = "ThunderRT6FormDC", .text = "Gleich weg"});
    const std::int32_t list =
        AddWindow({.className = "SysListView32", .parent = gone, .id = 7, .rows = {{{"a"}}, {{"b"}}}});
    At(list).procedure = [gone](const Message& message) -> std::optional<std::int32_t> {
      if (message.number != platform::LVM_GETITEMCOUNT) return std::nullopt;
      DestroyWindow(gone);
      return 2;
    };
    automation = {};
    EXPECT_TRUE(SelectList("7", "Gleich weg", "1", ""));
    EXPECT_EQ(automation.ListCount, 2);
    EXPECT_EQ(automation.ListIndex, 1);
    EXPECT_EQ(BlocksLeft(), 0u);
    EXPECT_EQ(HandlesLeft(), 0u);
  }
}

TEST_F(SelectListTest, FailedAllocationIsPassedOver) {
  Fail("VirtualAllocEx");
  EXPECT_TRUE(Select());
  EXPECT_EQ(Messages(platform::LVM_SETITEMSTATE).at(0).lParam, 0);
  EXPECT_EQ(automation.ListIndex, 1);
  ToNine();
  Fail("CreateFileMappingA");
  EXPECT_TRUE(Select());
  EXPECT_EQ(Messages(platform::LVM_SETITEMSTATE).at(1).lParam, 0);
}

TEST_F(SelectListTest, MacroWalksTheWholeList) {
  EXPECT_TRUE(RunLines({"NEXT VJ", "DO", "SELECTLIST=5071,Mandant öffnen,1", "LOOP UNTIL COUNT", "MSG=fertig"}));
  EXPECT_EQ(Parameters(platform::LVM_SETITEMSTATE), (std::vector<std::int32_t>{0, 1, 2}));
  EXPECT_EQ(automation.ListIndex, 3);
  EXPECT_EQ(States(), (std::vector<std::uint32_t>{platform::LVIS_SELECTED, platform::LVIS_SELECTED, 3}));
}

TEST_F(SelectListTest, FailureEndsTheRun) {
  EXPECT_FALSE(RunLines({"SELECTLIST=1,Mandant öffnen,1", "MSG=nie"}));
  EXPECT_EQ(run.LastError, kNotSelected + "0");
}

// "READLISTITEM".

TEST_F(ReadListItemTest, ValueInTheFirstColumnIsFound) {
  EXPECT_TRUE(Read("4712"));
  ExpectLog({Found("4712")});
  EXPECT_EQ(run.LastError, "alt");
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, OtherColumnsAreNotRead) {
  EXPECT_FALSE(Read("Maier"));
  ExpectNotFound("Maier");
  ExpectLog({});
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, ValueIsComparedAsAWholeAndWithItsCase) {
  Rows({{"Müller"}, {"Österreich €"}});
  EXPECT_FALSE(Read("müller"));
  EXPECT_FALSE(Read("MÜLLER"));
  EXPECT_FALSE(Read("Mülle"));
  EXPECT_FALSE(Read("Müller "));
  EXPECT_TRUE(Read("Müller"));
  EXPECT_TRUE(Read("Österreich €"));
}

TEST_F(ReadListItemTest, RowsBehindTheFoundOneAreNotRead) {
  Read("4712");
  EXPECT_EQ(Messages(platform::LVM_GETITEMTEXTW).size(), 2u);
}

TEST_F(ReadListItemTest, SelectedRowsAreCountedThoughNobodyLooksAtIt) {
  Read("4711");
  std::vector<std::uint32_t> numbers;
  for (const Message& message : At(list_).received) numbers.push_back(message.number);
  EXPECT_EQ(numbers, (std::vector<std::uint32_t>{platform::LVM_GETSELECTEDCOUNT, platform::LVM_GETITEMCOUNT,
                                                 platform::LVM_GETITEMTEXTW}));
}

TEST_F(ReadListItemTest, EmptyListFailsWithoutAText) {
  Rows({});
  EXPECT_FALSE(Read(""));
  EXPECT_EQ(run.LastError, "alt");
  ExpectLog({});
}

TEST_F(ReadListItemTest, WithoutAControlTheValueIsNotFound) {
  EXPECT_FALSE(ReadListItem("4711", "1", "Mandant öffnen", "1"));
  ExpectNotFound("4711");
  EXPECT_FALSE(ReadListItem("4712", "x", "Mandant öffnen", "1"));
  ExpectNotFound("4712");
  EXPECT_FALSE(ReadListItem("4713", "5071", "Mandant", "1"));
  ExpectNotFound("4713");
  EXPECT_TRUE(ReadListItem("4713", "5071", "Mandant", ""));
}

TEST_F(ReadListItemTest, RecordNamesTheRowAndTheParameterIsZero) {
  Watch(platform::LVM_GETITEMTEXTW);
  Read("nie");
  EXPECT_EQ(Parameters(platform::LVM_GETITEMTEXTW), (std::vector<std::int32_t>{0, 0, 0}));
  ASSERT_EQ(records_.size(), 3u);
  for (int row = 0; row < 3; ++row) {
    const Record& record = records_[static_cast<std::size_t>(row)];
    EXPECT_EQ(record.mask, 1u);
    EXPECT_EQ(record.iItem, row);
    EXPECT_EQ(record.iSubItem, 0);
    EXPECT_EQ(record.state, 0u);
    EXPECT_EQ(record.stateMask, 0u);
    EXPECT_NE(record.pszText, 0);
    EXPECT_EQ(record.cchTextMax, 80);
    EXPECT_EQ(record.iImage, 0);
    EXPECT_EQ(record.lParam, 0);
    EXPECT_EQ(record.iIndent, 0);
    EXPECT_EQ(sizes_[static_cast<std::size_t>(row)], (std::pair<std::size_t, std::size_t>{40, 160}));
    // The blocks are allocated once for the verb.
    EXPECT_EQ(record.pszText, records_[0].pszText);
  }
}

TEST_F(ReadListItemTest, TextBufferIsClearedForEachRow) {
  std::vector<std::string> buffers;
  When(platform::LVM_GETITEMTEXTW, [&](const Message& message) {
    Record record;
    ReadMemory(At(list_).process, message.lParam, &record, sizeof record);
    std::string buffer(160, '.');
    ReadMemory(At(list_).process, record.pszText, buffer.data(), buffer.size());
    buffers.push_back(buffer);
  });
  Read("nie");
  EXPECT_EQ(buffers, std::vector<std::string>(3, std::string(160, '\0')));
}

TEST_F(ReadListItemTest, NothingIsWrittenBehindRecordAndText) {
  Rows({{std::string(200, 'x')}, {std::string(200, 'y')}});
  const std::string guard = "GUARD";
  std::vector<std::string> behind;
  When(platform::LVM_GETITEMTEXTW, [&](const Message& message) {
    const std::uint32_t process = At(list_).process;
    Record record;
    ReadMemory(process, message.lParam, &record, sizeof record);
    for (const std::int32_t end : {message.lParam + 40, record.pszText + 160}) {
      std::string bytes(guard.size(), '.');
      ReadMemory(process, end, bytes.data(), bytes.size());
      behind.push_back(bytes);
      WriteMemory(process, end, guard.data(), guard.size());
    }
  });
  Read("nie");
  const std::string cleared(guard.size(), '\0');
  EXPECT_EQ(behind, (std::vector<std::string>{cleared, cleared, guard, guard}));
}

TEST_F(ReadListItemTest, ListThatGoesByTheParameterAnswersWithTheSameRow) {
  At(list_).rowFromParameter = true;
  EXPECT_FALSE(Read("4712"));
  EXPECT_EQ(Messages(platform::LVM_GETITEMTEXTW).size(), 3u);
  EXPECT_TRUE(Read("4711"));
}

TEST_F(ReadListItemTest, CellIsSeenAsItsFirst40Characters) {
  const std::string fifty = "1234567890123456789012345678901234567890äöüß567890";
  Rows({{fifty}});
  EXPECT_FALSE(Read(fifty));
  ExpectNotFound(fifty);
  EXPECT_TRUE(Read(fifty.substr(0, 40)));
  EXPECT_FALSE(Read(fifty.substr(0, 39)));
}

TEST_F(ReadListItemTest, CharacterThatTheCodePageLacksIsAQuestionMark) {
  At(list_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::LVM_GETITEMTEXTW) return std::nullopt;
    Record record;
    ReadMemory(At(list_).process, message.lParam, &record, sizeof record);
    WriteMemory(At(list_).process, record.pszText, u"\u0141\u00F3d\u017A", 10);
    return 1;
  };
  EXPECT_TRUE(Read("?ód?"));
}

TEST_F(ReadListItemTest, AThousandLeaveNothingBehind) {
  for (int i = 0; i < 500; ++i) {
    EXPECT_TRUE(Read("4713"));
    EXPECT_FALSE(Read("nie"));
  }
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, On9xEachRowIsLogged) {
  ToNine();
  EXPECT_TRUE(Read("4712"));
  EXPECT_FALSE(Read("nie"));
  ExpectNotFound("nie");
  ExpectLog({"ReadListItem 4711", "ReadListItem 4712", Found("4712"), "ReadListItem 4711", "ReadListItem 4712",
             "ReadListItem 4713"});
  EXPECT_EQ(BlocksLeft(), 0u);
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_F(ReadListItemTest, On9xTheParameterNamesTheRowAndTheRecordStatesARoomOf800) {
  ToNine();
  Watch(platform::LVM_GETITEMTEXTA);
  Read("nie");
  EXPECT_EQ(Parameters(platform::LVM_GETITEMTEXTA), (std::vector<std::int32_t>{0, 1, 2}));
  ASSERT_EQ(records_.size(), 3u);
  for (const Record& record : records_) {
    EXPECT_EQ(record.mask, 0u);
    EXPECT_EQ(record.iItem, 0);
    EXPECT_EQ(record.iSubItem, 0);
    EXPECT_EQ(record.state, 0u);
    EXPECT_EQ(record.stateMask, 0u);
    EXPECT_NE(record.pszText, 0);
    EXPECT_EQ(record.cchTextMax, 800);
    EXPECT_EQ(record.iImage, 0);
    EXPECT_EQ(record.lParam, 0);
    EXPECT_EQ(record.iIndent, 0);
  }
  EXPECT_EQ(sizes_[0], (std::pair<std::size_t, std::size_t>{40, 80}));
}

TEST_F(ReadListItemTest, On9xCellIsSeenAsItsFirst80Characters) {
  ToNine();
  const std::string fifty(50, 'x');
  const std::string hundred(100, 'y');
  Rows({{fifty}, {hundred}});
  EXPECT_TRUE(Read(fifty));
  EXPECT_FALSE(Read(hundred));
  EXPECT_TRUE(Read(hundred.substr(0, 80)));
}

TEST_F(ReadListItemTest, On9xUnmappingMissesTheViewsAndTheyStay) {
  ToNine();
  Read("4711");
  EXPECT_EQ(ViewsLeft(), 2u);
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_F(ReadListItemTest, RowsAreNumberedWith16Bits) {
  for (const bool nt : {true, false}) {
    if (!nt) ToNine();
    ManyRows(32768);
    At(list_).rows.back().columns = {"letzte"};
    EXPECT_TRUE(Read("letzte"));
    ManyRows(32769);
    EXPECT_FALSE(Read("x"));
    EXPECT_EQ(run.LastError, "Fehler in Funktion ReadListItem:Überlauf");
  }
}

TEST_F(ReadListItemTest, FaultLeavesTheBlocksAsTheyAre) {
  ManyRows(32769);
  Read("x");
  EXPECT_EQ(BlocksLeft(), 2u);
  EXPECT_EQ(HandlesLeft(), 2u);
}

TEST_F(ReadListItemTest, RowThatHasGoneGivesAnEmptyText) {
  When(platform::LVM_GETITEMTEXTW, [&](const Message&) {
    auto& rows = At(list_).rows;
    if (rows.size() > 1) rows.pop_back();
  });
  EXPECT_FALSE(Read("4713"));
  EXPECT_EQ(Messages(platform::LVM_GETITEMTEXTW).size(), 3u);
  EXPECT_TRUE(Read("4711"));
  ManyRows(3);
  EXPECT_TRUE(Read(""));
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, On9xRowThatHasGoneShowsTheRowBeforeIt) {
  ToNine();
  When(platform::LVM_GETITEMTEXTA, [&](const Message& message) {
    if (message.wParam == 1) At(list_).rows.resize(1);
  });
  EXPECT_FALSE(Read("4713"));
  ExpectLog({"ReadListItem 4711", "ReadListItem 4711", "ReadListItem 4711"});
}

TEST_F(ReadListItemTest, WindowThatVanishesInTheMiddleYieldsEmptyTexts) {
  When(platform::LVM_GETITEMTEXTW, [&](const Message& message) {
    if (message.wParam == 0 && Exists(window_)) DestroyWindow(window_);
  });
  EXPECT_FALSE(Read("4712"));
  ExpectNotFound("4712");
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, WindowThatVanishesBeforeTheFirstRowYieldsEmptyTexts) {
  At(list_).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::LVM_GETITEMCOUNT) return std::nullopt;
    DestroyWindow(window_);
    return 3;
  };
  EXPECT_FALSE(Read("4712"));
  ExpectNotFound("4712");
  ExpectNothingLeft();
}

TEST_F(ReadListItemTest, FailedAllocationFindsNothing) {
  Fail("VirtualAllocEx");
  EXPECT_FALSE(Read("4711"));
  ExpectNotFound("4711");
  EXPECT_EQ(HandlesLeft(), 0u);
}

TEST_F(ReadListItemTest, On9xFailedAllocationFindsNothing) {
  ToNine();
  Fail("CreateFileMappingA");
  EXPECT_FALSE(Read("4711"));
  ExpectNotFound("4711");
}

TEST_F(ReadListItemTest, ConditionTurnsToTheOtherBranch) {
  EXPECT_TRUE(RunLines({"IF READLISTITEM=4712,5071,Mandant öffnen,1", "MSG=da", "ENDIF",
                        "IF READLISTITEM=4799,5071,Mandant öffnen,1", "MSG=nie", "ENDIF"}));
  ExpectLog(Completed({Found("4712"), "MSG: da"}));
}

TEST_F(ReadListItemTest, FailureEndsTheRun) {
  EXPECT_FALSE(RunLines({"READLISTITEM=4799,5071,Mandant öffnen,1", "MSG=nie"}));
  ExpectNotFound("4799");
}

// The text of the selected row.

TEST_F(GetListItemTextTest, IsThatOfTheRowThatWasSelectedLast) {
  Select();
  Select();
  EXPECT_EQ(Cell(0), "4712");
  EXPECT_EQ(Cell(1), "Maier");
  ExpectLog({"SelectList 1", "SelectList 2", "GetListItemText 4712(1)", "GetListItemText Maier(1)"});
  EXPECT_EQ(run.LastError, "alt");
  ExpectNothingLeft();
}

TEST_F(GetListItemTextTest, RecordNamesRowAndColumnAndTheParameterIsZero) {
  automation.ListIndex = 3;
  Watch(platform::LVM_GETITEMTEXTW);
  EXPECT_EQ(Cell(1), "Schulz & Söhne");
  EXPECT_EQ(Parameters(platform::LVM_GETITEMTEXTW), std::vector<std::int32_t>{0});
  ASSERT_EQ(records_.size(), 1u);
  EXPECT_EQ(records_[0].mask, 1u);
  EXPECT_EQ(records_[0].iItem, 2);
  EXPECT_EQ(records_[0].iSubItem, 1);
  EXPECT_EQ(records_[0].cchTextMax, 80);
}

TEST_F(GetListItemTextTest, BeforeAnySelectionTheRowIsMinusOne) {
  Watch(platform::LVM_GETITEMTEXTW);
  EXPECT_EQ(Cell(0), "<unbekannt>");
  EXPECT_EQ(records_.at(0).iItem, -1);
  ExpectLog({"GetListItemText (-1)"});
  EXPECT_EQ(run.LastError, "alt");
}

TEST_F(GetListItemTextTest, EmptyCellIsUnknown) {
  automation.ListIndex = 1;
  EXPECT_EQ(Cell(2), "<unbekannt>");
  ExpectLog({"GetListItemText (0)"});
}

TEST_F(GetListItemTextTest, EmptyListGivesTheEmptyText) {
  Rows({});
  EXPECT_EQ(Cell(0), "");
  ExpectLog({});
  EXPECT_EQ(run.LastError, "alt");
}

TEST_F(GetListItemTextTest, WithoutAControlItIsUnknown) {
  EXPECT_EQ(GetListItemText(1, "1", "Mandant öffnen", "1", ""), "<unbekannt>");
  EXPECT_EQ(run.LastError, "GetListItemText: Steuerelement konnte nicht gefunden werden.");
  ExpectLog({});
}

TEST_F(GetListItemTextTest, WholeTitleCountsOnlyWhenExactIsOne) {
  automation.ListIndex = 1;
  EXPECT_EQ(GetListItemText(0, "5071", "Mandant", "1", ""), "<unbekannt>");
  EXPECT_EQ(GetListItemText(0, "5071", "Mandant", "0", ""), "4711");
}

TEST_F(GetListItemTextTest, ListMayBeOfAnotherClass) {
  automation.ListIndex = 1;
  AddWindow({.className = "Anlagenliste", .parent = window_, .id = 5072, .rows = {{{"0100", "Gebäude"}}}});
  EXPECT_EQ(GetListItemText(1, "5072", "Mandant öffnen", "1", "Anlagenliste"), "Gebäude");
  EXPECT_EQ(GetListItemText(1, "5072", "Mandant öffnen", "1", ""), "<unbekannt>");
}

TEST_F(GetListItemTextTest, On9xTheFirstColumnIsReadWhateverIsAsked) {
  ToNine();
  automation.ListIndex = 2;
  EXPECT_EQ(Cell(1), "4712");
  EXPECT_EQ(Parameters(platform::LVM_GETITEMTEXTA), std::vector<std::int32_t>{1});
  ExpectLog({});
}

TEST_F(GetListItemTextTest, On9xBeforeAnySelectionTheRowIsMinusOne) {
  ToNine();
  EXPECT_EQ(Cell(0), "<unbekannt>");
  EXPECT_EQ(Parameters(platform::LVM_GETITEMTEXTA), std::vector<std::int32_t>{-1});
}

TEST_F(GetListItemTextTest, FaultGivesTheEmptyText) {
  automation.ListIndex = 1;
  // The system turns into one that cannot free the blocks.
  When(platform::LVM_GETITEMTEXTW, [](const Message&) { ToNine(); });
  EXPECT_EQ(Cell(0), "");
  EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion GetListItemText:")) << run.LastError;
}

// "GETANLLIST".

TEST_F(GetAnlListTest, LogsTheTextOfTheSelectedRow) {
  automation.ListIndex = 2;
  EXPECT_TRUE(RunLines({"SELECTLIST=5071,Mandant öffnen", "GETANLLIST=1,5071,Mandant öffnen"}));
  ExpectLog(Completed({"SelectList 1", "GetListItemText Müller(0)", "Müller"}));
}

TEST_F(GetAnlListTest, WindowNeedsOnlyAPartOfItsTitle) {
  automation.ListIndex = 1;
  EXPECT_TRUE(GetAnlList("0", "5071", "Mandant", ""));
  ExpectLog({"GetListItemText 4711(0)", "4711"});
}

TEST_F(GetAnlListTest, FourthArgumentIsTheClass) {
  automation.ListIndex = 1;
  AddWindow({.className = "Anlagenliste", .parent = window_, .id = 5072, .rows = {{{"0100"}}}});
  EXPECT_TRUE(GetAnlList("0", "5072", "Mandant", "Anlagenliste"));
  ExpectLog({"GetListItemText 0100(0)", "0100"});
}

TEST_F(GetAnlListTest, ColumnThatIsNoNumberLogsNothing) {
  for (const char* column : {"", "x", "99999999999"}) EXPECT_TRUE(GetAnlList(column, "5071", "Mandant", ""));
  ExpectLog({});
  EXPECT_TRUE(Messages(platform::LVM_GETITEMCOUNT).empty());
}

TEST_F(GetAnlListTest, NeverFails) {
  EXPECT_TRUE(RunLines({"GETANLLIST=0,1,Mandant öffnen"}));
  ExpectLog(Completed({"<unbekannt>"}));
  Rows({});
  EXPECT_TRUE(GetAnlList("0", "5071", "Mandant", ""));
}

// "SETFOLDERPATH".

class SetFolderPathTest : public SystemTest {
 protected:
  SetFolderPathTest() {
    dialog_ = TargetWindow("Ordner suchen");
    At(dialog_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
      if (message.number != platform::BFFM_SETSELECTIONA) return std::nullopt;
      parameter_ = message.wParam;
      size_ = SizeAskedFor(message.lParam);
      path_.assign(20, '.');
      if (!ReadMemory(At(dialog_).process, message.lParam, path_.data(), path_.size())) path_ = "unerreichbar";
      if (during_) during_();
      return 0;
    };
  }

  std::int32_t dialog_;
  std::int32_t parameter_ = 0;
  std::size_t size_ = 0;
  std::string path_ = "nicht gesendet";
  std::function<void()> during_;
};

TEST_F(SetFolderPathTest, DialogGetsThePathInItsOwnMemory) {
  EXPECT_EQ(SetFolderPath("Ordner suchen", "1", "C:\\Prüfung"), "True");
  EXPECT_EQ(parameter_, -1);
  EXPECT_EQ(path_, std::string("C:\\Prüfung\0\0\0\0\0\0\0\0\0\0", 20));
  ExpectLog({"C:\\Prüfung"});
}

TEST_F(SetFolderPathTest, NoTerminatingZeroIsCounted) {
  SetFolderPath("Ordner suchen", "1", "C:\\Prüfung");
  EXPECT_EQ(size_, 10u);
}

TEST_F(SetFolderPathTest, OneBlockIsGivenUp) {
  SetFolderPath("Ordner suchen", "1", "C:\\Export");
  EXPECT_EQ(BlocksLeft(), 1u);
  EXPECT_EQ(HandlesLeft(), 1u);
  SetFolderPath("Ordner suchen", "1", "C:\\Export");
  EXPECT_EQ(BlocksLeft(), 2u);
  EXPECT_EQ(ViewsLeft(), 0u);
}

TEST_F(SetFolderPathTest, On9xThePathLiesInAMapping) {
  SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  EXPECT_EQ(SetFolderPath("Ordner suchen", "1", "C:\\Prüfung"), "True");
  EXPECT_EQ(parameter_, -1);
  EXPECT_EQ(size_, 10u);
  EXPECT_EQ(path_, std::string("C:\\Prüfung\0\0\0\0\0\0\0\0\0\0", 20));
  EXPECT_EQ(run.LastError, "");
  ExpectLog({"C:\\Prüfung"});
  EXPECT_EQ(ViewsLeft(), 1u);
}

TEST_F(SetFolderPathTest, EmptyPathReachesTheDialogWithoutMemory) {
  EXPECT_EQ(SetFolderPath("Ordner suchen", "1", ""), "True");
  EXPECT_EQ(path_, "unerreichbar");
  ExpectLog({""});
  SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  EXPECT_EQ(SetFolderPath("Ordner suchen", "1", ""), "True");
}

TEST_F(SetFolderPathTest, WithoutAWindowItSucceedsAllTheSame) {
  EXPECT_EQ(SetFolderPath("Suche", "1", "C:\\Export"), "True");
  EXPECT_EQ(path_, "nicht gesendet");
  ExpectLog({"C:\\Export"});
  EXPECT_EQ(SetFolderPath("suchen", "", "C:\\Export"), "True");
  EXPECT_EQ(size_, 9u);
}

TEST_F(SetFolderPathTest, VerbPassesItsThreeArgumentsInOrder) {
  EXPECT_TRUE(RunLines({"SETFOLDERPATH=Ordner,0,'C:\\a,b'"}));
  EXPECT_EQ(path_.substr(0, 7), std::string("C:\\a,b\0", 7));
  ExpectLog(Completed({"C:\\a,b"}));
}

TEST_F(SetFolderPathTest, FaultIsNoTruthForTheDispatcher) {
  during_ = [] { SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10); };
  EXPECT_EQ(SetFolderPath("Ordner suchen", "1", "C:\\Export"), "");
  EXPECT_TRUE(run.LastError.starts_with("Fehler in Funktion SetFolderPath:")) << run.LastError;
  SetVersion(platform::VER_PLATFORM_WIN32_NT, 5, 1);
  EXPECT_FALSE(RunLines({"SETFOLDERPATH=Ordner suchen,1,C:\\Export", "MSG=nie"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion MakroExecute:Typen unverträglich");
}

// Texts in buffers.

TEST(StripNullTest, TextEndsAtItsFirstZero) {
  EXPECT_EQ(StripNull(std::string("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(StripNull(std::string("\0ab", 3)), "");
}

TEST(StripNullTest, TextWithoutAZeroIsWhole) {
  EXPECT_EQ(StripNull("abc"), "abc");
  EXPECT_EQ(StripNull(""), "");
}

}  // namespace
