#include "platform/clipboard.h"

#include "platform/simulated/state.h"
#include "runtime/fault.h"

namespace platform {
namespace simulated {
namespace {

void Open() {
  if (Fails("OpenClipboard")) throw runtime::Fault(runtime::FaultNumber::ClipboardBusy);
}

}  // namespace

std::optional<std::string>& Clipboard() { return TheDesktop().clipboard; }

}  // namespace simulated

using namespace simulated;

bool IsClipboardFormatAvailable(std::uint32_t format) {
  return format == CF_TEXT && Clipboard().has_value() && !Fails("IsClipboardFormatAvailable");
}

std::string GetClipboardText() {
  Open();
  const std::string& text = Clipboard().value_or("");
  return text.substr(0, text.find('\0'));
}

void ClearClipboard() {
  Open();
  Clipboard().reset();
}

}  // namespace platform
