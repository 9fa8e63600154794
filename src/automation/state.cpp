#include "automation/state.h"

namespace basMain {

AutomationState automation;

void AutomationState::BeginRun(bool fresh) {
  DialogTitle.clear();
  DialogText.clear();
  if (!fresh) return;
  ListIndex = 0;
  ListCount = 0;
}

}  // namespace basMain
