#include "engine/state.h"

namespace basMain {

RunState run;

}  // namespace basMain
