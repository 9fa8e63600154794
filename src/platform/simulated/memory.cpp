#include "platform/simulated/memory.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "platform/process_memory.h"
#include "platform/simulated/state.h"
#include "runtime/fault.h"

namespace platform {
namespace simulated {
namespace {

constexpr std::size_t kPage = 4096;
constexpr std::int32_t kGranularity = 0x10000;

bool IsNT() { return TheDesktop().platformId == VER_PLATFORM_WIN32_NT; }

bool Lives(std::uint32_t process) {
  return process == kOwnProcess ||
         std::ranges::any_of(TheDesktop().windows, [&](const auto& w) { return w.second.process == process; });
}

// The system gives whole pages.
Bytes Pages(std::size_t size) {
  return std::make_shared<std::vector<unsigned char>>((size + kPage - 1) / kPage * kPage);
}

bool Reaches(std::uint32_t process, const MemoryRegion& region) {
  if (!Lives(process)) return false;
  if (region.isView) return process == kOwnProcess || !IsNT();
  return process == region.process;
}

// The bytes at an address of a process, or null.
unsigned char* BytesAt(std::uint32_t process, std::int32_t address, std::size_t size) {
  for (const MemoryRegion& region : TheDesktop().memory) {
    if (!Reaches(process, region)) continue;
    const std::int64_t offset = std::int64_t{address} - region.address;
    const auto length = static_cast<std::int64_t>(region.bytes->size());
    if (offset >= 0 && offset + static_cast<std::int64_t>(size) <= length) return region.bytes->data() + offset;
  }
  return nullptr;
}

std::int32_t AddRegion(MemoryRegion region) {
  Desktop& desktop = TheDesktop();
  // The 9x family has its views in the upper half of the address space.
  std::int32_t& next = region.isView && !IsNT() ? desktop.nextSharedAddress : desktop.nextAddress;
  region.address = next;
  next += static_cast<std::int32_t>((region.bytes->size() + kGranularity - 1) / kGranularity) * kGranularity;
  desktop.memory.push_back(region);
  return region.address;
}

std::int32_t AddHandle(MemoryHandle handle) {
  Desktop& desktop = TheDesktop();
  const std::int32_t number = desktop.nextMemoryHandle;
  desktop.nextMemoryHandle += 4;
  desktop.memoryHandles.emplace(number, std::move(handle));
  return number;
}

const MemoryHandle* FindHandle(std::int32_t number) {
  const auto found = TheDesktop().memoryHandles.find(number);
  return found == TheDesktop().memoryHandles.end() ? nullptr : &found->second;
}

// The process behind a handle that was opened for this access, while it lives.
std::optional<std::uint32_t> ProcessOf(std::int32_t hProcess, std::uint32_t access) {
  const MemoryHandle* handle = FindHandle(hProcess);
  if (handle == nullptr || handle->mapping != nullptr || (handle->access & access) != access || !Lives(handle->process))
    return std::nullopt;
  return handle->process;
}

void NeedNT() {
  if (!IsNT()) throw runtime::Fault(runtime::FaultNumber::FunctionMissing);
}

std::size_t CountRegions(bool views) {
  return static_cast<std::size_t>(std::ranges::count_if(TheDesktop().memory, [&](const MemoryRegion& region) {
    return region.isView == views && (views || Lives(region.process));
  }));
}

}  // namespace

std::size_t BlocksLeft() { return CountRegions(false); }
std::size_t ViewsLeft() { return CountRegions(true); }
std::size_t HandlesLeft() { return TheDesktop().memoryHandles.size(); }

bool ReadMemory(std::uint32_t process, std::int32_t address, void* target, std::size_t size) {
  const unsigned char* bytes = BytesAt(process, address, size);
  if (bytes == nullptr) return false;
  std::copy_n(bytes, size, static_cast<unsigned char*>(target));
  return true;
}

bool WriteMemory(std::uint32_t process, std::int32_t address, const void* source, std::size_t size) {
  unsigned char* bytes = BytesAt(process, address, size);
  if (bytes == nullptr) return false;
  std::copy_n(static_cast<const unsigned char*>(source), size, bytes);
  return true;
}

std::size_t SizeAskedFor(std::int32_t address) {
  const auto& memory = TheDesktop().memory;
  const auto found = std::ranges::find(memory, address, &MemoryRegion::address);
  return found == memory.end() ? 0 : found->size;
}

}  // namespace simulated

using namespace simulated;

// The other process gives the rights to its memory, and to this program alone; nobody needs to ask for more.
std::int32_t OpenProcess(std::uint32_t dwDesiredAccess, bool bInheritHandle, std::uint32_t dwProcessId) {
  constexpr std::uint32_t kGiven = PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE;
  if (!Lives(dwProcessId) || (dwDesiredAccess & ~kGiven) != 0 || bInheritHandle || Fails("OpenProcess")) return 0;
  return AddHandle({.process = dwProcessId, .access = dwDesiredAccess});
}

std::int32_t VirtualAllocEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize,
                            std::uint32_t flAllocationType, std::uint32_t flProtect) {
  NeedNT();
  const auto process = ProcessOf(hProcess, PROCESS_VM_OPERATION);
  if (!process || lpAddress != 0 || dwSize == 0 || flAllocationType != (MEM_COMMIT | MEM_RESERVE) ||
      flProtect != PAGE_READWRITE || Fails("VirtualAllocEx"))
    return 0;
  return AddRegion({.process = *process, .size = dwSize, .bytes = Pages(dwSize)});
}

