// Getting keys into a window of another application: the input queues of the two are joined for the length of the keys,
// and the status dialog steps back meanwhile.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// Sends keys to whatever has the input focus, and waits for them (send_keys.h). "{SPACE}" as the whole string, in any
// letters, is one blank; the notation has no such name. A bad string sends nothing.
void PressKeys(const std::string& keys);

// The delivery sequence: the status dialog leaves the top-most band, the queue of the thread that owns hThreadWindow is
// joined with that of this program, hWindow comes to the front, hControl gets the focus (0: whatever hWindow gives it
// to), the keys are sent; then the queues are parted and the dialog comes back up. A step that fails is passed over, so
// the last two are always reached. Logs nothing.
void DeliverKeys(std::int32_t hThreadWindow, std::int32_t hWindow, std::int32_t hControl, const std::string& keys);

}  // namespace basMain
