#include "posting_export.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "date_field.h"
#include "export_form.h"
#include "firm.h"
#include "journal.h"
#include "look.h"
#include "message_boxes.h"
#include "options.h"
#include "text_files.h"

namespace merla {

using namespace standin;

namespace {

HWND dialog = nullptr;
HWND first = nullptr;
HWND last = nullptr;
HWND client = nullptr;

// Months since the year 0.
int Month(const Date& date) { return std::atoi(date.year.c_str()) * 12 + std::atoi(date.month.c_str()) - 1; }

std::string Text(const Date& date) { return (date.day.empty() ? "" : date.day + ".") + date.month + "." + date.year; }

std::vector<std::string> Postings() {
  std::vector<std::string> lines = {"Mandant;Monat;Soll;Haben;Betrag;Text"};
  for (int month = Month(DateIn(first)); month <= Month(DateIn(last)); ++month) {
    char text[80];
    std::snprintf(text, sizeof text, "%02d.%04d;0310;0510;%d,00;Umsätze des Monats", month % 12 + 1, month / 12,
                  1000 + month * 37 % 900);
    lines.push_back(TextOf(client) + ";" + text);
  }
  return lines;
}

void Start() {
  constexpr int kLongest = 12 * 50;
  std::string folder = TextOf(GetDlgItem(dialog, kIdPostingFolder));
  Journal("Export: Mandant " + TextOf(client) + ", " + Text(DateIn(first)) + " bis " + Text(DateIn(last)) + ", " +
          folder);
  int months = Month(DateIn(last)) - Month(DateIn(first));
  if (FindClient(TextOf(client)) == nullptr) {
    Report(dialog, "Der Mandant ist nicht angelegt: " + TextOf(client), MB_ICONWARNING);
  } else if (months < 0 || months > kLongest) {
    Report(dialog, "Der Zeitraum ist ungültig.", MB_ICONWARNING);
  } else if (!FolderExists(folder)) {
    Report(dialog, "Der Exportpfad ist nicht vorhanden: " + folder, MB_ICONSTOP);
  } else {
    EnableWindow(GetDlgItem(dialog, kIdPostingStart), FALSE);
    SetDlgItemTextA(dialog, kIdPostingState, "Der Export läuft...");
    SetTimer(dialog, kExportTimer, options.tick, nullptr);
  }
}

void Write() {
  KillTimer(dialog, kExportTimer);
  std::string file = TextOf(GetDlgItem(dialog, kIdPostingFolder)) + "\\Buchungen.csv";
  bool written = WriteLines(file, Postings());
  EnableWindow(GetDlgItem(dialog, kIdPostingStart), TRUE);
  SetDlgItemTextA(dialog, kIdPostingState, "Bereit.");
  if (written) Report(dialog, "Der Export ist abgeschlossen.", MB_ICONINFORMATION);
  else Report(dialog, "Die Datei kann nicht geschrieben werden: " + file, MB_ICONSTOP);
}

void AddControls() {
  HWND who = AddControl(dialog, kFrameClass, "Mandant", 0, kIdPostingClientFrame, 14, 10, 130, 56);
  client = AddControl(who, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdPostingClient, 14, 24, 100, 22);

  HWND period = AddControl(dialog, kFrameClass, "Zeitraum", 0, kIdPostingPeriod, 154, 10, 328, 56);
  AddControl(period, "Static", "von", 0, -1, 12, 27, 22, 16);
  first = AddDateField(period, 1, 38, 23, !options.monthsOnly);
  AddControl(period, "Static", "bis", 0, -1, 172, 27, 22, 16);
  last = AddDateField(period, 2, 198, 23, !options.monthsOnly);

  AddControl(dialog, "Static", "&Exportpfad:", 0, -1, 14, 82, 70, 16);
  AddControl(dialog, kTextBoxClass, "", ES_AUTOHSCROLL | WS_TABSTOP, kIdPostingFolder, 88, 78, 394, 22);
  AddControl(dialog, "Static", "Bereit.", 0, kIdPostingState, 14, 118, 220, 16);
  AddControl(dialog, kButtonClass, "Export &starten", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdPostingStart, 256, 112, 120,
             26);
  AddControl(dialog, kButtonClass, "S&chließen", WS_TABSTOP, kIdPostingClose, 384, 112, 98, 26);
}

void Fill() {
  SetWindowTextA(client, OurClient().number.c_str());
  SetDate(first, BusinessYears().back().first);
  SetDate(last, BusinessYears().back().last);
}

constexpr ExportForm kForm = {kIdPostingStart, kIdPostingClose, Start, Write};

LRESULT CALLBACK PostingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) dialog = nullptr;
  return HandleExportForm(kForm, window, message, wParam, lParam);
}

}  // namespace

void OpenPostingDialog() {
  if (dialog == nullptr) {
    dialog = CreateForm(kPostingTitle, WS_CAPTION | WS_SYSMENU, 240, 420, 496, 152, nullptr, PostingProcedure);
    AddControls();
    Fill();
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
  SetForegroundWindow(dialog);
  SetFocus(client);
}

}  // namespace merla
