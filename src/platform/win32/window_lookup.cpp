#include "platform/window_lookup.h"

#include <algorithm>
#include <array>

#include "platform/system.h"
#include "platform/win32/late_binding.h"

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

// Lets the system convert a point of a window; false where it lacks the function or refuses the point.
bool Convert(const char* function, HWND hWnd, POINT& point) {
  const auto convert = BindIfThere<BOOL WINAPI(HWND, POINT*)>("user32.dll", function);
  return convert != nullptr && convert(hWnd, &point);
}

// From Vista to Windows 8 a rectangle comes in the pixels of its own window, and this function makes screen pixels of
// them. From 8.1 on it comes in those of the caller, and the function changes nothing
// (learn.microsoft.com, LogicalToPhysicalPointForPerMonitorDPI).
constexpr char kToScreen[] = "LogicalToPhysicalPoint";
// Windows 8.1 and later.
constexpr char kFromScreen[] = "PhysicalToLogicalPointForPerMonitorDPI";

bool IsDrawnLarger(HWND hWnd) {
  RECT rect;
  if (!::GetWindowRect(hWnd, &rect)) return false;
  const POINT middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  return std::ranges::any_of(std::array{kToScreen, kFromScreen}, [&](const char* function) {
    POINT point = middle;
    return Convert(function, hWnd, point) && (point.x != middle.x || point.y != middle.y);
  });
}

// Dots to the inch that the window's program counts with; 0 where they are those of the screen.
double OwnResolution(HWND hWnd) {
  constexpr double kUnaware = 96;
  // Windows 10 1607 and later.
  if (const auto resolution = BindIfThere<UINT WINAPI(HWND)>("user32.dll", "GetDpiForWindow")) return resolution(hWnd);
  return IsDrawnLarger(hWnd) ? kUnaware : 0;
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
  POINT topLeft{rect.left, rect.top};
  POINT bottomRight{rect.right, rect.bottom};
  if (Convert(kToScreen, HandleOf<HWND>(hWnd), topLeft) && Convert(kToScreen, HandleOf<HWND>(hWnd), bottomRight))
    rect = {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
  lpRect = {rect.left, rect.top, rect.right, rect.bottom};
  return true;
}

double WindowScale(std::int32_t hWnd) {
  constexpr double kTwipsToTheInch = 1440;
  const double resolution = OwnResolution(HandleOf<HWND>(hWnd));
  return resolution == 0 ? 1 : kTwipsToTheInch / resolution / TwipsPerPixelX();
}

}  // namespace platform
