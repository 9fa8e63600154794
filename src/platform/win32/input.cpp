#include "platform/input.h"

#include <set>

#include "platform/system.h"
#include "platform/win32/late_binding.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

constexpr DWORD kPatience = 5000;  // milliseconds

// Threads whose input queue is joined with that of this thread.
std::set<DWORD> joinedThreads;

DWORD ForegroundThread() { return ::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr); }

// Two ways to type a character that has no key. Only the newer systems of the NT family know the first.

void TypeAsPacket(WCHAR character) {
  const auto send = Bind<UINT WINAPI(UINT, INPUT*, int)>("user32.dll", "SendInput");
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE;
  send(1, &input, sizeof input);
  input.ki.dwFlags = KEYEVENTF_UNICODE | KEYEVENTF_KEYUP;
  send(1, &input, sizeof input);
}

// Alt with a 0 and the character's code on the numeric pad.
void TypeAsNumber(unsigned char code) {
  keybd_event(VK_MENU, 0, 0, 0);
  for (const int digit : {0, code / 100, code / 10 % 10, code % 10}) {
    const auto key = static_cast<std::uint8_t>(VK_NUMPAD0 + digit);
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
  }
  keybd_event(VK_MENU, 0, KEYEVENTF_KEYUP, 0);
}

bool KnowsPackets() {
  OSVERSIONINFO version;
  return GetVersionExA(version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT && version.dwMajorVersion >= 5;
}

// Lets messages that other threads sent to this one through, such as the change of the focus that a key brings about,
// and removes none from the queue.
void AnswerSentMessages() {
  MSG message;
  ::PeekMessageA(&message, nullptr, WM_NULL, WM_NULL, PM_NOREMOVE);
}

// The state of a key as this thread sees it follows the keys that have been taken from its queue. So a key that nobody
// uses, sent last, is seen down when all keys before it have been taken and worked at.
void WaitForMarkerKey(DWORD thread) {
  constexpr BYTE kUnassigned = 0xE8;
  ::keybd_event(kUnassigned, 0, 0, 0);
  const DWORD start = ::GetTickCount();
  // When another thread has come to the foreground it takes the marker.
  while (::GetKeyState(kUnassigned) >= 0 && ForegroundThread() == thread && ::GetTickCount() - start < kPatience) {
    AnswerSentMessages();
    ::Sleep(1);
  }
  ::keybd_event(kUnassigned, 0, KEYEVENTF_KEYUP, 0);
}

// A message is answered between two keys, so the answer tells that the target works at none of them.
void WaitForAnswer(HWND hWnd) {
  ::Sleep(10);
  DWORD_PTR ignored = 0;
  ::SendMessageTimeoutA(hWnd, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &ignored);
}

}  // namespace

bool SetCursorPos(std::int32_t X, std::int32_t Y) { return ::SetCursorPos(X, Y) != FALSE; }

void mouse_event(std::uint32_t dwFlags, std::int32_t dx, std::int32_t dy, std::uint32_t dwData,
                 std::uint32_t dwExtraInfo) {
  ::mouse_event(dwFlags, static_cast<DWORD>(dx), static_cast<DWORD>(dy), dwData, dwExtraInfo);
}

void keybd_event(std::uint8_t bVk, std::uint8_t bScan, std::uint32_t dwFlags, std::uint32_t dwExtraInfo) {
  if (bScan == 0) bScan = static_cast<std::uint8_t>(::MapVirtualKeyA(bVk, MAPVK_VK_TO_VSC));
  ::keybd_event(bVk, bScan, dwFlags, dwExtraInfo);
}

std::int16_t VkKeyScanA(char ch) {
  constexpr UINT kDead = 0x80000000;
  const HKL layout = ::GetKeyboardLayout(ForegroundThread());
  const SHORT key = ::VkKeyScanExA(ch, layout);
  if (key == -1 || (::MapVirtualKeyExA(LOBYTE(key), MAPVK_VK_TO_CHAR, layout) & kDead) != 0) return -1;
  return key;
}

void TypeCharacter(char ch) {
  WCHAR character = 0;
  ::MultiByteToWideChar(CP_ACP, 0, &ch, 1, &character, 1);
  if (KnowsPackets()) TypeAsPacket(character);
  else TypeAsNumber(static_cast<unsigned char>(ch));
}

std::int16_t GetAsyncKeyState(std::int32_t vKey) { return ::GetAsyncKeyState(vKey); }
std::int16_t GetKeyState(std::int32_t nVirtKey) { return ::GetKeyState(nVirtKey); }

bool WaitForKeys() {
  const DWORD thread = ForegroundThread();
  if (thread == ::GetCurrentThreadId()) return false;
  if (joinedThreads.contains(thread)) WaitForMarkerKey(thread);
  else WaitForAnswer(::GetForegroundWindow());
  return true;
}

bool AttachThreadInput(std::uint32_t idAttach, std::uint32_t idAttachTo, bool fAttach) {
  const HWND front = ::GetForegroundWindow();
  const DWORD own = ::GetCurrentThreadId();
  const DWORD other = idAttach == own ? idAttachTo : idAttach;
  // Also when the system refuses: a thread that has ended is parted, and another one may get its number.
  if (!fAttach) joinedThreads.erase(other);
  if (!::AttachThreadInput(idAttach, idAttachTo, fAttach ? TRUE : FALSE)) return false;
  if (fAttach) joinedThreads.insert(other);
  // Not every version of the system leaves the foreground alone.
  if (!fAttach && ::GetForegroundWindow() != front) ::SetForegroundWindow(front);
  return true;
}

std::int32_t SetFocus(std::int32_t hWnd) { return NumberOf(::SetFocus(HandleOf<HWND>(hWnd))); }

bool BlockInput(bool fBlockIt) {
  const auto function = Bind<BOOL WINAPI(BOOL)>("user32.dll", "BlockInput");
  return function(fBlockIt ? TRUE : FALSE) != FALSE;
}

}  // namespace platform
