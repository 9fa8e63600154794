// Why a line did not do its work, as far as the desktop in front of it shows.
#pragma once

#include <string>

#include "line_visit.h"

namespace makrun {

// What the verb looked for and did not find, in UTF-8; empty when nothing is known to be missing. Looks at the desktop
// as it is now, without any effect on it.
std::string Explain(const LineVisit& visit);

}  // namespace makrun
