#include "engine/standard_handler.h"

#include <utility>

#include "resources/texts.h"

namespace basMain {

std::string StandardErrorText(const std::string& routine, const runtime::Fault& fault) {
  return resources::Text(resources::TextId::FunctionFault, routine) + fault.description;
}

bool Fail(std::string text) {
  run.LastError = std::move(text);
  return false;
}

}  // namespace basMain
