// Message boxes of the target: recognised by a fragment of the title (with case) and one of a "STATIC" text (without
// case), answered by "OK" or, without such a button, "Ja".
//
// The verb's fragments are kept as DialogTitle and DialogText. ChildWindowList is emptied once for each verb and grows
// with each window whose title fits, so that texts of earlier windows are looked at again.
#pragma once

#include <string>

namespace basMain {

// "CONFIRMDIALOG": looks once. Logs "ConfirmDialog: " and the fragments, and the answer. True when a box was answered.
bool ConfirmDialog(const std::string& title, const std::string& text);

// "WAITFORDIALOG": looks every second until it finds a box; a stop does not end the wait. Logs "WaitForDialog: " and
// the fragments, and the answer. Always true.
bool WaitForDialog(const std::string& title, const std::string& text);

}  // namespace basMain
