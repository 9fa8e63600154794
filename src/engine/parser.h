// The line parser: expands the built-in variables, separates the verb from its arguments and replaces arguments by user
// variables. It knows no verb.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace basMain {

// a[1] to a[7] are the arguments of a line, empty when absent; a[0] is not used.
using Arguments = std::array<std::string, 8>;

// Always true. The verb comes out in upper case.
bool ParseMakroLine(const std::string& line, std::string& verb, Arguments& a);

// Splits at the commas outside single quotes and removes all single quotes. Fields are not trimmed. Fields beyond the
// size of `fields` are dropped; an open quote swallows the rest, so that no field comes of it.
void SplitString(std::string_view text, std::span<std::string> fields);

}  // namespace basMain
