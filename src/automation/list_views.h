// Selecting rows and reading cells in a list view of the target. The messages carry a record, which is placed in memory
// that the list's process can reach: on the NT family in a block inside that process, on the 9x family in a mapping
// that all processes see. Which family it is is asked at each use. The blocks live within one verb; a fault leaves them
// as they are.
//
// Faults of SelectList, ReadListItem, GetListItemText and SetFolderPath go to LastError under their names.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/text.h"

namespace basMain {

// "SELECTLIST": selects and focuses row ListIndex, or the row that the user has selected last when InputState is 2, and
// leaves the state of the others. ListIndex then grows by one, ListCount becomes the count of rows. Logs "SelectList "
// and the new ListIndex. False without a text for an empty list; without a control LastError is text 1019 and the
// handle of the window.
bool SelectList(const std::string& id, const std::string& window, const std::string& exact, const std::string& text);

// "READLISTITEM": true when the first column of some row is the value, whole and with its case. Logs text 1053;
// otherwise LastError is text 1052. False without a text for an empty list. The NT family sees the first 40 characters
// of a cell; the 9x family the first 80, and logs each. A list of more than 32768 rows is a fault.
bool ReadListItem(const std::string& value, const std::string& id, const std::string& window, const std::string& exact);

// Text of the row that the last "SELECTLIST" selected, in this column (0-based; on the 9x family always the first).
// The class is "SysListView32" by default. Empty for an empty list and after a fault; "<unbekannt>" for an empty text
// and without a control, where LastError says so. The NT family logs it.
std::string GetListItemText(std::int32_t column, const std::string& id, const std::string& window,
                            const std::string& exact, const std::string& cls);

// "GETANLLIST": logs GetListItemText. Always true; a column that is no number logs nothing.
bool GetAnlList(const std::string& column, const std::string& id, const std::string& window, const std::string& cls);

// "SETFOLDERPATH": logs the path and lets the folder browser dialog choose it. Yields the text of true, also without a
// window; the empty text after a fault.
std::string SetFolderPath(const std::string& window, const std::string& exact, const std::string& path);

// What the list's texts are cut with.
inline constexpr auto& StripNull = runtime::TrimAtNul;

}  // namespace basMain
