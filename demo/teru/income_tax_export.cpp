#include "income_tax_export.h"

#include <vector>

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
std::string client, clientName;

std::string Folder() { return TextOf(GetDlgItem(dialog, kIdTaxFolder)); }
std::string Year() { return TextOf(GetDlgItem(dialog, kIdTaxYear)); }

std::string File() { return Folder() + "\\ESt-" + client + "-" + Year() + ".csv"; }

void Start() {
  Journal("Export: Mandant " + client + ", Veranlagungsjahr " + Year() + ", " + Folder());
  if (Year().size() != 4 || Year().find_first_not_of("0123456789") != std::string::npos) {
    Report(dialog, "Das Veranlagungsjahr ist ungültig: " + Year(), MB_ICONWARNING);
    return;
  }
  if (!FolderExists(Folder())) {
    Report(dialog, "Der Exportpfad ist nicht vorhanden: " + Folder(), MB_ICONSTOP);
    return;
  }
  EnableWindow(GetDlgItem(dialog, kIdTaxStart), FALSE);
  SetTimer(dialog, kExportTimer, exportTick, nullptr);
}

void Write() {
  KillTimer(dialog, kExportTimer);
  EnableWindow(GetDlgItem(dialog, kIdTaxStart), TRUE);
  std::vector<std::string> lines = {"Mandant;Name;Veranlagungsjahr;Zeile;Betrag"};
  for (const char* line :
       {"Einkünfte aus Gewerbebetrieb;48.120,00", "Einkünfte aus Vermietung;9.600,00", "Sonderausgaben;3.240,00"})
    lines.push_back(client + ";" + clientName + ";" + Year() + ";" + line);
  if (!WriteLines(File(), lines)) {
    Report(dialog, "Die Datei kann nicht geschrieben werden: " + File(), MB_ICONSTOP);
    return;
  }
  Report(dialog, "Der Export ist abgeschlossen.", MB_ICONINFORMATION);
}

void AddControls() {
  AddControl(dialog, "Static", "", SS_NOPREFIX, kIdTaxClient, 14, 14, 400, 16);
  AddControl(dialog, "Static", "&Veranlagungsjahr:", 0, -1, 14, 44, 114, 16);
  AddControl(dialog, kTextBoxClass, "", ES_NUMBER | WS_TABSTOP, kIdTaxYear, 132, 40, 60, 22);
  AddControl(dialog, "Static", "E&xportpfad:", 0, -1, 14, 74, 100, 16);
  AddControl(dialog, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdTaxFolder, 132, 70, 302, 22);
  AddControl(dialog, kButtonClass, "&Export starten", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdTaxStart, 208, 106, 120, 26);
  AddControl(dialog, kButtonClass, "&Schließen", WS_TABSTOP, kIdTaxClose, 336, 106, 98, 26);
}

constexpr ExportForm kForm = {kIdTaxStart, kIdTaxClose, Start, Write};

LRESULT CALLBACK IncomeTaxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) dialog = nullptr;
  return HandleExportForm(kForm, window, message, wParam, lParam);
}

}  // namespace

void OpenIncomeTaxExport(const std::string& number, const std::string& name) {
  if (dialog == nullptr) {
    dialog = CreateForm(kIncomeTaxTitle, WS_CAPTION | WS_SYSMENU, 300, 440, 448, 146, nullptr, IncomeTaxProcedure);
    AddControls();
  }
  client = number;
  clientName = name;
  SetDlgItemTextA(dialog, kIdTaxClient, ("Mandant:  " + number + "  " + name).c_str());
  ShowWindow(dialog, SW_SHOWNORMAL);
  SetForegroundWindow(dialog);
  SetFocus(GetDlgItem(dialog, kIdTaxYear));
}

}  // namespace teru
