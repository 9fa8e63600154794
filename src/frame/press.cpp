#include "frame/press.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "automation/window_search.h"
#include "clients/frmInputbox.h"
#include "engine/macro_file.h"
#include "engine/parser.h"
#include "engine/run_loop.h"
#include "environment/settings.h"
#include "environment/window_order.h"
#include "forms/form.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/dialogs.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/dates.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;
using runtime::Skip;

constexpr int kTableEntries = 15;
const char* const kVersionPlaceholder = "%MerlaVersion%";

// Walks the macro table and takes the first entry whose fragment the caption holds. Yields its number; 0 when none
// fits, and then MakroFile stays what it was.
int ChooseMacro(const std::string& ini, const std::string& caption) {
  for (int number = 1; number <= kTableEntries; ++number) {
    const std::string entry = basAPI::ReadIniString(ini, "Makro", "Makro" + std::to_string(number), "");
    if (entry.empty()) continue;
    std::array<std::string, 6> fields;
    SplitString(runtime::Remove(entry, '\''), fields);
    if (!runtime::Contains(caption, fields[0])) continue;
    frame.MakroFile = fields[1];
    return number;
  }
  return 0;
}

// Whether the list names the number. An element that is no number counts as equal: the conversion fails, and what
// follows it runs.
bool IsListed(const std::vector<std::string>& list, int number) {
  for (const std::string& element : list) {
    bool equal = true;
    Skip([&] { equal = runtime::ToDouble(element) == number; });
    if (equal) return true;
  }
  return false;
}

bool AlwaysFibu(const std::string& macro) {
  return macro == "QUMAFIBU.MAK" || macro == "QUMAFIBUCOMP.MAK" || macro == "QUMABILANZ.MAK";
}

std::string MacroPath() { return basAPI::JoinPath(platform::ApplicationPath(), frame.MakroFile); }

void WriteRunHeader() {
  LogWrite("");
  LogWrite(kStarLine);
  LogWrite(Text(TextId::RunStarted));
  LogWrite(Text(TextId::RunDate) + runtime::DateText(platform::Now()));
  LogWrite("MakroFile: " + frame.MakroFile);
}

bool ConfirmClient() {
  bool confirmed = false;
  Skip([&] {
    frmInputbox.ShowModal();
    confirmed = frmInputbox.Result();
  });
  return confirmed;
}

}  // namespace

void Press() {
  Skip([] { frame.MainWindow = platform::GetForegroundWindow(); });
  const std::string ini = basAPI::SettingsFile();
  const std::string caption = GetWindowTitle(frame.MainWindow);
  const auto fibuList = runtime::Split(basAPI::ReadIniString(ini, "Makro-Fibu", "Files", ""), ',');
  const int number = ChooseMacro(ini, caption);
  const bool listed = IsListed(fibuList, number);
  if (runtime::Contains(frame.MakroFile, kVersionPlaceholder))
    frame.MakroFile = runtime::Replace(frame.MakroFile, kVersionPlaceholder, basAPI::ReadINI("MERLA", "Version"));
  if (!basAPI::CheckFileExists(MacroPath())) {
    platform::MessageBoxA(frmMain.hWnd(), Text(TextId::MacroMissing), resources::kProgramTitle,
                          platform::MB_OK | platform::MB_ICONSTOP);
    return;  // in spite of the text the program stays
  }
  WriteRunHeader();
  const bool fibu = listed || AlwaysFibu(frame.MakroFile);
  const std::string dialog = fibu ? basAPI::ReadIniString(ini, "Allgemein", "MandantenDLG", "1") : "0";
  if (dialog == "1" && !ConfirmClient()) return;
  frmStatus.Unload();  // what an earlier run has left: a press gets a clean dialog
  Skip([] { basAPI::SetTopMost(frmStatus.hWnd()); });
  forms::Pump();
  Skip([] { frmStatus.Show(); });
  LoadFile(MacroPath());  // computed anew: a press while the dialog was open may have chosen another macro
  ProcessMakro(0);
}

}  // namespace basMain
