// Where state begins anew. Each room knows what is in its own; here it is told when.
#pragma once

#include <cstdint>

namespace basMain {

// All state of a run, as a run from `startLine` finds it: 0 is a fresh run, anything else a resume, which keeps the
// place in loops, lists and tables.
void BeginRun(std::int32_t startLine);

// All state of the program, as it is before the main form is loaded: no macro, no file open. Forms are not touched.
void ResetProgram();

}  // namespace basMain
