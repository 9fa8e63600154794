#include "platform/window_state.h"

#include <stdexcept>

#include "platform/simulated/state.h"

namespace platform {

using namespace simulated;

bool SetWindowPos(std::int32_t hWnd, std::int32_t hWndInsertAfter, std::int32_t X, std::int32_t Y, std::int32_t cx,
                  std::int32_t cy, std::uint32_t uFlags) {
  TheDesktop().inputLog.push_back("SetWindowPos " + std::to_string(hWnd) + " " + std::to_string(hWndInsertAfter));
  Window* window = Find(hWnd);
  if (window == nullptr || Fails("SetWindowPos")) return false;
  if (hWndInsertAfter != HWND_TOPMOST && hWndInsertAfter != HWND_NOTOPMOST)
    throw std::logic_error("SetWindowPos: this place in the Z-order is not simulated");
  Rect& place = window->rectangle;
  if ((uFlags & SWP_NOMOVE) == 0) place = {X, Y, X + place.right - place.left, Y + place.bottom - place.top};
  if ((uFlags & SWP_NOSIZE) == 0) place = {place.left, place.top, place.left + cx, place.top + cy};
  const bool topMost = hWndInsertAfter == HWND_TOPMOST;
  if (topMost || window->topMost) {
    window->topMost = topMost;
    BringToFront(hWnd);
  }
  return true;
}

bool GetWindowPlacement(std::int32_t hWnd, WINDOWPLACEMENT& lpwndpl) {
  const Window* window = Find(hWnd);
  if (window == nullptr || lpwndpl.length != sizeof(WINDOWPLACEMENT) || Fails("GetWindowPlacement")) return false;
  lpwndpl = {};
  lpwndpl.showCmd = window->showCmd;
  const auto& normal = TheDesktop().normalPositions;
  lpwndpl.normalPosition = normal.contains(hWnd) ? normal.at(hWnd) : window->rectangle;
  return true;
}

bool SetWindowPlacement(std::int32_t hWnd, const WINDOWPLACEMENT& lpwndpl) {
  Window* window = Find(hWnd);
  if (window == nullptr || lpwndpl.length != sizeof(WINDOWPLACEMENT) || Fails("SetWindowPlacement")) return false;
  window->showCmd = lpwndpl.showCmd;
  if (lpwndpl.showCmd == SW_SHOWMAXIMIZED) {
    TheDesktop().normalPositions[hWnd] = lpwndpl.normalPosition;
    window->rectangle = kScreen;
  } else {
    TheDesktop().normalPositions.erase(hWnd);
    window->rectangle = lpwndpl.normalPosition;
  }
  return true;
}

bool SetForegroundWindow(std::int32_t hWnd) {
  TheDesktop().inputLog.push_back("SetForegroundWindow " + std::to_string(hWnd));
  const Window* window = Find(hWnd);
  if (window == nullptr || window->parent != 0 || Fails("SetForegroundWindow")) return false;
  Activate(hWnd);
  return true;
}

}  // namespace platform
