#include "runtime/dates.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace {

using namespace runtime;

constexpr int kPresent = 2006;

// The general text of a date text, or "-" for a text that is no date.
std::string Read(const std::string& text) { return IsDate(text, kPresent) ? DateText(ToDate(text, kPresent)) : "-"; }

template <class Operation>
FaultNumber FaultOf(Operation operation) {
  try {
    operation();
  } catch (const Fault& fault) {
    return fault.number;
  }
  ADD_FAILURE() << "no fault";
  return FaultNumber::DeviceError;
}

TEST(DatesTest, ADayHasTwoTwoAndFourDigits) {
  EXPECT_EQ(DayText({2006, 3, 4}), "04.03.2006");
  EXPECT_EQ(DayText({1899, 12, 30}), "30.12.1899");
  EXPECT_EQ(DayText({100, 1, 1}), "01.01.0100");
  EXPECT_EQ(DayText({2006, 3, 14, 9, 30, 0}), "14.03.2006");
}

TEST(DatesTest, TheGeneralFormatAddsTheTime) {
  EXPECT_EQ(DateText({2006, 3, 14, 9, 5, 7}), "14.03.2006 09:05:07");
  EXPECT_EQ(DateText({2006, 12, 31, 23, 59, 59}), "31.12.2006 23:59:59");
}

TEST(DatesTest, TheGeneralFormatLeavesMidnightOut) {
  EXPECT_EQ(DateText({2006, 3, 14}), "14.03.2006");
  EXPECT_EQ(DateText({2006, 3, 14, 0, 0, 1}), "14.03.2006 00:00:01");
  EXPECT_EQ(DateText({2006, 3, 14, 0, 1, 0}), "14.03.2006 00:01:00");
  EXPECT_EQ(DateText({2006, 3, 14, 1, 0, 0}), "14.03.2006 01:00:00");
}

TEST(DatesTest, TheGeneralFormatOfATimeAloneHasNoDay) {
  EXPECT_EQ(DateText({1899, 12, 30, 12, 30, 0}), "12:30:00");
  EXPECT_EQ(DateText({}), "00:00:00");
}

TEST(DatesTest, DatesAreOrderedByTime) {
  EXPECT_LT((DateTime{2003, 12, 31}), (DateTime{2004, 1, 1}));
  EXPECT_LT((DateTime{2004, 1, 31}), (DateTime{2004, 2, 1}));
  EXPECT_LT((DateTime{2004, 2, 1}), (DateTime{2004, 2, 1, 0, 0, 1}));
  EXPECT_EQ((DateTime{2004, 2, 1}), (DateTime{2004, 2, 1}));
}

// Reading.

TEST(DatesTest, ReadsTheDayFirst) {
  EXPECT_EQ(Read("31.12.2003"), "31.12.2003");
  EXPECT_EQ(Read("01.02.2003"), "01.02.2003");
  EXPECT_EQ(Read("1.2.2003"), "01.02.2003");
  EXPECT_EQ(Read("  31.12.2003  "), "31.12.2003");
}

TEST(DatesTest, ReadsOtherMarksBetweenTheNumbers) {
  for (const char* text : {"31-12-2003", "31/12/2003", "31 12 2003", "31. 12. 2003", "31 . 12 . 2003", "31.12-2003"})
    EXPECT_EQ(Read(text), "31.12.2003") << text;
}

TEST(DatesTest, YearsOfTwoDigitsLieAround2000) {
  EXPECT_EQ(Read("1.1.00"), "01.01.2000");
  EXPECT_EQ(Read("1.1.5"), "01.01.2005");
  EXPECT_EQ(Read("1.1.29"), "01.01.2029");
  EXPECT_EQ(Read("1.1.30"), "01.01.1930");
  EXPECT_EQ(Read("1.1.99"), "01.01.1999");
}

TEST(DatesTest, ADayWithoutAYearIsOneOfThePresentYear) {
  EXPECT_EQ(Read("31.12."), "31.12.2006");
  EXPECT_EQ(Read("31.12"), "31.12.2006");
  EXPECT_EQ(Read("1/2"), "01.02.2006");
}

TEST(DatesTest, AMonthWithAYearIsItsFirstDay) {
  EXPECT_EQ(Read("12.2003"), "01.12.2003");
  EXPECT_EQ(Read("Dezember 2003"), "01.12.2003");
  EXPECT_EQ(Read("Dez. 2003"), "01.12.2003");
}

TEST(DatesTest, TheYearComesFirstWhereItHasMoreDigits) {
  EXPECT_EQ(Read("2003-12-31"), "31.12.2003");
  EXPECT_EQ(Read("2003/1/2"), "02.01.2003");
}

