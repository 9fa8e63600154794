// The names of the arguments for a reader.
#pragma once

#include <string>
#include <string_view>

namespace makcheck {

// A name of the verb table in the language that is set, in the code page.
std::string ArgumentName(std::string_view name);

}  // namespace makcheck
