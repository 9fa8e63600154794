// Dates and times of day, and their German text form.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// A moment. A time without a day has the day from which such run-times count, 30.12.1899. Ordered by time.
struct DateTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;

  auto operator<=>(const DateTime&) const = default;
};

// "dd.mm.yyyy".
std::string DayText(const DateTime& date);

// The general date format: "dd.mm.yyyy hh:mm:ss", without the time at midnight and without the day where there is none,
// as such run-times write it.
std::string DateText(const DateTime& date);

// The date test and the conversion. A text is a day, a time, or both in either order, with blanks around them:
// - day.month.year, also with "-", "/" or a blank in between; day.month, with or without a dot behind it, of the
// present
//   year; month.year, which is its first day; year-month-day where the year has three or four digits;
// - the same with the month's German name, whole or short, and a weekday in front;
// - hour:minute, hour:minute:second, and either or the hour alone with AM or PM.
// Years are 100 to 9999; 0 to 29 mean 20xx, 30 to 99 mean 19xx. Day and month are never exchanged.
bool IsDate(std::string_view text, int presentYear);

// Faults: TypeMismatch for a text that is no date.
DateTime ToDate(std::string_view text, int presentYear);

// The same day of a later or earlier month, or that month's last day where it is shorter; so many days later or
// earlier. The time stays. Faults: InvalidCall beyond the years 100 to 9999.
DateTime AddMonths(const DateTime& date, int months);
DateTime AddDays(const DateTime& date, int days);

// The number behind a date: days since 30.12.1899, the time as a fraction behind them, also in front of that day.
double DateNumber(const DateTime& date);

// The date behind a number, to the second. Faults: Overflow beyond the years 100 to 9999.
DateTime DateOfNumber(double number);

enum class Weekday : int { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

Weekday WeekdayOf(const DateTime& date);

// Day of the week, 1 to 7.
int DayOfWeek(const DateTime& date, Weekday firstDay);

int DayOfYear(const DateTime& date);

// Which day a week begins with, and which week is the first of a year.
struct WeekRule {
  Weekday firstDay = Weekday::Sunday;
  bool firstWeekHasFourDays = false;  // false: it holds the first of January
};

constexpr WeekRule kGermanWeeks = {Weekday::Monday, true};

int WeekOfYear(const DateTime& date, const WeekRule& rule);

// German names, whole or short ("Jan", "Mrz"; "So", "Mo").
std::string MonthName(int month, bool abbreviated);
std::string WeekdayName(Weekday day, bool abbreviated);

}  // namespace runtime
