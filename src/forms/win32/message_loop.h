// Handling the messages of the program's own windows.
#pragma once

#include <cstdint>
#include <utility>

namespace forms::win32 {

// Keeps the exception that is being handled, unless one waits already.
void KeepRaised();

// Runs a handler inside a window procedure. No exception can pass through the system's own frames, so one that leaves
// the handler waits here until the program handles messages again (RethrowRaised).
template <class Handler>
void Raise(Handler&& handler) {
  try {
    std::forward<Handler>(handler)();
  } catch (...) {
    KeepRaised();
  }
}

// Throws what a handler has left since the last call.
void RethrowRaised();

// From now on keys that the program itself has sent reach none of its windows, nor the system's menus and boxes in it.
void WatchForOwnKeys();

// Gives the program's other windows their input back if this one is modal. Called before it vanishes: while the others
// are still disabled, the system would activate a window of another program.
void EndModal(std::int32_t hWnd);

}  // namespace forms::win32
