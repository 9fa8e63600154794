// The business years of the second application, read out of its dialog.
#include "clients/merla_matrix.h"

#include <algorithm>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/state.h"
#include "input/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

const char* const kTitle = "Wirtschaftsjahr wechseln";
const char* const kComboClass = "ThunderRT6ComboBox";
const char* const kMatrixOutOfRange = "Fehler in Funktion CreateMerlaMatrix:Index außerhalb des gültigen Bereichs";
const char* const kNoDate = "Fehler in Funktion GetMerJahrVonBis:Typen unverträglich";
const char* const kBuilt = "Matrix erfolgreich aufgebaut";

// Where a version of the application has its controls.
struct Layout {
  std::int32_t yearFrame, currencyFrame, currency, checkFrame, tax, calculation, commercial, ias;
};

constexpr Layout kUsual = {21, 19, 20, 13, 16, 17, 18, 15};
constexpr Layout kOlder = {20, 18, 19, 13, 15, 16, 17, 14};
constexpr Layout kMoved = {61, 70, 71, 80, 81, 82, 83, 84};

struct Year {
  std::string first, last, currency;
  bool tax, calculation, commercial, ias;
};

const std::vector<Year> kYears = {{"01.01.2003", "31.12.2003", "DEM", true, false, false, false},
                                  {"01.01.2004", "30.06.2004", "EUR", true, true, false, false},
                                  {"01.07.2004", "30.06.2005", "EUR", false, false, true, true}};

std::string Row(const MerMatrixRow& row) {
  const auto mark = [](bool set, const char* letter) { return std::string(set ? letter : "-"); };
  return row.Beginn + " " + row.Ende + " " + row.Waehrung + " " + mark(row.Steuerrecht, "S") +
         mark(row.Kalkulation, "K") + mark(row.Handelsrecht, "H") + mark(row.IASIFRS, "I") +
         (row.Checked ? " checked" : "") + row.Pfad;
}

MerMatrixRow RowOf(const std::string& last, const std::string& path) {
  MerMatrixRow row;
  row.Ende = last;
  row.Pfad = path;
  return row;
}

Lines Rows() {
  Lines rows;
  for (const MerMatrixRow& row : clients.MerMatrix) rows.push_back(Row(row));
  return rows;
}

const Lines kRows = {"01.01.2003 31.12.2003 DEM S---", "01.01.2004 30.06.2004 EUR SK--",
                     "01.07.2004 30.06.2005 EUR --HI"};
const char* const kEmptyRow = "   ----";

class MerlaMatrixTest : public SystemTest {
 protected:
  static constexpr std::int32_t kYearCombo = 9;

