// The verbs that move the focus.
#pragma once

#include <string>

namespace basMain {

// "SETFOCUSCTL": moves the focus within the foreground window to the first control of the class, text and id. Logs text
// 1032 with its handle, also the handle 0. False, without any text, when class and text are both empty.
bool SetFocusCtl(const std::string& cls, const std::string& text, const std::string& id);

// "SETFOCUS": brings a window to the front: MainWindow for the empty word, else the first whose title holds the word.
// Logs text 1033, also when there is none. Always true.
bool SetFocusWindow(const std::string& window);

}  // namespace basMain
