#include "platform/shell.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/files.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

// The tip is the last field of the record's first version, which was 64 bytes there.
static_assert(offsetof(NOTIFYICONDATA, szTip) == offsetof(::NOTIFYICONDATAA, szTip));

bool RegisterHotKey(std::int32_t hWnd, std::int32_t id, std::uint32_t fsModifiers, std::uint32_t vk) {
  return ::RegisterHotKey(HandleOf<HWND>(hWnd), id, fsModifiers, vk) != FALSE;
}

bool UnregisterHotKey(std::int32_t hWnd, std::int32_t id) {
  return ::UnregisterHotKey(HandleOf<HWND>(hWnd), id) != FALSE;
}

WNDPROC SetWindowLongA(std::int32_t hWnd, std::int32_t nIndex, WNDPROC dwNewLong) {
  return HandleOf<WNDPROC>(::SetWindowLongA(HandleOf<HWND>(hWnd), nIndex, NumberOf(dwNewLong)));
}

std::int32_t CallWindowProcA(WNDPROC lpPrevWndFunc, std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam,
                             std::int32_t lParam) {
  return static_cast<std::int32_t>(::CallWindowProcA(HandleOf<::WNDPROC>(NumberOf(lpPrevWndFunc)), HandleOf<HWND>(hWnd),
                                                     Msg, static_cast<WPARAM>(wParam), lParam));
}

bool Shell_NotifyIconA(std::uint32_t dwMessage, const NOTIFYICONDATA& lpData) {
  ::NOTIFYICONDATAA data = {};
  data.cbSize = lpData.cbSize;
  data.hWnd = HandleOf<HWND>(lpData.hWnd);
  data.uID = lpData.uID;
  data.uFlags = lpData.uFlags;
  data.uCallbackMessage = lpData.uCallbackMessage;
  data.hIcon = HandleOf<HICON>(lpData.hIcon);
  std::copy(std::begin(lpData.szTip), std::end(lpData.szTip), data.szTip);
  return ::Shell_NotifyIconA(dwMessage, &data) != FALSE;
}

std::int32_t LoadIconA(const std::string& name) {
  return NumberOf(::LoadImageA(::GetModuleHandleA(nullptr), name.c_str(), IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON),
                               ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
}

std::uint32_t RegisterWindowMessageA(const std::string& lpString) { return ::RegisterWindowMessageA(lpString.c_str()); }

std::string SearchPathA(const std::string& lpFileName, const std::string& lpExtension) {
  std::string path(MAX_PATH, '\0');
  const DWORD length = ::SearchPathA(nullptr, lpFileName.c_str(), lpExtension.c_str(), MAX_PATH, path.data(), nullptr);
  path.resize(length < MAX_PATH ? length : 0);
  return FileExists(path) ? path : "";
}

std::uint32_t StartProgram(const std::string& command, std::uint32_t showStyle) {
  if (command.empty()) return 0;  // some systems would start the present folder
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(showStyle);
  PROCESS_INFORMATION process = {};
  std::string line = command;  // the system writes into it
  // How the system reports errors is this program's own choice (files.cpp).
  if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE, nullptr, nullptr,
                        &start, &process))
    return 0;
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return process.dwProcessId;
}

void EndProgram() { ::ExitProcess(0); }

}  // namespace platform
