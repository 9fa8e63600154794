// The keys that the program sends: the mark by which they are told from those that a user presses, and where they go
// when one of its own windows, which take none, has come to the front.
#pragma once

#include <cstdint>

namespace platform {

// The extra info of each key that the program sends, and of the messages that come of it.
constexpr std::uint32_t kOwnKey = 0x514D4B59;

// Notes that the program has brought a window to the front.
void NoteFront(std::int32_t hWnd);

}  // namespace platform