  // The dialog as the application shows it: what belongs to a year appears when its entry has been selected.
  void OpenDialog(const Layout& layout, const std::vector<Year>& years = kYears) {
    years_ = years;
    form_ = TargetWindow(kTitle);
    combo_ = Child(kComboClass, "", kYearCombo, form_);
    for (std::size_t i = 0; i < years.size(); ++i) At(combo_).entries.push_back("Jahr " + std::to_string(i + 1));
    frame_ = Child("ThunderRT6Frame", "Bearbeitungsjahr", layout.yearFrame, form_);
    first_ = AddField();
    last_ = AddField();
    const std::int32_t money = Child("ThunderRT6Frame", "Währung", layout.currencyFrame, form_);
    currency_ = Child(kComboClass, "", layout.currency, money);
    const std::int32_t valuation = Child("ThunderRT6Frame", "Bewertung", layout.checkFrame, form_);
    tax_ = Child("ThunderRT6CheckBox", "Steuerrecht", layout.tax, valuation);
    calculation_ = Child("ThunderRT6CheckBox", "Kalkulation", layout.calculation, valuation);
    commercial_ = Child("ThunderRT6CheckBox", "Handelsrecht", layout.commercial, valuation);
    ias_ = Child("ThunderRT6CheckBox", "IAS/IFRS", layout.ias, valuation);
    At(form_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == platform::WM_COMMAND && message.wParam == 0x10000 + kYearCombo) ShowSelected();
      return std::nullopt;
    };
  }

  static std::int32_t Child(const std::string& cls, const std::string& text, std::int32_t id, std::int32_t parent) {
    return AddWindow({.className = cls, .text = text, .parent = parent, .id = id});
  }

  std::int32_t AddField() {
    const std::int32_t field = Child("ThunderRT6UserControlDC", "", 1, frame_);
    for (const std::int32_t id : {3, 4, 2}) Child("ThunderRT6Textbox", "", id, field);
    return field;
  }

  // Day, month and year, joined by dots.
  static void SetDate(std::int32_t field, const std::string& date) {
    const auto dot = date.find('.');
    const auto second = date.find('.', dot + 1);
    const auto boxes = At(field).children;
    At(boxes[0]).text = date.substr(0, dot);
    At(boxes[1]).text = date.substr(dot + 1, second - dot - 1);
    At(boxes[2]).text = date.substr(second + 1);
  }

  void ShowSelected() {
    const Year& year = years_.at(static_cast<std::size_t>(At(combo_).selection));
    if (Exists(first_)) SetDate(first_, year.first);
    if (Exists(last_)) SetDate(last_, year.last);
    if (Exists(currency_)) At(currency_).text = year.currency;
    for (const auto& [box, set] : {std::pair{tax_, year.tax},
                                   {calculation_, year.calculation},
                                   {commercial_, year.commercial},
                                   {ias_, year.ias}})
      if (Exists(box)) At(box).check = set ? 1 : 0;
  }

  // The entry with this index cannot be selected.
  void RefuseEntry(std::int32_t index) {
    At(combo_).procedure = [index](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == platform::CB_SETCURSEL && message.wParam == index) return -1;
      return std::nullopt;
    };
  }

  static bool Create(const std::string& text = "") { return CreateMerlaMatrix("9", kTitle, "1", kComboClass, text); }

  static int Count(const std::string& line) {
    const Lines log = Log();
    return static_cast<int>(std::count(log.begin(), log.end(), line));
  }

  std::vector<Year> years_;
  std::int32_t form_ = 0, combo_ = 0, frame_ = 0, first_ = 0, last_ = 0, currency_ = 0;
  std::int32_t tax_ = 0, calculation_ = 0, commercial_ = 0, ias_ = 0;
};

// The layouts.

TEST_F(MerlaMatrixTest, Version260ReadsItsLayout) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
  EXPECT_EQ(Log().back(), kBuilt);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MerlaMatrixTest, Version280HasTheLayoutOf260) {
  Setting("MERLA", "Version", "280");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, Version2100HasThatLayoutByDefault) {
  Setting("MERLA", "Version", "2100");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, AMissingVersionHasTheOlderLayout) {
  OpenDialog(kOlder);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, AnyOtherVersionHasTheOlderLayout) {
  OpenDialog(kOlder);
  for (const char* version : {"250", "", "0260", "26", "2800"}) {
    Setting("MERLA", "Version", version);
    clients.MerMatrix.clear();
    EXPECT_TRUE(Create()) << version;
    EXPECT_EQ(Rows(), kRows) << version;
  }
}

TEST_F(MerlaMatrixTest, Version260DoesNotReadTheOlderLayout) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kOlder);
  EXPECT_TRUE(Create());
  EXPECT_NE(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, Version2100ReadsMovedControlsByItsSettings) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixJahrVonBis", "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame;61");
  Setting("MERLA", "MatrixWährung", "71;ThunderRT6ComboBox;70;ThunderRT6Frame");
  Setting("MERLA", "MatrixCheckSteuerrecht", "81;ThunderRT6CheckBox;80;ThunderRT6Frame");
  Setting("MERLA", "MatrixCheckKalkulation", "82;ThunderRT6CheckBox;80;ThunderRT6Frame");
  Setting("MERLA", "MatrixCheckHandelsrecht", "83;ThunderRT6CheckBox;80;ThunderRT6Frame");
  Setting("MERLA", "MatrixCheckIASIFRS", "84;ThunderRT6CheckBox;80;ThunderRT6Frame");
  OpenDialog(kMoved);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, OneMovedCheckBoxIsReadAtItsNewPlace) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixCheckSteuerrecht", "18;ThunderRT6CheckBox;13;ThunderRT6Frame");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), (Lines{"01.01.2003 31.12.2003 DEM ----", "01.01.2004 30.06.2004 EUR -K--",
                           "01.07.2004 30.06.2005 EUR S-HI"}));
}

