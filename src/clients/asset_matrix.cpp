#include "clients/asset_matrix.h"

#include <unordered_set>
#include <utility>
#include <vector>

#include "automation/combo_boxes.h"
#include "automation/message_boxes.h"
#include "automation/state.h"
#include "clients/basQuickSort.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/discovery.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "runtime/dates.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

constexpr const char* kComboClass = "ComboBox";

// The address of the dialog, as the combo operations take it.
struct Dialog {
  const std::string& window;
  const std::string& exact;
  const std::string& text;
};

constexpr NoteFault Do{"CreateMatrix"};

MatrixRow& RowAt(std::int32_t index) {
  const auto row = static_cast<std::size_t>(index);
  if (row >= clients.Matrix.size()) throw Fault(FaultNumber::OutOfRange);
  return clients.Matrix[row];
}

// The last row by its index; a table without one has no bounds.
std::int32_t LastRow() {
  if (clients.Matrix.empty()) throw Fault(FaultNumber::OutOfRange);
  return static_cast<std::int32_t>(clients.Matrix.size()) - 1;
}

std::string EndOfFullYear(const std::string& beginn) {
  return runtime::DayText(runtime::AddDays(runtime::AddMonths(DateOf(beginn), 12), -1));
}

void AddRow(const std::string& area, const std::string& year) {
  Do([&] { RowAt(LastRow()).Bereich = area; });
  Do([&] { RowAt(LastRow()).Beginn = year.substr(0, 10); });
  Do([&] { RowAt(LastRow()).Ende = EndOfFullYear(RowAt(LastRow()).Beginn); });
  Do([&] { RowAt(LastRow()).Checked = false; });
  clients.Matrix.emplace_back();
}

void SelectArea(std::size_t index, const std::string& areas, const Dialog& dialog) {
  bool selected = false;
  // The text of the address is deliberately not passed here.
  Do([&] { selected = SelectCombo(true, std::to_string(index), areas, dialog.window, dialog.exact, "", kComboClass); });
  Do([] { ConfirmDialog("Hinweis", "Die Inventarauswahl für die Arbeit mit dem"); });
  if (!selected) LogWrite("Fail to Select ComboBox");
}

std::vector<std::string> Items() { return runtime::Split(automation.ComboItems, ';'); }

// The years of all areas, behind them a spare row. Reading the years pumps, so a nested run may change the table.
void CollectYears(const std::vector<std::string>& areaNames, const std::string& areas, const std::string& years,
                  const Dialog& dialog) {
  clients.Matrix.assign(1, {});
  // Each name is followed by a semicolon, so the last piece is no area.
  for (std::size_t area = 0; area + 1 < areaNames.size(); ++area) {
    SelectArea(area, areas, dialog);
    if (!ReadCombo(years, kComboClass, dialog.window, dialog.exact, dialog.text, "")) return;
    for (const std::string& year : Items()) {
      if (!year.empty()) AddRow(areaNames[area], year);
    }
  }
}

void RemoveDoubles() {
  std::vector<MatrixRow> unique;
  std::unordered_set<std::string> seen;
  for (const MatrixRow& row : clients.Matrix) {
    if (!row.Beginn.empty() && seen.insert(row.Beginn).second) unique.push_back(row);
  }
  clients.Matrix = std::move(unique);
}

// A year ends where the next one begins; only the last one is taken for a full one.
void DeriveEnds() {
  std::int32_t last = -1;
  Do([&] { last = LastRow(); });
  for (std::int32_t row = 0; row <= last; ++row) {
    Do([&] {
      RowAt(row).Ende = row == last ? EndOfFullYear(RowAt(row).Beginn)
                                    : runtime::DayText(runtime::AddDays(DateOf(RowAt(row + 1).Beginn), -1));
    });
  }
}

}  // namespace

bool CreateMatrix(const std::string& years, const std::string& areas, const std::string& window,
                  const std::string& exact, const std::string& text) {
  if (!ReadCombo(areas, kComboClass, window, exact, text, "")) return Fail("Matrix konnte nicht erstellt werden");
  CollectYears(Items(), areas, years, {window, exact, text});
  RemoveDoubles();
  Do([] { basQuickSort::SortMatrix(clients.Matrix); });
  DeriveEnds();
  SelectMatrixYear();
  LogWrite("Matrix erfolgreich aufgebaut");
  return true;
}

bool SelectMatrixYear() {
  return Standard("SelectMatrixYear", [] {
    const std::string file = basAPI::JoinPath(GetTeRuDestination(), "Import\\anl\\kanzrewe.cfg");
    const std::string first = basAPI::ReadIniString(file, "Vorlage", "WirtschaftsjahrAb", "");
    if (first.empty()) return false;
    const std::int32_t last = LastRow();
    for (std::int32_t row = 0; row <= last; ++row) {
      // A comparison of texts, not of numbers.
      if (std::to_string(DateOf(RowAt(row).Beginn).year) >= first) RowAt(row).Checked = true;
    }
    LogWrite("Matrix ab Jahr " + first + " ausgeben.");
    return true;
  });
}

std::string GetMatrixValue(const std::string& selector) {
  std::string value;
  runtime::Skip([&] {
    if (selector == "JAHR") value = RowAt(clients.MatrixPos).Beginn;
    else if (selector == "BEREICH") value = RowAt(clients.MatrixPos).Bereich;
  });
  // The selector stands behind "Bereich" whichever it is.
  LogWrite("MatrixValue: " + value + " Pos: " + std::to_string(clients.MatrixPos) + " Bereich: " + selector);
  return value;
}

}  // namespace basMain
