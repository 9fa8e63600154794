#include "platform/input.h"

#include "platform/simulated/state.h"

namespace platform {

using namespace simulated;

namespace simulated {

std::vector<std::string>& InputLog() { return TheDesktop().inputLog; }

}  // namespace simulated

bool SetCursorPos(std::int32_t X, std::int32_t Y) {
  InputLog().push_back("SetCursorPos " + std::to_string(X) + " " + std::to_string(Y));
  return !Fails("SetCursorPos");
}

void mouse_event(std::uint32_t dwFlags, std::int32_t dx, std::int32_t dy, std::uint32_t dwData,
                 std::uint32_t dwExtraInfo) {
  InputLog().push_back("mouse_event " + std::to_string(dwFlags) + " " + std::to_string(dx) + " " + std::to_string(dy) +
                       " " + std::to_string(dwData) + " " + std::to_string(dwExtraInfo));
}

bool BlockInput(bool fBlockIt) {
  InputLog().push_back(fBlockIt ? "BlockInput 1" : "BlockInput 0");
  return !Fails("BlockInput");
}

}  // namespace platform
