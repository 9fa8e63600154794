#include "clients/frmInputANL.h"

#include "automation/window_search.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/create_path.h"
#include "environment/discovery.h"
#include "environment/result_parsing.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "frame/state.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace basMain {

using runtime::Skip;

InputANLForm frmInputANL;

namespace {

// What stands in the caption between the first hyphen and the third slash from the end, without leading zeros.
std::string ConsultantNumber() {
  const std::string caption = GetWindowTitle(frame.MainWindow);
  LogWrite("WindowCaption: " + caption);
  const int begin = static_cast<int>(caption.find('-') + 1);  // behind the hyphen; 0 when there is none
  const int end = FindBackslashFromEnd(caption, '/', 3) - 1;  // in front of the slash; -1 when there are fewer
  if (end < begin) throw runtime::Fault(runtime::FaultNumber::InvalidCall);
  const std::string text = caption.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
  const std::string consultant = StripLeadingZeros(runtime::Trim(text));
  LogWrite("Berater: " + consultant);
  return consultant;
}

}  // namespace

InputANLForm::InputANLForm()
    : YearListDialog("frmInputANL"),
      Label1(*this, "Label1", "GWG in Auswertungen:"),
      cboGWG(*this, "cboGWG", {.characters = 34}) {}

forms::Box InputANLForm::Layout() {
  return forms::Column(
      {forms::Row({imgQuest, lblInfo}), lstViewJahr, forms::Row({Label1, cboGWG}), forms::Buttons({cmdOK, cmdCancel})});
}

void InputANLForm::Form_Load() {
  YearListDialog::Form_Load();
  client_.clear();
  consultant_.clear();
  firstActivation_ = true;
}

void InputANLForm::InfoCaption(const std::string& text) {
  std::string question = text;
  const auto pieces = runtime::Split(GetTitlePath(), '\\');
  if (pieces.size() > 2) {
    client_ = runtime::Trim(pieces[1]);
    question = runtime::Replace(runtime::Replace(text, "%1", client_), "%2", runtime::Trim(pieces[2]));
    consultant_ = ConsultantNumber();
  }
  lblInfo.SetCaption(question);
}

void InputANLForm::Form_Activate() {
  if (!firstActivation_) return;
  firstActivation_ = false;
  Skip([&] { cboGWG.AddItem("Zugang, Abschreibung und Abgang"); });
  Skip([&] { cboGWG.AddItem("Zugang und Abschreibung"); });
  const std::string file = basAPI::JoinPath(GetTeRuDestination(), "Import\\anl\\kanzrewe.cfg");
  const std::string index = basAPI::ReadIniString(file, "Vorlage", "GWGinAuswertungen", "0");
  if (!Loaded()) return;  // the question for the suite's directory lets the user close the dialog
  Skip([&] { cboGWG.SetListIndex(runtime::ToInteger(index)); });
}

void InputANLForm::cmdOK_Click() {
  if (!TakeMarks(clients.Matrix)) return;
  Answer(kConfirmed);
  Skip([&] { SaveOptions(); });
  Unload();
}

void InputANLForm::SaveOptions() {
  const std::string treatment = std::to_string(cboGWG.ListIndex());  // while the dialog is surely there
  const std::string folder = basAPI::JoinPath(GetTeRuDestination(), "Extern\\Berater-" + consultant_ + "\\" + client_);
  basAPI::CreatePath(folder);
  basAPI::WriteIniString(basAPI::JoinPath(folder, "TDConv.cfg"), "ANL", "Optionen GWGinAuswertungen", treatment);
}

bool ShowInputANL(const std::string& text) {
  return Standard("ShowInputANL", [&] {
    AskUser(frmInputANL, [&] {
      frmInputANL.InfoCaption(text);
      frmInputANL.AddYearRows(clients.Matrix);
      return true;
    });
    LogWrite("ShowInputANL");
    return true;
  });
}

}  // namespace basMain
