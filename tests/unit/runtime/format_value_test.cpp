// Each row of docs/formats.md, and what lies between the rows.
#include "runtime/format_value.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace {

using namespace runtime;

const DateTime kAfternoon = {2003, 12, 31, 17, 5, 9};
const DateTime kMorning = {2004, 2, 3, 4, 5, 6};  // a Tuesday
const FormatRules kGerman = {kGermanWeeks, 2006};
const FormatRules kPlain = {{}, 2006};

struct Row {
  Value value;
  std::string format;
  std::string text;
};

void ExpectRows(const std::vector<Row>& rows, const FormatRules& rules = kGerman) {
  for (const Row& row : rows) EXPECT_EQ(FormatValue(row.value, row.format, rules), row.text) << row.format;
}

Value Text(const std::string& text) { return text; }

// Dates.

TEST(FormatValueTest, Days) {
  ExpectRows({{kMorning, "d", "3"},
              {kMorning, "dd", "03"},
              {kMorning, "ddd", "Di"},
              {kMorning, "dddd", "Dienstag"},
              {kMorning, "ddddd", "03.02.2004"},
              {kMorning, "dddddd", "Dienstag, 3. Februar 2004"},
              {kMorning, "ddddddd", "Dienstag, 3. Februar 20043"},
              {kAfternoon, "d", "31"}});
}

TEST(FormatValueTest, Months) {
  ExpectRows({{kMorning, "m", "2"},
              {kMorning, "mm", "02"},
              {kMorning, "mmm", "Feb"},
              {kMorning, "mmmm", "Februar"},
              {kAfternoon, "m", "12"},
              {DateTime{2004, 3, 1}, "mmm", "Mrz"},
              {DateTime{2004, 3, 1}, "mmmm", "März"}});
}

TEST(FormatValueTest, MinutesBehindAnHour) {
  ExpectRows({{kMorning, "h:m", "4:5"},
              {kMorning, "hh:mm:ss", "04:05:06"},
              {kMorning, "hhmm", "0405"},
              {kMorning, "hh \\U\\h\\r mm", "04 Uhr 05"},
              {kMorning, "h:s:m", "4:6:2"},
              {kMorning, "h:mmm", "4:Feb"},
              {kMorning, "h:m:m", "4:5:2"},
              {kMorning, "mm:ss", "02:06"}});
}

TEST(FormatValueTest, Years) {
  ExpectRows({{kMorning, "y", "34"},
              {kMorning, "yy", "04"},
              {kMorning, "yyyy", "2004"},
              {kMorning, "yyy", "0434"},
              {kMorning, "yyyyy", "200434"},
              {kAfternoon, "y", "365"},
              {DateTime{100, 1, 1}, "yyyy", "0100"}});
}

TEST(FormatValueTest, QuartersAndWeeks) {
  ExpectRows({{kMorning, "q", "1"},
              {DateTime{2004, 4, 1}, "q", "2"},
              {DateTime{2004, 9, 30}, "q", "3"},
              {kAfternoon, "q", "4"}});
  ExpectRows({{kAfternoon, "w", "3"}, {kAfternoon, "ww", "1"}, {DateTime{2005, 1, 1}, "ww", "53"}}, kGerman);
  ExpectRows({{kAfternoon, "w", "4"}, {kAfternoon, "ww", "53"}, {DateTime{2005, 1, 1}, "ww", "1"}}, kPlain);
}

TEST(FormatValueTest, Times) {
  ExpectRows({{kMorning, "h", "4"},
              {kMorning, "hh", "04"},
              {kMorning, "n", "5"},
              {kMorning, "nn", "05"},
              {kMorning, "s", "6"},
              {kMorning, "ss", "06"},
              {kAfternoon, "h", "17"},
              {kAfternoon, "hh:nn:ss", "17:05:09"},
              {kAfternoon, "ttttt", "17:05:09"},
              {kMorning, "ttttt", "04:05:06"}});
}

TEST(FormatValueTest, HalvesOfTheDay) {
  ExpectRows({{kAfternoon, "h AM/PM", "5 PM"},
              {kAfternoon, "hh:nn am/pm", "05:05 pm"},
              {kAfternoon, "hA/P", "5P"},
              {kAfternoon, "ha/p", "5p"},
              {kAfternoon, "h AMPM", "5 PM"},
              {kMorning, "AM/PM h", "AM 4"},
              {DateTime{2004, 1, 1}, "h AM/PM", "12 AM"},
              {DateTime{2004, 1, 1, 12, 0, 0}, "h AM/PM", "12 PM"},
              {DateTime{2004, 1, 1, 11, 59, 0}, "h AM/PM", "11 AM"}});
}