TEST(DatesTest, ReadsEveryMonthName) {
  const struct {
    const char *full, *abbreviated, *day;
  } months[] = {{"Januar", "Jan", "02.01.2003"},  {"Februar", "Feb", "02.02.2003"},  {"März", "Mrz", "02.03.2003"},
                {"April", "Apr", "02.04.2003"},   {"Mai", "Mai", "02.05.2003"},      {"Juni", "Jun", "02.06.2003"},
                {"Juli", "Jul", "02.07.2003"},    {"August", "Aug", "02.08.2003"},   {"September", "Sep", "02.09.2003"},
                {"Oktober", "Okt", "02.10.2003"}, {"November", "Nov", "02.11.2003"}, {"Dezember", "Dez", "02.12.2003"}};
  for (const auto& month : months) {
    EXPECT_EQ(Read(std::string("2. ") + month.full + " 2003"), month.day);
    EXPECT_EQ(Read(std::string("2. ") + month.abbreviated + " 2003"), month.day);
  }
}

TEST(DatesTest, ReadsMonthNamesInAllForms) {
  for (const char* text : {"31. Dezember 2003", "31 DEZEMBER 2003", "31. dez. 2003", "31.Dez.03", "31-Dez-2003",
                           "Mittwoch, 31. Dezember 2003", "Mi. 31. Dez 2003", "Mi, 31.12.2003", "Mi., 31.12.2003"})
    EXPECT_EQ(Read(text), "31.12.2003") << text;
  EXPECT_EQ(Read("5. März"), "05.03.2006");
  EXPECT_EQ(Read("5. MÄRZ 2004"), "05.03.2004");
  EXPECT_EQ(Read("5. Mär 2004"), "05.03.2004");
  EXPECT_EQ(Read("5. Sept. 2004"), "05.09.2004");
}

TEST(DatesTest, ReadsTimes) {
  EXPECT_EQ(Read("9:05"), "09:05:00");
  EXPECT_EQ(Read("09:05:07"), "09:05:07");
  EXPECT_EQ(Read("23:59:59"), "23:59:59");
  EXPECT_EQ(Read("0:00"), "00:00:00");
  EXPECT_EQ(Read("9 : 05"), "09:05:00");
}

TEST(DatesTest, ReadsTheHalvesOfTheDay) {
  EXPECT_EQ(Read("5:30 PM"), "17:30:00");
  EXPECT_EQ(Read("5 pm"), "17:00:00");
  EXPECT_EQ(Read("12 PM"), "12:00:00");
  EXPECT_EQ(Read("12:15AM"), "00:15:00");
}

TEST(DatesTest, ReadsDayAndTimeInEitherOrder) {
  EXPECT_EQ(Read("31.12.2003 9:05"), "31.12.2003 09:05:00");
  EXPECT_EQ(Read("9:05:07 31.12.2003"), "31.12.2003 09:05:07");
  EXPECT_EQ(Read("31.12. 9:05"), "31.12.2006 09:05:00");
  EXPECT_EQ(Read("31. Dez 9:05"), "31.12.2006 09:05:00");
  EXPECT_EQ(Read("31.12.2003 5 PM"), "31.12.2003 17:00:00");
}

TEST(DatesTest, ReadsTheGeneralFormatBack) {
  for (const DateTime& date : {DateTime{2003, 12, 31},
                               {2004, 2, 29, 1, 2, 3},
                               {100, 1, 1},
                               {9999, 12, 31, 23, 59, 59},
                               {1899, 12, 30, 12, 30, 0}})
    EXPECT_EQ(ToDate(DateText(date), kPresent), date);
}

TEST(DatesTest, TheDayMustExist) {
  for (const char* text : {"31.02.2003", "31.02.", "29.02.2003", "31.04.2003", "0.1.2003", "1.0.2003", "32.1.2003",
                           "1.13.2003", "12.31.2003", "31. Februar 2003", "2003-02-30"})
    EXPECT_EQ(Read(text), "-") << text;
  EXPECT_EQ(Read("29.02.2004"), "29.02.2004");
  EXPECT_EQ(Read("29.02.2000"), "29.02.2000");
  EXPECT_EQ(Read("29.02.1900"), "-");
}

TEST(DatesTest, TheYearsReachFrom100To9999) {
  EXPECT_EQ(Read("1.1.100"), "01.01.0100");
  EXPECT_EQ(Read("31.12.9999"), "31.12.9999");
  for (const char* text : {"1.1.099", "1.1.0003", "1.1.10000", "31.12.99999"}) EXPECT_EQ(Read(text), "-") << text;
}

