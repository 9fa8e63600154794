#include "automation/clipboard_verbs.h"

#include <string>

#include "automation/message_boxes.h"
#include "automation/state.h"
#include "engine/state.h"
#include "forms/form.h"
#include "frame/frmMain.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/clipboard.h"
#include "platform/system.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;
using runtime::Skip;

// The fragments are handed over as copies: a run that starts inside the pass clears them.
void AnswerLastMessageBox() {
  const std::string title = automation.DialogTitle;
  const std::string text = automation.DialogText;
  ConfirmDialog(title, text);
}

}  // namespace

bool ClearClipboard() {
  Skip([] { platform::ClearClipboard(); });
  LogWrite(Text(TextId::ClipboardCleared));
  return true;
}

bool WaitForClipboard() {
  constexpr int kRoundsBetweenBoxes = 30;
  Skip([] { frmMain.Timer1.SetInterval(1000); });
  frame.ClipboardFilled = false;
  int rounds = 0;
  do {
    if (rounds == kRoundsBetweenBoxes) {
      AnswerLastMessageBox();
      rounds = 0;
    }
    ++rounds;
    Skip([] { forms::Pump(); });
    Skip([] { platform::Sleep(100); });
  } while (!frame.ClipboardFilled && !run.StopRun);
  Skip([] { frmMain.Timer1.SetInterval(0); });
  frame.ClipboardFilled = false;
  LogWrite(Text(TextId::ClipboardFilled));
  return true;
}

}  // namespace basMain
