// The system's error codes as run-time faults.
#pragma once

#include <cstdint>

#include "runtime/fault.h"

namespace platform {

// The fault that stands for a code of the system; DeviceError for a code without an entry.
runtime::FaultNumber FaultOfCode(std::uint32_t code);

// Raises the fault of this thread's last error.
[[noreturn]] void RaiseLastError();

}  // namespace platform
