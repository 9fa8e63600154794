// The word that somebody probably meant.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace makcheck {

// Steps from one word to the other: a character put in, left out, replaced, or two exchanged; a number above `limit`
// when there are more than that.
std::size_t Distance(std::string_view a, std::string_view b, std::size_t limit);

// The candidate with the fewest steps, without case; empty when none is near enough to be meant. Of several the first.
std::string Nearest(std::string_view word, std::span<const std::string> candidates);

// The same among all verbs, or those that yield a value, and the verbs that begin or end with the word.
std::string NearestVerb(std::string_view word, bool yielding);

// The same among the built-in variables.
std::string NearestDollarWord(std::string_view word);

}  // namespace makcheck
