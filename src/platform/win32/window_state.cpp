#include "platform/window_state.h"

#include "platform/win32/own_keys.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

static_assert(sizeof(WINDOWPLACEMENT) == sizeof(::WINDOWPLACEMENT));

bool SetWindowPos(std::int32_t hWnd, std::int32_t hWndInsertAfter, std::int32_t X, std::int32_t Y, std::int32_t cx,
                  std::int32_t cy, std::uint32_t uFlags) {
  return ::SetWindowPos(HandleOf<HWND>(hWnd), HandleOf<HWND>(hWndInsertAfter), X, Y, cx, cy, uFlags) != FALSE;
}

// Not every version of the system looks at the length, so it is compared here.

bool GetWindowPlacement(std::int32_t hWnd, WINDOWPLACEMENT& lpwndpl) {
  ::WINDOWPLACEMENT placement = {};
  placement.length = sizeof placement;
  if (lpwndpl.length != sizeof placement || !::GetWindowPlacement(HandleOf<HWND>(hWnd), &placement)) return false;
  lpwndpl.flags = placement.flags;
  lpwndpl.showCmd = placement.showCmd;
  lpwndpl.minX = placement.ptMinPosition.x;
  lpwndpl.minY = placement.ptMinPosition.y;
  lpwndpl.maxX = placement.ptMaxPosition.x;
  lpwndpl.maxY = placement.ptMaxPosition.y;
  const RECT& normal = placement.rcNormalPosition;
  lpwndpl.normalPosition = {normal.left, normal.top, normal.right, normal.bottom};
  return true;
}

bool SetWindowPlacement(std::int32_t hWnd, const WINDOWPLACEMENT& lpwndpl) {
  ::WINDOWPLACEMENT placement = {};
  placement.length = sizeof placement;
  if (lpwndpl.length != sizeof placement) return false;
  placement.flags = lpwndpl.flags;
  placement.showCmd = lpwndpl.showCmd;
  placement.ptMinPosition = {lpwndpl.minX, lpwndpl.minY};
  placement.ptMaxPosition = {lpwndpl.maxX, lpwndpl.maxY};
  const Rect& normal = lpwndpl.normalPosition;
  placement.rcNormalPosition = {normal.left, normal.top, normal.right, normal.bottom};
  return ::SetWindowPlacement(HandleOf<HWND>(hWnd), &placement) != FALSE;
}

bool SetForegroundWindow(std::int32_t hWnd) {
  NoteFront(hWnd);
  return ::SetForegroundWindow(HandleOf<HWND>(hWnd)) != FALSE;
}

}  // namespace platform
