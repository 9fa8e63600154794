// The sender of key strings.
#pragma once

#include <string>

namespace basAPI {

// Sends the keys of a string (key_notation.h) to whatever has the input focus, and waits until they have been processed
// as far as that can be known (platform::WaitForKeys). The characters come out as written: keys that the user holds are
// let go first, and Caps Lock is off meanwhile. Faults: InvalidCall for a bad string; then no key is sent.
void SendKeys(const std::string& keys);

}  // namespace basAPI
