// The mark by which a key of the program's own is told from one that a user presses.
#pragma once

#include <cstdint>

namespace platform {

// The extra info of each key that the program sends, and of the messages that come of it.
constexpr std::uint32_t kOwnKey = 0x514D4B59;

}  // namespace platform
