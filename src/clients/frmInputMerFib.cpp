#include "clients/frmInputMerFib.h"

#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/export_paths.h"
#include "environment/file_system.h"
#include "environment/settings.h"
#include "environment/temp_path.h"
#include "frame/log.h"
#include "platform/dialogs.h"
#include "platform/system.h"
#include "runtime/conversions.h"
#include "runtime/dates.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using platform::FileMode;
using runtime::Skip;

InputMerFibForm frmInputMerFib;

namespace {

// Columns of the list.
constexpr std::size_t kNumber = 1;
constexpr std::size_t kName = 2;
constexpr std::size_t kMonth = 3;

// Digits alone are typed; codes below 40 pass: control keys, the blank, and what stands up to the apostrophe.
bool TakesKey(unsigned char code) { return code < 40 || runtime::IsDigit(static_cast<char>(code)); }

void PresetYear(forms::TextBox& field, const std::string& key) {
  const std::string year = basAPI::ReadIniString(basAPI::SettingsFile(), "MERLA", key, "");
  if (runtime::IsNumeric(year)) field.SetText(year);
}

struct BusinessYear {
  std::string begin;
  std::string end;
};

// The business year that begins in this year and month, German by name, and so may end in the year behind it.
BusinessYear BusinessYearFrom(const std::string& month, const std::string& year) {
  const int presentYear = platform::Now().year;
  const runtime::DateTime begin = runtime::ToDate("01." + month + "." + year, presentYear);
  runtime::DateTime end;
  if (runtime::ToUpper(month) == "JANUAR") {
    end = runtime::ToDate("31.12." + year, presentYear);
  } else {
    end = runtime::AddDays(runtime::AddMonths(begin, 12), -1);
    LogWrite("Abweichendes WJ: " + runtime::DateText(end));
  }
  return {runtime::DayText(begin), runtime::DayText(end)};
}

}  // namespace

InputMerFibForm::InputMerFibForm()
    : InputDialog("frmInputMerFib", {.resizable = true}),
      lstViewMandanten(*this, "lstViewMandanten", {"", "Mandant", "Bezeichnung", "WJ-Beginn"},
                       {.characters = 80, .lines = 12, .grows = true}, {}),
      Label3(*this, "Label3", "Mandantendatei:"),
      lblFile(*this, "lblFile", "", {.characters = 52, .lines = 0}),
      Label1(*this, "Label1", "Wirtschaftsjahr von:"),
      txtFrom(*this, "txtFrom", {.characters = 8}, TakesKey),
      Label2(*this, "Label2", "Wirtschaftsjahr bis:"),
      txtTo(*this, "txtTo", {.characters = 8}, TakesKey),
      Label4(*this, "Label4", "Mandant von:"),
      txtMandantVon(*this, "txtMandantVon", {.characters = 12}, TakesKey),
      Label5(*this, "Label5", "Mandant bis:"),
      txtMandantBis(*this, "txtMandantBis", {.characters = 12}, TakesKey),
      cmdSelect(*this, "cmdSelect", "Auswahl", forms::ButtonRole::Plain, [this] { cmdSelect_Click(); }) {}

// In the order in which a person works: pick clients, look through the list, set the years.
forms::Box InputMerFibForm::Layout() {
  return forms::Column({forms::Row({imgQuest, lblInfo}), forms::Row({Label3, lblFile}),
                        forms::Row({Label4, txtMandantVon, Label5, txtMandantBis, cmdSelect}), lstViewMandanten,
                        forms::Row({Label1, txtFrom, Label2, txtTo}), forms::Buttons({cmdOK, cmdCancel})});
}

void InputMerFibForm::Form_Load() {
  InputDialog::Form_Load();
  exportFileName_.clear();
  Skip([&] { PresetYear(txtFrom, "WirtschaftsjahrAb"); });
  Skip([&] { PresetYear(txtTo, "WirtschaftsjahrBis"); });
}

void InputMerFibForm::InfoCaption(const std::string& text) { lblInfo.SetCaption(text); }

void InputMerFibForm::FileName(const std::string& file) {
  fileName_ = file;
  lblFile.SetCaption(file);
}

