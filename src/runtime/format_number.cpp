#include "runtime/format_number.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "runtime/text.h"

namespace runtime {
namespace {

// An absolute value in decimal: its digits without zeros around them, and how many stand in front of the comma.
struct Decimal {
  std::string digits;
  int point = 0;

  bool IsZero() const { return digits.empty(); }

  // The digit at a place: 0 is the one in front of the comma, 1 the tens, -1 the first behind the comma.
  char At(int place) const {
    const int index = point - 1 - place;
    return index >= 0 && index < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(index)] : '0';
  }

  void Normalize() {
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    digits.erase(0, first);
    point -= static_cast<int>(first);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty()) point = 0;
  }

  // Rounds to so many places behind the comma, away from zero at the half.
  void Round(int decimals) {
    const int kept = point + decimals;
    if (kept >= static_cast<int>(digits.size())) return;
    const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (up) {
      digits.insert(digits.begin(), '0');
      ++point;
      auto digit = digits.rbegin();
      for (; *digit == '9'; ++digit) *digit = '0';
      ++*digit;
    }
    Normalize();
  }
};

// The 15 digits that a number is sure of.
Decimal DecimalOf(double number) {
  char text[40];
  std::snprintf(text, sizeof text, "%.14e", std::abs(number));
  Decimal decimal;
  decimal.digits.assign(text, 16).erase(1, 1);
  decimal.point = std::atoi(text + 17) + 1;
  decimal.Normalize();
  return decimal;
}

bool IsDigitSign(const Sign& sign) { return sign.Is('0') || sign.Is('#'); }

bool IsExponent(const Notation& section, std::size_t at) {
  return section[at].Is('e') && at + 2 < section.size() && (section[at + 1].Is('+') || section[at + 1].Is('-')) &&
         IsDigitSign(section[at + 2]);
}

// What a section asks for.
struct Shape {
  explicit Shape(const Notation& section) {
    std::size_t commas = 0;  // since the last place for a digit
    for (std::size_t i = 0; i < section.size() && !exponent; ++i) {
      if (IsDigitSign(section[i])) {
        if (point) ++decimals;
        else ++wholes;
        if (point && section[i].Is('0')) shownDecimals = decimals;
        grouped = grouped || (commas > 0 && !point && wholes > 1);
        commas = 0;
      } else if (section[i].Is(',')) {
        if (!point && wholes > 0) ++commas;
      } else if (section[i].Is('.') && !point) {
        point = true;
        thousands = commas;
      } else if (section[i].Is('%')) {
        ++percents;
      } else {
        exponent = IsExponent(section, i);
      }
    }
    if (!point) thousands = commas;
  }

  int wholes = 0;         // places in front of the comma
  int decimals = 0;       // and behind it
  int shownDecimals = 0;  // so many of them show a zero rather than nothing
  bool point = false;
  bool grouped = false;
  bool exponent = false;
  std::size_t thousands = 0;  // divisions by 1,000
  int percents = 0;           // multiplications by 100
};

class NumberWriter {
 public:
  NumberWriter(double number, const Notation& section) : section_(section), shape_(section), value_(DecimalOf(number)) {
    if (value_.IsZero()) return;
    value_.point += 2 * shape_.percents - 3 * static_cast<int>(shape_.thousands);
    if (shape_.exponent) {
      const int wholes = std::max(shape_.wholes, 1);
      exponent_ = value_.point - wholes;
      value_.point = wholes;
      value_.Round(shape_.decimals);
      if (value_.point > wholes) {
        ++exponent_;
        --value_.point;
      }
    } else {
      value_.Round(shape_.decimals);
    }
  }

  bool ShowsZero() const { return value_.IsZero(); }

  std::string Write() {
    int whole = shape_.wholes;
    int decimal = 0;
    bool behindPoint = false;
    for (std::size_t i = 0; i < section_.size(); ++i) {
      const Sign& sign = section_[i];
      if (IsDigitSign(sign)) {
        if (behindPoint) WriteDecimal(++decimal);
        else WriteWhole(--whole, sign.Is('0'));
      } else if (sign.Is('.') && !behindPoint) {
        if (shape_.wholes == 0) WriteAbove(0);
        behindPoint = true;
        text_ += ',';
      } else if (shape_.exponent && IsExponent(section_, i)) {
        i = WriteExponent(i);
      } else if (!sign.Is(',')) {
        text_ += sign.character;
      }
    }
    return text_;
  }

 private:
  // The place is counted from the comma; the first one takes all digits that have none.
  void WriteWhole(int place, bool zero) {
    if (place == shape_.wholes - 1) WriteAbove(place + 1);
    showZeros_ = showZeros_ || zero;
    if (place < value_.point || showZeros_) WriteGrouped(place);
  }

  // The digits from this place upwards.
  void WriteAbove(int place) {
    for (int above = value_.point - 1; above >= place; --above) WriteGrouped(above);
  }

  void WriteGrouped(int place) {
    text_ += value_.At(place);
    if (shape_.grouped && place > 0 && place % 3 == 0) text_ += '.';
  }

  void WriteDecimal(int place) {
    const int present = static_cast<int>(value_.digits.size()) - value_.point;
    if (place <= std::max(present, shape_.shownDecimals)) text_ += value_.At(-place);
  }

  // Yields the last character of the format that belongs to the exponent.
  std::size_t WriteExponent(std::size_t at) {
    std::size_t width = 0;
    for (std::size_t i = at + 2; i < section_.size() && IsDigitSign(section_[i]); ++i) ++width;
    const std::string digits = std::to_string(std::abs(exponent_));
    text_ += section_[at].character;
    if (exponent_ < 0) text_ += '-';
    else if (section_[at + 1].Is('+')) text_ += '+';
    if (digits.size() < width) text_.append(width - digits.size(), '0');
    text_ += digits;
    return at + 1 + width;
  }

  const Notation& section_;
  Shape shape_;
  Decimal value_;
  int exponent_ = 0;
  bool showZeros_ = false;  // a place in front has shown a zero
  std::string text_;
};

}  // namespace

bool IsNumberSign(const Sign& sign) { return IsDigitSign(sign) || sign.Is('%'); }

std::string NumberText(double number) {
  const Decimal decimal = DecimalOf(number);
  constexpr int kMostDigits = 15;
  const bool plain = decimal.point > -kMostDigits && decimal.point <= kMostDigits;
  const char* format = plain ? "0.##############################" : "0.##############E+00";
  std::string text = FormatNumber(number, ReadNotation(format));
  // Without decimals the comma goes.
  return Replace(text.ends_with(',') ? text.substr(0, text.size() - 1) : text, ",E", "E");
}

std::string FormatNumber(double number, const Notation& notation) {
  const auto sections = Sections(notation);
  std::size_t wanted = 0;
  if (number < 0) wanted = 1;
  else if (number == 0) wanted = 2;
  const bool own = wanted < sections.size() && !sections[wanted].empty();
  NumberWriter writer(number, sections[own ? wanted : 0]);
  const bool signedHere = number < 0 && !own && !writer.ShowsZero();
  std::string text(signedHere ? 1 : 0, '-');
  return text.append(writer.Write());
}

}  // namespace runtime