TEST(FormatValueTest, DateAndTimeTogether) {
  ExpectRows({{kAfternoon, "c", "31.12.2003 17:05:09"},
              {DateTime{2003, 12, 31}, "c", "31.12.2003"},
              {DateTime{1899, 12, 30, 17, 5, 9}, "c", "17:05:09"}});
}

TEST(FormatValueTest, MarksBetweenTheParts) {
  ExpectRows({{kMorning, "dd/mm/yyyy", "03.02.2004"},
              {kMorning, "dd.mm.yyyy", "03.02.2004"},
              {kMorning, "dd-mm-yy", "03-02-04"},
              {kMorning, "yyyy_mm_dd", "2004_02_03"},
              {kMorning, "ddmmyyyy", "03022004"},
              {kMorning, "d. mmmm yyyy, hh:nn", "3. Februar 2004, 04:05"}});
}

TEST(FormatValueTest, LettersOfDatesMindNoCase) {
  ExpectRows(
      {{kMorning, "DD.MM.YYYY", "03.02.2004"}, {kAfternoon, "HH:NN", "17:05"}, {kAfternoon, "TTTTT", "17:05:09"}});
}

TEST(FormatValueTest, LiteralsInDates) {
  ExpectRows({{kMorning, "\\d\\dd", "dd3"},
              {kMorning, "\"am\" d\".\"", "am 3."},
              {kMorning, "yyyy\\", "2004\\"},
              {kMorning, "d\"offen d", "3offen d"},
              {kMorning, "d\\\"", "3\""},
              {kMorning, "d \"\\\"", "3 \\"},
              {kMorning, "xd;yyyy", "x3;2004"}});
}

TEST(FormatValueTest, NamedDates) {
  ExpectRows({{kAfternoon, "General Date", "31.12.2003 17:05:09"},
              {kAfternoon, "Long Date", "Mittwoch, 31. Dezember 2003"},
              {kAfternoon, "Medium Date", "31. Dez 03"},
              {kAfternoon, "Short Date", "31.12.2003"},
              {kAfternoon, "Long Time", "17:05:09"},
              {kAfternoon, "Medium Time", "05:05 PM"},
              {kAfternoon, "Short Time", "17:05"},
              {kAfternoon, "SHORT date", "31.12.2003"}});
}

// Numbers.

TEST(FormatValueTest, PlacesForDigits) {
  ExpectRows({{42.0, "00000", "00042"},
              {42.0, "####", "42"},
              {42.0, "0", "42"},
              {42.0, "#", "42"},
              {0.0, "0", "0"},
              {0.0, "#", ""},
              {0.0, "000", "000"},
              {42.0, "#0#0#", "0042"},
              {1234567.0, "00-00", "12345-67"},
              {12345.0, "000\\/00", "123/45"}});
}

TEST(FormatValueTest, Decimals) {
  ExpectRows({{2.5, "0.00", "2,50"},
              {2.5, "0.##", "2,5"},
              {2.0, "0.##", "2,"},
              {2.0, "0.#0#", "2,00"},
              {12.5, ".00", "12,50"},
              {0.5, "#.0", ",5"},
              {0.05, "0.0#", "0,05"},
              {0.004, "0.00", "0,00"},
              {1e-20, "0.00", "0,00"},
              {1.5, "0.0.0", "1,5.0"}});
}

TEST(FormatValueTest, RoundsAwayFromZeroAtTheHalf) {
  ExpectRows({{2.5, "0", "3"},
              {-2.5, "0", "-3"},
              {0.125, "0.00", "0,13"},
              {1.005, "0.00", "1,01"},
              {99.995, "0.00", "100,00"},
              {999.5, "0", "1000"},
              {0.5, "0", "1"},
              {0.4999, "0", "0"},
              {9.99, "#", "10"}});
}

TEST(FormatValueTest, Thousands) {
  ExpectRows({{1234567.0, "#,##0", "1.234.567"},
              {123.0, "#,##0", "123"},
              {1234.0, "0,0", "1.234"},
              {12.0, "0,000", "0.012"},
              {1234567.891, "#,##0.00", "1.234.567,89"},
              {1234567.0, "0,", "1235"},
              {1234567.0, "0.0,", "1234567,0"},
              {1234567.0, "#,##0,", "1.235"},
              {1234567890.0, "0,,", "1235"},
              {1234567.0, "0,.00", "1234,57"},
              {1234567.0, ",0", "1234567"}});
}

