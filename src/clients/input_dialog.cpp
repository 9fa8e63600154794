#include "clients/input_dialog.h"

#include "engine/state.h"
#include "environment/window_order.h"
#include "platform/dialogs.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {

InputDialog::InputDialog(const std::string& formName, forms::FormStyle formStyle)
    : Form(formName, resources::kProgramTitle, formStyle),
      imgQuest(*this, "imgQuest"),
      lblInfo(*this, "lblInfo", "", {.characters = 48, .lines = 0}),
      cmdOK(*this, "cmdOK", "OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
      cmdCancel(*this, "cmdCancel", "Abbrechen", forms::ButtonRole::Cancel, [this] { cmdCancel_Click(); }) {}

void InputDialog::Form_Load() {
  state_ = 0;
  answered_ = false;
  runtime::Skip([&] { imgQuest.SetIcon("ICOQST"); });
}

// Closing the dialog by its system menu is a cancel: a run must not go on as if it had been answered.
void InputDialog::Form_QueryUnload() {
  if (!answered_) state_ = kCancelled;
}

void InputDialog::Answer(std::int32_t state) {
  state_ = state;
  answered_ = true;
}

void InputDialog::cmdCancel_Click() {
  Answer(kCancelled);
  Unload();
}

void InputDialog::Refuse(const std::string& message, std::uint32_t icon) {
  platform::MessageBoxA(hWnd(), message, resources::kProgramTitle, icon);
}

bool AskUser(InputDialog& dialog, const std::function<bool()>& fill) {
  if (dialog.Visible()) throw runtime::Fault(runtime::FaultNumber::FormShown);
  dialog.Unload();
  basAPI::SetTopMost(dialog.hWnd());
  forms::Pump();
  try {
    if (!fill()) {
      dialog.Unload();
      return false;
    }
    dialog.ShowModal();
  } catch (...) {
    runtime::CaughtFault();
    dialog.Unload();
    throw;
  }
  if (dialog.InputState() == InputDialog::kCancelled) run.StopRun = true;
  return true;
}

}  // namespace basMain
