// Memory that another process can reach, in the two ways of the two Windows families. No
// operation handles anything: a failed allocation gives address 0, and the callers go on with it.
#pragma once

#include <cstdint>

namespace SharedMemory {

// 9x family: a cleared block that every process sees at the address that comes back. Size in bytes.
std::int32_t AllocateShared(std::int32_t size, std::int32_t& hMapping);
void FreeShared(std::int32_t hMapping, std::int32_t address);

// NT family: a cleared block inside the process. Size in bytes. Faults: FunctionMissing on the 9x family.
std::int32_t AllocateForeign(std::uint32_t processId, std::int32_t size, std::int32_t& hProcess);
void FreeForeign(std::int32_t hProcess, std::int32_t address, std::int32_t size);

}  // namespace SharedMemory
