// The system's own headers, for the sources of win32/ alone.
//
// Included last in each source: its macros bear the names of our constants, so everything of ours must be declared
// before. Our functions and records have the names of the system's; inside namespace platform the system's own are
// written with a leading ::.
#pragma once

#include <cstdint>

// The build sets the oldest Windows that is served; what one of the families lacks is bound late (late_binding.h).
#include <windows.h>
// Behind windows.h, on which they stand.
#include <commdlg.h>
#include <shellapi.h>

namespace platform {

// Handles are numbers outside of win32/.
template <class Handle>
Handle HandleOf(std::int32_t number) {
  return reinterpret_cast<Handle>(static_cast<std::intptr_t>(number));
}

template <class Handle>
std::int32_t NumberOf(Handle handle) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(handle));
}

// The highest bit tells.
inline bool IsFamily9x() { return (::GetVersion() & 0x80000000) != 0; }

}  // namespace platform
