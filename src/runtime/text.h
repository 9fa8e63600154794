// Text is bytes of Windows-1252. These are the operations on it that the rules of the macro language are made of.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace runtime {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Case folding of the code page, umlauts and accented letters included. A letter without a partner (ß) stays.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

// Whole comparison after folding both sides to upper case.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

bool Contains(std::string_view text, std::string_view part);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

// Removes leading and trailing blanks (code 32 only; a tab is no blank).
std::string Trim(std::string_view text);

// Replaces every occurrence, from left to right; what is put in is not searched again. An empty `what` changes nothing.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);

// The first `count` bytes, or the whole of a shorter text. Faults: InvalidCall for a negative count.
std::string Left(std::string_view text, std::int32_t count);

// Removes every occurrence of one character.
std::string Remove(std::string_view text, char character);

// The pieces between the separators: one more than there are separators. The empty text has no piece at all; an empty
// separator leaves the text whole.
std::vector<std::string> Split(std::string_view text, char separator);
std::vector<std::string> Split(std::string_view text, std::string_view separator);

// One piece of a split. Faults: OutOfRange when there are not so many.
const std::string& Element(const std::vector<std::string>& pieces, std::size_t index);

// Cuts the first line and its end (CR LF, LF or CR) off the text, and yields the line.
std::string_view TakeLine(std::string_view& text);

// The text in front of its first character of code 0, or all of it.
std::string TrimAtNul(std::string_view text);

// "True" or "False", the words in which a truth value appears in a text.
std::string TruthText(bool value);

}  // namespace runtime
