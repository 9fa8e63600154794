#include "clients/frmInputbox.h"

#include "clients/state.h"
#include "environment/discovery.h"
#include "frame/log.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

InputboxForm frmInputbox;

InputboxForm::InputboxForm()
    : Form("frmInputbox", resources::kProgramTitle, {.topMost = true}),
      imgQuest(*this, "imgQuest"),
      lblInfo(*this, "lblInfo", "", {.characters = 48, .lines = 3}),
      Label1(*this, "Label1", "Mandant:"),
      txtMandant(*this, "txtMandant", {.characters = 30, .grows = true}),
      Label2(*this, "Label2", "Wirtschaftsjahr:"),
      txtJahr(*this, "txtJahr", {.characters = 30, .grows = true}),
      cmdOK(*this, "cmdOK", "OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
      cmdCancel(*this, "cmdCancel", "Abbrechen", forms::ButtonRole::Cancel, [this] { cmdCancel_Click(); }) {}

forms::Box InputboxForm::Layout() {
  return forms::Column({forms::Row({imgQuest, lblInfo}), forms::Grid(2, {Label1, txtMandant, Label2, txtJahr}),
                        forms::Buttons({cmdOK, cmdCancel})});
}

void InputboxForm::Form_Load() {
  result_ = false;  // closing the dialog by its system menu is a cancel
  Skip([&] { imgQuest.SetIcon("ICOQST"); });
  clients.ContextPath.clear();
  const auto pieces = runtime::Split(GetTitlePath(), '\\');
  if (pieces.size() < 3) {
    Skip([&] { lblInfo.SetCaption(Text(TextId::ClientUnknown)); });
    return;
  }
  Skip([&] { lblInfo.SetCaption(runtime::Replace(Text(TextId::ConfirmClient, pieces[1]), "%2", pieces[2])); });
  Skip([&] { txtMandant.SetText(pieces[1]); });
  Skip([&] { txtJahr.SetText(pieces[2]); });
}

void InputboxForm::cmdOK_Click() {
  result_ = true;
  mandant_ = txtMandant.Text();
  jahr_ = txtJahr.Text();
  clients.ContextPath = "\\" + mandant_ + "\\" + jahr_;
  LogWrite(Text(TextId::Client) + mandant_);
  LogWrite(Text(TextId::BusinessYear) + jahr_);
  LogWrite("");
  Unload();
}

void InputboxForm::cmdCancel_Click() {
  result_ = false;
  Unload();
}

}  // namespace basMain
