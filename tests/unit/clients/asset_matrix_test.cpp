// The table of business years of the asset accounting.
#include "clients/asset_matrix.h"

#include <algorithm>
#include <map>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/messages.h"
#include "platform/registry.h"
#include "platform/settings.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Texts = std::vector<std::string>;

const std::string kBuilt = "Matrix erfolgreich aufgebaut";
const std::string kNoAreas = "Matrix konnte nicht erstellt werden";
const std::string kNotSelected = "Fail to Select ComboBox";
const std::string kDestination = "GetTeRuDestination (2. RegValue): C:\\TeRu";
const std::string kMade = "Ausgabeverzeichnis erstellt: C:\\TeRu\\";
const std::string kNoDate = "Fehler in Funktion CreateMatrix:Typen unverträglich";
const std::string kNoBounds = "Fehler in Funktion CreateMatrix:Index außerhalb des gültigen Bereichs";

constexpr std::int32_t kYears = 12;
constexpr std::int32_t kAreas = 11;

// The target's dialog: a choice of the area fills the combo box of years.
class AssetMatrixTest : public SystemTest {
 protected:
  AssetMatrixTest() {
    InstallSuite();
    dialog_ = AddWindow({.className = "ThunderRT6FormDC",
                         .text = "Anlagen exportieren",
                         .procedure = [this](const Message& message) -> std::optional<std::int32_t> {
                           if (message.number == platform::WM_COMMAND && (message.wParam & 0xFFFF) == kAreas)
                             AreaChosen();
                           return std::nullopt;
                         }});
    areas_ = AddWindow({.className = "ComboBox", .parent = dialog_, .id = kAreas});
    years_ = AddWindow({.className = "ComboBox", .parent = dialog_, .id = kYears});
  }

  struct Area {
    std::string name;
    Texts years;
  };

  void SetAreas(const std::vector<Area>& areas) {
    areaList_ = areas;
    Texts names;
    for (const Area& area : areas) names.push_back(area.name);
    At(areas_).entries = names;
  }

  void AreaChosen() {
    const auto index = static_cast<std::size_t>(At(areas_).selection);
    if (index < areaList_.size() && Exists(years_)) At(years_).entries = areaList_[index].years;
  }

  bool Create(const std::string& text = "") {
    return CreateMatrix(std::to_string(kYears), std::to_string(kAreas), "Anlagen exportieren", "1", text);
  }

  static void FirstYear(const std::string& value) {
    platform::WritePrivateProfileStringA("Vorlage", "WirtschaftsjahrAb", value, ConfigFile());
  }

  static std::string ConfigFile() {
    PutFile("C:\\TeRu\\Import\\anl\\.keep", "");
    return "C:\\TeRu\\Import\\anl\\kanzrewe.cfg";
  }

  static Texts Column(std::string MatrixRow::*field) {
    Texts texts;
    for (const MatrixRow& row : clients.Matrix) texts.push_back(row.*field);
    return texts;
  }
  static Texts Begins() { return Column(&MatrixRow::Beginn); }
  static Texts Ends() { return Column(&MatrixRow::Ende); }
  static Texts Areas() { return Column(&MatrixRow::Bereich); }
  static std::vector<bool> Checks() {
    std::vector<bool> checks;
    for (const MatrixRow& row : clients.Matrix) checks.push_back(row.Checked);
    return checks;
  }

  static std::ptrdiff_t LogCount(const std::string& line) {
    const Texts log = Log();
    return std::count(log.begin(), log.end(), line);
  }

  static void SetRows(const Texts& begins) {
    clients.Matrix.clear();
    for (const std::string& begin : begins) clients.Matrix.push_back({.Bereich = "Inventar", .Beginn = begin});
  }

  std::int32_t dialog_ = 0;
  std::int32_t areas_ = 0;
  std::int32_t years_ = 0;
  std::vector<Area> areaList_;
};

// "CREATEMATRIX".

