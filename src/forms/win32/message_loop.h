// Handling the messages of the program's own windows.
#pragma once

#include <cstdint>
#include <functional>

namespace forms::win32 {

// Runs a handler inside a window procedure. No exception can pass through the system's own frames, so one that leaves
// the handler waits here until the program handles messages again (RethrowRaised).
void Raise(const std::function<void()>& handler);

// Throws what a handler has left since the last call.
void RethrowRaised();

// From now on keys that the program itself has sent reach none of its windows, nor the system's menus and boxes in it.
void WatchForOwnKeys();

// Gives the program's other windows their input back if this one is modal. Called before it vanishes: while the others
// are still disabled, the system would activate a window of another program.
void EndModal(std::int32_t hWnd);

}  // namespace forms::win32