TEST_F(MerlaMatrixTest, OtherVersionsDoNotReadTheSettings) {
  Setting("MERLA", "Version", "260");
  Setting("MERLA", "MatrixCheckSteuerrecht", "18;ThunderRT6CheckBox;13;ThunderRT6Frame");
  Setting("MERLA", "MatrixWährung", "99;ThunderRT6ComboBox;19;ThunderRT6Frame");
  Setting("MERLA", "MatrixJahrVonBis", "x");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, ASettingIsReadAtEachUse) {
  Setting("MERLA", "Version", "2100");
  OpenDialog(kUsual);
  At(form_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::WM_COMMAND || message.wParam != 0x10000 + kYearCombo) return std::nullopt;
    ShowSelected();
    if (At(combo_).selection == 1) Setting("MERLA", "MatrixCheckIASIFRS", "16;ThunderRT6CheckBox;13;ThunderRT6Frame");
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), (Lines{"01.01.2003 31.12.2003 DEM S---", "01.01.2004 30.06.2004 EUR SK-I",
                           "01.07.2004 30.06.2005 EUR --H-"}));
}

// Control paths that are not as they should be.

TEST_F(MerlaMatrixTest, APathOfThreeFieldsIsAFaultOfItsStepAlone) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixCheckSteuerrecht", "16;ThunderRT6CheckBox;13");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Rows(), (Lines{"01.01.2003 31.12.2003 DEM ----", "01.01.2004 30.06.2004 EUR -K--",
                           "01.07.2004 30.06.2005 EUR --HI"}));
}

TEST_F(MerlaMatrixTest, ACurrencyPathOfThreeFieldsLeavesTheFieldAsItWas) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixWährung", "20;ThunderRT6ComboBox;19");
  OpenDialog(kUsual);
  automation.LastReadText = "alt";
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Rows(),
            (Lines{"01.01.2003 31.12.2003  S---", "01.01.2004 30.06.2004  SK--", "01.07.2004 30.06.2005  --HI"}));
}

TEST_F(MerlaMatrixTest, AYearPathOfThreeFieldsLeavesTheDatesEmpty) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixJahrVonBis", "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame");
  OpenDialog(kUsual, {kYears[0]});
  std::string from = "alt";
  std::string to = "alt";
  GetMerJahrVonBis(from, to);
  EXPECT_EQ(from, "");
  EXPECT_EQ(to, "");
  EXPECT_EQ(run.LastError, kNoDate);  // the fault of the comparison of two empty dates comes last
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{"  DEM S---"});
}

TEST_F(MerlaMatrixTest, AnEmptyPathIsAFaultOfItsStepAlone) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixCheckIASIFRS", "");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Rows().back(), "01.07.2004 30.06.2005 EUR --H-");
}

TEST_F(MerlaMatrixTest, AFifthFieldOfAPathIsNotRead) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixWährung", "20;ThunderRT6ComboBox;19;ThunderRT6Frame;99");
  Setting("MERLA", "MatrixJahrVonBis", "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame;21;x");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MerlaMatrixTest, FieldsOfAPathAreNotTrimmed) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixCheckSteuerrecht", "16; ThunderRT6CheckBox;13;ThunderRT6Frame");
  OpenDialog(kUsual, {kYears[0]});
  // The blank belongs to the class, but below the frame the id finds the box all the same.
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{kRows[0]});
  Setting("MERLA", "MatrixCheckSteuerrecht", "16;ThunderRT6CheckBox;13; ThunderRT6Frame");
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{"01.01.2003 31.12.2003 DEM ----"});
}

// The build.

