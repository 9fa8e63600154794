// Conditions and loop ends over years, list rows and matrices.
#include "engine/loops.h"

#include <functional>
#include <limits>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using support::Completed;
using support::Log;
using support::RunLines;

using Texts = std::vector<std::string>;

class LoopTest : public support::SystemTest {
 protected:
  LoopTest() { run.LoopStart = 4; }  // a loop is open
};

TEST_F(LoopTest, DoRemembersItsLineAndClearsTheWayBack) {
  run.CurrentLine = 7;
  run.LoopBack = true;
  EXPECT_TRUE(StartLoop());
  EXPECT_EQ(run.LoopStart, 7);
  EXPECT_FALSE(run.LoopBack);
}

// The walk over years and list rows.

TEST_F(LoopTest, CountGoesOnUntilTheIndexHasPassedTheLastYear) {
  run.YearUpper = 1;
  for (const int index : {0, 1, 3, -1}) {
    run.YearIndex = static_cast<std::int16_t>(index);
    run.LoopBack = false;
    EXPECT_TRUE(LoopUntilCount());
    EXPECT_TRUE(run.LoopBack) << index;
    EXPECT_EQ(run.LoopStart, 4) << index;
  }
  EXPECT_EQ(Log()[0], "Loop: YearCount=1 CurrYear=0");
  EXPECT_EQ(Log()[3], "Loop: YearCount=1 CurrYear=-1");
}

TEST_F(LoopTest, CountWithoutListRowsEndsBehindTheLastYear) {
  run.YearUpper = 1;
  run.YearIndex = 2;
  EXPECT_TRUE(LoopUntilCount());
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 0);
}

TEST_F(LoopTest, CountBehindTheLastYearGoesOnWhileListRowsRemain) {
  run.YearIndex = 1;
  automation.ListCount = 3;
  automation.ListIndex = 2;
  EXPECT_TRUE(LoopUntilCount());
  EXPECT_TRUE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 4);
}

TEST_F(LoopTest, CountGoesOnWhenTheListHasBecomeShorterThanItsIndex) {
  run.YearIndex = 1;
  automation.ListCount = 2;
  automation.ListIndex = 3;
  EXPECT_TRUE(LoopUntilCount());
  EXPECT_TRUE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 4);
}

TEST_F(LoopTest, CountEndsBehindTheLastYearOfTheLastListRow) {
  run.YearIndex = 1;
  automation.ListCount = 3;
  automation.ListIndex = 3;
  EXPECT_TRUE(LoopUntilCount());
  EXPECT_FALSE(run.LoopBack);
  EXPECT_EQ(run.LoopStart, 0);
}

TEST_F(LoopTest, TheLargestYearCountDoesNotWrapAround) {
  run.YearUpper = std::numeric_limits<std::int16_t>::max();
  run.YearIndex = std::numeric_limits<std::int16_t>::min();
  EXPECT_TRUE(LoopUntilCount());
  EXPECT_TRUE(run.LoopBack);
}

TEST_F(LoopTest, NextYearCountsOnBeyondTheEndOfTheList) {
  run.YearUpper = 1;
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(NextYear());
  EXPECT_EQ(run.YearIndex, 5);
  EXPECT_EQ(Log(), Texts(5, "NextYear"));
}

TEST_F(LoopTest, NextYearPassesOverTheOverflow) {
  run.YearIndex = std::numeric_limits<std::int16_t>::max();
  EXPECT_TRUE(NextYear());
  EXPECT_EQ(run.YearIndex, std::numeric_limits<std::int16_t>::max());
  EXPECT_EQ(Log(), Texts{"NextYear"});
}

TEST_F(LoopTest, IfVjIsTrueBeforeTheFirstListRow) {
  run.YearIndex = 1;
  run.YearUpper = 3;
  EXPECT_TRUE(CheckVJ());
  EXPECT_EQ(run.YearIndex, 0);
  EXPECT_EQ(Log(), Texts{"VJ True"});
}

TEST_F(LoopTest, IfVjIsTrueBehindTheLastYear) {
  automation.ListIndex = 1;
  run.YearIndex = 4;
  run.YearUpper = 3;
  EXPECT_TRUE(CheckVJ());
  EXPECT_EQ(run.YearIndex, 0);
  EXPECT_EQ(Log(), Texts{"VJ True"});
}

TEST_F(LoopTest, IfVjIsFalseWithinTheYearsOfARow) {
  automation.ListIndex = 1;
  run.YearUpper = 3;
  for (const int index : {0, 2, 3}) {
    run.YearIndex = static_cast<std::int16_t>(index);
    EXPECT_FALSE(CheckVJ()) << index;
    EXPECT_EQ(run.YearIndex, index);
  }
  EXPECT_EQ(Log(), Texts(3, "VJ False"));
}