TEST(DatesTest, TheTimeMustExist) {
  for (const char* text :
       {"24:00", "9:60", "9:05:60", "9:", ":05", "9:05:", "9:5:7:1", "13 PM", "0:30 AM", "PM", "9:005"})
    EXPECT_EQ(Read(text), "-") << text;
}

TEST(DatesTest, OtherTextsAreNoDates) {
  for (const char* text : {"",
                           "   ",
                           "abc",
                           "31",
                           "2003",
                           "37986",
                           "31122003",
                           "31..2003",
                           "31.12.2003.",
                           "31.12.2003x",
                           "x31.12.2003",
                           "-1.1.2003",
                           "31,12,2003",
                           "1,5",
                           "31.12.2003 1.1.2004",
                           "9:05 9:06",
                           "Dezember",
                           "31. Foo 2003",
                           "Mittwoch",
                           "31.12.2003\t",
                           "31.12-",
                           "31.12/",
                           "01.01.2003;"})
    EXPECT_EQ(Read(text), "-") << text;
  EXPECT_EQ(Read(std::string("1.1.2003\0", 9)), "-");
}

TEST(DatesTest, ATextThatIsNoDateIsATypeMismatch) {
  EXPECT_EQ(FaultOf([] { ToDate("31.02.2003", kPresent); }), FaultNumber::TypeMismatch);
  EXPECT_EQ(FaultOf([] { ToDate("", kPresent); }), FaultNumber::TypeMismatch);
}

