#include "input/state.h"

namespace basMain {

InputRoomState inputRoom;

}  // namespace basMain
