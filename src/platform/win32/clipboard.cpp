#include "platform/clipboard.h"

#include <cstring>

#include "runtime/fault.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// The clipboard, open for as long as this object lives.
class OpenedClipboard {
 public:
  OpenedClipboard() {
    constexpr int kAttempts = 50;
    for (int attempt = 1; !::OpenClipboard(nullptr); ++attempt) {
      if (attempt == kAttempts) throw runtime::Fault(runtime::FaultNumber::ClipboardBusy);
      ::Sleep(10);
    }
  }
  ~OpenedClipboard() { ::CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

}  // namespace

bool IsClipboardFormatAvailable(std::uint32_t format) { return ::IsClipboardFormatAvailable(format) != FALSE; }

std::string GetClipboardText() {
  const OpenedClipboard clipboard;
  const HANDLE memory = ::GetClipboardData(CF_TEXT);
  if (memory == nullptr) return "";
  const auto* text = static_cast<const char*>(::GlobalLock(memory));
  if (text == nullptr) return "";
  // Whoever put it there may have forgotten the NUL.
  const std::string copy(text, ::strnlen(text, ::GlobalSize(memory)));
  ::GlobalUnlock(memory);
  return copy;
}

void ClearClipboard() {
  const OpenedClipboard clipboard;
  ::EmptyClipboard();
}

}  // namespace platform