bool VirtualFreeEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize, std::uint32_t dwFreeType) {
  NeedNT();
  const auto process = ProcessOf(hProcess, PROCESS_VM_OPERATION);
  if (!process || dwSize != 0 || dwFreeType != MEM_RELEASE || Fails("VirtualFreeEx")) return false;
  return std::erase_if(TheDesktop().memory, [&](const MemoryRegion& region) {
           return !region.isView && region.process == *process && region.address == lpAddress;
         }) > 0;
}

bool WriteProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, const void* lpBuffer, std::uint32_t nSize,
                        std::uint32_t& lpNumberOfBytesWritten) {
  const auto process = ProcessOf(hProcess, PROCESS_VM_OPERATION | PROCESS_VM_WRITE);
  const bool done = process && !Fails("WriteProcessMemory") && WriteMemory(*process, lpBaseAddress, lpBuffer, nSize);
  lpNumberOfBytesWritten = done ? nSize : 0;
  return done;
}

bool ReadProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, void* lpBuffer, std::uint32_t nSize,
                       std::uint32_t& lpNumberOfBytesRead) {
  const auto process = ProcessOf(hProcess, PROCESS_VM_READ);
  const bool done = process && !Fails("ReadProcessMemory") && ReadMemory(*process, lpBaseAddress, lpBuffer, nSize);
  lpNumberOfBytesRead = done ? nSize : 0;
  return done;
}

std::int32_t CreateFileMappingA(std::int32_t hFile, std::uint32_t flProtect, std::uint32_t dwMaximumSizeHigh,
                                std::uint32_t dwMaximumSizeLow, const char* /*lpName*/) {
  if (hFile != -1 || flProtect != PAGE_READWRITE || dwMaximumSizeHigh != 0 || dwMaximumSizeLow == 0 ||
      Fails("CreateFileMappingA"))
    return 0;
  return AddHandle({.size = dwMaximumSizeLow, .mapping = Pages(dwMaximumSizeLow)});
}

// Whole mappings alone.
std::int32_t MapViewOfFile(std::int32_t hFileMappingObject, std::uint32_t dwDesiredAccess,
                           std::uint32_t dwFileOffsetHigh, std::uint32_t dwFileOffsetLow,
                           std::uint32_t dwNumberOfBytesToMap) {
  const MemoryHandle* handle = FindHandle(hFileMappingObject);
  if (handle == nullptr || handle->mapping == nullptr || dwDesiredAccess != FILE_MAP_ALL_ACCESS ||
      dwFileOffsetHigh != 0 || dwFileOffsetLow != 0 || dwNumberOfBytesToMap > handle->size || Fails("MapViewOfFile"))
    return 0;
  return AddRegion({.process = kOwnProcess, .size = handle->size, .isView = true, .bytes = handle->mapping});
}

bool UnmapViewOfFile(const void* lpBaseAddress) {
  const auto pointer = reinterpret_cast<std::intptr_t>(lpBaseAddress);
  if (Fails("UnmapViewOfFile")) return false;
  return std::erase_if(TheDesktop().memory,
                       [&](const MemoryRegion& region) { return region.isView && region.address == pointer; }) > 0;
}

bool CloseHandle(std::int32_t hObject) {
  return !Fails("CloseHandle") && TheDesktop().memoryHandles.erase(hObject) > 0;
}

void RtlMoveMemory(std::int32_t Destination, const void* Source, std::uint32_t Length) {
  if (Destination != 0) WriteMemory(kOwnProcess, Destination, Source, Length);
}

void RtlMoveMemory(void* Destination, std::int32_t Source, std::uint32_t Length) {
  if (Source != 0) ReadMemory(kOwnProcess, Source, Destination, Length);
}

}  // namespace platform
