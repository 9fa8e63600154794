#include "asset_export.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "export_form.h"
#include "journal.h"
#include "look.h"
#include "message_boxes.h"
#include "options.h"
#include "text_files.h"

namespace merla {

using namespace standin;

namespace {

struct Year {
  std::string currency, first, last, valuations, folder;
};

HWND dialog = nullptr;
std::string client;
std::vector<Year> years;
std::size_t written = 0;

std::string Setting(const std::string& file, const std::string& key) {
  char value[256] = "";
  GetPrivateProfileStringA("Mandantendaten", key.c_str(), "", value, sizeof value, file.c_str());
  return value;
}

// The picked years are numbered from 1, in front of their keys.
std::vector<Year> ReadYears(const std::string& folder, const std::string& file) {
  std::vector<Year> found;
  for (int n = 1;; ++n) {
    std::string prefix = std::to_string(n) + "WJ ";
    Year year{Setting(file, prefix + "Waehrung"), Setting(file, prefix + "Beginn"), Setting(file, prefix + "Ende"), "",
              ""};
    if (year.first.empty()) return found;
    for (const char* valuation : {"Steuerrecht", "Kalkulation", "Handelsrecht", "IAS/IFRS"}) {
      if (Setting(file, prefix + valuation) == "1") year.valuations += std::string(valuation) + " ";
    }
    year.folder = year.first;
    year.folder.erase(std::remove(year.folder.begin(), year.folder.end(), '.'), year.folder.end());
    year.folder = folder + "\\" + year.folder;
    found.push_back(year);
  }
}

std::vector<std::string> Assets(const Year& year) {
  struct Asset {
    const char* number;
    const char* name;
    const char* cost;
  };
  constexpr Asset kAssets[] = {{"0130-001", "Formatkreissäge", "18400,00"},
                               {"0130-002", "Abrichthobelmaschine", "9750,00"},
                               {"0140-001", "Lieferwagen Größe L", "27900,00"},
                               {"0150-001", "Büroausstattung", "4120,50"}};
  std::vector<std::string> lines = {"Mandant;" + client, "Wirtschaftsjahr;" + year.first + ";" + year.last,
                                    "Währung;" + year.currency, "Bewertung;" + year.valuations,
                                    "Inventar;Bezeichnung;Anschaffungskosten"};
  for (const Asset& asset : kAssets) lines.push_back(std::string(asset.number) + ";" + asset.name + ";" + asset.cost);
  return lines;
}

void Finish(const std::string& message, UINT icon) {
  KillTimer(dialog, kExportTimer);
  EnableWindow(GetDlgItem(dialog, kIdAssetStart), TRUE);
  SetDlgItemTextA(dialog, kIdAssetState, "Bereit.");
  Report(dialog, message, icon);
}

void Start() {
  std::string folder = TextOf(GetDlgItem(GetDlgItem(dialog, kIdAssetFrame), kIdAssetFolder));
  std::string file = folder + "\\export.cfg";
  client = Setting(file, "Nummer");
  years = ReadYears(folder, file);
  written = 0;
  Journal("Export: " + file + ", Mandant " + client + ", " + std::to_string(years.size()) + " Wirtschaftsjahre");
  if (years.empty()) {
    Report(dialog, "Die Steuerungsdatei nennt kein Wirtschaftsjahr: " + file, MB_ICONSTOP);
    return;
  }
  EnableWindow(GetDlgItem(dialog, kIdAssetStart), FALSE);
  SetDlgItemTextA(dialog, kIdAssetState, "Der Export läuft...");
  SetTimer(dialog, kExportTimer, options.tick, nullptr);
}

void Continue() {
  if (written == years.size()) {
    Finish("Der Export ist abgeschlossen. " + std::to_string(written) + " Wirtschaftsjahre wurden ausgegeben.",
           MB_ICONINFORMATION);
    return;
  }
  const Year& year = years[written];
  Journal("Wirtschaftsjahr " + year.first + " bis " + year.last + ", " + year.currency + ", " + year.valuations);
  if (WriteLines(year.folder + "\\Anlagen.csv", Assets(year))) ++written;
  else Finish("Das Verzeichnis fehlt: " + year.folder, MB_ICONSTOP);
}

void AddControls() {
  AddControl(dialog, "Static", "Anlagen der Wirtschaftsjahre ausgeben, die die Steuerungsdatei nennt", 0, -1, 14, 12,
             420, 16);
  HWND frame =
      AddControl(dialog, kFrameClass, "Ordner der Steuerungsdatei export.cfg", 0, kIdAssetFrame, 14, 36, 440, 58);
  AddControl(frame, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdAssetFolder, 14, 24, 412, 22);
  AddControl(dialog, "Static", "Bereit.", 0, kIdAssetState, 14, 112, 190, 16);
  AddControl(dialog, kButtonClass, "&Export starten", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdAssetStart, 228, 106, 120, 26);
  AddControl(dialog, kButtonClass, "S&chließen", WS_TABSTOP, kIdAssetClose, 356, 106, 98, 26);
}

constexpr ExportForm kForm = {kIdAssetStart, kIdAssetClose, Start, Continue};

LRESULT CALLBACK AssetProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) dialog = nullptr;
  return HandleExportForm(kForm, window, message, wParam, lParam);
}

}  // namespace

void OpenAssetDialog() {
  if (dialog == nullptr) {
    dialog = CreateForm(kAssetTitle, WS_CAPTION | WS_SYSMENU, 260, 440, 468, 146, nullptr, AssetProcedure);
    AddControls();
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
  SetForegroundWindow(dialog);
  SetFocus(GetDlgItem(GetDlgItem(dialog, kIdAssetFrame), kIdAssetFolder));
}

}  // namespace merla
