// The sort of the asset matrix.
#include "clients/basQuickSort.h"

#include "runtime/dates.h"
#include "runtime/fault.h"
#include "support/system.h"

namespace {

using namespace basMain;
using basQuickSort::SortMatrix;
using runtime::Fault;
using runtime::FaultNumber;

class QuickSortTest : public support::SystemTest {
 protected:
  using Texts = std::vector<std::string>;

  static std::vector<MatrixRow> Rows(const Texts& begins) {
    std::vector<MatrixRow> rows;
    for (const std::string& begin : begins) rows.push_back({.Bereich = "von " + begin, .Beginn = begin});
    return rows;
  }

  static Texts Begins(const std::vector<MatrixRow>& rows) {
    Texts begins;
    for (const MatrixRow& row : rows) {
      EXPECT_EQ(row.Bereich, "von " + row.Beginn);  // rows are moved as a whole
      begins.push_back(row.Beginn);
    }
    return begins;
  }

  static Texts Sorted(const Texts& begins) {
    auto rows = Rows(begins);
    SortMatrix(rows);
    return Begins(rows);
  }

  static FaultNumber FaultOf(std::vector<MatrixRow>& rows) {
    try {
      SortMatrix(rows);
    } catch (const Fault& fault) {
      return fault.number;
    }
    ADD_FAILURE() << "no fault";
    return FaultNumber::DeviceError;
  }
};

TEST_F(QuickSortTest, SortsByDateAndNotByText) {
  EXPECT_EQ(Sorted({"31.01.2004", "01.12.2003", "15.06.1999"}), (Texts{"15.06.1999", "01.12.2003", "31.01.2004"}));
}

TEST_F(QuickSortTest, SortsWhatIsSortedAndWhatIsReversed) {
  const Texts sorted = {"01.01.2001", "01.01.2002", "01.01.2003", "01.01.2004"};
  EXPECT_EQ(Sorted(sorted), sorted);
  EXPECT_EQ(Sorted({sorted.rbegin(), sorted.rend()}), sorted);
}

TEST_F(QuickSortTest, OfEqualDatesTheFirstStaysInFront) {
  EXPECT_EQ(
      Sorted({"01.01.2004", "1.1.2004", "01.01.2003", "1.1.04"}),
      (Texts{"01.01.2003", "1.1.2004", "01.01.2004", "1.1.04"}));  // the swap takes the first one behind its equal
  EXPECT_EQ(Sorted({"1.1.04", "01.01.2004", "1.1.2004"}), (Texts{"1.1.04", "01.01.2004", "1.1.2004"}));
}

TEST_F(QuickSortTest, OneRowIsSortedWhateverItHolds) {
  EXPECT_EQ(Sorted({"01.01.2004"}), Texts{"01.01.2004"});
  EXPECT_EQ(Sorted({"kein Datum"}), Texts{"kein Datum"});
}

TEST_F(QuickSortTest, ATableWithoutRowsHasNoBounds) {
  std::vector<MatrixRow> rows;
  EXPECT_EQ(FaultOf(rows), FaultNumber::OutOfRange);
}

TEST_F(QuickSortTest, ADayThatIsNoDateIsAFaultAndNothingMoves) {
  for (const Texts& begins : {Texts{"01.01.2004", "kein Datum", "01.01.2003"}, Texts{"", "01.01.2003"}}) {
    auto rows = Rows(begins);
    EXPECT_EQ(FaultOf(rows), FaultNumber::TypeMismatch);
    EXPECT_EQ(Begins(rows), begins);
  }
}

TEST_F(QuickSortTest, ARangeLeavesTheRowsAroundIt) {
  auto rows = Rows({"01.01.2009", "01.01.2005", "01.01.2004", "01.01.2003", "01.01.2000"});
  basQuickSort::SortMatrixRange(rows, 1, 3);
  EXPECT_EQ(Begins(rows), (Texts{"01.01.2009", "01.01.2003", "01.01.2004", "01.01.2005", "01.01.2000"}));
  basQuickSort::SortMatrixRange(rows, 3, 2);
  EXPECT_EQ(rows[3].Beginn, "01.01.2005");
}

TEST_F(QuickSortTest, SwapsWholeRows) {
  MatrixRow a = {"A", "01.01.2003", "31.12.2003", true};
  MatrixRow b = {"B", "01.01.2004", "31.12.2004", false};
  basQuickSort::SwapMatrixRows(a, b);
  EXPECT_EQ(a.Bereich + a.Beginn + a.Ende, "B01.01.200431.12.2004");
  EXPECT_FALSE(a.Checked);
  EXPECT_EQ(b.Bereich + b.Beginn + b.Ende, "A01.01.200331.12.2003");
  EXPECT_TRUE(b.Checked);
}

TEST_F(QuickSortTest, SortsThousandsOfRows) {
  std::vector<MatrixRow> rows;
  for (int i = 0; i < 1000; ++i)
    rows.push_back({.Beginn = runtime::DayText(runtime::AddDays({2000, 1, 1}, i * 617 % 1000))});
  SortMatrix(rows);
  for (int i = 0; i < 1000; ++i)
    EXPECT_EQ(rows[static_cast<std::size_t>(i)].Beginn, runtime::DayText(runtime::AddDays({2000, 1, 1}, i)));
}

}  // namespace
