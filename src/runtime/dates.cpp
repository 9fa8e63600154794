#include "runtime/dates.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>

#include "runtime/fault.h"
#include "runtime/text.h"

namespace runtime {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr double kAllDays = 4'000'000;  // more than the years have; keeps the arithmetic within its bounds
constexpr int kSecondsOfDay = 24 * 60 * 60;

constexpr const char* kMonths[] = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                   "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
constexpr const char* kShortMonths[] = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                                        "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
constexpr const char* kWeekdays[] = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};

year_month_day DayOf(const DateTime& date) { return std::chrono::year(date.year) / date.month / date.day; }

sys_days DayCount(const DateTime& date) { return sys_days(DayOf(date)); }

constexpr sys_days kDayZero = std::chrono::year(1899) / 12 / 30;

int SecondOfDay(const DateTime& date) { return (date.hour * 60 + date.minute) * 60 + date.second; }

bool InRange(const year_month_day& day) {
  return day.ok() && int(day.year()) >= kFirstYear && int(day.year()) <= kLastYear;
}

// The date of a day with the time of another one.
DateTime WithTimeOf(const year_month_day& day, const DateTime& time) {
  DateTime date = time;
  date.year = int(day.year());
  date.month = static_cast<int>(unsigned(day.month()));
  date.day = static_cast<int>(unsigned(day.day()));
  return date;
}

DateTime InRangeOrFault(const year_month_day& day, const DateTime& time, FaultNumber fault) {
  if (!InRange(day)) throw Fault(fault);
  return WithTimeOf(day, time);
}

bool IsLetter(char c) { return ToUpper({&c, 1}) != ToLower({&c, 1}); }

// Reads a date text from left to right. What cannot be read is left standing, so a text is a date when nothing is left.
class DateReader {
 public:
  DateReader(std::string_view text, int presentYear) : rest_(text), presentYear_(presentYear) {}

  std::optional<DateTime> Read() {
    bool hasDay = false;
    bool hasTime = false;
    SkipBlanks();
    while (!rest_.empty()) {
      if (!hasTime && Try(&DateReader::ReadTime)) hasTime = true;
      else if (!hasDay && Try(&DateReader::ReadDay)) hasDay = true;
      else return std::nullopt;
      SkipBlanks();
    }
    if (!hasDay && !hasTime) return std::nullopt;
    return date_;
  }

 private:
  struct Number {
    int value = 0;
    std::size_t digits = 0;
  };

  // Carries out a step, or leaves the text as it was.
  bool Try(bool (DateReader::*step)()) {
    const std::string_view before = rest_;
    if ((this->*step)()) return true;
    rest_ = before;
    return false;
  }

