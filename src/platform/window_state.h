// Place and state of windows.
#pragma once

#include <cstdint>

#include "platform/types.h"

namespace platform {

constexpr std::int32_t HWND_TOPMOST = -1;
constexpr std::int32_t HWND_NOTOPMOST = -2;
constexpr std::uint32_t SWP_NOSIZE = 1;
constexpr std::uint32_t SWP_NOMOVE = 2;
constexpr std::uint32_t SW_SHOWNORMAL = 1;
constexpr std::uint32_t SW_SHOWMAXIMIZED = 3;

// Position and size in screen pixels.
bool SetWindowPos(std::int32_t hWnd, std::int32_t hWndInsertAfter, std::int32_t X, std::int32_t Y, std::int32_t cx,
                  std::int32_t cy, std::uint32_t uFlags);

struct WINDOWPLACEMENT {
  std::uint32_t length = 44;  // bytes; another length is refused
  std::uint32_t flags = 0;
  std::uint32_t showCmd = 0;
  std::int32_t minX = 0, minY = 0, maxX = 0, maxY = 0;
  Rect normalPosition;
};
static_assert(sizeof(WINDOWPLACEMENT) == 44);

bool GetWindowPlacement(std::int32_t hWnd, WINDOWPLACEMENT& lpwndpl);
bool SetWindowPlacement(std::int32_t hWnd, const WINDOWPLACEMENT& lpwndpl);

bool SetForegroundWindow(std::int32_t hWnd);

}  // namespace platform
