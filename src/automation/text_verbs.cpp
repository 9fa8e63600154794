#include "automation/text_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/state.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"

namespace basMain {

using resources::Text;
using resources::TextId;

bool SetText(const std::string& newText, const std::string& id, const std::string& window, const std::string& exact,
             const std::string& cls) {
  return Standard("SetText", [&] {
    const std::int32_t number = NumberOrZero(id);
    const ControlAddress address{window, exact, "", cls, id};
    const std::int32_t hWindow = FindAddressedWindow(address);
    const std::int32_t control = cls.empty() ? platform::GetDlgItem(hWindow, number) : FindDescendant(hWindow, address);
    return FillTextBox(control, newText);
  });
}

bool FillTextBox(std::int32_t hControl, const std::string& text) {
  std::int32_t answer = 0;
  if (hControl != 0) answer = platform::SendMessageA(hControl, platform::WM_SETTEXT, 0, text);
  if (answer != 1 && ReadControlText(hControl) != text)
    return Fail(Text(TextId::TextBoxNotFilled, std::to_string(answer)));
  LogWrite(Text(TextId::TextBoxFilled, text));
  return true;
}

bool GetText(const std::string& expected, const std::string& id, const std::string& window, const std::string& exact) {
  return Standard("GetText", [&] {
    const std::int32_t number = NumberOrZero(id);
    const std::int32_t control = platform::GetDlgItem(FindAddressedWindow({window, exact}), number);
    if (control == 0) return false;
    const std::string shown = ReadControlText(control);
    // The same words, "konnte nicht gelesen werden", are wanted for both outcomes.
    if (shown != expected) return Fail(Text(TextId::TextBoxRead, shown));
    LogWrite(Text(TextId::TextBoxRead, expected));
    return true;
  });
}

bool ReadText(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
              const std::string& frameId, const std::string& frameClass) {
  return Standard("ReadText", [&] {
    automation.LastReadText.clear();
    const std::int32_t control = FindControlInFrame(id, window, exact, cls, frameId, frameClass);
    if (control == 0) return Fail("ReadText konnte das Control nicht finden");
    automation.LastReadText = ReadControlText(control);
    LogWrite("ReadText: " + automation.LastReadText);
    return true;
  });
}

bool GetPathFromCtl(const std::string& id, const std::string& window, const std::string& exact,
                    const std::string& cls) {
  return Standard("GetPathFromCtl", [&] {
    const ControlAddress address{window, exact, "", cls, id};
    const std::int32_t control = FindDescendant(FindAddressedWindow(address), address);
    if (control == 0) return Fail("Pfad konnte nicht ermittelt werden.");
    automation.CtlPath = ReadControlText(control);
    LogWrite("GetPathFromCtl " + automation.CtlPath);
    return true;
  });
}

std::string GetCtlPath() { return automation.CtlPath; }

}  // namespace basMain
