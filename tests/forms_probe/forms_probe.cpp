// Shows forms with real windows, so that one can look at them and tests can work them, and finds texts that have no
// room.
//
//   forms_probe sample          a form with many kinds of controls; its events are told on the standard output
//   forms_probe lists           the same for options, drop-down lists, lists with check boxes and filtered fields
//   forms_probe <form>          one of the program's forms, with the texts that need the most room
//   forms_probe check           one line for each control whose text does not fit; the exit code is their count
//   forms_probe fill <count>    a list of so many items: tells the milliseconds until it is shown, and those until all
//                               of its items have been changed
//   forms_probe cycles <count>  loads, shows and unloads the samples so many times and tells how many objects of the
//                               system that has cost
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <vector>

#include "clients/frmInputANL.h"
#include "clients/frmInputEST.h"
#include "clients/frmInputMerANL.h"
#include "clients/frmInputMerFib.h"
#include "clients/frmInputbox.h"
#include "clients/state.h"
#include "environment/export_paths.h"
#include "environment/file_system.h"
#include "environment/paths.h"
#include "environment/temp_path.h"
#include "forms/form.h"
#include "forms/win32/control_windows.h"
#include "frame/frmAbout.h"
#include "frame/frmLog.h"
#include "frame/frmStatus.h"
#include "input/frmInputBoxKonto.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace {

using namespace std::string_literals;
using resources::Text;
using resources::TextId;

void Tell(const char* event) {
  std::puts(event);
  std::fflush(stdout);
}

struct SecondForm : forms::Form {
  SecondForm()
      : Form("frmSecond", "Zweites Formular"),
        lblInfo(*this, "lblInfo", "Modal über dem ersten."),
        cmdClose(*this, "cmdClose", "&Schließen", forms::ButtonRole::Cancel, [this] { Unload(); }) {}

  forms::Box Layout() override { return forms::Column({lblInfo, forms::Buttons({cmdClose})}); }
  void Form_Unload() override { Tell("frmSecond: Unload"); }

  forms::Label lblInfo;
  forms::Button cmdClose;
};

SecondForm frmSecond;

