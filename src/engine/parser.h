// The line parser: expands the built-in variables, separates the verb from its arguments and replaces arguments by user
// variables. It knows no verb.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace basMain {

// a[1] to a[7] are the arguments of a line, empty when absent; a[0] is not used.
using Arguments = std::array<std::string, 8>;

// Always true. The verb comes out in upper case.
bool ParseMakroLine(const std::string& line, std::string& verb, Arguments& a);

// The verb of a line, in upper case, and its arguments as they stand, with no variable replaced.
void SplitCommand(std::string_view text, std::string& verb, Arguments& a);

// The part of a line that holds its arguments: between the first and the second "=".
std::string_view ArgumentText(std::string_view text);

// Calls `visit(start, end)` for each field of a text that SplitString would yield, commas not included; false when a
// quote is open at the end, so that the last field is none.
template <class Visit>
bool VisitFields(std::string_view text, Visit visit) {
  bool quoted = false;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && text[i] == '\'') quoted = !quoted;
    // The end of the text ends a field, too, but for the text that ends in a comma.
    const bool end = i == text.size() ? text.empty() || text.back() != ',' : text[i] == ',';
    if (!end || quoted) continue;
    visit(start, i);
    start = i + 1;
  }
  return !quoted;
}

// Splits at the commas outside single quotes and removes all single quotes. Fields are not trimmed. Fields beyond the
// size of `fields` are dropped; an open quote swallows the rest, so that no field comes of it.
void SplitString(std::string_view text, std::span<std::string> fields);

}  // namespace basMain
