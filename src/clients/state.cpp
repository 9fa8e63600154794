#include "clients/state.h"

#include "platform/system.h"

namespace basMain {

ClientState clients;

runtime::DateTime DateOf(const std::string& text) { return runtime::ToDate(text, platform::Now().year); }

}  // namespace basMain
