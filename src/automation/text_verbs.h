// The verbs that fill, compare and read texts of controls by window message.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// "SETTEXT": fills the control that it finds, see FillTextBox.
bool SetText(const std::string& newText, const std::string& id, const std::string& window, const std::string& exact,
             const std::string& cls);

// WM_SETTEXT; succeeds when the control takes the text or shows it all the same. Logs text 1023 with the text;
// otherwise LastError is text 1024 with the control's answer. No control (0) answers 0 and shows the empty text, so an
// empty text succeeds there.
bool FillTextBox(std::int32_t hControl, const std::string& text);

// "GETTEXT": true when the direct child with the id shows exactly the expected text. Text 1051 goes to the log with the
// text when it does, and to LastError with the text that was read when it doesn't; without a control nothing is
// written.
bool GetText(const std::string& expected, const std::string& id, const std::string& window, const std::string& exact);

// "READTEXT": reads the control's text, also that of a combo box, into LastReadText, which is empty when that fails.
// Logs "ReadText: " and the text; without a control LastError says so.
bool ReadText(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls,
              const std::string& frameId, const std::string& frameClass);

// "GETPATHFROMCTL": reads the text of the first control of the class and id into CtlPath. Logs "GetPathFromCtl " and
// the text; without a control LastError says so.
bool GetPathFromCtl(const std::string& id, const std::string& window, const std::string& exact, const std::string& cls);

// The text that "GETPATHFROMCTL" has read last.
std::string GetCtlPath();

}  // namespace basMain
