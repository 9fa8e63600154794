// What every modal dialog of the program does to its other windows.
#pragma once

#include <cstdint>
#include <vector>

namespace platform::simulated {

// While it lives, the program's top-level windows take no input, but for those that are made meanwhile.
class ModalScope {
 public:
  // dialog: stays enabled; 0 for none.
  explicit ModalScope(std::int32_t dialog);
  ~ModalScope();
  ModalScope(const ModalScope&) = delete;
  ModalScope& operator=(const ModalScope&) = delete;

 private:
  std::vector<std::int32_t> disabled_;
  std::int32_t foreground_;
};

}  // namespace platform::simulated
