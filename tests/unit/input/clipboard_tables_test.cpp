// Tables of the clipboard turned into semicolon files, from text to text.
#include "input/clipboard_tables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/fault.h"

namespace {

using clipboard_tables::QuoteCells;
using clipboard_tables::StatementRecords;

const std::string kPiece(27, 'x');

std::string Repeat(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

std::string TextFields(const std::string& purpose) {
  std::string record;
  clipboard_tables::AppendTextFields(record, purpose);
  return record;
}

// QuoteCells.

TEST(QuoteCells, EachCellIsQuotedAndEndsInASemicolon) {
  EXPECT_EQ(QuoteCells("a\tb\r\nc\td\r\n"), "\"a\";\"b\";\r\n\"c\";\"d\";\r\n");
}

TEST(QuoteCells, ALineWithoutATabStaysAsItIs) {
  EXPECT_EQ(QuoteCells("a\tb\r\nUmsätze 2005\r\nc\td\r\n"), "\"a\";\"b\";\r\nUmsätze 2005\r\n\"c\";\"d\";\r\n");
}

TEST(QuoteCells, AnEmptyLineStaysEmpty) { EXPECT_EQ(QuoteCells("a\tb\r\n\r\nc\r\n"), "\"a\";\"b\";\r\n\r\nc\r\n"); }

TEST(QuoteCells, EmptyCellsAreQuoted) {
  EXPECT_EQ(QuoteCells("\t\r\na\t\t\r\n"), "\"\";\"\";\r\n\"a\";\"\";\"\";\r\n");
}

TEST(QuoteCells, QuotesAndSemicolonsInsideACellAreLeftAlone) {
  EXPECT_EQ(QuoteCells("a\"b\tc;d\r\n"), "\"a\"b\";\"c;d\";\r\n");
}

TEST(QuoteCells, TheLastLineNeedsNoLineEnd) { EXPECT_EQ(QuoteCells("a\tb"), "\"a\";\"b\";\r\n"); }

TEST(QuoteCells, ACarriageReturnAloneEndsALine) { EXPECT_EQ(QuoteCells("a\rb\r\rc"), "a\r\nb\r\n\r\nc\r\n"); }

TEST(QuoteCells, ABareLineFeedIsPartOfItsLine) {
  EXPECT_EQ(QuoteCells("a\tb\nc\td\r\n"), "\"a\";\"b\nc\";\"d\";\r\n");
  EXPECT_EQ(QuoteCells("a\n\rb"), "a\n\r\nb\r\n");
}

TEST(QuoteCells, NothingIsNothing) { EXPECT_EQ(QuoteCells(""), ""); }

TEST(QuoteCells, AnyOtherByteIsKept) {
  EXPECT_EQ(QuoteCells(std::string("\0\x1A\t\xFF", 4)), std::string("\"\0\x1A\";\"\xFF\";\r\n", 11));
}

// The text fields of the purpose.

TEST(TextFields, TwelveFieldsForUpToElevenWholePiecesAndForThirteen) {
  const std::string field = "\"" + kPiece + "\";";
  const std::string rest = "\"Rest\";";
  EXPECT_EQ(TextFields("Rest"), rest + Repeat(";", 11));
  EXPECT_EQ(TextFields(kPiece + "Rest"), field + rest + Repeat(";", 10));
  EXPECT_EQ(TextFields(Repeat(kPiece, 10) + "Rest"), Repeat(field, 10) + rest + ";");
  EXPECT_EQ(TextFields(Repeat(kPiece, 11) + "Rest"), Repeat(field, 11) + rest);
  EXPECT_EQ(TextFields(Repeat(kPiece, 13) + "Rest"), Repeat(field, 12));
  EXPECT_EQ(TextFields(Repeat(kPiece, 40)), Repeat(field, 12));
}

TEST(TextFields, TwelveWholePiecesGiveThirteenFields) {
  const std::string field = "\"" + kPiece + "\";";
  EXPECT_EQ(TextFields(Repeat(kPiece, 12)), Repeat(field, 12) + "\"\";");
  EXPECT_EQ(TextFields(Repeat(kPiece, 12) + "Rest"), Repeat(field, 12) + "\"Rest\";");
}

TEST(TextFields, TheRemainderIsAFieldEvenWhenItIsEmpty) {
  EXPECT_EQ(TextFields(""), "\"\";" + Repeat(";", 11));
  EXPECT_EQ(TextFields(Repeat(kPiece, 2)), Repeat("\"" + kPiece + "\";", 2) + "\"\";;;;;;;;;;");
}

TEST(TextFields, PiecesAreCutAtEvery27Characters) {
  EXPECT_EQ(TextFields("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "\"ABCDEFGHIJKLMNOPQRSTUVWXYZ\";" + Repeat(";", 11));
  EXPECT_EQ(TextFields("ABCDEFGHIJKLMNOPQRSTUVWXYZ12"), "\"ABCDEFGHIJKLMNOPQRSTUVWXYZ1\";\"2\";" + Repeat(";", 10));
}

// StatementRecords.

std::string Record(const std::string& line) { return StatementRecords("Kopf\r\n" + line, "4711", "10020030"); }

const std::string kTail = ";4711;10020030\r\n";

TEST(StatementRecords, TheHeaderIsDroppedAndEachLineTagged) {
  EXPECT_EQ(StatementRecords("Datum\tText\tArt\tBetrag\tW\r\n01.02.\tMiete\tLS\t1.234,56\tEUR\r\n", "4711", "10020030"),
            "\"01.02.\";\"Miete\";;;;;;;;;;;;\"LS\";\"1234,56\";\"EUR\";" + kTail);
}

TEST(StatementRecords, TheAmountLosesItsDotsAlone) {
  EXPECT_EQ(Record("a\tb\tc\t-1.234.567,89 H"), "\"a\";\"b\";;;;;;;;;;;;\"c\";\"-1234567,89 H\";" + kTail);
}

TEST(StatementRecords, DotsOfOtherCellsStay) {
  EXPECT_EQ(Record("1.2\t3.4\t5.6\t7.8\t9.0"), "\"1.2\";\"3.4\";;;;;;;;;;;;\"5.6\";\"78\";\"9.0\";" + kTail);
}

TEST(StatementRecords, ALineWithoutATabIsItsOnlyCell) { EXPECT_EQ(Record("Summe 1.5\r\n"), "\"Summe 1.5\";" + kTail); }

TEST(StatementRecords, AnEmptyLineIsItsTail) { EXPECT_EQ(Record("\r\nx"), kTail + "\"x\";" + kTail); }

TEST(StatementRecords, AHeaderAloneGivesNothing) {
  EXPECT_EQ(StatementRecords("Datum\tText\r\n", "4711", "1"), "");
  EXPECT_EQ(StatementRecords("Datum", "4711", "1"), "");
  EXPECT_EQ(StatementRecords("\r\n", "4711", "1"), "");
}

TEST(StatementRecords, ATextWithoutAnyLineHasNoHeaderToRead) {
  try {
    StatementRecords("", "4711", "1");
    ADD_FAILURE();
  } catch (const runtime::Fault& fault) {
    EXPECT_EQ(fault.number, runtime::FaultNumber::InputPastEnd);
  }
}

TEST(StatementRecords, EmptyValuesLeaveTheirSemicolons) {
  EXPECT_EQ(StatementRecords("Kopf\r\nx\r\n", "", ""), "\"x\";;;\r\n");
}

TEST(StatementRecords, BareLineFeedsStayInsideTheirLines) {
  EXPECT_EQ(Record("a\nb\tc\r\n"), "\"a\nb\";\"c\";;;;;;;;;;;;" + kTail);
}

TEST(StatementRecords, AccountAndBankCodeAreTakenAsTheyStand) {
  EXPECT_EQ(StatementRecords("Kopf\r\nx", "47;11", "\"1\""), "\"x\";;47;11;\"1\"\r\n");
}

}  // namespace
