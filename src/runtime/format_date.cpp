#include "runtime/format_date.h"

#include <cstdio>
#include <string_view>

#include "runtime/text.h"

namespace runtime {
namespace {

constexpr std::string_view kHalvesOfDay[] = {"am/pm", "a/p", "ampm"};
constexpr std::string_view kLongTime = "ttttt";

bool WordStandsAt(const Notation& notation, std::size_t at, std::string_view word) {
  if (at + word.size() > notation.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (!notation[at + i].Is(word[i])) return false;
  }
  return true;
}

// The mark of the halves of a day that begins here, or the empty text.
std::string_view HalfOfDayAt(const Notation& notation, std::size_t at) {
  for (const std::string_view mark : kHalvesOfDay) {
    if (WordStandsAt(notation, at, mark)) return mark;
  }
  return "";
}

// How often a letter may stand to form one sign; 0 for a letter without a meaning.
std::size_t LongestSign(char letter) {
  switch (letter) {
    case 'd':
      return 6;
    case 'm':
    case 'y':
      return 4;
    case 'h':
    case 'n':
    case 's':
    case 'w':
      return 2;
    case 'q':
    case 'c':
      return 1;
  }
  return 0;
}

std::string Digits(int number, int width) {
  char text[20];
  std::snprintf(text, sizeof text, "%0*d", width, number);
  return text;
}

class DateWriter {
 public:
  DateWriter(const DateTime& date, const Notation& notation, const WeekRule& weeks)
      : date_(date), notation_(notation), weeks_(weeks) {
    for (std::size_t i = 0; i < notation.size(); ++i) halves_ = halves_ || !HalfOfDayAt(notation, i).empty();
  }

  std::string Write() {
    std::size_t at = 0;
    while (at < notation_.size()) at += WriteSign(at);
    return text_;
  }

 private:
  // Yields how many characters of the format are done.
  std::size_t WriteSign(std::size_t at) {
    const Sign& sign = notation_[at];
    if (const auto mark = HalfOfDayAt(notation_, at); !mark.empty()) return WriteHalfOfDay(at, mark);
    if (WordStandsAt(notation_, at, kLongTime)) {
      text_ += Clock();
      return kLongTime.size();
    }
    const char letter = sign.Meaning();
    const std::size_t longest = LongestSign(letter);
    if (longest == 0) {
      text_ += sign.Is('/') ? '.' : sign.character;  // the locale's mark between day, month and year
      return 1;
    }
    std::size_t count = 1;
    while (count < longest && at + count < notation_.size() && notation_[at + count].Is(letter)) ++count;
    if (letter == 'y' && count == 3) count = 2;
    text_ += Part(letter, count);
    behindHour_ = letter == 'h';
    return count;
  }

  std::size_t WriteHalfOfDay(std::size_t at, std::string_view mark) {
    const bool afternoon = date_.hour >= 12;
    std::string word = mark == "a/p" ? (afternoon ? "p" : "a") : (afternoon ? "pm" : "am");
    if (notation_[at].character == 'A') word = ToUpper(word);
    text_ += word;
    return mark.size();
  }

  std::string Part(char letter, std::size_t count) const {
    const int width = static_cast<int>(count);
    switch (letter) {
      case 'd':
        return DayPart(count);
      case 'm':
        if (count > 2) return MonthName(date_.month, count == 3);
        return Digits(behindHour_ ? date_.minute : date_.month, width);
      case 'y':
        if (count == 1) return std::to_string(DayOfYear(date_));
        return count == 2 ? Digits(date_.year % 100, 2) : Digits(date_.year, 4);
      case 'h':
        return Digits(halves_ ? (date_.hour + 11) % 12 + 1 : date_.hour, width);
      case 'n':
        return Digits(date_.minute, width);
      case 's':
        return Digits(date_.second, width);
      case 'w':
        return std::to_string(count == 1 ? DayOfWeek(date_, weeks_.firstDay) : WeekOfYear(date_, weeks_));
      case 'q':
        return std::to_string((date_.month + 2) / 3);
    }
    return DateText(date_);
  }

  std::string DayPart(std::size_t count) const {
    switch (count) {
      case 3:
      case 4:
        return WeekdayName(WeekdayOf(date_), count == 3);
      case 5:
        return DayText(date_);
      case 6:
        return WeekdayName(WeekdayOf(date_), false) + ", " + std::to_string(date_.day) + ". " +
               MonthName(date_.month, false) + " " + Digits(date_.year, 4);
    }
    return Digits(date_.day, static_cast<int>(count));
  }

  std::string Clock() const {
    return Digits(date_.hour, 2) + ":" + Digits(date_.minute, 2) + ":" + Digits(date_.second, 2);
  }

  const DateTime& date_;
  const Notation& notation_;
  const WeekRule& weeks_;
  bool halves_ = false;      // hours are counted to twelve
  bool behindHour_ = false;  // "m" means minutes
  std::string text_;
};

}  // namespace

bool IsDateSign(const Notation& notation, std::size_t at) {
  const Sign& sign = notation[at];
  return sign.Is('/') || sign.Is(':') || LongestSign(sign.Meaning()) > 0 || !HalfOfDayAt(notation, at).empty() ||
         WordStandsAt(notation, at, kLongTime);
}

std::string FormatDate(const DateTime& date, const Notation& notation, const WeekRule& weeks) {
  return DateWriter(date, notation, weeks).Write();
}

}  // namespace runtime
