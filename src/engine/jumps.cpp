#include "engine/jumps.h"

#include "engine/line_form.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "runtime/text.h"

namespace basMain {

bool GoToLine(const std::string& name) {
  return Standard("GoToLine", [&] {
    const std::string key = runtime::ToUpper("MARK=" + name);
    const auto mark = run.Marks.find(MarkKey(key));
    if (mark == run.Marks.end()) return Fail("Sprungmarke (" + name + ") konnte nicht gefunden werden.");
    // A mark on the first line is found, but index 0 means that no jump is pending, so the run goes on behind the
    // "GOTO".
    run.GotoLine = mark->second;
    LogWrite("Sprungmarke (" + key + ") gefunden: " + std::to_string(mark->second));
    return true;
  });
}

}  // namespace basMain