TEST(FormatValueTest, Hundredths) {
  ExpectRows({{0.25, "0%", "25%"}, {0.25, "0.00 %", "25,00 %"}, {1.0, "0%%", "10000%%"}, {-0.5, "0%", "-50%"}});
}

TEST(FormatValueTest, PowersOfTen) {
  ExpectRows({{1234.0, "0.00E+00", "1,23E+03"},
              {1234.0, "0.00e-00", "1,23e03"},
              {0.00012, "0.0E+0", "1,2E-4"},
              {0.00012, "0.0E-0", "1,2E-4"},
              {9.999, "0.0E+00", "1,0E+01"},
              {12345.0, "00.0E+0", "12,3E+3"},
              {0.0, "0.0E+00", "0,0E+00"},
              {-1234.0, "0E+0", "-1E+3"},
              {1e100, "0E+0", "1E+100"},
              {5.0, "0E", "5E"}});
}

TEST(FormatValueTest, PartsForPositiveNegativeAndZero) {
  ExpectRows({{5.0, "0;(0)", "5"},
              {-5.0, "0;(0)", "(5)"},
              {0.0, "0;(0)", "0"},
              {-5.0, "0;0-", "5-"},
              {7.0, "0;0-;\\l;x", "7"},
              {0.0, "0;0-;\\l;x", "l"},
              {5.0, "0;-0;\\l\\e\\e\\r", "5"},
              {0.0, "0;-0;\\l\\e\\e\\r", "leer"},
              {-5.0, "0;;\\0", "-5"},
              {0.0, "0;-0;", "0"},
              {-5.0, "0", "-5"},
              {-0.4, "0", "0"},
              {-5.0, "0 \\E", "-5 E"}});
}

TEST(FormatValueTest, LiteralsInNumbers) {
  ExpectRows({{5.0, "0 €", "5 €"},
              {5.0, "+0", "+5"},
              {5.0, "(0)", "(5)"},
              {5.0, "0\" Stück\"", "5 Stück"},
              {5.0, "0\\#", "5#"},
              {5.0, "0d", "5d"}});
}

TEST(FormatValueTest, LargeNumbersKeepFifteenDigits) {
  ExpectRows({{123456789012345678.0, "0", "123456789012346000"}, {1e20, "#,##0", "100.000.000.000.000.000.000"}});
}

TEST(FormatValueTest, NamedNumbers) {
  ExpectRows({{1234.5, "General Number", "1234,5"},
              {1234.5, "Currency", "1.234,50 €"},
              {-1234.5, "Currency", "-1.234,50 €"},
              {1234.5, "Fixed", "1234,50"},
              {1234.5, "Standard", "1.234,50"},
              {0.25, "Percent", "25,00%"},
              {1234.5, "Scientific", "1,23E+03"},
              {5.0, "Yes/No", "Ja"},
              {-5.0, "Yes/No", "Ja"},
              {0.0, "Yes/No", "Nein"},
              {5.0, "True/False", "Wahr"},
              {0.0, "True/False", "Falsch"},
              {5.0, "On/Off", "Ein"},
              {0.0, "On/Off", "Aus"},
              {1234.5, "STANDARD", "1.234,50"}});
}

TEST(FormatValueTest, TheGeneralNumberIsThePlainOne) {
  ExpectRows({{0.0, "", "0"},
              {-42.0, "", "-42"},
              {0.1, "", "0,1"},
              {1e15, "", "1E+15"},
              {123456789012345.0, "", "123456789012345"},
              {1.5e20, "", "1,5E+20"},
              {1e-20, "", "1E-20"},
              {-2147483648.0, "General Number", "-2147483648"}});
}

// Texts.

TEST(FormatValueTest, PlacesForCharacters) {
  ExpectRows({{Text("42"), "@@@@", "  42"},
              {Text("42"), "&&&&", "42"},
              {Text("42"), "!@@@@", "42  "},
              {Text("42"), "!&&&&", "42"},
              {Text("abcd"), "@@-@@", "ab-cd"},
              {Text("abcdef"), "@@-@@", "abcd-ef"},
              {Text("abcdef"), "!@@-@@", "ab-cdef"},
              {Text("abc"), "@@-@@", " a-bc"},
              {Text("abc"), "!@@-@@", "ab-c "},
              {Text("abc"), "&&-&&", "a-bc"},
              {Text(""), "@@", "  "},
              {Text("abc"), "(@)", "(abc)"}});
}

TEST(FormatValueTest, Case) {
  ExpectRows({{Text("Müller"), "<", "müller"},
              {Text("Müller"), ">", "MÜLLER"},
              {Text("Müller"), ">@@@@@@@@", "  MÜLLER"},
              {Text("Müller"), ">\\n@", "nMÜLLER"},
              {Text("Müller"), "!", "Müller"}});
}