TEST_F(MerlaMatrixTest, EachEntryIsSelectedAndReadInTheOrderOfTheCurrencyAndTheBoxes) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kUsual, {kYears[1]});
  EXPECT_TRUE(Create());
  ExpectLog({"Die Auswahl der Combobox konnte erfolgreich ausgeführt werden. Jahr 1;...",
             "Select Combo-> HWNDCTL: " + std::to_string(combo_) + "Parent: " + std::to_string(form_),
             "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden. Sel: 0", "ReadText: EUR",
             "Optionsfeld ist ausgewählt.", "Optionsfeld ist ausgewählt.", "Optionsfeld ist nicht ausgewählt.",
             "Optionsfeld ist nicht ausgewählt.", kBuilt});
}

TEST_F(MerlaMatrixTest, MacroLineHandsItsArgumentsOverInOrder) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kUsual);
  EXPECT_TRUE(RunLines({"CREATEMERLAMATRIX=9,Wirtschaftsjahr wechseln,1,ThunderRT6ComboBox,"}));
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, TheDialogIsFoundByAPartOfItsTitle) {
  OpenDialog(kOlder);
  EXPECT_TRUE(CreateMerlaMatrix("9", "jahr wechseln", "", kComboClass, ""));
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(MerlaMatrixTest, AComboBoxWithAnotherTextIsNotRead) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kUsual);
  EXPECT_FALSE(RunLines({"CREATEMERLAMATRIX=9,Wirtschaftsjahr wechseln,1,ThunderRT6ComboBox,anderer Text"}));
  EXPECT_EQ(run.LastError, "Matrix konnte nicht erstellt werden");
}

TEST_F(MerlaMatrixTest, WithoutTheComboBoxTheOldMatrixStays) {
  Setting("MERLA", "Version", "260");
  OpenDialog(kUsual);
  EXPECT_TRUE(Create());
  DestroyWindow(combo_);
  EXPECT_FALSE(Create());
  EXPECT_EQ(run.LastError, "Matrix konnte nicht erstellt werden");
  EXPECT_EQ(Rows(), kRows);
  EXPECT_EQ(Log().back(), kBuilt);  // that of the first build
  EXPECT_EQ(Count(kBuilt), 1);
}

TEST_F(MerlaMatrixTest, ABuildReplacesTheMatrix) {
  OpenDialog(kOlder);
  clients.MerMatrix.assign(7, RowOf("alt", "alt"));
  clients.MatrixPos = 2;
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), kRows);
  EXPECT_EQ(clients.MatrixPos, 2);
}

TEST_F(MerlaMatrixTest, AnEmptyComboBoxLeavesOneEmptyRow) {
  OpenDialog(kOlder, {});
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{kEmptyRow});
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Log().back(), kBuilt);
}

TEST_F(MerlaMatrixTest, EntriesBehindOneThatCannotBeSelectedFindNoRow) {
  OpenDialog(kOlder);
  RefuseEntry(1);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), (Lines{kRows[0], kEmptyRow}));
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Count("Fail to Select ComboBox"), 1);
  // The third entry is read all the same.
  EXPECT_EQ(Count("ReadText: EUR"), 1);
  EXPECT_EQ(Log().back(), kBuilt);
}

TEST_F(MerlaMatrixTest, AFirstEntryThatCannotBeSelectedLeavesEmptyRowsOnly) {
  OpenDialog(kOlder);
  RefuseEntry(0);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), (Lines{kEmptyRow, kEmptyRow}));
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
}

TEST_F(MerlaMatrixTest, ALastEntryThatCannotBeSelectedLeavesNoRow) {
  OpenDialog(kOlder);
  RefuseEntry(2);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), (Lines{kRows[0], kRows[1]}));
}

TEST_F(MerlaMatrixTest, ACurrencyThatIsNotThereIsLoggedAndEmpty) {
  OpenDialog(kOlder, {kYears[0]});
  DestroyWindow(currency_);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{"01.01.2003 31.12.2003  S---"});
  EXPECT_EQ(Count("Fehler: Währung konnte nicht gelesen werden."), 1);
  EXPECT_EQ(Log().back(), kBuilt);
}

