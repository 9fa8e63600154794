// Combo boxes of the target, worked by messages. A selection by message raises no event in the application, so its form
// is told by two notifications, as a user's choice would send them.
#pragma once

#include <string>

namespace basMain {

// "SELECTCOMBO" and its three relatives: selects the entry at the index `value` (0 for a text that is no number) or,
// not in index mode, one that begins with `value`; of two such entries the first of the list is the last to be tried.
// `cls` is "ComboBox" by default. Logs the handles of the control and its parent, found or not, then text 1021 and
// " Sel: " and `value`; otherwise LastError is text 1022 with the same words. Returns when the application's form has
// handled both notifications.
bool SelectCombo(bool indexMode, const std::string& value, const std::string& id, const std::string& window,
                 const std::string& exact, const std::string& text, const std::string& cls);

// "READCOMBO": all entries, each followed by ";", into ComboItems, which is empty without a combo box. The frame id
// counts for the search for the window only. Logs text 1021 and the first 50 characters; otherwise LastError is text
// 1022.
bool ReadCombo(const std::string& id, const std::string& cls, const std::string& window, const std::string& exact,
               const std::string& text, const std::string& frameId);

// "READCOMBOTEXT": the selected entry into LastReadText, which keeps what it held when that fails. Logs text 1059 and
// the entry; without a combo box LastError is text 1060. Faults, which become LastError: a combo box without a
// selection.
bool ReadComboText(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
                   const std::string& text);

}  // namespace basMain
