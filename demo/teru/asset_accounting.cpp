#include "asset_accounting.h"

#include <string>

#include "asset_hint.h"
#include "asset_register.h"
#include "books.h"
#include "export_dialog.h"
#include "export_form.h"
#include "journal.h"
#include "look.h"
#include "message_boxes.h"
#include "text_files.h"

namespace teru {

using namespace standin;

namespace {

HWND dialog = nullptr;

LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendDlgItemMessageA(dialog, id, message, wParam, lParam);
}

void AddEntry(int id, const std::string& entry) { Send(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str())); }

const AssetArea* ChosenArea() {
  const auto index = static_cast<std::size_t>(Send(kIdArea, CB_GETCURSEL));
  return index < AssetAreas().size() ? &AssetAreas()[index] : nullptr;
}

std::string ChosenYear() {
  const auto index = static_cast<std::size_t>(Send(kIdAssetYear, CB_GETCURSEL));
  const AssetArea* area = ChosenArea();
  return area != nullptr && index < area->years.size() ? area->years[index] : "";
}

void FillYears() {
  Send(kIdAssetYear, CB_RESETCONTENT);
  if (ChosenArea() == nullptr) return;
  for (const std::string& year : ChosenArea()->years) AddEntry(kIdAssetYear, year);
  Send(kIdAssetYear, CB_SETCURSEL);
}

void Choose(int id) {
  if (id == kIdArea && ChosenArea() != nullptr) {
    Journal("Bereich: " + ChosenArea()->name);
    FillYears();
    ShowAssetHint(dialog, "Die Inventarauswahl für die Arbeit mit dem Bereich " + ChosenArea()->name +
                              " gilt, bis ein anderer Bereich gewählt wird.");
  } else if (id == kIdAssetYear) {
    Journal("Wirtschaftsjahr: " + ChosenYear());
  }
}

// ...\<consultant>\<client>\Export\<year and month of its begin>
std::string ExportFolder() {
  const std::string year = ChosenYear();
  return TextOf(GetDlgItem(dialog, kIdAssetFolder)) + "\\" + OurFirm().consultant + "\\" + OurFirm().number +
         "\\Export\\" + year.substr(6, 4) + year.substr(3, 2);
}

bool MakeFolder(const std::string& path) {
  for (std::size_t end = path.find('\\', 3); end != std::string::npos; end = path.find('\\', end + 1))
    CreateDirectoryA(path.substr(0, end).c_str(), nullptr);
  CreateDirectoryA(path.c_str(), nullptr);
  return FolderExists(path);
}

void StartExport() {
  if (ChosenYear().empty()) {
    Report(dialog, "Bitte wählen Sie Bereich und Wirtschaftsjahr.", MB_ICONWARNING);
    return;
  }
  EnableWindow(GetDlgItem(dialog, kIdAssetStart), FALSE);
  SetTimer(dialog, kExportTimer, exportTick, nullptr);
}

void Export() {
  KillTimer(dialog, kExportTimer);
  EnableWindow(GetDlgItem(dialog, kIdAssetStart), TRUE);
  const std::string folder = ExportFolder();
  const std::string firstDay = ChosenYear().substr(0, 10);
  const std::string& area = ChosenArea()->name;
  if (!MakeFolder(folder) || !WriteLines(folder + "\\Anlagegüter.csv", AssetLines(area, firstDay)) ||
      !WriteLines(folder + "\\Abschreibungen.csv", DepreciationLines(area, firstDay))) {
    Report(dialog, "Die Daten konnten nicht in " + folder + " abgelegt werden.", MB_ICONSTOP);
    return;
  }
  Report(dialog, "Die Daten wurden erfolgreich exportiert und in " + folder + " abgelegt.\r\n#AN12008", MB_OK);
}

void AddControls() {
  const DWORD combo = CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP;
  AddControl(dialog, "Static", "Anlagegüter eines Wirtschaftsjahres ausgeben", 0, -1, 14, 12, 440, 16);
  AddControl(dialog, "Static", "&Bereich:", 0, -1, 14, 42, 100, 16);
  AddControl(dialog, "ComboBox", "", combo, kIdArea, 118, 38, 220, 160);
  AddControl(dialog, "Static", "&Wirtschaftsjahr:", 0, -1, 14, 74, 100, 16);
  AddControl(dialog, "ComboBox", "", combo, kIdAssetYear, 118, 70, 220, 160);
  AddControl(dialog, "Static", "&Ablage:", 0, -1, 14, 106, 100, 16);
  AddControl(dialog, kTextBoxClass, "C:\\TeRu\\Anlagen", ES_AUTOHSCROLL | WS_TABSTOP, kIdAssetFolder, 118, 102, 336,
             22);
  AddControl(dialog, kButtonClass, "&Export starten", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdAssetStart, 228, 138, 120, 26);
  AddControl(dialog, kButtonClass, "&Schließen", WS_TABSTOP, kIdAssetClose, 356, 138, 98, 26);
  for (const AssetArea& area : AssetAreas()) AddEntry(kIdArea, area.name);
  Send(kIdArea, CB_SETCURSEL);
  FillYears();
}

constexpr ExportForm kForm = {kIdAssetStart, kIdAssetClose, StartExport, Export};

LRESULT CALLBACK AssetProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && HIWORD(wParam) == CBN_SELCHANGE && lParam != 0) Choose(LOWORD(wParam));
  if (message == WM_DESTROY) dialog = nullptr;
  return HandleExportForm(kForm, window, message, wParam, lParam);
}

}  // namespace

void ActivateAssetAccounting(HWND owner) {
  if (dialog == nullptr) {
    dialog = CreateForm(kAssetTitle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 240, 300, 468, 178, nullptr,
                        AssetProcedure, owner);
    AddControls();
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
  SetForegroundWindow(dialog);
  SetFocus(GetDlgItem(dialog, kIdArea));
}

}  // namespace teru
