#include "export_dialog.h"

#include <commctrl.h>

#include <string>

#include "export_form.h"
#include "export_job.h"
#include "journal.h"
#include "look.h"
#include "message_boxes.h"

namespace teru {

using namespace standin;

UINT exportTick = 100;

namespace {

HWND dialog = nullptr;
ExportJob job;

void ShowProgress() {
  SetDlgItemTextA(dialog, kIdProgressText, job.Running() ? job.Progress().c_str() : "Bereit.");
  SendDlgItemMessageA(dialog, kIdProgressBar, PBM_SETPOS, job.Running() ? job.Percent() : 0, 0);
  EnableWindow(GetDlgItem(dialog, kIdStart), !job.Running());
}

void StartExport() {
  if (job.Running()) return;
  char folder[MAX_PATH] = "";
  GetDlgItemTextA(dialog, kIdPath, folder, sizeof folder);
  if (folder[0] == '\0') {
    Report(dialog, "Bitte geben Sie einen Exportpfad an.", MB_ICONWARNING);
    return;
  }
  if (!job.Start(folder)) {
    Report(dialog, "Der Exportpfad ist nicht vorhanden: " + std::string(folder), MB_ICONSTOP);
    return;
  }
  ShowProgress();
  SetTimer(dialog, kExportTimer, exportTick, nullptr);
}

void ContinueExport() {
  bool written = job.Step();
  ShowProgress();
  if (job.Running()) return;
  KillTimer(dialog, kExportTimer);
  if (written) {
    Report(dialog, "Der Export ist abgeschlossen. " + std::to_string(job.FileCount()) + " Dateien wurden geschrieben.",
           MB_ICONINFORMATION);
  } else {
    Report(dialog, "Der Export wurde abgebrochen. Eine Datei konnte nicht geschrieben werden.", MB_ICONSTOP);
  }
}

void AddControls() {
  AddControl(dialog, "Static", "Buchführungsdaten für die Prüfung durch das Finanzamt (GDPdU) ausgeben", 0, -1, 14, 12,
             440, 16);
  AddControl(dialog, "Static", "&Exportpfad:", 0, -1, 14, 42, 70, 16);
  AddControl(dialog, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdPath, 88, 38, 366, 22);
  AddControl(dialog, "Static", "Bereit.", 0, kIdProgressText, 14, 72, 440, 16);
  AddControl(dialog, PROGRESS_CLASSA, "", 0, kIdProgressBar, 14, 92, 440, 16);
  AddControl(dialog, kButtonClass, "&Export starten", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdStart, 228, 124, 120, 26);
  AddControl(dialog, kButtonClass, "&Schließen", WS_TABSTOP, kIdClose, 356, 124, 98, 26);
}

constexpr ExportForm kForm = {kIdStart, kIdClose, StartExport, ContinueExport};

LRESULT CALLBACK ExportProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    job.Stop();
    dialog = nullptr;
  }
  return HandleExportForm(kForm, window, message, wParam, lParam);
}

}  // namespace

void OpenExportDialog() {
  if (dialog != nullptr) return;
  dialog =
      CreateForm(kExportTitle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 300, 524, 468, 164, nullptr, ExportProcedure);
  AddControls();
  ShowWindow(dialog, SW_SHOWNOACTIVATE);
}

void ActivateExportDialog() {
  OpenExportDialog();
  SetForegroundWindow(dialog);
  SetFocus(GetDlgItem(dialog, kIdPath));
}

}  // namespace teru
