// What the checker finds in a macro, for the tests.
#pragma once

#include <string>
#include <vector>

#include "checker.h"

using List = std::vector<std::string>;

inline std::vector<makcheck::Finding> Found(const std::string& macro) {
  return makcheck::CheckMacro(makcheck::Macro(macro));
}

// The names of what is found, with line and column counted from 1.
inline List Places(const std::string& macro) {
  List places;
  for (const makcheck::Finding& finding : Found(macro))
    places.push_back(std::to_string(finding.line + 1) + ":" + std::to_string(finding.span.start + 1) + " " +
                     std::string(KindOf(finding.id).name));
  return places;
}