bool InputMerFibForm::ShowData() {
  return Standard("ShowData", [&] {
    if (!FileSystem().FileExists(fileName_)) {
      // The text names this file whatever the file is called.
      return Fail("Die Mandantendatei ''MandantenFibu.txt'' existiert nicht!");
    }
    const auto file = FileSystem().OpenTextFile(fileName_, FileMode::Read);
    file->SkipLine();
    file->SkipLine();
    while (!file->AtEndOfStream()) {
      const auto fields = runtime::Split(file->ReadLine(), ';');
      AddClientRow(runtime::Element(fields, 0), runtime::Element(fields, 1), runtime::Element(fields, 5));
    }
    return true;
  });
}

void InputMerFibForm::AddClientRow(const std::string& number, const std::string& name, const std::string& begin) {
  Skip([&] {
    const std::size_t item = lstViewMandanten.Add("Item" + number, "");
    lstViewMandanten.SetSubItem(item, kNumber, number);
    lstViewMandanten.SetSubItem(item, kName, name);
    lstViewMandanten.SetSubItem(item, kMonth, begin);
    lstViewMandanten.SetChecked(item, true);
  });
}

void InputMerFibForm::cmdSelect_Click() {
  Skip([&] {
    const std::int32_t first = runtime::ToLong(txtMandantVon.Text());
    const std::int32_t last = runtime::ToLong(txtMandantBis.Text());
    for (std::size_t i = 0; i < lstViewMandanten.Count(); ++i) SelectClient(i, first, last);
  });
}

// A number that is none, or none of 32 bits, keeps its mark.
void InputMerFibForm::SelectClient(std::size_t item, std::int32_t first, std::int32_t last) {
  Skip([&] {
    const std::int32_t number = runtime::ToLong(lstViewMandanten.SubItem(item, kNumber));
    lstViewMandanten.SetChecked(item, number >= first && number <= last);
  });
}

bool InputMerFibForm::WriteClientYears() {
  try {
    exportFileName_ = basAPI::JoinPath(GetTemp(), "QUMeFib.csv");
    if (FileSystem().FileExists(exportFileName_)) FileSystem().DeleteFile(exportFileName_);
    const std::int32_t from = runtime::ToLong(txtFrom.Text());
    const std::int32_t to = runtime::ToLong(txtTo.Text());
    const std::int16_t span = runtime::ToInteger(static_cast<double>(to) - from);
    if (span < 0) {
      message_ = "Bitte prüfen Sie Ihre Eingaben: Der Exportzeitraum ist ungültig!";
      return false;
    }
    WriteLines(from, span);
    return true;
  } catch (...) {
    message_ = "Fehler beim erzeugen der Mandantenmatrix: " + runtime::CaughtFault().description;
    return false;
  }
}

void InputMerFibForm::WriteLines(std::int32_t from, std::int16_t span) {
  TextStream file(exportFileName_, FileMode::CreateNew);
  for (std::size_t i = 0; i < lstViewMandanten.Count(); ++i) {
    if (!lstViewMandanten.Item(i).checked) continue;
    const std::string& number = lstViewMandanten.SubItem(i, kNumber);
    for (std::int32_t k = 0; k <= span; ++k) {
      const BusinessYear year = BusinessYearFrom(lstViewMandanten.SubItem(i, kMonth), std::to_string(from + k));
      file.WriteLine(number + ";" + year.begin + ";" + year.end + ";");
    }
  }
}

void InputMerFibForm::cmdOK_Click() {
  if (!WriteClientYears()) {
    Refuse(message_, platform::MB_ICONINFORMATION);
    return;
  }
  Answer(kConfirmed);
  clients.MerlaMaxYear = txtTo.Text();
  Unload();
}

std::string ShowInputMerFib(const std::string& text, const std::string& file) {
  std::string exportFile;
  const bool asked = Standard("ShowInputMerFib", [&] {
    const bool shown = AskUser(frmInputMerFib, [&] {
      frmInputMerFib.InfoCaption(text);
      frmInputMerFib.FileName(file);
      return frmInputMerFib.ShowData();
    });
    if (!shown) return false;
    LogWrite("ShowInputMerFib (" + std::to_string(frmInputMerFib.InputState()) + ")");
    exportFile = frmInputMerFib.ExportFileName();
    return true;
  });
  if (!asked) run.RunFailed = true;  // the verb itself counts as done
  return exportFile;
}

}  // namespace basMain
