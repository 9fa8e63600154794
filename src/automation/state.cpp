#include "automation/state.h"

namespace basMain {

AutomationState automation;

}  // namespace basMain