TEST(DatesTest, AVeryLongTextIsNoDate) {
  EXPECT_EQ(Read(std::string(100'000, '1')), "-");
  EXPECT_EQ(Read(std::string(100'000, 'x')), "-");
  EXPECT_EQ(Read(std::string(100'000, ' ') + "1.1.2003"), "01.01.2003");
}

// Computing.

TEST(DatesTest, AddingMonthsKeepsTheDay) {
  EXPECT_EQ(AddMonths({2003, 1, 15}, 12), (DateTime{2004, 1, 15}));
  EXPECT_EQ(AddMonths({2003, 12, 1}, 1), (DateTime{2004, 1, 1}));
  EXPECT_EQ(AddMonths({2003, 1, 15, 9, 5, 7}, -1), (DateTime{2002, 12, 15, 9, 5, 7}));
  EXPECT_EQ(AddMonths({2003, 1, 15}, 0), (DateTime{2003, 1, 15}));
}

TEST(DatesTest, AddingMonthsFallsBackToTheLastDay) {
  EXPECT_EQ(AddMonths({2004, 2, 29}, 12), (DateTime{2005, 2, 28}));
  EXPECT_EQ(AddMonths({2004, 2, 29}, 48), (DateTime{2008, 2, 29}));
  EXPECT_EQ(AddMonths({2003, 1, 31}, 1), (DateTime{2003, 2, 28}));
  EXPECT_EQ(AddMonths({2003, 5, 31}, 1), (DateTime{2003, 6, 30}));
}

TEST(DatesTest, AddingDaysCrossesMonthsAndYears) {
  EXPECT_EQ(AddDays({2004, 1, 1}, -1), (DateTime{2003, 12, 31}));
  EXPECT_EQ(AddDays({2004, 3, 1}, -1), (DateTime{2004, 2, 29}));
  EXPECT_EQ(AddDays({2003, 2, 28, 1, 2, 3}, 1), (DateTime{2003, 3, 1, 1, 2, 3}));
}

TEST(DatesTest, ComputingBeyondTheYearsIsAFault) {
  EXPECT_EQ(AddMonths({9998, 12, 31}, 12), (DateTime{9999, 12, 31}));
  for (const int months : {12, 1, 2147483647})
    EXPECT_EQ(FaultOf([&] { AddMonths({9999, 12, 31}, months); }), FaultNumber::InvalidCall);
  EXPECT_EQ(FaultOf([] { AddMonths({100, 1, 1}, -1); }), FaultNumber::InvalidCall);
  EXPECT_EQ(FaultOf([] { AddMonths({100, 1, 1}, -2147483647 - 1); }), FaultNumber::InvalidCall);
  EXPECT_EQ(FaultOf([] { AddDays({100, 1, 1}, -1); }), FaultNumber::InvalidCall);
  EXPECT_EQ(FaultOf([] { AddDays({9999, 12, 31}, 1); }), FaultNumber::InvalidCall);
  EXPECT_EQ(FaultOf([] { AddDays({2003, 1, 1}, 2147483647); }), FaultNumber::InvalidCall);
}

TEST(DatesTest, ADateIsANumberOfDays) {
  EXPECT_EQ(DateNumber({}), 0.0);
  EXPECT_EQ(DateNumber({1900, 1, 1}), 2.0);
  EXPECT_EQ(DateNumber({2003, 12, 31}), 37986.0);
  EXPECT_EQ(DateNumber({2003, 12, 31, 12, 0, 0}), 37986.5);
  EXPECT_EQ(DateNumber({1899, 12, 29, 6, 0, 0}), -1.25);
}

TEST(DatesTest, ANumberIsADate) {
  for (const DateTime& date : {DateTime{},
                               {2003, 12, 31},
                               {2003, 12, 31, 23, 59, 59},
                               {1899, 12, 29, 6, 0, 0},
                               {100, 1, 1},
                               {9999, 12, 31, 1, 2, 3}})
    EXPECT_EQ(DateOfNumber(DateNumber(date)), date);
  EXPECT_EQ(DateOfNumber(0.9999999), (DateTime{1899, 12, 31}));
}

TEST(DatesTest, ANumberBeyondTheYearsIsAnOverflow) {
  for (const double number : {2958466.0, -657435.0, 1e300, -1e300})
    EXPECT_EQ(FaultOf([&] { DateOfNumber(number); }), FaultNumber::Overflow) << number;
  EXPECT_EQ(DateOfNumber(2958465), (DateTime{9999, 12, 31}));
  EXPECT_EQ(DateOfNumber(-657434), (DateTime{100, 1, 1}));
}

TEST(DatesTest, TheDayOfTheWeekCountsFromTheFirstDay) {
  const DateTime wednesday = {2003, 12, 31};
  EXPECT_EQ(WeekdayOf(wednesday), Weekday::Wednesday);
  EXPECT_EQ(DayOfWeek(wednesday, Weekday::Sunday), 4);
  EXPECT_EQ(DayOfWeek(wednesday, Weekday::Monday), 3);
  EXPECT_EQ(DayOfWeek(wednesday, Weekday::Wednesday), 1);
  EXPECT_EQ(DayOfWeek(wednesday, Weekday::Thursday), 7);
}

TEST(DatesTest, TheDayOfTheYear) {
  EXPECT_EQ(DayOfYear({2003, 1, 1}), 1);
  EXPECT_EQ(DayOfYear({2003, 12, 31}), 365);
  EXPECT_EQ(DayOfYear({2004, 12, 31}), 366);
}

TEST(DatesTest, TheGermanWeekBeginsOnMondayAndTheFirstOneHasFourDays) {
  EXPECT_EQ(WeekOfYear({2003, 12, 28}, kGermanWeeks), 52);  // a Sunday
  EXPECT_EQ(WeekOfYear({2003, 12, 29}, kGermanWeeks), 1);   // the Monday of the week of 1 January 2004
  EXPECT_EQ(WeekOfYear({2004, 1, 4}, kGermanWeeks), 1);
  EXPECT_EQ(WeekOfYear({2004, 1, 5}, kGermanWeeks), 2);
  EXPECT_EQ(WeekOfYear({2004, 12, 31}, kGermanWeeks), 53);
  EXPECT_EQ(WeekOfYear({2005, 1, 2}, kGermanWeeks), 53);
  EXPECT_EQ(WeekOfYear({2006, 1, 1}, kGermanWeeks), 52);
  EXPECT_EQ(WeekOfYear({9999, 12, 31}, kGermanWeeks), 52);
}

TEST(DatesTest, OtherwiseTheFirstWeekHoldsTheFirstOfJanuary) {
  EXPECT_EQ(WeekOfYear({2004, 1, 1}, {}), 1);  // a Thursday
  EXPECT_EQ(WeekOfYear({2004, 1, 3}, {}), 1);
  EXPECT_EQ(WeekOfYear({2004, 1, 4}, {}), 2);  // a Sunday
  EXPECT_EQ(WeekOfYear({2003, 12, 31}, {}), 53);
  EXPECT_EQ(WeekOfYear({2006, 1, 1}, {}), 1);  // a Sunday
  EXPECT_EQ(WeekOfYear({2006, 1, 7}, {}), 1);
  EXPECT_EQ(WeekOfYear({2006, 1, 8}, {}), 2);
}

TEST(DatesTest, NamesAreGerman) {
  EXPECT_EQ(MonthName(3, false), "März");
  EXPECT_EQ(MonthName(3, true), "Mrz");
  EXPECT_EQ(MonthName(12, true), "Dez");
  EXPECT_EQ(WeekdayName(Weekday::Sunday, false), "Sonntag");
  EXPECT_EQ(WeekdayName(Weekday::Saturday, true), "Sa");
}

}  // namespace
