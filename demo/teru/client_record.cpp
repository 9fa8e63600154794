#include "client_record.h"

#include <string>

#include "client_fields.h"
#include "client_lists.h"
#include "clipboard.h"
#include "folder_browser.h"
#include "journal.h"
#include "look.h"
#include "message_boxes.h"

namespace teru {

using namespace standin;

namespace {

HWND dialog = nullptr;

HMENU RecordMenu() {
  HMENU record = CreatePopupMenu();
  AppendMenuA(record, MF_STRING, kIdMenuSave, "&Speichern");
  AppendMenuA(record, MF_STRING, kIdMenuReset, "&Zurücksetzen");
  AppendMenuA(record, MF_SEPARATOR, 0, nullptr);
  AppendMenuA(record, MF_STRING, kIdMenuCloseRecord, "S&chließen");
  HMENU lists = CreatePopupMenu();
  AppendMenuA(lists, MF_STRING, kIdMenuFillLists, "&Füllen");
  AppendMenuA(lists, MF_STRING, kIdMenuClearLists, "&Leeren");
  HMENU bar = CreateMenu();
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(record), "Stamm&daten");
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(lists), "&Listen");
  return bar;
}

void AddControls() {
  // Macros reach the first frame also when they name one that does not exist, so it stays the first child.
  AddAddressFrame(dialog, 10, 8);
  AddLegalFormFrame(dialog, 520, 8);
  AddProfitFrame(dialog, 520, 132);
  AddFeatureFrame(dialog, 10, 224);
  AddYearFrame(dialog, 520, 224);
  AddControl(dialog, "Static", "&Ablage:", 0, -1, 10, 333, 60, 16);
  AddControl(dialog, kTextBoxClass, "C:\\", ES_AUTOHSCROLL | WS_TABSTOP, kIdFolder, 74, 330, 332, 22);
  AddControl(dialog, kButtonClass, "Auswählen...", WS_TABSTOP, kIdBrowse, 414, 329, 96, 24);
  AddPartners(dialog, 10, 364);
  AddBankAccounts(dialog, 520, 362);
  AddControl(dialog, kButtonClass, "Speichern", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdSave, 270, 510, 96, 26);
  AddControl(dialog, "Button", "Löschen", WS_TABSTOP, kIdDelete, 372, 510, 96, 26);
  AddControl(dialog, kButtonClass, "Kopieren", WS_TABSTOP, kIdCopy, 474, 510, 96, 26);
  AddControl(dialog, kButtonClass, "Prüfen", WS_TABSTOP, kIdCheck, 576, 510, 96, 26);
  AddControl(dialog, kButtonClass, "Schließen", WS_TABSTOP, kIdCloseRecord, 678, 510, 96, 26);
  FillLists(dialog);
}

void Save() { Report(dialog, "Die Stammdaten wurden gespeichert.", MB_OK | MB_ICONINFORMATION); }

void Reset() { Report(dialog, "Sollen alle Eingaben verworfen werden?", MB_YESNO | MB_ICONQUESTION); }

void Delete() { Ask(dialog, "Soll der Mandant wirklich aus dem Bestand gelöscht werden?", {"Ja", "Nein"}); }

void Check() { Ask(dialog, "Die Ablage ist nicht erreichbar.", {"Wiederholen", "Abbrechen"}); }

void Copy() {
  std::string question = "Sollen die Gesellschafter in die Zwischenablage kopiert werden?";
  if (Ask(dialog, question, {"Ja", "Nein"}) == "Ja") PutOnClipboard(dialog, PartnersAsText(dialog));
}

void Browse() {
  char folder[MAX_PATH] = "";
  GetDlgItemTextA(dialog, kIdFolder, folder, sizeof folder);
  std::string chosen = BrowseForFolder(dialog, "Ordner für die Ablage des Mandanten:", folder);
  if (!chosen.empty()) SetDlgItemTextA(dialog, kIdFolder, chosen.c_str());
}

struct Command {
  int id;
  const char* name;
  void (*run)();
};

constexpr Command kCommands[] = {
    {kIdBrowse, "Schaltfläche: Auswählen", Browse},
    {kIdSave, "Schaltfläche: Speichern", Save},
    {kIdDelete, "Schaltfläche: Löschen", Delete},
    {kIdCopy, "Schaltfläche: Kopieren", Copy},
    {kIdCheck, "Schaltfläche: Prüfen", Check},
    {kIdCloseRecord, "Schaltfläche: Schließen", [] { DestroyWindow(dialog); }},
    {IDCANCEL, "Taste: Esc", [] { DestroyWindow(dialog); }},
    {kIdMenuSave, "Menü: Speichern", Save},
    {kIdMenuReset, "Menü: Zurücksetzen", Reset},
    {kIdMenuCloseRecord, "Menü: Schließen", [] { DestroyWindow(dialog); }},
    {kIdMenuFillLists, "Menü: Listen füllen", [] { FillLists(dialog); }},
    {kIdMenuClearLists, "Menü: Listen leeren", [] { ClearLists(dialog); }},
};

// A command that names its control comes from a click, or from one who takes care to look like it.
void Run(int id, bool hasControl) {
  for (const Command& command : kCommands) {
    if (command.id != id) continue;
    Journal(std::string(command.name) + (hasControl ? ", mit Steuerelement" : ""));
    command.run();
    return;
  }
  Journal("Befehl: " + std::to_string(id));
}

void Receive(int id, int notification, HWND control) {
  if (control != nullptr && ReceiveFromField(id, notification, control)) return;
  if (control != nullptr && ReceiveFromList(dialog, id, notification, control)) return;
  if (id == kIdFolder && control != nullptr) {
    if (notification == EN_SETFOCUS) Journal("Fokus " + std::to_string(id));
    return;
  }
  if (notification == BN_CLICKED) Run(id, control != nullptr);
}

LRESULT CALLBACK RecordProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      Receive(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      return 0;
    case WM_NOTIFY:
      ReceiveFromListView(reinterpret_cast<const NMHDR*>(lParam));
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) Journal("Fenster aktiv: Stammdaten");
      break;
    case WM_DESTROY:
      dialog = nullptr;
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

void OpenClientRecord() {
  dialog = CreateForm(kClientRecordTitle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 220, 60, 784, 546, RecordMenu(),
                      RecordProcedure);
  AddControls();
  ShowWindow(dialog, SW_SHOWNORMAL);
}

}  // namespace

void ActivateClientRecord() {
  if (dialog == nullptr) OpenClientRecord();
  SetForegroundWindow(dialog);
  SetFocus(GetDlgItem(GetDlgItem(dialog, kIdAddressFrame), kIdName));
}

}  // namespace teru
