// The verbs that send keys. Each pumps once before and sleeps 100 ms behind the keys, so that the target can act, and
// logs text 1041 with the keys. A key string that cannot be sent is passed over in silence.
#pragma once

#include <string>

namespace basMain {

// "SENDKEY": to whatever has the input focus; no window is looked for or activated. Always true.
bool SendKey(const std::string& keys);

// "SENDKEY2": to a control that SearchWindow and SearchControl find by id, class and text. False without one; LastError
// is what the search left.
bool SendKeyToControl(const std::string& keys, const std::string& id, const std::string& window, const std::string& cls,
                      const std::string& text);

// "SENDKEY2WINDOW": to the first window whose title holds `window`, and whatever that gives the focus to. Always true,
// also without the window.
bool SendKeyToWindow(const std::string& keys, const std::string& window);

// "SELECTALL": selects every row of a list, a direct child of the window or of the child `parentId` (the window's first
// child stands in for one that is missing), by the focus and the keys Ctrl+A. True when as many rows are selected as
// there are, and there are some. Logs text 1018 with their number, also for an empty list, whose LastError is then text
// 1020; without a list, or with rows left out, LastError is text 1019.
bool SelectAll(const std::string& listId, const std::string& window, const std::string& exact,
               const std::string& parentId);

}  // namespace basMain
