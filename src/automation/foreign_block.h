// A block of memory that the process of a window can reach, from its allocation to its release. Nothing is released by
// itself, as a fault leaves the blocks of a verb as they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace basMain {

class ForeignBlock {
 public:
  // A cleared block, on the NT family inside the process of hWnd, on the 9x family in a mapping that every process
  // sees. Size in bytes. Faults: FunctionMissing for an NT block on the 9x family.
  ForeignBlock(bool isWindowsNT, std::int32_t hWnd, std::size_t size);

  // Its address in the window's process; 0 when the allocation has failed: copies then do nothing.
  std::int32_t Address() const { return address_; }

  // Copy from its beginning, as many bytes as both sides have.
  void Write(std::span<const std::byte> bytes) const;
  void Read(std::span<std::byte> bytes) const;

  void Free() const;

 private:
  std::uint32_t CountOf(std::size_t size) const;

  bool isWindowsNT_;
  std::int32_t size_;
  std::int32_t handle_ = 0;  // of the process, or of the mapping
  std::int32_t address_;
};

}  // namespace basMain
