// The verbs that move the focus.
#pragma once

#include <string>

namespace basMain {

// "SELECTALL": selects every row of a list, a direct child of the window or of the child `parentId` (the window's first
// child stands in for one that is missing), by the focus and the keys Ctrl+A. True when as many rows are selected as
// there are, and there are some. Logs text 1018 with their number, also for an empty list, whose LastError is then text
// 1020; without a list, or with rows left out, LastError is text 1019.
bool SelectAll(const std::string& listId, const std::string& window, const std::string& exact,
               const std::string& parentId);

// "SETFOCUSCTL": moves the focus within the foreground window to the first control of the class, text and id. Logs text
// 1032 with its handle, also the handle 0. False, without any text, when class and text are both empty.
bool SetFocusCtl(const std::string& cls, const std::string& text, const std::string& id);

// "SETFOCUS": brings a window to the front: MainWindow for the empty word, else the first whose title holds the word.
// Logs text 1033, also when there is none. Always true.
bool SetFocusWindow(const std::string& window);

}  // namespace basMain
