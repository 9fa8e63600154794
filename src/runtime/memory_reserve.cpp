#include "runtime/memory_reserve.h"

#include <cstddef>
#include <memory>
#include <new>

namespace runtime {
namespace {

// Enough for the system's own libraries as well, which some dialogs load when they come up.
constexpr std::size_t kReserve = 16 << 20;

std::unique_ptr<char[]> reserve;

// The request fails even though it could be met now: the reserve is for what comes behind the failure.
void GiveBackReserve() {
  reserve.reset();
  throw std::bad_alloc();
}

}  // namespace

void HoldMemoryReserve() {
  std::set_new_handler(GiveBackReserve);
  if (!reserve) reserve = std::make_unique_for_overwrite<char[]>(kReserve);
}

}  // namespace runtime
