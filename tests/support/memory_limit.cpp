#include "support/memory_limit.h"

#include <malloc.h>

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kNone = SIZE_MAX;

std::size_t held = 0;
std::size_t most = kNone;

}  // namespace

// These take the place of the run-time library's own, which never fail here.
void* operator new(std::size_t size) {
  for (;;) {
    const bool fits = most == kNone || (size <= most && held <= most - size);
    void* memory = fits ? std::malloc(size) : nullptr;
    if (memory != nullptr) {
      held += malloc_usable_size(memory);
      return memory;
    }
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) throw std::bad_alloc();
    handler();
  }
}

void operator delete(void* memory) noexcept {
  if (memory == nullptr) return;
  held -= malloc_usable_size(memory);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }

namespace support {

MemoryLimit::MemoryLimit(std::size_t bytes) { most = held + bytes; }
MemoryLimit::~MemoryLimit() { most = kNone; }

}  // namespace support