TEST_F(MerlaMatrixTest, ACheckBoxThatIsNotThereIsNotChecked) {
  OpenDialog(kOlder, {kYears[2]});
  DestroyWindow(commercial_);
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{"01.07.2004 30.06.2005 EUR ---I"});
  EXPECT_EQ(Count("Optionsfeld konnte nicht gefunden werden."), 1);
}

TEST_F(MerlaMatrixTest, AnEntryWithASemicolonCountsAsTwo) {
  OpenDialog(kOlder);
  At(combo_).entries = {"Jahr 1;2003", "Jahr 2"};
  EXPECT_TRUE(Create());
  // The third selection is beyond the list.
  EXPECT_EQ(Rows(), (Lines{kRows[0], kRows[1]}));
  EXPECT_EQ(Count("Fail to Select ComboBox"), 1);
}

TEST_F(MerlaMatrixTest, ADialogThatVanishesInTheMiddleDoesNoHarm) {
  OpenDialog(kOlder);
  At(combo_).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::CB_SETCURSEL && message.wParam == 1) {
      DestroyWindow(form_);
      return -1;
    }
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{kRows[0]});
}

TEST_F(MerlaMatrixTest, AMatrixThatIsReplacedInTheMiddleDoesNoHarm) {
  OpenDialog(kOlder);
  At(combo_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::CB_SETCURSEL && message.wParam == 2) clients.MerMatrix.clear();
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(run.LastError, kMatrixOutOfRange);
  EXPECT_EQ(Log().back(), kBuilt);
}

TEST_F(MerlaMatrixTest, ARowThatANestedRunHasCheckedIsFilledUnchecked) {
  OpenDialog(kOlder, {kYears[0]});
  At(combo_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number != platform::CB_SETCURSEL) return std::nullopt;
    clients.MerMatrix.assign(1, {});
    clients.MerMatrix[0].Checked = true;
    return std::nullopt;
  };
  EXPECT_TRUE(Create());
  EXPECT_EQ(Rows(), Lines{kRows[0]});
}

// The dates.

class MerlaDatesTest : public MerlaMatrixTest {
 protected:
  MerlaDatesTest() { OpenDialog(kOlder); }

  void ExpectDates(const std::string& from, const std::string& to,
                   std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    std::string first = "alt";
    std::string last = "alt";
    GetMerJahrVonBis(first, last);
    EXPECT_EQ(first, from);
    EXPECT_EQ(last, to);
  }
};

TEST_F(MerlaDatesTest, TheEarlierDateComesFirstWhateverTheOrderOfTheFields) {
  SetDate(first_, "31.12.2005");
  SetDate(last_, "01.01.2005");
  ExpectDates("01.01.2005", "31.12.2005");
  SetDate(first_, "01.02.2005");
  SetDate(last_, "02.01.2006");
  ExpectDates("01.02.2005", "02.01.2006");
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MerlaDatesTest, OfEqualDatesTheSecondFieldComesFirst) {
  SetDate(first_, "1.1.2005");
  SetDate(last_, "01.01.2005");
  ExpectDates("01.01.2005", "1.1.2005");
}

TEST_F(MerlaDatesTest, ADateThatDoesNotExistKeepsTheOrderOfTheFields) {
  SetDate(first_, "31.02.2005");
  SetDate(last_, "01.01.2005");
  ExpectDates("31.02.2005", "01.01.2005");
  EXPECT_EQ(run.LastError, kNoDate);
  run.LastError.clear();
  SetDate(first_, "31.12.2005");
  SetDate(last_, "31.02.2005");
  ExpectDates("31.12.2005", "31.02.2005");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, EmptyBoxesKeepTheOrderOfTheFields) {
  SetDate(first_, "..2005");
  SetDate(last_, "01.01.2004");
  ExpectDates("..2005", "01.01.2004");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, OneFieldLeavesTheSecondDateEmpty) {
  SetDate(first_, "31.12.2005");
  DestroyWindow(last_);
  ExpectDates("31.12.2005", "");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, NoFieldLeavesBothDatesEmpty) {
  DestroyWindow(frame_);
  ExpectDates("", "");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, FurtherFieldsAreReadAndDropped) {
  SetDate(first_, "01.01.2005");
  SetDate(last_, "31.12.2005");
  const std::int32_t third = AddField();
  SetDate(third, "01.01.1999");
  ExpectDates("01.01.2005", "31.12.2005");
  EXPECT_FALSE(At(At(third).children.front()).received.empty());
}

