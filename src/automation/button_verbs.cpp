#include "automation/button_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "resources/texts.h"
#include "runtime/conversions.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

// The window of "MENUCLICK". Only this verb knows the word, and only in capitals.
std::int32_t MenuWindow(const ControlAddress& address) {
  if (address.window != "%MAINWINDOW%") return FindAddressedWindow(address);
  LogWrite("MainWindow: " + std::to_string(frame.MainWindow));
  return frame.MainWindow;
}

}  // namespace

bool ButtonClick(const std::string& id, const std::string& window, const std::string& exact, const std::string& text,
                 const std::string& cls) {
  return Standard("ButtonClick", [&] {
    const std::int32_t number = NumberOrZero(id);
    const ControlAddress address{window, exact, text, cls.empty() ? "Button" : cls, std::to_string(number)};
    const std::int32_t hWindow = FindAddressedWindow(address);
    const std::int32_t control = FindControl(hWindow, number, address);
    if (control == 0) return Fail(Text(TextId::ButtonNotPressed));
    const std::int16_t command = runtime::ToInteger(static_cast<double>(number));
    if (address.cls == "Button") platform::PostMessageA(hWindow, platform::WM_COMMAND, command, 0);
    else platform::PostMessageA(hWindow, platform::WM_COMMAND, MakeLong(command, 0), control);
    LogWrite(Text(TextId::ButtonPressed, std::to_string(control) + " " + std::to_string(number)));
    return true;
  });
}

bool MenuClick(const std::string& menuId, const std::string& window, const std::string& exact, const std::string& cls,
               const std::string& controlId) {
  return Standard("MenuClick", [&] {
    const std::int32_t menu = NumberOrZero(menuId);
    const ControlAddress address{window, exact, "", cls, std::to_string(NumberOrZero(controlId))};
    const std::int32_t hWindow = MenuWindow(address);
    const std::int32_t receiver = cls.empty() ? hWindow : FindControl(hWindow, menu, address);
    if (receiver == 0) return Fail(Text(TextId::MenuNotFound));
    platform::PostMessageA(receiver, platform::WM_COMMAND, menu, 0);
    LogWrite(Text(TextId::MenuChosen, std::to_string(menu) + " " + std::to_string(hWindow)));
    return true;
  });
}

}  // namespace basMain
