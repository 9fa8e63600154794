#include "automation/status_dialog_verbs.h"

#include "automation/window_search.h"
#include "engine/state.h"
#include "forms/form.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using runtime::Skip;

bool DisplayStatus(const std::string& text, const std::string& value) {
  const std::string shown = value.empty() ? text : runtime::Replace(text, "%1", value);
  forms::Pump();
  frmStatus.Status(shown);
  LogWrite(shown);
  return true;
}

bool HideDialog() {
  run.DialogHidden = true;
  Skip([] { frmStatus.Hide(); });
  return true;
}

bool ShowDialog() {
  run.DialogHidden = false;
  Skip([] { frmStatus.Show(); });
  return true;
}

bool IsActiveWindow(const std::string& title, const std::string& foreground) {
  if (runtime::ToUpper(foreground) != "TRUE") return runtime::Contains(GetWindowTitle(frame.MainWindow), title);
  HideDialog();
  Skip([] { platform::Sleep(1000); });
  std::string active;
  Skip([&] { active = GetWindowTitle(platform::GetForegroundWindow()); });
  ShowDialog();
  return runtime::Contains(active, title);
}

}  // namespace basMain
