#include "clients/state.h"

#include "platform/system.h"

namespace basMain {

ClientState clients;

void ClientState::BeginRun(bool fresh) {
  InputState = 0;
  if (fresh) MatrixPos = 0;
}

runtime::DateTime DateOf(const std::string& text) { return runtime::ToDate(text, platform::Now().year); }

}  // namespace basMain
