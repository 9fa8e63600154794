// Finding windows and asking what they are. A handle that names no window (any more) yields 0, false or the empty text.
#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace platform {

constexpr std::uint32_t GW_HWNDNEXT = 2;
constexpr std::uint32_t GW_CHILD = 5;

// Called with each window; 0 ends the enumeration.
using WNDENUMPROC = std::int32_t(PLATFORM_CALLBACK*)(std::int32_t hWnd, std::int32_t lParam);

// First top-level window in Z-order with this class (compared without case) and this whole title (without case).
// A null argument accepts any.
std::int32_t FindWindowA(const char* lpClassName, const char* lpWindowName);

// GW_HWNDNEXT: the next window below it in Z-order. GW_CHILD: the topmost child.
std::int32_t GetWindow(std::int32_t hWnd, std::uint32_t uCmd);

// Bytes of the window text. For a control of another process it is the text that the system holds for the window,
// so an edit field of another process has none.
std::int32_t GetWindowTextLengthA(std::int32_t hWnd);

// Puts at most nMaxCount - 1 bytes of the window text into lpString and returns their count.
std::int32_t GetWindowTextA(std::int32_t hWnd, std::string& lpString, std::int32_t nMaxCount);

// Puts at most nMaxCount - 1 bytes of the class name into lpClassName and returns their count.
std::int32_t GetClassNameA(std::int32_t hWnd, std::string& lpClassName, std::int32_t nMaxCount);

std::int32_t GetDlgCtrlID(std::int32_t hWnd);

// First direct child with this id.
std::int32_t GetDlgItem(std::int32_t hDlg, std::int32_t nIDDlgItem);

// All descendants, a child before its own children, siblings in Z-order. Runs the callback inside the call.
std::int32_t EnumChildWindows(std::int32_t hWndParent, WNDENUMPROC lpEnumFunc, std::int32_t lParam);

std::int32_t GetParent(std::int32_t hWnd);

bool IsWindow(std::int32_t hWnd);

std::int32_t GetForegroundWindow();

// Yields the thread id and puts the process id into lpdwProcessId.
std::uint32_t GetWindowThreadProcessId(std::int32_t hWnd, std::uint32_t& lpdwProcessId);

// Outer rectangle in screen pixels.
bool GetWindowRect(std::int32_t hWnd, Rect& lpRect);

// Screen pixels to one pixel of the window or control itself: more than 1 where its program does not know the
// resolution of the screen, so that the system draws it larger; 1 where the system does not do that.
double WindowScale(std::int32_t hWnd);

}  // namespace platform