TEST_F(AssetMatrixTest, TheYearsOfAllAreasAreMergedAndSorted) {
  SetAreas({{"Inventar", {"01.01.2004", "01.01.2005"}}, {"Leasing", {"01.01.2003", "01.01.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), (Texts{"01.01.2003", "01.01.2004", "01.01.2005"}));
  EXPECT_EQ(Areas(), (Texts{"Leasing", "Inventar", "Inventar"}));
  EXPECT_EQ(Ends(), (Texts{"31.12.2003", "31.12.2004", "31.12.2005"}));
  EXPECT_EQ(Checks(), (std::vector{false, false, false}));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(AssetMatrixTest, TheWorkIsLogged) {
  SetAreas({{"Inventar", {"01.01.2004"}}});
  EXPECT_TRUE(Create());
  const std::string selected = "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden. ";
  ExpectLog({selected + "Inventar;...",
             "Select Combo-> HWNDCTL: " + std::to_string(areas_) + "Parent: " + std::to_string(dialog_),
             selected + "Sel: 0", "ConfirmDialog: Hinweis / Die Inventarauswahl für die Arbeit mit dem",
             selected + "01.01.2004;...", kDestination, kMade, kBuilt});
}

TEST_F(AssetMatrixTest, AYearOfTwoAreasStaysOnceWithTheFirstArea) {
  SetAreas({{"A", {"01.01.2004"}}, {"B", {"01.01.2004"}}, {"C", {"01.01.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
  EXPECT_EQ(Areas(), Texts{"A"});
}

TEST_F(AssetMatrixTest, TextsOfYearsAreComparedExactly) {
  SetAreas({{"A", {"01.01.2004", "1.1.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), (Texts{"01.01.2004", "1.1.2004"}));
  EXPECT_EQ(Ends(), (Texts{"31.12.2003", "31.12.2004"}));
}

TEST_F(AssetMatrixTest, AYearEntryCountsByItsFirstTenCharacters) {
  SetAreas({{"A", {"01.07.2004 - 30.06.2005", "01.07.2004 (alt)"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"01.07.2004"});
  EXPECT_EQ(Ends(), Texts{"30.06.2005"});
}

TEST_F(AssetMatrixTest, AYearEndsWhereTheNextBegins) {
  SetAreas({{"A", {"01.01.2003", "01.07.2004", "01.07.2005"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Ends(), (Texts{"30.06.2004", "30.06.2005", "30.06.2006"}));
}

TEST_F(AssetMatrixTest, AShortYearEndsWhereTheNextBegins) {
  SetAreas({{"A", {"01.01.2004", "01.04.2004", "01.03.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), (Texts{"01.01.2004", "01.03.2004", "01.04.2004"}));
  EXPECT_EQ(Ends(), (Texts{"29.02.2004", "31.03.2004", "31.03.2005"}));
}

TEST_F(AssetMatrixTest, AYearFromTheLastOfFebruaryFallsBackTwice) {
  SetAreas({{"A", {"29.02.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Ends(), Texts{"27.02.2005"});
}

TEST_F(AssetMatrixTest, AnEmptyYearEntryIsPassedOver) {
  SetAreas({{"A", {"", "01.01.2004", ""}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(AssetMatrixTest, AnAreaWithoutYearsAddsNothing) {
  SetAreas({{"A", {}}, {"B", {"01.01.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Areas(), Texts{"B"});
}

TEST_F(AssetMatrixTest, ASemicolonInAYearEntryMakesTwo) {
  SetAreas({{"A", {"01.01.2004;01.01.2003"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), (Texts{"01.01.2003", "01.01.2004"}));
}

TEST_F(AssetMatrixTest, ASemicolonInAnAreaEntryMakesTwoOfWhichTheLastCannotBeSelected) {
  SetAreas({{"A;B", {"01.01.2003"}}, {"C", {"01.01.2004"}}});
  EXPECT_TRUE(Create());
  // The names are shifted against the entries, and the years of the third name are those that are shown anyway.
  EXPECT_EQ(Begins(), (Texts{"01.01.2003", "01.01.2004"}));
  EXPECT_EQ(Areas(), (Texts{"A", "B"}));
  EXPECT_EQ(LogCount(kNotSelected), 1);
}

TEST_F(AssetMatrixTest, WithoutTheAreasTheVerbFailsAndTheTableStays) {
  SetRows({"01.01.1999"});
  DestroyWindow(areas_);
  EXPECT_FALSE(Create());
  EXPECT_EQ(run.LastError, kNoAreas);
  EXPECT_EQ(Begins(), Texts{"01.01.1999"});
  ExpectLog({});
}

TEST_F(AssetMatrixTest, AnIdThatIsNoNumberFails) {
  SetAreas({{"A", {"01.01.2004"}}});
  EXPECT_FALSE(CreateMatrix("12", "elf", "Anlagen exportieren", "1", ""));
  EXPECT_EQ(run.LastError, kNoAreas);
}

TEST_F(AssetMatrixTest, WithoutTheYearsWhatIsCollectedCounts) {
  SetAreas({{"A", {"01.01.2004"}}, {"B", {"01.01.2003"}}});
  At(dialog_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_COMMAND) return std::nullopt;
    if (At(areas_).selection == 0) AreaChosen();
    else DestroyWindow(years_);
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
  EXPECT_EQ(Ends(), Texts{"31.12.2004"});
  EXPECT_EQ(LogCount(kBuilt), 1);
  // What the read has said stays, though the verb works.
  EXPECT_EQ(run.LastError, "Der Eintrag aus der Combobox konnte nicht ausgewählt werden.");
}

TEST_F(AssetMatrixTest, TheReadOfTheYearsEndsTheLoopOverTheAreas) {
  SetAreas({{"A", {}}, {"B", {}}, {"C", {}}});
  DestroyWindow(years_);
  EXPECT_TRUE(Create());
  EXPECT_EQ(At(areas_).selection, 0);
}

TEST_F(AssetMatrixTest, NoAreaLeavesNoRowAndAnErrorTextBesideTheSuccess) {
  SetRows({"01.01.1999"});
  SetAreas({});
  EXPECT_TRUE(Create());
  EXPECT_TRUE(clients.Matrix.empty());
  EXPECT_EQ(run.LastError, kNoBounds);
  EXPECT_EQ(LogCount(kBuilt), 1);
}

TEST_F(AssetMatrixTest, NoAreaAndAFirstYearFailInTheChoiceOfYearsToo) {
  FirstYear("2004");
  SetAreas({});
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, "Fehler in Funktion SelectMatrixYear:Index außerhalb des gültigen Bereichs");
  EXPECT_EQ(LogCount("Matrix ab Jahr 2004 ausgeben."), 0);
  EXPECT_EQ(LogCount(kBuilt), 1);
}

TEST_F(AssetMatrixTest, AnEntryThatIsNoDateStaysAndNothingIsSorted) {
  SetAreas({{"A", {"01.01.2005", "kein Datum", "01.01.2003"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), (Texts{"01.01.2005", "kein Datum", "01.01.2003"}));
  // The first end cannot be derived and keeps the full year; the second one can.
  EXPECT_EQ(Ends(), (Texts{"31.12.2005", "31.12.2002", "31.12.2003"}));
  EXPECT_EQ(run.LastError, kNoDate);
  EXPECT_EQ(LogCount(kBuilt), 1);
}

TEST_F(AssetMatrixTest, OneEntryThatIsNoDateHasNoEnd) {
  SetAreas({{"A", {"31.02.2004"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"31.02.2004"});
  EXPECT_EQ(Ends(), Texts{""});
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(AssetMatrixTest, AYearBeyondAllDatesHasNoEnd) {
  SetAreas({{"A", {"02.01.9999"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Ends(), Texts{""});
  EXPECT_EQ(run.LastError, "Fehler in Funktion CreateMatrix:Ungültiger Prozeduraufruf oder ungültiges Argument");
}

TEST_F(AssetMatrixTest, AnAreaThatCannotBeSelectedIsLoggedAndTheShownYearsCount) {
  SetAreas({{"A", {}}, {"B", {}}});
  At(years_).entries = {"01.01.2004"};
  At(areas_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::CB_SETCURSEL) return -1;
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(LogCount(kNotSelected), 2);
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
  EXPECT_EQ(Areas(), Texts{"A"});
}

TEST_F(AssetMatrixTest, TheHintIsLookedForAlsoWhenTheSelectionFails) {
  SetAreas({{"A", {}}});
  At(areas_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::CB_SETCURSEL) return -1;
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  const Texts log = Log();
  const auto hint =
      std::find(log.begin(), log.end(), "ConfirmDialog: Hinweis / Die Inventarauswahl für die Arbeit mit dem");
  const auto failed = std::find(log.begin(), log.end(), kNotSelected);
  ASSERT_NE(hint, log.end());
  ASSERT_NE(failed, log.end());
  EXPECT_LT(hint, failed);
}

TEST_F(AssetMatrixTest, TheHintOfTheTargetIsAnswered) {
  SetAreas({{"A", {"01.01.2004"}}});
  const std::int32_t box = AddWindow({.className = "#32770", .text = "Hinweis"});
  AddWindow({.className = "Button", .text = "OK", .parent = box, .id = 1});
  AddWindow({.className = "Static",
             .text = "Die Inventarauswahl für die Arbeit mit dem Modul wurde geändert.",
             .parent = box,
             .id = 0xFFFF});
  EXPECT_TRUE(Create());
  platform::Sleep(0);
  EXPECT_TRUE(std::any_of(At(box).received.begin(), At(box).received.end(), [](const Message& message) {
    return message.number == platform::WM_COMMAND && message.wParam == 1;
  }));
}

TEST_F(AssetMatrixTest, TheTextOfTheAddressServesTheReadsAndNotTheSelection) {
  SetAreas({{"A", {"01.01.2004"}}, {"B", {"01.01.2003"}}});
  for (const std::int32_t combo : {areas_, years_}) {
    At(combo).text = "Auswahl";       // that of the areas changes with the first selection
    At(combo).process = kOwnProcess;  // the system tells the text of a combo box to its own process only
  }
  EXPECT_TRUE(Create("Auswahl"));
  EXPECT_EQ(LogCount(kNotSelected), 0);
  EXPECT_EQ(Begins(), (Texts{"01.01.2003", "01.01.2004"}));
}

TEST_F(AssetMatrixTest, ATextThatNoComboBoxShowsFails) {
  SetAreas({{"A", {"01.01.2004"}}});
  EXPECT_FALSE(Create("anders"));
  EXPECT_EQ(run.LastError, kNoAreas);
}

TEST_F(AssetMatrixTest, YearsInAComboBoxThatShowsAnotherTextAreNotRead) {
  SetAreas({{"A", {"01.01.2004"}}});
  for (const std::int32_t combo : {areas_, years_}) At(combo).process = kOwnProcess;
  At(areas_).text = "Auswahl";
  At(years_).text = "anders";
  EXPECT_TRUE(Create("Auswahl"));
  EXPECT_EQ(Begins(), Texts{});
}

TEST_F(AssetMatrixTest, TheDialogIsFoundByAPartOfItsTitle) {
  SetAreas({{"A", {"01.01.2004"}}});
  EXPECT_TRUE(CreateMatrix(std::to_string(kYears), std::to_string(kAreas), "exportieren", "", ""));
  EXPECT_EQ(LogCount(kNotSelected), 0);
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
}

TEST_F(AssetMatrixTest, ThePositionIsLeftAlone) {
  SetAreas({{"A", {"01.01.2004"}}});
  clients.MatrixPos = 7;
  EXPECT_TRUE(Create());
  EXPECT_EQ(clients.MatrixPos, 7);
}

TEST_F(AssetMatrixTest, ARebuiltTableLosesItsChecks) {
  SetAreas({{"A", {"01.01.2004"}}});
  EXPECT_TRUE(Create());
  clients.Matrix[0].Checked = true;
  EXPECT_TRUE(Create());
  EXPECT_EQ(Checks(), std::vector{false});
}

TEST_F(AssetMatrixTest, ATableThatVanishesInTheMiddleIsNoCrash) {
  SetAreas({{"A", {"01.01.2004"}}, {"B", {"01.01.2005"}}});
  At(dialog_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_COMMAND) return std::nullopt;
    clients.Matrix.clear();
    AreaChosen();
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, kNoBounds);
}

TEST_F(AssetMatrixTest, ARowThatANestedRunHasCheckedIsFilledUnchecked) {
  SetAreas({{"A", {"01.01.2004"}}});
  At(dialog_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_COMMAND) return std::nullopt;
    clients.Matrix.assign(1, {.Bereich = "B", .Beginn = "01.01.1999", .Ende = "31.12.1999", .Checked = true});
    AreaChosen();
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(Begins(), Texts{"01.01.2004"});
  EXPECT_EQ(Checks(), std::vector{false});
}

TEST_F(AssetMatrixTest, AThousandYearsOfAHundredAreas) {
  std::vector<Area> areas(100);
  for (int year = 0; year < 1000; ++year)
    areas[static_cast<std::size_t>(year * 7 % 100)].years.push_back("01.01." + std::to_string(2999 - year));
  for (std::size_t area = 0; area < areas.size(); ++area) areas[area].name = "Inventar " + std::to_string(area);
  SetAreas(areas);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Clock(), 10 + 100 * 30);  // the pauses of the searches: one for the areas, three for each of them
  ASSERT_EQ(clients.Matrix.size(), 1000u);
  for (int year = 0; year < 1000; ++year) {
    const MatrixRow& row = clients.Matrix[static_cast<std::size_t>(year)];
    EXPECT_EQ(row.Beginn, "01.01." + std::to_string(2000 + year));
    EXPECT_EQ(row.Ende, "31.12." + std::to_string(2000 + year));
  }
}

// The choice of years.

TEST_F(AssetMatrixTest, RowsFromTheFirstYearOnAreChecked) {
  FirstYear("2004");
  SetAreas({{"A", {"01.01.2002", "01.01.2003", "01.01.2004", "01.01.2005"}}});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Checks(), (std::vector{false, false, true, true}));
  EXPECT_EQ(LogCount("Matrix ab Jahr 2004 ausgeben."), 1);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(AssetMatrixTest, WithoutAFirstYearNoRowIsCheckedAndNothingIsLogged) {
  SetRows({"01.01.2004"});
  EXPECT_FALSE(SelectMatrixYear());
  ExpectLog({kDestination, kMade});
  FirstYear("");
  EXPECT_FALSE(SelectMatrixYear());
  EXPECT_EQ(Checks(), std::vector{false});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(AssetMatrixTest, TheYearIsComparedAsText) {
  const auto checks = [](const std::string& first) {
    SetRows({"01.01.2004", "01.01.0300"});
    FirstYear(first);
    EXPECT_TRUE(SelectMatrixYear());
    return Checks();
  };
  EXPECT_EQ(checks("20"), (std::vector{true, true}));
  EXPECT_EQ(checks("2004,5"), (std::vector{false, true}));
  EXPECT_EQ(checks("4"), (std::vector{false, false}));
  EXPECT_EQ(checks("10000"), (std::vector{true, true}));
  EXPECT_EQ(checks("ab 2004"), (std::vector{false, false}));
  EXPECT_EQ(checks("01.01.2004"), (std::vector{true, true}));
}

TEST_F(AssetMatrixTest, ACheckedRowStaysChecked) {
  SetRows({"01.01.2003", "01.01.2004"});
  clients.Matrix[0].Checked = true;
  FirstYear("2004");
  EXPECT_TRUE(SelectMatrixYear());
  FirstYear("2005");
  EXPECT_TRUE(SelectMatrixYear());
  EXPECT_EQ(Checks(), (std::vector{true, true}));
}

TEST_F(AssetMatrixTest, ARowThatIsNoDateEndsTheChoiceAndKeepsTheRowsBefore) {
  SetRows({"01.01.2004", "kein Datum", "01.01.2005"});
  FirstYear("2004");
  EXPECT_FALSE(SelectMatrixYear());
  EXPECT_EQ(Checks(), (std::vector{true, false, false}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SelectMatrixYear:Typen unverträglich");
  ExpectLog({kDestination, kMade});
}

TEST_F(AssetMatrixTest, ATableWithoutRowsFailsTheChoice) {
  FirstYear("2004");
  EXPECT_FALSE(SelectMatrixYear());
  EXPECT_EQ(run.LastError, "Fehler in Funktion SelectMatrixYear:Index außerhalb des gültigen Bereichs");
}

// "$MATRIXJAHR", "$MATRIXBEREICH".

TEST_F(AssetMatrixTest, TheVariablesReadTheCurrentRow) {
  clients.Matrix = {{.Bereich = "Inventar", .Beginn = "01.07.2004"}, {.Bereich = "Leasing", .Beginn = "01.07.2005"}};
  clients.MatrixPos = 1;
  EXPECT_EQ(GetMatrixValue("JAHR"), "01.07.2005");
  EXPECT_EQ(GetMatrixValue("BEREICH"), "Leasing");
  ExpectLog({"MatrixValue: 01.07.2005 Pos: 1 Bereich: JAHR", "MatrixValue: Leasing Pos: 1 Bereich: BEREICH"});
}

TEST_F(AssetMatrixTest, AnyOtherSelectorIsEmpty) {
  SetRows({"01.07.2004"});
  for (const char* selector : {"jahr", "ENDE", ""}) EXPECT_EQ(GetMatrixValue(selector), "");
  ExpectLog(
      {"MatrixValue:  Pos: 0 Bereich: jahr", "MatrixValue:  Pos: 0 Bereich: ENDE", "MatrixValue:  Pos: 0 Bereich: "});
}

TEST_F(AssetMatrixTest, ARowThatDoesNotExistIsEmpty) {
  EXPECT_EQ(GetMatrixValue("JAHR"), "");
  SetRows({"01.07.2004"});
  clients.MatrixPos = 1;
  EXPECT_EQ(GetMatrixValue("JAHR"), "");
  clients.MatrixPos = -1;
  EXPECT_EQ(GetMatrixValue("BEREICH"), "");
  ExpectLog({"MatrixValue:  Pos: 0 Bereich: JAHR", "MatrixValue:  Pos: 1 Bereich: JAHR",
             "MatrixValue:  Pos: -1 Bereich: BEREICH"});
  EXPECT_EQ(run.LastError, "");
}

// In a macro.

const Texts kWalk = {
    "REM", "DO", "IF MATRIX.CHECKED", "MSG=$MATRIXJAHR $MATRIXBEREICH", "ENDIF", "LOOP UNTIL MATRIX.EOF"};

TEST_F(AssetMatrixTest, AMacroBuildsTheTableAndWalksIt) {
  FirstYear("2004");
  SetAreas({{"Inventar", {"01.01.2004", "01.01.2003"}}, {"Leasing", {"01.01.2005"}}});
  EXPECT_TRUE(RunLines({"CREATEMATRIX=12,11,Anlagen exportieren,1", "DO", "IF MATRIX.CHECKED",
                        "MSG=$MATRIXJAHR $MATRIXBEREICH", "ENDIF", "LOOP UNTIL MATRIX.EOF"}));
  const Texts log = Log();
  const auto built = std::find(log.begin(), log.end(), kBuilt);
  ASSERT_NE(built, log.end());
  // Row 0 is not checked, but its variables are computed all the same.
  EXPECT_EQ(Texts(built + 1, log.end()),
            Completed({"MatrixValue: 01.01.2003 Pos: 0 Bereich: JAHR", "MatrixValue: Inventar Pos: 0 Bereich: BEREICH",
                       "Loop: MoveTo: 1", "MatrixValue: 01.01.2004 Pos: 1 Bereich: JAHR",
                       "MatrixValue: Inventar Pos: 1 Bereich: BEREICH", "MSG: 01.01.2004 Inventar", "Loop: MoveTo: 2",
                       "MatrixValue: 01.01.2005 Pos: 2 Bereich: JAHR", "MatrixValue: Leasing Pos: 2 Bereich: BEREICH",
                       "MSG: 01.01.2005 Leasing", "Loop: EOF"}));
}

TEST_F(AssetMatrixTest, ATableOutlivesItsRun) {
  SetAreas({{"Inventar", {"01.01.2004"}}});
  EXPECT_TRUE(RunLines({"CREATEMATRIX=12,11,Anlagen exportieren,1"}));
  PutFile(kProgram + "\\QUMAEXP.LOG", "");
  clients.Matrix[0].Checked = true;
  EXPECT_TRUE(RunLines(kWalk));
  ExpectLog(Completed({"MatrixValue: 01.01.2004 Pos: 0 Bereich: JAHR", "MatrixValue: Inventar Pos: 0 Bereich: BEREICH",
                       "MSG: 01.01.2004 Inventar", "Loop: EOF"}));
}

TEST_F(AssetMatrixTest, AFailedBuildFailsTheRun) {
  EXPECT_FALSE(RunLines({"CREATEMATRIX=12,99,Anlagen exportieren,1", "MSG=nie"}));
  EXPECT_EQ(run.LastError, kNoAreas);
  EXPECT_EQ(Log().back(), kNoAreas);
}

}  // namespace
