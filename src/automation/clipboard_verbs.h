// Emptying the clipboard, and waiting until the target has filled it.
#pragma once

namespace basMain {

// "CLEARCLIPBOARD": empties the clipboard and logs text 1031, also when another program holds it. Always true.
bool ClearClipboard();

// "WAITFORCLIPBOARD": waits until the clipboard holds text or the run is stopped; every 3 seconds it looks for a
// message box with the fragments of the last dialog verb and answers it. Logs text 1036 in either case. Always true.
bool WaitForClipboard();

}  // namespace basMain
