#include "frame/state.h"

namespace basMain {

FrameState frame;

}  // namespace basMain
