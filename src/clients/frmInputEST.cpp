#include "clients/frmInputEST.h"

#include "clients/state.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "platform/dialogs.h"
#include "resources/texts.h"
#include "runtime/conversions.h"

namespace basMain {

InputESTForm frmInputEST;

InputESTForm::InputESTForm()
    : InputDialog("frmInputEST"),
      optAll(*this, "optAll", "alle Mandanten"),
      optCurrent(*this, "optCurrent", "zuletzt bearbeiteter Mandant"),
      optFromTo(*this, "optFromTo", "Mandantennummer"),
      Label1(*this, "Label1", "von"),
      txtFrom(*this, "txtFrom", {.characters = 12}),
      Label2(*this, "Label2", "bis"),
      txtTo(*this, "txtTo", {.characters = 12}) {}

forms::Box InputESTForm::Layout() {
  return forms::Column({forms::Row({imgQuest, lblInfo}), optAll, optCurrent, optFromTo,
                        forms::Row({Label1, txtFrom, Label2, txtTo}), forms::Buttons({cmdOK, cmdCancel})});
}

void InputESTForm::InfoCaption(const std::string& text) { lblInfo.SetCaption(text); }

// From and to are not compared with each other.
bool InputESTForm::TakeRange() {
  const std::string from = txtFrom.Text();
  const std::string to = txtTo.Text();
  if (!runtime::IsNumeric(from) || !runtime::IsNumeric(to)) {
    Refuse(resources::Text(resources::TextId::ClientNotNumeric), platform::MB_ICONSTOP);
    return false;
  }
  from_ = from;
  to_ = to;
  return true;
}

// Without an option the dialog closes unanswered: the state stays 0, and no client list is walked.
void InputESTForm::cmdOK_Click() {
  std::int32_t state = InputState();
  if (optAll.Value()) state = kAll;
  if (optCurrent.Value()) state = kCurrent;
  if (optFromTo.Value()) {
    if (!TakeRange()) return;
    state = kFromTo;
  }
  Answer(state);
  Unload();
}

bool ShowInputDlg(const std::string& text) {
  return Standard("ShowInputDlg", [&] {
    AskUser(frmInputEST, [&] {
      frmInputEST.InfoCaption(text);
      return true;
    });
    clients.InputState = frmInputEST.InputState();
    if (clients.InputState == InputESTForm::kFromTo) {
      clients.MandantNrFrom = frmInputEST.MandantNrFrom();
      clients.MandantNrTo = frmInputEST.MandantNrTo();
    }
    LogWrite("ShowInputDlg (" + std::to_string(clients.InputState) + ")");
    return true;
  });
}

}  // namespace basMain
