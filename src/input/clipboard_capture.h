// The verbs that save a table from the clipboard as a file (clipboard_tables.h). Both work under the standard handler,
// log text 1035 and succeed without touching a file when there is no text on the clipboard. A file that is open when a
// fault comes stays open. Without a file name LastError is text 1034.
#pragma once

#include <string>

namespace basMain {

// "SAVECLIPBOARD": any table. The file itself takes the text first and is then replaced; where it was longer than the
// text, its end is taken for a part of the table.
bool SaveClipboard(const std::string& file);

// "SAVECLIPBOARDZVK": account statements, through a temporary file with ".tmp" behind the name. Account and bank code
// come from the caption of MainWindow, or of the window of statements, or from the user. They, the caption and the
// append mode are logged. "0" writes over the beginning of the file, whose end stays if it was longer; any other mode
// appends.
bool SaveClipboardZVK(const std::string& file, const std::string& appendMode);

}  // namespace basMain
