#include "platform/window_lookup.h"

#include <algorithm>

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// Lets the system fill a buffer of the size given and cuts it to what was filled.
template <class Query>
std::int32_t Fill(std::string& text, std::int32_t size, Query query) {
  text.assign(static_cast<std::size_t>(std::max(size, 1)), '\0');
  const int length = query(text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(std::clamp(length, 0, static_cast<int>(text.size()))));
  return length;
}

}  // namespace

std::int32_t FindWindowA(const char* lpClassName, const char* lpWindowName) {
  return NumberOf(::FindWindowA(lpClassName, lpWindowName));
}

std::int32_t GetWindow(std::int32_t hWnd, std::uint32_t uCmd) {
  return NumberOf(::GetWindow(HandleOf<HWND>(hWnd), uCmd));
}

std::int32_t GetWindowTextLengthA(std::int32_t hWnd) { return ::GetWindowTextLengthA(HandleOf<HWND>(hWnd)); }

std::int32_t GetWindowTextA(std::int32_t hWnd, std::string& lpString, std::int32_t nMaxCount) {
  // Not every version of the system says that a dead window has no text.
  if (!IsWindow(hWnd)) {
    lpString.clear();
    return 0;
  }
  return Fill(lpString, nMaxCount,
              [&](char* buffer, int size) { return ::GetWindowTextA(HandleOf<HWND>(hWnd), buffer, size); });
}

std::int32_t GetClassNameA(std::int32_t hWnd, std::string& lpClassName, std::int32_t nMaxCount) {
  return Fill(lpClassName, nMaxCount,
              [&](char* buffer, int size) { return ::GetClassNameA(HandleOf<HWND>(hWnd), buffer, size); });
}

std::int32_t GetDlgCtrlID(std::int32_t hWnd) { return ::GetDlgCtrlID(HandleOf<HWND>(hWnd)); }

std::int32_t GetDlgItem(std::int32_t hDlg, std::int32_t nIDDlgItem) {
  return NumberOf(::GetDlgItem(HandleOf<HWND>(hDlg), nIDDlgItem));
}

std::int32_t EnumChildWindows(std::int32_t hWndParent, WNDENUMPROC lpEnumFunc, std::int32_t lParam) {
  // Some versions of the system take no window for the desktop, and would hand out everybody's windows.
  if (hWndParent == 0) return 0;
  return ::EnumChildWindows(HandleOf<HWND>(hWndParent), HandleOf<::WNDENUMPROC>(NumberOf(lpEnumFunc)), lParam);
}

std::int32_t GetParent(std::int32_t hWnd) { return NumberOf(::GetParent(HandleOf<HWND>(hWnd))); }

bool IsWindow(std::int32_t hWnd) { return ::IsWindow(HandleOf<HWND>(hWnd)) != FALSE; }

std::int32_t GetForegroundWindow() { return NumberOf(::GetForegroundWindow()); }

std::uint32_t GetWindowThreadProcessId(std::int32_t hWnd, std::uint32_t& lpdwProcessId) {
  DWORD process = 0;
  const DWORD thread = ::GetWindowThreadProcessId(HandleOf<HWND>(hWnd), &process);
  lpdwProcessId = process;
  return thread;
}

bool GetWindowRect(std::int32_t hWnd, Rect& lpRect) {
  RECT rect;
  if (!::GetWindowRect(HandleOf<HWND>(hWnd), &rect)) return false;
  lpRect = {rect.left, rect.top, rect.right, rect.bottom};
  return true;
}

}  // namespace platform