TEST(FormatValueTest, APartForTheEmptyText) {
  ExpectRows({{Text(""), "@;leer", "leer"}, {Text("x"), "@;leer", "x"}, {Text(""), ">", ""}});
}

TEST(FormatValueTest, LiteralsInTexts) {
  ExpectRows({{Text("42"), "\\n\\r\\. @", "nr. 42"}, {Text("42"), "\\@@", "@42"}, {Text("42"), "\"@ \"@", "@ 42"}});
}

// Between the kinds.

TEST(FormatValueTest, TheEmptyFormatLeavesTheValue) {
  ExpectRows({{Text("Müller"), "", "Müller"},
              {Text(" 31.12.03 "), "", " 31.12.03 "},
              {42.0, "", "42"},
              {kAfternoon, "", "31.12.2003 17:05:09"}});
}

TEST(FormatValueTest, AFormatWithoutAMeaningStands) {
  ExpectRows({{Text("Müller"), "x", "x"}, {42.0, "\\d\\d", "dd"}, {kAfternoon, "-", "-"}, {Text("x"), " ", " "}});
}

TEST(FormatValueTest, ANumberIsADateAndBack) {
  ExpectRows({{37986.0, "dd.mm.yyyy", "31.12.2003"},
              {37986.5, "c", "31.12.2003 12:00:00"},
              {0.0, "dd.mm.yyyy", "30.12.1899"},
              {DateTime{2003, 12, 31}, "0", "37986"},
              {DateTime{2003, 12, 31, 12, 0, 0}, "General Number", "37986,5"}});
  EXPECT_EQ(FormatValue(37986.0, "w", kPlain), "4");
}

TEST(FormatValueTest, ANumberBeyondAllDatesIsAnOverflow) {
  for (const double number : {2958466.0, -657435.0, 2147483647.0}) {
    try {
      FormatValue(number, "yyyy");
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.number, FaultNumber::Overflow);
    }
  }
}

TEST(FormatValueTest, ATextIsReadAsWhatTheFormatWants) {
  ExpectRows({{Text("31.12.2003"), "yyyy", "2003"},
              {Text("31.12."), "ddmmyyyy", "31122006"},
              {Text("37986"), "yyyy", "2003"},
              {Text("5"), "000", "005"},
              {Text("1234,5"), "Standard", "1.234,50"},
              {Text("1234,5"), "General Number", "1234,5"}});
}

TEST(FormatValueTest, ATextThatReadsAsNeitherStays) {
  ExpectRows({{Text("Müller"), "yyyy", "Müller"},
              {Text("Müller"), "000", "Müller"},
              {Text("Müller"), "Standard", "Müller"},
              {Text("Müller"), "Yes/No", "Müller"},
              {Text(""), "0", ""},
              {Text("31.02.2003x"), "yyyy", "31.02.2003x"}});
}

TEST(FormatValueTest, NumbersAndDatesAreTextsToo) {
  ExpectRows(
      {{12345.0, "@@@-@@", "123-45"}, {-5.0, "@@@", " -5"}, {DateTime{2003, 12, 31}, "@@@@@@@@@@@@", "  31.12.2003"}});
}

TEST(FormatValueTest, TheFirstSignWithAMeaningDecides) {
  ExpectRows({{5.0, "0 d", "5 d"},
              {37986.0, "d 0", "31 0"},
              {Text("5"), "@0", "50"},
              {37986.0, ".d", ".31"},
              {37986.0, "e+d", "e+31"},
              {Text("x"), ".,;@", ".,x"},
              {Text(""), ".,;@", " "},
              {7.0, "Nr. 0", "0r. 0"},
              {7.0, "\\Nr\\. 0", "Nr. 7"}});
}

TEST(FormatValueTest, AVeryLongFormatTakesNoLonger) {
  const std::size_t size = 1'000'000;
  EXPECT_EQ(FormatValue(1.5, "0." + std::string(size, '#')), "1,5");
  EXPECT_EQ(FormatValue(1.5, std::string(size, '0')), std::string(size - 1, '0') + "2");
  EXPECT_EQ(FormatValue(Text("x"), std::string(size, '@')), std::string(size - 1, ' ') + "x");
  EXPECT_EQ(FormatValue(kMorning, std::string(size, 'q')), std::string(size, '1'));
  EXPECT_EQ(FormatValue(5.0, "0" + std::string(size, ';')), "5");
}

}  // namespace
