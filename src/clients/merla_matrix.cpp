#include "clients/merla_matrix.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "automation/check_verbs.h"
#include "automation/combo_boxes.h"
#include "automation/control_address.h"
#include "automation/state.h"
#include "automation/text_verbs.h"
#include "automation/window_search.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "input/merla_controls.h"
#include "input/state.h"
#include "platform/class_names.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Element;

// A control of the dialog, by the versions' layouts.
struct Place {
  const char* setting;  // of version 2100
  const char* path;     // of versions 260 and 280, and default of the setting
  const char* older;    // of all other versions
};

constexpr Place kYearFrame = {"MatrixJahrVonBis", "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame;21",
                              "Wirtschaftsjahr wechseln;Bearbeitungsjahr;ThunderRT6Frame;20"};
constexpr Place kCurrency = {"MatrixWährung", "20;ThunderRT6ComboBox;19;ThunderRT6Frame",
                             "19;ThunderRT6ComboBox;18;ThunderRT6Frame"};
constexpr Place kTaxLaw = {"MatrixCheckSteuerrecht", "16;ThunderRT6CheckBox;13;ThunderRT6Frame",
                           "15;ThunderRT6CheckBox;13;ThunderRT6Frame"};
constexpr Place kCalculation = {"MatrixCheckKalkulation", "17;ThunderRT6CheckBox;13;ThunderRT6Frame",
                                "16;ThunderRT6CheckBox;13;ThunderRT6Frame"};
constexpr Place kCommercialLaw = {"MatrixCheckHandelsrecht", "18;ThunderRT6CheckBox;13;ThunderRT6Frame",
                                  "17;ThunderRT6CheckBox;13;ThunderRT6Frame"};
constexpr Place kIasIfrs = {"MatrixCheckIASIFRS", "15;ThunderRT6CheckBox;13;ThunderRT6Frame",
                            "14;ThunderRT6CheckBox;13;ThunderRT6Frame"};

std::string Version() { return basAPI::ReadIniString(basAPI::SettingsFile(), "MERLA", "Version", ""); }

// The fields of the control path; as many as the setting has.
std::vector<std::string> ControlPath(const Place& place, const std::string& version) {
  std::string path = place.older;
  if (version == "260" || version == "280") path = place.path;
  if (version == "2100") path = basAPI::ReadIniString(basAPI::SettingsFile(), "MERLA", place.setting, place.path);
  return runtime::Split(path, ';');
}

// A row that is there no more, or not yet, is a fault: reading the dialog pumps, and a nested run can build the matrix
// anew.
MerMatrixRow& Row(std::size_t index) {
  if (index >= clients.MerMatrix.size()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  return clients.MerMatrix[index];
}

constexpr NoteFault Note{"CreateMerlaMatrix"};

// The reading of one build.
struct Build {
  std::string id, window, exact, cls, version;

  bool Select(std::size_t entry) const { return SelectCombo(true, std::to_string(entry), id, window, exact, "", cls); }

  bool ReadCurrency() const {
    const auto path = ControlPath(kCurrency, version);
    return ReadText(Element(path, 0), window, exact, Element(path, 1), Element(path, 2), Element(path, 3));
  }

  bool ReadCheck(const Place& place) const {
    const auto path = ControlPath(place, version);
    return GetCheck(Element(path, 0), window, exact, Element(path, 1), Element(path, 2), Element(path, 3));
  }

  void FillCurrency(std::size_t row) const {
    const bool read = ReadCurrency();
    if (!read) LogWrite("Fehler: Währung konnte nicht gelesen werden.");
    Row(row).Waehrung = read ? automation.LastReadText : "";
  }

  void FillCheck(std::size_t row, bool MerMatrixRow::*field, const Place& place) const {
    const bool checked = ReadCheck(place);
    Row(row).*field = checked;
  }

  void Fill(std::size_t row) const {
    std::string from;
    std::string to;
    GetMerJahrVonBis(from, to);
    Note([&] { Row(row).Beginn = from; });
    Note([&] { Row(row).Ende = to; });
    Note([&] { FillCurrency(row); });
    Note([&] { FillCheck(row, &MerMatrixRow::Steuerrecht, kTaxLaw); });
    Note([&] { FillCheck(row, &MerMatrixRow::Kalkulation, kCalculation); });
    Note([&] { FillCheck(row, &MerMatrixRow::Handelsrecht, kCommercialLaw); });
    Note([&] { FillCheck(row, &MerMatrixRow::IASIFRS, kIasIfrs); });
    Note([&] { Row(row).Checked = false; });
  }
};

// The spare row goes. A table of one row cannot be made smaller, so an empty combo box leaves an empty row.
void DropSpareRow() {
  if (clients.MerMatrix.size() < 2) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  clients.MerMatrix.pop_back();
}

constexpr NoteFault NoteDates{"GetMerJahrVonBis"};

// A box that cannot be read is an empty part.
std::string DateIn(std::int32_t field) {
  const auto box = [&](std::int32_t id) {
    std::string text;
    NoteDates([&] { text = ReadControlText(SearchChildWindow(field, "", "", platform::kTextBoxClass, id)); });
    return text;
  };
  const std::string year = box(kYearBox);
  const std::string day = box(kDayBox);
  const std::string month = box(kMonthBox);
  return day + "." + month + "." + year;
}

std::int32_t FindYearFrame(const std::string& version) {
  const auto path = ControlPath(kYearFrame, version);
  std::int32_t ignored = 0;
  std::int32_t hFrame = 0;
  SearchWindow(Element(path, 0), ignored, true, Element(path, 1), Element(path, 2), Element(path, 3), "", hFrame);
  return hFrame;
}

}  // namespace

bool CreateMerlaMatrix(const std::string& id, const std::string& window, const std::string& exact,
                       const std::string& cls, const std::string& text) {
  const Build build{id, window, exact, cls, Version()};
  if (!ReadCombo(id, cls, window, exact, text, "")) return Fail("Matrix konnte nicht erstellt werden");
  // Each entry is followed by ";", so the last piece is empty.
  const auto entries = runtime::Split(automation.ComboItems, ';');
  clients.MerMatrix.assign(1, {});
  // Rows are addressed by the entry's index: behind an entry that could not be selected there is one row less, and the
  // entries behind it find none.
  for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
    if (!build.Select(i)) {
      LogWrite("Fail to Select ComboBox");
      continue;
    }
    build.Fill(i);
    clients.MerMatrix.emplace_back();
  }
  Note([] { DropSpareRow(); });
  LogWrite("Matrix erfolgreich aufgebaut");
  return true;
}

void GetMerJahrVonBis(std::string& from, std::string& to) {
  std::int32_t hFrame = 0;
  NoteDates([&] { hFrame = FindYearFrame(Version()); });
  FindChildrenOfClass(hFrame, platform::kUserControlClass, 0);

  std::string first;
  std::string second;
  for (std::size_t k = 0; k < inputRoom.ClassWindows.size(); ++k) {
    const std::int32_t field = inputRoom.ClassWindows[k];
    if (field == 0) continue;
    const std::string date = DateIn(field);
    if (k == 0) first = date;
    if (k == 1) second = date;
  }

  bool swapped = false;
  NoteDates([&] { swapped = DateOf(second) <= DateOf(first); });
  from = swapped ? second : first;
  to = swapped ? first : second;
}

std::string GetMerMatrixJahrBis() { return Row(static_cast<std::size_t>(clients.MatrixPos)).Ende; }
std::string GetMerMatrixPath() { return Row(static_cast<std::size_t>(clients.MatrixPos)).Pfad; }

}  // namespace basMain