  void SkipBlanks() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }

  bool Skip(char c) {
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // At most four digits.
  std::optional<Number> ReadNumber() {
    Number number;
    for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
      if (++number.digits > 4) return std::nullopt;
      number.value = number.value * 10 + (rest_.front() - '0');
    }
    if (number.digits == 0) return std::nullopt;
    return number;
  }

  std::string ReadWord() {
    std::string word;
    for (; !rest_.empty() && IsLetter(rest_.front()); rest_.remove_prefix(1)) word += rest_.front();
    return word;
  }

  // Blanks, with one sign among them; false where there is nothing of the kind.
  bool SkipSeparator() {
    const std::size_t before = rest_.size();
    SkipBlanks();
    if (!Skip('.') && !Skip('-')) Skip('/');
    SkipBlanks();
    return rest_.size() < before;
  }

  // The hour of a time looks like a number of a day.
  bool TimeFollows() {
    DateReader ahead = *this;
    return ahead.ReadTime();
  }

  std::optional<Number> ReadNextNumber() {
    if (!SkipSeparator() || TimeFollows()) return std::nullopt;
    return ReadNumber();
  }

  // The number that may follow, behind a separator.
  std::optional<Number> TryNextNumber() {
    const std::string_view before = rest_;
    const auto number = ReadNextNumber();
    if (!number) rest_ = before;
    return number;
  }

  bool ReadMonthName(int& month) {
    const std::string word = ReadWord();
    for (month = 1; month <= 12; ++month) {
      if (EqualIgnoringCase(word, MonthName(month, false)) || EqualIgnoringCase(word, MonthName(month, true)))
        return true;
    }
    if (EqualIgnoringCase(word, "Mär")) month = 3;
    else if (EqualIgnoringCase(word, "Sept")) month = 9;
    return month <= 12;
  }

  bool ReadWeekdayName() {
    const std::string word = ReadWord();
    for (int day = 1; day <= 7; ++day) {
      if (!EqualIgnoringCase(word, WeekdayName(Weekday(day), false)) &&
          !EqualIgnoringCase(word, WeekdayName(Weekday(day), true)))
        continue;
      Skip('.');
      Skip(',');
      SkipBlanks();
      return true;
    }
    return false;
  }

  bool ReadDay() {
    Try(&DateReader::ReadWeekdayName);
    return Try(&DateReader::ReadDayOfNumbers) || Try(&DateReader::ReadDayWithMonthName) ||
           Try(&DateReader::ReadMonthNameAndYear);
  }

  bool ReadDayOfNumbers() {
    const auto first = ReadNumber();
    if (!first) return false;
    const auto second = ReadNextNumber();
    if (!second) return false;
    const auto third = TryNextNumber();
    if (third) {
      if (first->digits > 2) return SetDay(*third, *second, first->value);
      return SetDay(*first, *second, YearOf(*third));
    }
    if (second->digits > 2) return SetDay({1, 1}, *first, second->value);
    Skip('.');
    return SetDay(*first, *second, presentYear_);
  }

  bool ReadDayWithMonthName() {
    const auto day = ReadNumber();
    int month = 0;
    if (!day) return false;
    SkipSeparator();
    if (!ReadMonthName(month)) return false;
    const auto year = TryNextNumber();
    if (!year) Skip('.');
    return SetDay(*day, {month, 2}, year ? YearOf(*year) : presentYear_);
  }

  bool ReadMonthNameAndYear() {
    int month = 0;
    if (!ReadMonthName(month)) return false;
    const auto year = ReadNextNumber();
    return year && year->digits > 2 && SetDay({1, 1}, {month, 2}, year->value);
  }

  static int YearOf(const Number& number) {
    if (number.digits > 2) return number.value;
    return number.value + (number.value < 30 ? 2000 : 1900);
  }

  bool SetDay(const Number& day, const Number& month, int year) {
    if (day.digits > 2 || month.digits > 2) return false;
    const year_month_day read = std::chrono::year(year) / month.value / day.value;
    if (!InRange(read)) return false;
    date_ = WithTimeOf(read, date_);
    return true;
  }

  bool ReadTime() {
    const auto hour = ReadNumber();
    if (!hour) return false;
    std::optional<Number> minute;
    std::optional<Number> second;
    if (!ReadTimePart(minute) || (minute && !ReadTimePart(second))) return false;
    int value = hour->value;
    if (!Try(&DateReader::ReadHalfOfDay)) {
      if (!minute) return false;
    } else {
      if (value < 1 || value > 12) return false;
      value = value % 12 + (afternoon_ ? 12 : 0);
    }
    return SetTime(value, minute.value_or(Number()).value, second.value_or(Number()).value);
  }

  // What follows a colon, where there is one; false when that is no number.
  bool ReadTimePart(std::optional<Number>& part) {
    const std::string_view before = rest_;
    SkipBlanks();
    if (!Skip(':')) {
      rest_ = before;
      return true;
    }
    SkipBlanks();
    part = ReadNumber();
    return part && part->digits <= 2;
  }

  bool ReadHalfOfDay() {
    SkipBlanks();
    const std::string word = ToUpper(ReadWord());
    afternoon_ = word == "PM";
    return afternoon_ || word == "AM";
  }

  bool SetTime(int hour, int minute, int second) {
    if (hour > 23 || minute > 59 || second > 59) return false;
    date_.hour = hour;
    date_.minute = minute;
    date_.second = second;
    return true;
  }

  std::string_view rest_;
  int presentYear_;
  bool afternoon_ = false;
  DateTime date_;
};

}  // namespace

