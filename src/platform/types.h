// What all groups of platform operations share.
//
// The platform is the operating system as the program sees it: plain functions by the system's own names and
// argument orders. Handles are signed 32-bit integers, 0 is none. Texts are bytes of the 8-bit code page. Two
// implementations exist, chosen at link time: win32/ forwards to the system, simulated/ is a desktop in memory.
// An operation that the running Windows family lacks raises Fault FunctionMissing when it is called.
#pragma once

#include <cstdint>

#if defined(_WIN32) && !defined(_WIN64)
#define PLATFORM_CALLBACK __stdcall
#else
#define PLATFORM_CALLBACK
#endif

namespace platform {

// Screen pixels; right and bottom lie outside.
struct Rect {
  std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};

}  // namespace platform
