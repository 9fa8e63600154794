// The notation of key strings. Plain characters stand for themselves and "~" for Enter. "+", "^" and "%" hold Shift,
// Ctrl and Alt for the key behind them, or for all of a group in parentheses; with nothing behind them they press the
// key alone. Braces name a key, "{TAB}", in any letters, or quote a character, "{+}", "{}}"; a count may follow behind
// a blank, "{TAB 3}".
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace key_notation {

enum class Action {
  Hold,     // a modifier goes down
  Release,  // and up again
  Stroke,   // a virtual key goes down and up
  Type,     // a character of the code page
};

struct Step {
  Action action;
  std::uint8_t code;  // of the virtual key, or of the character
  int times = 1;

  bool operator==(const Step&) const = default;
};

// The steps of a key string, every held modifier released again. Faults: InvalidCall for a brace or parenthesis without
// its partner, an unknown name, and a count that is no number up to 32767.
std::vector<Step> Parse(std::string_view keys);

}  // namespace key_notation