struct SampleForm : forms::Form {
  SampleForm()
      : Form("frmSample", "Probe", {.resizable = true}),
        imgIcon(*this, "imgIcon"),
        lblInfo(*this, "lblInfo",
                "Soll & Haben: dieser Text ist länger als eine Zeile und wird zwischen den Wörtern umgebrochen. "
                "C:\\Ein\\Pfad\\ohne\\Leerzeichen\\der\\länger\\ist\\als\\eine\\Zeile\\und\\im\\Wort\\bricht.csv",
                {.characters = 48, .lines = 4}),
        lblName(*this, "lblName", "Name:"),
        txtName(*this, "txtName", {.characters = 24}),
        lblYear(*this, "lblYear", "Wirtschaftsjahr:"),
        txtYear(*this, "txtYear", {.characters = 6}),
        txtNotes(*this, "txtNotes", {.characters = 48, .lines = 6, .grows = true}),
        barProgress(*this, "barProgress", {.characters = 48, .grows = true}),
        cmdMenu(*this, "cmdMenu", "&Menü", forms::ButtonRole::Plain, [this] { PopupMenu(*this, mnuSample); }),
        cmdSecond(*this, "cmdSecond", "&Zweites...", forms::ButtonRole::Plain, [this] { cmdSecond_Click(); }),
        cmdOff(
            *this, "cmdOff", "&Gesperrt", forms::ButtonRole::Plain, [] { Tell("cmdOff"); }, false),
        cmdAgain(*this, "cmdAgain", "&Neu", forms::ButtonRole::Plain, [this] { cmdAgain_Click(); }),
        cmdOK(*this, "cmdOK", "&OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
        cmdCancel(*this, "cmdCancel", "A&bbrechen", forms::ButtonRole::Cancel, [this] { cmdCancel_Click(); }),
        mnuSample{"mnuSample",
                  "Probe",
                  {{"mnuFirst", "Protokoll anzeigen", [] { Tell("mnuFirst"); }},
                   {"mnuFault", "Fehler auslösen", [] { throw runtime::Fault(runtime::FaultNumber::Overflow); }},
                   {"mnuNone", "-", nullptr},
                   {"mnuLast", "Beenden", [this] { Unload(); }}}},
        Timer1(*this, [this] { Timer1_Timer(); }) {}

  forms::Box Layout() override {
    return forms::Column({forms::Row({imgIcon, lblInfo}), forms::Grid(2, {lblName, txtName, lblYear, txtYear}),
                          txtNotes, barProgress,
                          forms::Buttons({cmdMenu, cmdSecond, cmdOff, cmdAgain, cmdOK, cmdCancel})});
  }

  void Form_Load() override {
    imgIcon.SetIcon("ICOQST");
    txtName.SetText("Müller & Söhne");
    txtNotes.SetText("Vor dem NUL.\0Hinter dem NUL.\r\nZweite Zeile."s);
    Timer1.SetInterval(100);
    Tell("frmSample: Load");
  }
  void Form_Activate() override { Tell("frmSample: Activate"); }
  void Form_Resize() override { Tell("frmSample: Resize"); }
  void Form_QueryUnload() override { Tell("frmSample: QueryUnload"); }
  void Form_Unload() override { Tell("frmSample: Unload"); }

  void Timer1_Timer() {
    barProgress.SetValue(barProgress.Value() < barProgress.Maximum() ? barProgress.Value() + 1 : 0);
  }
  void cmdSecond_Click() {
    frmSecond.ShowModal();
    Tell("cmdSecond: back");
  }
  // Unloads the form whose click is being handled and uses it at once.
  void cmdAgain_Click() {
    Unload();
    txtName.SetText("Neu");
    Show();
  }
  void cmdOK_Click() {
    Tell(("cmdOK: " + txtName.Text() + ", " + txtYear.Text()).c_str());
    txtName.SetFocus();
  }
  void cmdCancel_Click() {
    Tell("cmdCancel");
    Unload();
  }

  forms::Picture imgIcon;
  forms::Label lblInfo;
  forms::Label lblName;
  forms::TextBox txtName;
  forms::Label lblYear;
  forms::TextBox txtYear;
  forms::RichTextBox txtNotes;
  forms::ProgressBar barProgress;
  forms::Button cmdMenu;
  forms::Button cmdSecond;
  forms::Button cmdOff;
  forms::Button cmdAgain;
  forms::Button cmdOK;
  forms::Button cmdCancel;
  forms::Menu mnuSample;
  forms::Timer Timer1;
};

SampleForm frmSample;

struct ListsForm : forms::Form {
  ListsForm()
      : Form("frmLists", "Listen", {.resizable = true}),
        optFirst(*this, "optFirst", "Erste &Wahl"),
        optSecond(*this, "optSecond", "Zweite Wahl mit längerem Text"),
        optThird(*this, "optThird", "Dritte Wahl"),
        lblDigits(*this, "lblDigits", "Ziffern:"),
        txtDigits(*this, "txtDigits", {.characters = 12},
                  [](unsigned char code) { return code < 40 || std::isdigit(code) != 0; }),
        lblKind(*this, "lblKind", "Art:"),
        cboKind(*this, "cboKind", {.characters = 34}),
        lstRows(*this, "lstRows", {"", "Nummer", "Bezeichnung", "Übernehmen"},
                {.characters = 60, .lines = 8, .grows = true},
                {.ItemClick = [this](std::size_t item) { TellItem("click", item); },
                 .ItemCheck = [this](std::size_t item) { lstRows_ItemCheck(item); },
                 .DblClick = [] { Tell("double click"); }}),
        cmdOK(*this, "cmdOK", "&OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
        cmdCancel(*this, "cmdCancel", "A&bbrechen", forms::ButtonRole::Cancel, [this] { Unload(); }) {}

  forms::Box Layout() override {
    return forms::Column({optFirst, optSecond, optThird, forms::Grid(2, {lblDigits, txtDigits, lblKind, cboKind}),
                          lstRows, forms::Buttons({cmdOK, cmdCancel})});
  }

  void AddRow(int number, const std::string& name) {
    const std::size_t item = lstRows.Add("Item" + std::to_string(number), "");
    lstRows.SetSubItem(item, 1, std::to_string(number));
    lstRows.SetSubItem(item, 2, name);
    SetMark(item, number % 2 == 0);
  }
  void SetMark(std::size_t item, bool checked) {
    lstRows.SetSubItem(item, 3, checked ? "Ja" : "Nein");
    lstRows.SetChecked(item, checked);
  }

  void TellItem(const char* event, std::size_t item) {
    Tell((event + (" " + lstRows.SubItem(item, 1)) + (lstRows.Item(item).checked ? " checked" : "")).c_str());
  }
  // The last item goes with every other one; the first one scrolls to it.
  void lstRows_ItemCheck(std::size_t item) {
    TellItem("check", item);
    SetMark(item, lstRows.Item(item).checked);
    SetMark(lstRows.Count() - 1, lstRows.Item(item).checked);
    lstRows.Select(item);
    if (item == 0) lstRows.EnsureVisible(lstRows.Count() - 1);
  }
  void cmdOK_Click() {
    const int option = optFirst.Value() ? 1 : optSecond.Value() ? 2 : optThird.Value() ? 3 : 0;
    Tell(("cmdOK: " + std::to_string(option) + ", " + txtDigits.Text() + ", " + std::to_string(cboKind.ListIndex()))
             .c_str());
  }

  forms::OptionButton optFirst;
  forms::OptionButton optSecond;
  forms::OptionButton optThird;
  forms::Label lblDigits;
  forms::TextBox txtDigits;
  forms::Label lblKind;
  forms::ComboBox cboKind;
  forms::ListView lstRows;
  forms::Button cmdOK;
  forms::Button cmdCancel;
};

ListsForm frmLists;

void FillLists() {
  frmLists.cboKind.AddItem("Zugang, Abschreibung und Abgang");
  frmLists.cboKind.AddItem("Zugang und Abschreibung");
  for (int i = 0; i < 40; ++i) frmLists.AddRow(1001 + i, "Müller & Söhne " + std::to_string(i));
}

// A form as it stands with texts that occur.
struct Look {
  const char* word;
  forms::Form& form;
  std::function<void()> fill;
};

const std::string kLongClient = "4711 Mustermann Verwaltungsgesellschaft mbH & Co. KG";
const std::string kLongStatus =
    "Fehler in Funktion WriteProtocol:Zugriff verweigert "
    "(C:\\Dokumente und Einstellungen\\Alle "
    "Benutzer\\Anwendungsdaten\\Extern\\4711\\2005\\GDPdU\\Anlagenbuchführung.csv)";

void FillStatus(TextId info) {
  basMain::frmStatus.lblInfo.SetCaption(Text(info));
  basMain::frmStatus.lblStatus.SetCaption(kLongStatus);
  basMain::frmStatus.Progress(40);
}

template <class Row>
std::vector<Row> BusinessYears() {
  std::vector<Row> rows;
  for (int year = 1998; year < 2006; ++year) {
    Row row;
    row.Beginn = "01.07." + std::to_string(year);
    row.Ende = "30.06." + std::to_string(year + 1);
    row.Checked = year > 2003;
    rows.push_back(row);
  }
  return rows;
}

const std::string kYearsQuestion =
    "Welche Wirtschaftsjahre sollen für den Mandanten %1 aus der Anlagenbuchführung exportiert werden?";

void FillInputANL() {
  basMain::clients.Matrix = BusinessYears<basMain::MatrixRow>();
  basMain::frmInputANL.InfoCaption(kYearsQuestion);
  basMain::frmInputANL.AddYearRows(basMain::clients.Matrix);
}

void FillInputMerANL() {
  basMain::clients.MerMatrix = BusinessYears<basMain::MerMatrixRow>();
  basMain::frmInputMerANL.InfoCaption(kYearsQuestion, kLongClient);
  basMain::frmInputMerANL.AddYearRows(basMain::clients.MerMatrix);
}

void FillInputMerFib() {
  const std::string file = basAPI::JoinPath(basMain::GetTemp(), "Mandantendatei der Kanzlei mit langem Namen.txt");
  std::ofstream clients(file);
  clients << "Kopf\nKopf\n";
  for (int i = 0; i < 40; ++i) clients << 1001 + i << ';' << kLongClient << ";;;;September\n";
  clients.close();
  basMain::FileSystemState.emplace();
  basMain::frmInputMerFib.InfoCaption("Für welche Mandanten und Wirtschaftsjahre soll exportiert werden?");
  basMain::frmInputMerFib.FileName(file);
  basMain::frmInputMerFib.ShowData();
}

// Megabytes, with a NUL in the middle.
std::string LargeLog() {
  std::string log;
  for (int i = 0; i < 40000; ++i) log += "Das Textfeld wurde ausgefüllt (Wert Nummer " + std::to_string(i) + ")\r\n";
  log[log.size() / 2] = '\0';
  return log;
}

std::vector<Look> Looks() {
  using namespace basMain;
  return {
      {"sample", frmSample, [] {}},
      {"lists", frmLists, FillLists},
      {"status", frmStatus, [] { FillStatus(TextId::RunInProgress); }},
      {"status-failed", frmStatus, [] { FillStatus(TextId::RunFailed); }},
      {"status-complete", frmStatus, [] { FillStatus(TextId::RunCompleted); }},
      {"status-stopped", frmStatus, [] { FillStatus(TextId::RunStopped); }},
      {"inputbox", frmInputbox,
       [] {
         frmInputbox.lblInfo.SetCaption(
             runtime::Replace(Text(TextId::ConfirmClient, " " + kLongClient + " "), "%2", " 2005 "));
         frmInputbox.txtMandant.SetText(" 4711 ");
         frmInputbox.txtJahr.SetText(" 2005 ");
       }},
      {"inputbox-unknown", frmInputbox, [] { frmInputbox.lblInfo.SetCaption(Text(TextId::ClientUnknown)); }},
      {"input-est", frmInputEST,
       [] { frmInputEST.InfoCaption("Für welche Mandanten sollen die Daten der Einkommensteuer exportiert werden?"); }},
      {"input-anl", frmInputANL, FillInputANL},
      {"input-mer-anl", frmInputMerANL, FillInputMerANL},
      {"input-mer-fib", frmInputMerFib, FillInputMerFib},
      {"input-konto", frmInputBoxKonto, [] {}},
      {"log", frmLog, [] { frmLog.txtProtokoll.SetText(std::string(80, '*') + "\r\nTarven Datenexport\r\n"); }},
      {"log-large", frmLog, [] { frmLog.txtProtokoll.SetText(LargeLog()); }},
      {"about", frmAbout, [] {}},
  };
}

int Check() {
  int count = 0;
  for (const Look& look : Looks()) {
    look.form.Load();
    look.fill();
    look.form.Show();
    forms::Pump();
    for (const forms::Control* control : look.form.Controls()) {
      if (forms::win32::TextFits(*control)) continue;
      std::printf("%s: %s has no room for \"%s\"\n", look.word, control->name.c_str(), control->now.text.c_str());
      ++count;
    }
    look.form.Unload();
    forms::Pump();
  }
  return count;
}

// How high the numbers of new objects are: the counts that the system offers are not kept by every version of it, but
// each gives a number again only when its object is gone.
template <class Make, class Release>
long HighestNumber(long mask, Make make, Release release) {
  std::vector<decltype(make())> objects;
  long highest = 0;
  for (int i = 0; i < 512; ++i) {
    objects.push_back(make());
    highest = std::max(highest, platform::NumberOf(objects.back()) & mask);
  }
  for (const auto object : objects) release(object);
  return highest;
}

struct Objects {
  long gdi = HighestNumber(
      0xFFFF, [] { return ::CreatePen(PS_SOLID, 1, 0); }, ::DeleteObject);
  long user = HighestNumber(0xFFFF, ::CreatePopupMenu, ::DestroyMenu);
  long kernel = HighestNumber(
      -1, [] { return ::CreateEventA(nullptr, FALSE, FALSE, nullptr); }, ::CloseHandle);
};

int Cycles(int count) {
  const auto cycle = [] {
    frmSample.Show();
    forms::Pump();
    frmSample.Unload();
    frmLists.Load();
    FillLists();
    frmLists.Show();
    forms::Pump();
    frmLists.Unload();
    forms::Pump();
  };
  for (int i = 0; i < 10; ++i) cycle();  // what is made once and kept
  const Objects before;
  for (int i = 0; i < count; ++i) cycle();
  const Objects after;
  std::printf("gdi %ld user %ld kernel %ld\n", after.gdi - before.gdi, after.user - before.user,
              after.kernel - before.kernel);
  return 0;
}

int Fill(int count) {
  const DWORD start = ::GetTickCount();
  for (int i = 0; i < count; ++i) frmLists.AddRow(i, "Müller & Söhne " + std::to_string(i));
  frmLists.Show();
  forms::Pump();
  const DWORD shown = ::GetTickCount();
  for (std::size_t i = 0; i < frmLists.lstRows.Count(); ++i) frmLists.SetMark(i, true);
  forms::Pump();
  const DWORD changed = ::GetTickCount();
  std::printf("shown %lu changed %lu\n", shown - start, changed - shown);
  return 0;
}

int ShowOne(const char* word) {
  for (const Look& look : Looks()) {
    if (std::strcmp(look.word, word) != 0) continue;
    look.form.Load();
    look.fill();
    look.form.Show();
    forms::RunMessageLoop();
    Tell("ended");
    return 0;
  }
  std::fprintf(stderr, "No form is named %s.\n", word);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const char* word = argc > 1 ? argv[1] : "sample";
  if (std::strcmp(word, "check") == 0) return Check();
  if (std::strcmp(word, "cycles") == 0) return Cycles(argc > 2 ? std::atoi(argv[2]) : 1000);
  if (std::strcmp(word, "fill") == 0) return Fill(argc > 2 ? std::atoi(argv[2]) : 100000);
  return ShowOne(word);
}
