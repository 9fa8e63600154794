#include "forms/realization.h"
#include "forms/win32/message_loop.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace forms::realization {

using namespace win32;

int ChooseFromMenu(Form& owner, const Menu& menu) {
  const HWND window = platform::HandleOf<HWND>(owner.Window());
  const HMENU popup = ::CreatePopupMenu();
  UINT id = 0;
  for (const MenuEntry& entry : menu.entries) {
    const UINT kind = entry.caption == "-" ? MF_SEPARATOR : MF_STRING;
    ::AppendMenuA(popup, kind, ++id, entry.caption.c_str());
  }
  POINT pointer = {};
  ::GetCursorPos(&pointer);
  // Without the foreground a click elsewhere would not close the menu.
  ::SetForegroundWindow(window);
  const int chosen = ::TrackPopupMenu(popup, TPM_RETURNCMD | TPM_RIGHTBUTTON, pointer.x, pointer.y, 0, window, nullptr);
  // Without this message the next menu would close at once.
  ::PostMessageA(window, WM_NULL, 0, 0);
  ::DestroyMenu(popup);
  RethrowRaised();
  return chosen - 1;
}

}  // namespace forms::realization
