#include "forms/win32/key_filter.h"

#include "forms/win32/message_loop.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace forms::win32 {

namespace {

WNDPROC originalProcedure = nullptr;

LRESULT CALLBACK FilteringProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CHAR) {
    const TextBox& textBox = *platform::HandleOf<TextBox*>(::GetWindowLongA(window, GWL_USERDATA));
    bool taken = true;
    Raise([&] { taken = textBox.KeyPress(static_cast<unsigned char>(wParam)); });
    if (!taken) return 0;
  }
  return ::CallWindowProcA(originalProcedure, window, message, wParam, lParam);
}

}  // namespace

void FilterKeys(TextBox& textBox) {
  const HWND window = platform::HandleOf<HWND>(textBox.now.handle);
  ::SetWindowLongA(window, GWL_USERDATA, platform::NumberOf(&textBox));
  originalProcedure =
      platform::HandleOf<WNDPROC>(::SetWindowLongA(window, GWL_WNDPROC, platform::NumberOf(FilteringProcedure)));
}

}  // namespace forms::win32
