// The program shell: hot key, window procedure, notification icon, starting and ending programs.
#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace platform {

constexpr std::uint32_t MOD_ALT = 1;
constexpr std::uint32_t VK_F12 = 123;
constexpr std::int32_t GWL_WNDPROC = -4;

// False when another window holds the key combination already.
bool RegisterHotKey(std::int32_t hWnd, std::int32_t id, std::uint32_t fsModifiers, std::uint32_t vk);
bool UnregisterHotKey(std::int32_t hWnd, std::int32_t id);

using WNDPROC = std::int32_t(PLATFORM_CALLBACK*)(std::int32_t hWnd, std::uint32_t uMsg, std::int32_t wParam,
                                                 std::int32_t lParam);

// Replaces the window procedure (nIndex is GWL_WNDPROC) of a window of this process and yields the old one.
WNDPROC SetWindowLongA(std::int32_t hWnd, std::int32_t nIndex, WNDPROC dwNewLong);
std::int32_t CallWindowProcA(WNDPROC lpPrevWndFunc, std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam,
                             std::int32_t lParam);

// The number of the message of this name, without case: the same for all programs, above all fixed numbers.
std::uint32_t RegisterWindowMessageA(const std::string& lpString);

constexpr std::uint32_t NIM_ADD = 0;
constexpr std::uint32_t NIM_MODIFY = 1;
constexpr std::uint32_t NIM_DELETE = 2;
constexpr std::uint32_t NIF_MESSAGE = 1;
constexpr std::uint32_t NIF_ICON = 2;
constexpr std::uint32_t NIF_TIP = 4;

// The first version of the system's record, which every Windows of both families takes.
struct NOTIFYICONDATA {
  std::uint32_t cbSize = 88;
  std::int32_t hWnd = 0;
  std::uint32_t uID = 0;
  std::uint32_t uFlags = 0;
  std::uint32_t uCallbackMessage = 0;
  std::int32_t hIcon = 0;
  char szTip[64] = {};
};
static_assert(sizeof(NOTIFYICONDATA) == 88);

bool Shell_NotifyIconA(std::uint32_t dwMessage, const NOTIFYICONDATA& lpData);

// Icon of the program's resources in the size of the notification area; shared, so nobody destroys it. 0 if unknown.
std::int32_t LoadIconA(const std::string& name);

// Path of the file that the system would start by this name, which may lack its extension (such as ".exe"): where a
// path stands, that file, else the first in the program's folder, the present one, the system's and those of PATH.
// Empty when there is none, or only a folder.
std::string SearchPathA(const std::string& lpFileName, const std::string& lpExtension);

// Starts a command line in a window of the given show style and does not wait. Yields the process id, 0 on failure.
// An empty command fails.
std::uint32_t StartProgram(const std::string& command, std::uint32_t showStyle);

// Ends this program at once, wherever it stands.
[[noreturn]] void EndProgram();

}  // namespace platform
