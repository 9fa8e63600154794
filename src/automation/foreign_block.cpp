#include "automation/foreign_block.h"

#include <algorithm>

#include "automation/SharedMemory.h"
#include "platform/process_memory.h"
#include "platform/window_lookup.h"

namespace basMain {
namespace {

std::uint32_t ProcessOf(std::int32_t hWnd) {
  std::uint32_t process = 0;
  platform::GetWindowThreadProcessId(hWnd, process);
  return process;
}

}  // namespace

ForeignBlock::ForeignBlock(bool isWindowsNT, std::int32_t hWnd, std::size_t size)
    : isWindowsNT_(isWindowsNT),
      size_(static_cast<std::int32_t>(size)),
      address_(isWindowsNT ? SharedMemory::AllocateForeign(ProcessOf(hWnd), size_, handle_)
                           : SharedMemory::AllocateShared(size_, handle_)) {}

void ForeignBlock::Write(std::span<const std::byte> bytes) const {
  const std::uint32_t count = CountOf(bytes.size());
  std::uint32_t written = 0;
  if (isWindowsNT_) platform::WriteProcessMemory(handle_, address_, bytes.data(), count, written);
  else platform::RtlMoveMemory(address_, bytes.data(), count);
}

void ForeignBlock::Read(std::span<std::byte> bytes) const {
  const std::uint32_t count = CountOf(bytes.size());
  std::uint32_t read = 0;
  if (isWindowsNT_) platform::ReadProcessMemory(handle_, address_, bytes.data(), count, read);
  else platform::RtlMoveMemory(bytes.data(), address_, count);
}

void ForeignBlock::Free() const {
  if (isWindowsNT_) SharedMemory::FreeForeign(handle_, address_, size_);
  else SharedMemory::FreeShared(handle_, address_);
}

std::uint32_t ForeignBlock::CountOf(std::size_t size) const {
  return static_cast<std::uint32_t>(std::min(size, static_cast<std::size_t>(size_)));
}

}  // namespace basMain
