#include "automation/check_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "frame/log.h"
#include "platform/class_names.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/conversions.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

std::int32_t CheckState(std::int32_t control) { return platform::SendMessageA(control, platform::BM_GETCHECK, 0, 0); }

// Asks the control whether it has come to the wanted state, and tells.
bool VerifyState(std::int32_t control, std::int32_t wanted) {
  const std::int32_t state = CheckState(control);
  if (state != wanted) return Fail(Text(TextId::OptionNotSet, std::to_string(state)));
  LogWrite(Text(TextId::OptionSet, std::to_string(state)));
  return true;
}

bool ClickOn(std::int32_t control) {
  platform::SendMessageA(control, platform::BM_CLICK, 0, 0);
  return VerifyState(control, 1);
}

bool Clear(std::int32_t control) {
  platform::SendMessageA(control, platform::BM_SETCHECK, 0, 0);
  return VerifyState(control, 0);
}

std::int32_t FindBoxByText(std::int32_t hWindow, const std::string& text, std::int32_t id) {
  for (const char* cls : {"Button", platform::kCheckBoxClass, platform::kOptionButtonClass})
    if (const std::int32_t box = SearchControl(hWindow, text, cls, id)) return box;
  return 0;
}

std::int32_t FindBox(std::int32_t hWindow, const std::string& frameOrText, std::int32_t id) {
  if (hWindow == 0 || frameOrText.empty()) return 0;
  return runtime::IsNumeric(frameOrText) ? platform::GetDlgItem(FindFrame(hWindow, runtime::ToLong(frameOrText)), id)
                                         : FindBoxByText(hWindow, frameOrText, id);
}

}  // namespace

bool SetOption(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
               const std::string& frameId, const std::string& frameClass) {
  return Standard("SetOption", [&] {
    const std::int32_t control = FindControlInFrame(id, window, exact, cls, frameId, frameClass);
    if (control == 0) return Fail("SetOption konnte das Control nicht finden");
    return ClickOn(control);
  });
}

bool GetCheck(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
              const std::string& frameId, const std::string& frameClass) {
  return Standard("GetCheck", [&] {
    const std::int32_t control = FindControlInFrame(id, window, exact, cls, frameId, frameClass);
    if (control == 0) {
      LogWrite("Optionsfeld konnte nicht gefunden werden.");
      return false;
    }
    const std::int32_t state = CheckState(control);
    if (state == 1) LogWrite("Optionsfeld ist ausgewählt.");
    else if (state == 0) LogWrite("Optionsfeld ist nicht ausgewählt.");
    else run.LastError = "Fehler: Optionsfeld Status unbekannt.";
    return state == 1;
  });
}

bool SetCheck(const std::string& value, const std::string& id, const std::string& window, const std::string& exact,
              const std::string& frameOrText) {
  return Standard("SetCheck", [&] {
    const std::int32_t number = NumberOrZero(id);
    const std::int32_t box = FindBox(FindAddressedWindow({window, exact}), frameOrText, number);
    if (box == 0) return Fail(Text(TextId::OptionNotFound));
    return value == "1" ? ClickOn(box) : Clear(box);
  });
}

}  // namespace basMain
