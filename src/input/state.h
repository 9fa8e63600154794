// What the verbs of this room leave behind.
#pragma once

#include <cstdint>
#include <vector>

namespace basMain {

struct InputRoomState {
  // Filled by FindChildrenOfClass; the last slot is always a spare one.
  std::vector<std::int32_t> ClassWindows = {0};
};

extern InputRoomState inputRoom;

}  // namespace basMain
