// Memory that is set aside while there is enough. When there is none left, the statement that asked for it fails, and
// what was set aside is there to tell of the fault, to show dialogs and the menu, and to end the run.
#pragma once

namespace runtime {

// Sets the memory aside unless that is done already. The first time that memory runs out it is given back, and stays so
// until the next call. Faults: OutOfMemory.
void HoldMemoryReserve();

}  // namespace runtime
