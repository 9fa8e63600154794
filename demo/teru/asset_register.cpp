#include "asset_register.h"

namespace teru {

namespace {

struct Asset {
  int number;
  const char* name;
  int bought;  // calendar year
  int price;   // euros
  int years;   // of use
};

constexpr Asset kAssets[] = {
    {410001, "Formatkreissäge", 2001, 14400, 12}, {410002, "Dickenhobelmaschine", 2002, 9600, 12},
    {410003, "Absauganlage", 2002, 7000, 14},     {420001, "Lieferwagen", 2003, 24000, 6},
    {430001, "Büroausstattung", 2003, 6500, 13},  {440001, "Hobelbank, gebraucht", 2005, 400, 1},
};

int YearOf(const std::string& firstDay) { return std::stoi(firstDay.substr(6, 4)); }

std::string Euros(int amount) { return std::to_string(amount) + ",00"; }

}  // namespace

const std::vector<AssetArea>& AssetAreas() {
  static const std::vector<AssetArea> areas = {
      {"Handelsrecht", {"01.01.2005 - 31.12.2005", "01.01.2004 - 31.12.2004", "01.01.2003 - 31.12.2003"}},
      {"Steuerrecht", {"01.01.2005 - 31.12.2005", "01.01.2004 - 31.12.2004"}},
      {"Kalkulation für Maschinen", {"01.01.2005 - 31.12.2005", "01.01.2002 - 31.12.2002"}},
  };
  return areas;
}

std::vector<std::string> AssetLines(const std::string& area, const std::string& firstDay) {
  std::vector<std::string> lines = {"Bereich;Inventarnummer;Bezeichnung;Anschaffungsjahr;Anschaffungskosten"};
  for (const Asset& asset : kAssets) {
    if (asset.bought > YearOf(firstDay)) continue;
    lines.push_back(area + ";" + std::to_string(asset.number) + ";" + asset.name + ";" + std::to_string(asset.bought) +
                    ";" + Euros(asset.price));
  }
  return lines;
}

std::vector<std::string> DepreciationLines(const std::string& area, const std::string& firstDay) {
  std::vector<std::string> lines = {"Bereich;Wirtschaftsjahr ab;Inventarnummer;Abschreibung"};
  for (const Asset& asset : kAssets) {
    const int age = YearOf(firstDay) - asset.bought;
    if (age < 0 || age >= asset.years) continue;
    lines.push_back(area + ";" + firstDay + ";" + std::to_string(asset.number) + ";" +
                    Euros(asset.price / asset.years));
  }
  return lines;
}

}  // namespace teru
