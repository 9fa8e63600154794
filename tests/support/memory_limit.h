// A memory that fails: what asks for more than there is gets std::bad_alloc.
#pragma once

#include <cstddef>

namespace support {

// As long as it lives, so many bytes more can be held at a time than were held before.
class MemoryLimit {
 public:
  explicit MemoryLimit(std::size_t bytes);
  ~MemoryLimit();
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;
};

}  // namespace support
