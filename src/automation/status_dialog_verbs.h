// The verbs on the status dialog, and the one that must have it out of the way.
#pragma once

#include <string>

namespace basMain {

// "DISPLAYSTATUS": shows the text, with every "%1" replaced by the value unless that is empty, in the status dialog.
// Logs it. Always true.
bool DisplayStatus(const std::string& text, const std::string& value);

// "HIDEDIALOG", "SHOWDIALOG": keep DialogHidden, by which the engine shows the dialog again after a failure. Always
// true.
bool HideDialog();
bool ShowDialog();

// "IF ACTIVEWINDOW": whether the title of MainWindow holds the fragment, with case. With `foreground` "TRUE", in any
// case, it is the window in front that counts, after a second with the status dialog hidden; the dialog is shown
// afterwards, whether it was before or not.
bool IsActiveWindow(const std::string& title, const std::string& foreground);

}  // namespace basMain
