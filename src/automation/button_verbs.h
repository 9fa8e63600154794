// The verbs that post a command to the target and do not wait for its work.
#pragma once

#include <string>

namespace basMain {

// "BUTTONCLICK": posts the button's command to its window and does not wait for the work. `cls` is "Button" by default;
// a button of any other class is named in the command by its handle as well. Logs text 1025 with handle and id; without
// a control LastError is text 1026. An id above 32767 is a fault.
bool ButtonClick(const std::string& id, const std::string& window, const std::string& exact, const std::string& text,
                 const std::string& cls);

// "MENUCLICK": posts the menu's command to the window or, where a class is given, to the control below it that has the
// menu's id or the class and `controlId`. The window "%MAINWINDOW%" is the target of the run, which is logged. Logs
// text 1016 with the menu id and the window; without a receiver LastError is text 1017.
bool MenuClick(const std::string& menuId, const std::string& window, const std::string& exact, const std::string& cls,
               const std::string& controlId);

}  // namespace basMain