TEST_F(MerlaDatesTest, MoreThanTwentyOneFieldsAreNoFault) {
  SetDate(first_, "01.01.2005");
  SetDate(last_, "31.12.2005");
  for (int i = 0; i < 30; ++i) AddField();
  ExpectDates("01.01.2005", "31.12.2005");
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MerlaDatesTest, AFieldWithoutABoxHasAnEmptyPart) {
  SetDate(first_, "31.12.2005");
  SetDate(last_, "01.01.2005");
  DestroyWindow(At(first_).children[1]);
  ExpectDates("31..2005", "01.01.2005");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, ABoxThatCannotBeReadIsAnEmptyPart) {
  SetDate(first_, "31.12.2005");
  SetDate(last_, "01.01.2005");
  At(At(first_).children[1]).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_GETTEXT) return -1;
    return std::nullopt;
  };
  ExpectDates("31..2005", "01.01.2005");
  EXPECT_EQ(run.LastError, kNoDate);
}

TEST_F(MerlaDatesTest, TheFrameIsFoundByWholeTitleTextAndId) {
  SetDate(first_, "01.01.2005");
  SetDate(last_, "31.12.2005");
  At(frame_).text = "Bearbeitung";
  ExpectDates("", "");
  At(frame_).text = "bearbeitungsjahr";
  ExpectDates("01.01.2005", "31.12.2005");
  At(form_).text = "Wirtschaftsjahr wechseln...";
  ExpectDates("", "");
}

TEST_F(MerlaDatesTest, ThePathOfVersion2100NamesWindowTextClassAndId) {
  Setting("MERLA", "Version", "2100");
  Setting("MERLA", "MatrixJahrVonBis", "Jahr wählen;Zeitraum;ThunderRT6PictureBoxDC;61");
  At(form_).text = "Jahr wählen";
  At(frame_).className = "ThunderRT6PictureBoxDC";
  At(frame_).text = "Zeitraum";
  At(frame_).id = 61;
  SetDate(first_, "01.01.2005");
  SetDate(last_, "31.12.2005");
  ExpectDates("01.01.2005", "31.12.2005");
}

// The variables.

class MerMatrixVariables : public SystemTest {
 protected:
  static std::string Shown(const std::string& name) {
    RunLines({"MSG=" + name});
    return Log().front();
  }
};

TEST_F(MerMatrixVariables, ShowTheCurrentRow) {
  clients.MerMatrix = {RowOf("31.12.2003", "C:\\eins"), RowOf("30.06.2004", "C:\\zwei")};
  EXPECT_EQ(Shown("$MERMATRIXJAHRBIS $MERMATRIXPATH"), "MSG: 31.12.2003 C:\\eins");
  clients.MatrixPos = 1;
  EXPECT_EQ(GetMerMatrixJahrBis(), "30.06.2004");
  EXPECT_EQ(GetMerMatrixPath(), "C:\\zwei");
}

TEST_F(MerMatrixVariables, StayTextWithoutAMatrix) {
  EXPECT_EQ(Shown("$MERMATRIXJAHRBIS $MERMATRIXPATH"), "MSG: $MERMATRIXJAHRBIS $MERMATRIXPATH");
}

TEST_F(MerMatrixVariables, AreFaultsBeyondTheLastRow) {
  clients.MerMatrix = {RowOf("31.12.2003", "")};
  clients.MatrixPos = 1;
  EXPECT_THROW(GetMerMatrixJahrBis(), runtime::Fault);
  clients.MatrixPos = -1;
  EXPECT_THROW(GetMerMatrixPath(), runtime::Fault);
}

}  // namespace