TEST_F(LoopTest, IfVjSwitchesTheBranch) {
  // The list row was selected while the macro waited.
  platform::simulated::Schedule(5, [] { automation.ListIndex = 1; });
  EXPECT_TRUE(RunLines({"WAIT=10", "IF VJ", "MSG=weiter", "ELSE", "MSG=Jahr", "ENDIF"}));
  EXPECT_EQ(Log(), Completed({"VJ False", "MSG: Jahr"}));
}

TEST_F(LoopTest, TheWalkOverTwoRowsOfTwoYears) {
  run.YearUpper = 1;
  platform::simulated::Schedule(5, [] { automation.ListCount = 2; });
  // Stands for the selection of the next row.
  const std::function<void()> select = [] { ++automation.ListIndex; };
  platform::simulated::Schedule(15, select);
  platform::simulated::Schedule(45, select);
  EXPECT_TRUE(RunLines({"WAIT=10", "DO", "IF VJ", "MSG=neue Zeile", "WAIT=10", "ENDIF", "MSG=Jahr", "WAIT=10",
                        "NEXT VJ", "LOOP UNTIL COUNT"}));
  EXPECT_EQ(Log(), Completed({"VJ True", "MSG: neue Zeile", "MSG: Jahr", "NextYear", "Loop: YearCount=1 CurrYear=1",
                              "VJ False", "MSG: Jahr", "NextYear", "Loop: YearCount=1 CurrYear=2", "VJ True",
                              "MSG: neue Zeile", "MSG: Jahr", "NextYear", "Loop: YearCount=1 CurrYear=1", "VJ False",
                              "MSG: Jahr", "NextYear", "Loop: YearCount=1 CurrYear=2"}));
}

TEST_F(LoopTest, TheYearIndexSurvivesARunThatStoppedInsideTheWalk) {
  support::Setting("Einkommensteuer", "Veranlagungsjahr", "2003,2004");
  EXPECT_TRUE(RunLines({"MSG=$WJ", "NEXT VJ", "STOP"}));
  EXPECT_EQ(run.YearIndex, 1);
  EXPECT_EQ(run.YearUpper, 1);
  EXPECT_TRUE(RunLines({"MSG=$WJ"}));
  EXPECT_EQ(Log()[4], "MSG: 2004");
}

// The walk over a matrix, the same for both.

struct AssetMatrix {
  static std::vector<MatrixRow>& Rows() { return clients.Matrix; }
  static bool Loop() { return LoopUntilMatrixEof(); }
  static bool Checked() { return IsMatrixChecked(); }
  static std::string Name() { return "MATRIX"; }
};

struct SecondMatrix {
  static std::vector<MerMatrixRow>& Rows() { return clients.MerMatrix; }
  static bool Loop() { return LoopUntilMerMatrixEof(); }
  static bool Checked() { return IsMerMatrixChecked(); }
  static std::string Name() { return "MERMATRIX"; }
};

template <class Matrix>
class MatrixLoopTest : public LoopTest {
 protected:
  static void SetRows(const std::vector<bool>& checked) {
    Matrix::Rows().assign(checked.size(), {});
    for (std::size_t i = 0; i < checked.size(); ++i) Matrix::Rows()[i].Checked = checked[i];
  }

  // Walks the whole matrix from its first row.
  static bool RunWalk() {
    return RunLines({"REM", "DO", "MSG=Zeile", "IF " + Matrix::Name() + ".CHECKED", "MSG=angehakt", "ENDIF",
                     "LOOP UNTIL " + Matrix::Name() + ".EOF", "MSG=fertig"});
  }
};

using Matrices = testing::Types<AssetMatrix, SecondMatrix>;
TYPED_TEST_SUITE(MatrixLoopTest, Matrices);

TYPED_TEST(MatrixLoopTest, OneRowEndsAtOnce) {
  this->SetRows({true});
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(), Completed({"MSG: Zeile", "MSG: angehakt", "Loop: EOF", "MSG: fertig"}));
  EXPECT_EQ(run.LoopStart, 0);
}

TYPED_TEST(MatrixLoopTest, OnlyTheThirdOfFourRowsIsChecked) {
  this->SetRows({false, false, true, false});
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(),
            Completed({"MSG: Zeile", "Loop: MoveTo: 2", "MSG: Zeile", "MSG: angehakt", "Loop: EOF", "MSG: fertig"}));
  EXPECT_EQ(clients.MatrixPos, 3);  // where the search has stopped
}

