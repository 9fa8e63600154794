// Conversions between text and number by the German rules: decimal comma, thousands dot.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// The numeric test: digits with an optional sign in front, blanks around them, dots between the digits of the whole
// part, and a decimal comma. The empty text fails.
bool IsNumeric(std::string_view text);

// Number of a text that passes the numeric test. Faults: TypeMismatch for any other text.
double ToDouble(std::string_view text);

// The same, rounded to the nearest integer, ties to even. Faults: TypeMismatch; Overflow beyond 32 or 16 bits.
std::int32_t ToLong(std::string_view text);
std::int16_t ToInteger(std::string_view text);

// A number that is rounded to a 32-bit or a 16-bit integer, ties to even. Faults: Overflow.
std::int32_t ToLong(double number);
std::int16_t ToInteger(double number);

// "True" and "False" in any case; any other number than 0 is true. Faults: TypeMismatch for any other text.
bool ToTruth(std::string_view text);

}  // namespace runtime
