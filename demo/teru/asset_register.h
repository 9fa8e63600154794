// The assets of the firm by areas and business years, of our invention like its books.
#pragma once

#include <string>
#include <vector>

namespace teru {

struct AssetArea {
  std::string name;
  std::vector<std::string> years;  // "01.01.2005 - 31.12.2005", the newest first
};

const std::vector<AssetArea>& AssetAreas();

// The lines of an exported file for a year that begins on this day (dd.mm.yyyy).
std::vector<std::string> AssetLines(const std::string& area, const std::string& firstDay);
std::vector<std::string> DepreciationLines(const std::string& area, const std::string& firstDay);

}  // namespace teru
