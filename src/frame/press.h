// What a press of the hot key sets going.
#pragma once

namespace basMain {

// Chooses the macro by the foreground window's caption, confirms client and year where the settings want it, and runs
// the macro. Returns when the run has ended or has failed. No fault stops it: each faulty statement is skipped. Logs
// the run header.
void Press();

}  // namespace basMain
