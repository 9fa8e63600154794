// Memory of the simulated processes: blocks that are allocated in one of them, and views of a mapping. On the 9x family
// a view lies at the same address in every process, on the NT family in the program's own alone. A process lives as
// long as it has a window; its blocks go with it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform::simulated {

// What has been allocated and not been given back: blocks of living processes, handles of processes and mappings,
// views.
std::size_t BlocksLeft();
std::size_t HandlesLeft();
std::size_t ViewsLeft();

// A process reads or writes its own memory, all bytes or none; false where no memory is.
bool ReadMemory(std::uint32_t process, std::int32_t address, void* target, std::size_t size);
bool WriteMemory(std::uint32_t process, std::int32_t address, const void* source, std::size_t size);

// Size in bytes that the block or the view at this address was asked for; 0 for none.
std::size_t SizeAskedFor(std::int32_t address);

}  // namespace platform::simulated
