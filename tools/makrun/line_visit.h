// One visit of the run to a line of the macro.
#pragma once

#include <cstdint>
#include <string>

#include "engine/parser.h"

namespace makrun {

struct LineVisit {
  std::int32_t index = 0;  // from 0
  std::string line = {};   // as it stands in the macro, in the code page
  bool parsed = false;     // the line has a verb; else it is a comment, a declaration or empty
  std::string verb = {};
  basMain::Arguments arguments = {};
  bool passedOver = false;
};

// The line's number from 1, as editors count.
std::string NumberOf(const LineVisit& visit);

// The verb and its arguments after substitution, up to the last one that is not empty, in UTF-8; what is no command as
// it stands.
std::string CarriedOut(const LineVisit& visit);

}  // namespace makrun
