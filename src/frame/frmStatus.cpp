#include "frame/frmStatus.h"

#include "engine/state.h"
#include "frame/frmMain.h"
#include "frame/log.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

StatusForm frmStatus;

StatusForm::StatusForm()
    : Form("frmStatus", resources::kProgramTitle),
      lblInfo(*this, "lblInfo", "", {.characters = 64, .lines = 2}),
      lblStatus(*this, "lblStatus", "", {.characters = 64, .lines = 4}),
      ProgressBar(*this, "ProgressBar", {.characters = 64}),
      cmdResume(
          *this, "cmdResume", "W&eiter", forms::ButtonRole::Plain, [this] { cmdResume_Click(); }, false),
      cmdOK(
          *this, "cmdOK", "&OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }, false),
      cmdCancel(*this, "cmdCancel", "A&bbrechen", forms::ButtonRole::Plain, [this] { cmdCancel_Click(); }) {}

forms::Box StatusForm::Layout() {
  return forms::Column({lblInfo, lblStatus, ProgressBar, forms::Buttons({cmdResume, cmdOK, cmdCancel})});
}

void StatusForm::Form_Load() {
  Skip([&] { cmdOK.SetEnabled(false); });
}

void StatusForm::Form_Unload() {
  Skip([&] { cmdOK.SetEnabled(false); });
}

void StatusForm::Info(const std::string& strInfo) {
  forms::Pump();
  Skip([&] { lblInfo.SetCaption(strInfo); });
}

void StatusForm::Status(const std::string& strStatus) {
  forms::Pump();
  Skip([&] { lblStatus.SetCaption(strStatus); });
}

void StatusForm::Progress(std::int16_t intProg) {
  Skip([&] { ProgressBar.SetValue(intProg); });
}

void StatusForm::ProcessError() {
  Skip([&] { lblInfo.SetCaption(Text(TextId::RunFailed)); });
  Skip([&] { lblStatus.SetCaption(run.LastError); });
  LogWrite(run.LastError);
  Skip([&] { cmdResume.SetEnabled(true); });
}

void StatusForm::ProcessComplete() {
  const std::string outcome = Text(run.StopRun ? TextId::RunStopped : TextId::RunCompleted);
  Skip([&] { lblInfo.SetCaption(outcome); });
  LogWrite(outcome);
  Skip([&] { lblStatus.SetCaption(""); });
  Skip([&] { cmdOK.SetEnabled(true); });
  Skip([&] { cmdOK.SetFocus(); });
  LogWrite(kStarLine);
}

void StatusForm::cmdCancel_Click() {
  LogWrite(Text(TextId::Cancelled));
  frmMain.SwitchTray(0);
  run.StopRun = true;
  Unload();
}

void StatusForm::cmdOK_Click() { Unload(); }

void StatusForm::cmdResume_Click() {
  Skip([&] { lblInfo.SetCaption(""); });
  Skip([&] { lblStatus.SetCaption(""); });
  // The text holds no "%1", so a resume reads like a cancel in the log; what follows tells the two apart.
  LogWrite(Text(TextId::Cancelled, std::to_string(run.CurrentLine)));
  Skip([&] { cmdResume.SetEnabled(false); });
  run.RunFailed = false;
  if (run.DialogHidden) Hide();
  Resume();
}

}  // namespace basMain
