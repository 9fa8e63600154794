#include "frame/frmLog.h"

#include <memory>

#include "environment/file_system.h"
#include "frame/log.h"
#include "runtime/fault.h"

namespace basMain {

LogForm frmLog;

LogForm::LogForm()
    : Form("frmLog", "TARVEN Datenexport - Protokoll", {.resizable = true}),
      txtProtokoll(*this, "txtProtokoll", {.characters = 100, .lines = 25, .grows = true}) {}

// The text box grows with the form, whose layout is arranged anew at each change of its size.
forms::Box LogForm::Layout() { return txtProtokoll; }

void LogForm::Form_Load() {
  runtime::Skip([&] {
    const auto stream = FileSystem().OpenTextFile(LogFile(), platform::FileMode::Read);
    txtProtokoll.SetText(stream->ReadAll());
  });
}

}  // namespace basMain
