#include "runtime/conversions.h"

#include <cmath>
#include <limits>
#include <optional>

#include "runtime/fault.h"
#include "runtime/text.h"

namespace runtime {
namespace {

bool StandsBetweenDigits(const std::string& text, std::size_t at) {
  return at > 0 && at + 1 < text.size() && IsDigit(text[at - 1]) && IsDigit(text[at + 1]);
}

// The number in the notation of the C library (dot as decimal mark), or nothing for a text that is no number.
std::optional<std::string> PlainNumber(std::string_view text) {
  const std::string trimmed = Trim(text);
  std::string plain;
  bool decimals = false;
  bool digits = false;
  for (std::size_t i = 0; i < trimmed.size(); ++i) {
    const char c = trimmed[i];
    if (IsDigit(c)) {
      plain += c;
      digits = true;
    } else if ((c == '-' || c == '+') && i == 0) {
      plain += c;
    } else if (c == ',' && !decimals) {
      plain += '.';
      decimals = true;
    } else if (c != '.' || decimals || !StandsBetweenDigits(trimmed, i)) {
      return std::nullopt;
    }
  }
  if (!digits) return std::nullopt;
  return plain;
}

template <class Integer>
Integer Rounded(double number) {
  const double rounded = std::nearbyint(number);  // the default rounding mode is ties to even
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
    throw Fault(FaultNumber::Overflow);
  return static_cast<Integer>(rounded);
}

}  // namespace

bool IsNumeric(std::string_view text) { return PlainNumber(text).has_value(); }

double ToDouble(std::string_view text) {
  const auto plain = PlainNumber(text);
  if (!plain) throw Fault(FaultNumber::TypeMismatch);
  const double number = std::strtod(plain->c_str(), nullptr);
  if (std::isinf(number)) throw Fault(FaultNumber::Overflow);
  return number;
}

std::int32_t ToLong(std::string_view text) { return ToLong(ToDouble(text)); }
std::int32_t ToLong(double number) { return Rounded<std::int32_t>(number); }
std::int16_t ToInteger(std::string_view text) { return ToInteger(ToDouble(text)); }
std::int16_t ToInteger(double number) { return Rounded<std::int16_t>(number); }

bool ToTruth(std::string_view text) {
  for (const bool value : {true, false})
    if (EqualIgnoringCase(text, TruthText(value))) return value;
  return ToDouble(text) != 0;
}

}  // namespace runtime
