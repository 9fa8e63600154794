// What each verb and each built-in variable does, in a sentence, for the editors.
#pragma once

#include <string>
#include <string_view>

namespace makcheck {

// In the language that is set, in UTF-8; for a verb in upper case or a variable with its "$". Empty for any other word.
std::string HelpOf(std::string_view word);

}  // namespace makcheck