TYPED_TEST(MatrixLoopTest, AllRowsAreChecked) {
  this->SetRows({true, true, true});
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(), Completed({"MSG: Zeile", "MSG: angehakt", "Loop: MoveTo: 1", "MSG: Zeile", "MSG: angehakt",
                              "Loop: MoveTo: 2", "MSG: Zeile", "MSG: angehakt", "Loop: EOF", "MSG: fertig"}));
}

TYPED_TEST(MatrixLoopTest, TheLastRowAloneIsChecked) {
  this->SetRows({false, false, true});
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(),
            Completed({"MSG: Zeile", "Loop: MoveTo: 2", "MSG: Zeile", "MSG: angehakt", "Loop: EOF", "MSG: fertig"}));
}

TYPED_TEST(MatrixLoopTest, NoRowIsCheckedAndTheBodyRunsOnceForTheFirst) {
  this->SetRows({false, false, false});
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(), Completed({"MSG: Zeile", "Loop: EOF", "MSG: fertig"}));
  EXPECT_EQ(clients.MatrixPos, 2);
}

TYPED_TEST(MatrixLoopTest, AMatrixThatDoesNotExistEndsAtOnce) {
  EXPECT_TRUE(this->RunWalk());
  EXPECT_EQ(Log(), Completed({"MSG: Zeile", "Loop: EOF", "MSG: fertig"}));
  EXPECT_EQ(clients.MatrixPos, 0);
}

TYPED_TEST(MatrixLoopTest, ASecondLoopInOneRunSeesTheLastRowOnly) {
  this->SetRows({true, false, true});
  const std::string end = "LOOP UNTIL " + TypeParam::Name() + ".EOF";
  EXPECT_TRUE(RunLines({"REM", "DO", "MSG=1", end, "DO", "MSG=2", end}));
  EXPECT_EQ(Log(), Completed({"MSG: 1", "Loop: MoveTo: 2", "MSG: 1", "Loop: EOF", "MSG: 2", "Loop: EOF"}));
}

TYPED_TEST(MatrixLoopTest, ANewRunBeginsAtTheFirstRow) {
  this->SetRows({true, true});
  EXPECT_TRUE(this->RunWalk());
  const Texts first = Log();
  EXPECT_TRUE(ProcessMakro(0));
  const Texts both = Log();
  EXPECT_EQ(Texts(both.begin() + static_cast<std::ptrdiff_t>(first.size()), both.end()), first);
}

TYPED_TEST(MatrixLoopTest, APositionBeyondTheEndEndsTheLoop) {
  this->SetRows({true, true, true});
  for (const int position : {2, 3, 4, 100, std::numeric_limits<std::int32_t>::max()}) {
    clients.MatrixPos = position;
    run.LoopStart = 4;
    EXPECT_TRUE(TypeParam::Loop());
    EXPECT_EQ(run.LoopStart, 0) << position;
    EXPECT_FALSE(run.LoopBack) << position;
    EXPECT_EQ(clients.MatrixPos, position);
  }
  EXPECT_EQ(Log(), Texts(5, "Loop: EOF"));
}

TYPED_TEST(MatrixLoopTest, APositionWithoutARowIsNotChecked) {
  EXPECT_FALSE(TypeParam::Checked());
  this->SetRows({true, true});
  EXPECT_TRUE(TypeParam::Checked());
  for (const int position : {2, 100, -1}) {
    clients.MatrixPos = position;
    EXPECT_FALSE(TypeParam::Checked()) << position;
  }
}

TYPED_TEST(MatrixLoopTest, ALoopEndThatFinishesKeepsAWayBackThatIsPending) {
  // Only a DO line clears it.
  this->SetRows({true});
  run.LoopBack = true;
  EXPECT_TRUE(TypeParam::Loop());
  EXPECT_TRUE(run.LoopBack);
}

TEST_F(LoopTest, TheTwoMatricesShareTheirPosition) {
  clients.Matrix.assign(4, {});
  clients.Matrix[3].Checked = true;
  clients.MerMatrix.assign(2, {});
  clients.MerMatrix[1].Checked = true;
  EXPECT_TRUE(RunLines({"REM", "DO", "LOOP UNTIL MATRIX.EOF", "DO", "MSG=2", "LOOP UNTIL MERMATRIX.EOF"}));
  EXPECT_EQ(Log(), Completed({"Loop: MoveTo: 3", "Loop: EOF", "MSG: 2", "Loop: EOF"}));
}

}  // namespace
