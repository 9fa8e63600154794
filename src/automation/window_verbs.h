// The verbs on whole windows: waiting for one, maximizing the target, closing one.
#pragma once

#include <string>

namespace basMain {

// "WAITFORWINDOW": searches, with a pause of 500 ms after each search, until the window is there or the run is stopped.
// Logs text 1038 in either case. Always true, but for a fault.
bool WaitForWindow(const std::string& window, const std::string& exact, const std::string& text, const std::string& cls,
                   const std::string& id);

// "MAXWINDOW": maximizes MainWindow and logs text 1044. Always true.
bool MaximizeWindow();

// "CLOSEWINDOW": sends the window, wanted by its whole title where exact is "1", the message to close, to window 0 too
// when there is none. Logs text 1047 when the answer is 0; any other answer is a failure with text 1048.
bool CloseWindow(const std::string& window, const std::string& exact);

}  // namespace basMain