std::string DayText(const DateTime& date) {
  char text[40];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return text;
}

std::string DateText(const DateTime& date) {
  const bool noDay = DayCount(date) == kDayZero;
  if (SecondOfDay(date) == 0 && !noDay) return DayText(date);
  char time[40];
  std::snprintf(time, sizeof time, "%02d:%02d:%02d", date.hour, date.minute, date.second);
  return noDay ? time : DayText(date) + " " + time;
}

bool IsDate(std::string_view text, int presentYear) { return DateReader(text, presentYear).Read().has_value(); }

DateTime ToDate(std::string_view text, int presentYear) {
  const auto date = DateReader(text, presentYear).Read();
  if (!date) throw Fault(FaultNumber::TypeMismatch);
  return *date;
}

DateTime AddMonths(const DateTime& date, int months) {
  if (std::abs(static_cast<double>(months)) > kAllDays) throw Fault(FaultNumber::InvalidCall);
  year_month_day day = DayOf(date) + std::chrono::months(months);
  if (!day.ok()) day = day.year() / day.month() / std::chrono::last;
  return InRangeOrFault(day, date, FaultNumber::InvalidCall);
}

DateTime AddDays(const DateTime& date, int number) {
  if (std::abs(static_cast<double>(number)) > kAllDays) throw Fault(FaultNumber::InvalidCall);
  return InRangeOrFault(year_month_day(DayCount(date) + days(number)), date, FaultNumber::InvalidCall);
}

double DateNumber(const DateTime& date) {
  const auto day = static_cast<double>((DayCount(date) - kDayZero).count());
  const double time = SecondOfDay(date) / double(kSecondsOfDay);
  return day < 0 ? day - time : day + time;
}

DateTime DateOfNumber(double number) {
  if (!(std::abs(number) <= kAllDays)) throw Fault(FaultNumber::Overflow);
  int day = static_cast<int>(number);
  int second = static_cast<int>(std::lround(std::abs(number - day) * kSecondsOfDay));
  if (second == kSecondsOfDay) {
    second = 0;
    ++day;
  }
  DateTime time;
  time.hour = second / 3600;
  time.minute = second / 60 % 60;
  time.second = second % 60;
  return InRangeOrFault(year_month_day(kDayZero + days(day)), time, FaultNumber::Overflow);
}

Weekday WeekdayOf(const DateTime& date) {
  return Weekday(static_cast<int>(std::chrono::weekday(DayCount(date)).c_encoding()) + 1);
}

int DayOfWeek(const DateTime& date, Weekday firstDay) {
  return (static_cast<int>(WeekdayOf(date)) - static_cast<int>(firstDay) + 7) % 7 + 1;
}

int DayOfYear(const DateTime& date) {
  return static_cast<int>((DayCount(date) - sys_days(DayOf(date).year() / 1 / 1)).count()) + 1;
}

int WeekOfYear(const DateTime& date, const WeekRule& rule) {
  if (rule.firstWeekHasFourDays) {
    // A week belongs to the year in which its fourth day lies.
    const sys_days fourthDay = DayCount(date) + days(4 - DayOfWeek(date, rule.firstDay));
    return (DayOfYear(WithTimeOf(year_month_day(fourthDay), date)) - 1) / 7 + 1;
  }
  const int firstDay = DayOfWeek(WithTimeOf(DayOf(date).year() / 1 / 1, date), rule.firstDay);
  return (DayOfYear(date) + firstDay - 2) / 7 + 1;
}

std::string MonthName(int month, bool abbreviated) { return (abbreviated ? kShortMonths : kMonths)[month - 1]; }

std::string WeekdayName(Weekday day, bool abbreviated) {
  const std::string name = kWeekdays[static_cast<int>(day) - 1];
  return abbreviated ? name.substr(0, 2) : name;
}

}  // namespace runtime
