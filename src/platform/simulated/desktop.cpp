#include "platform/simulated/desktop.h"

#include <memory>

#include "platform/simulated/state.h"

namespace platform::simulated {
namespace {

std::unique_ptr<Desktop>& Slot() {
  static std::unique_ptr<Desktop> slot = std::make_unique<Desktop>();
  return slot;
}

}  // namespace

Desktop::Desktop() : drives{{'C', temporaryFolder.Path()}} {}

Desktop& TheDesktop() { return *Slot(); }

void Reset() {
  Slot() = std::make_unique<Desktop>();
  SetNow({2006, 3, 14, 9, 30, 0});
  SetApplicationPath("C:\\QUMA");
}

void Fail(const std::string& operation, int times, int after, runtime::FaultNumber fault) {
  TheDesktop().failures[operation] = {times, after, fault};
}

bool Fails(const std::string& operation) {
  auto& failures = TheDesktop().failures;
  if (failures.empty()) return false;
  const auto found = failures.find(operation);
  if (found == failures.end()) return false;
  Failure& failure = found->second;
  if (failure.after > 0) {
    --failure.after;
    return false;
  }
  if (failure.times == 0) return false;
  if (failure.times > 0) --failure.times;
  return true;
}

void RaiseIfFailing(const std::string& operation) {
  if (Fails(operation)) throw runtime::Fault(TheDesktop().failures[operation].fault);
}

}  // namespace platform::simulated
