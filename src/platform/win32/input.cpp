#include "platform/input.h"

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/system.h"
#include "platform/win32/late_binding.h"
#include "platform/win32/own_keys.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// Threads whose input queue is joined with that of this thread.
std::set<DWORD> joinedThreads;

// The window that the program has brought to the front last, and when.
HWND broughtToFront = nullptr;
DWORD broughtAt = 0;

DWORD ForegroundThread() { return ::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr); }

// Two ways to type a character that has no key. Only the newer systems of the NT family know the first.

void TypeAsPacket(WCHAR character) {
  const auto send = Bind<UINT WINAPI(UINT, INPUT*, int)>("user32.dll", "SendInput");
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE;
  input.ki.dwExtraInfo = kOwnKey;
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

// Some versions of the system take the window in front away when queues are joined or parted.
class FrontKept {
 public:
  FrontKept() : front_(::GetForegroundWindow()) {}
  ~FrontKept() {
    if (::GetForegroundWindow() != front_ && ::IsWindow(front_)) ::SetForegroundWindow(front_);
  }
  FrontKept(const FrontKept&) = delete;
  FrontKept& operator=(const FrontKept&) = delete;

 private:
  const HWND front_;
};

// On those versions the queue of the thread that is joined to another one goes, with all that waits in it. So this
// thread joins the other one, whichever of the two is asked for first; then the call as it was asked for changes
// nothing.
bool JoinQueues(DWORD from, DWORD to, DWORD other) {
  const FrontKept front;
  const bool joined = ::AttachThreadInput(::GetCurrentThreadId(), other, TRUE) != FALSE;
  if (from != ::GetCurrentThreadId() && !::AttachThreadInput(from, to, TRUE)) return false;
  if (joined) joinedThreads.insert(other);
  return joined;
}

// What waits for this thread in a queue that stays with the other one; clicks on the program's own windows.
std::vector<MSG> TakeOwnInput() {
  std::vector<MSG> input;
  MSG message;
  for (const auto& [first, last] : {std::pair{WM_KEYFIRST, WM_KEYLAST}, std::pair{WM_NCMOUSEMOVE, WM_NCMBUTTONDBLCLK},
                                    std::pair{WM_MOUSEFIRST, WM_MOUSELAST}}) {
    while (::PeekMessageA(&message, nullptr, static_cast<UINT>(first), static_cast<UINT>(last), PM_REMOVE))
      input.push_back(message);
  }
  return input;
}

bool PartQueues(DWORD from, DWORD to, DWORD other) {
  const FrontKept front;
  // Also when the system refuses: a thread that has ended is parted, and another one may get its number.
  std::vector<MSG> input;
  if (joinedThreads.erase(other) != 0) input = TakeOwnInput();
  const bool own = ::AttachThreadInput(::GetCurrentThreadId(), other, FALSE) != FALSE;
  const bool asked = from != ::GetCurrentThreadId() && ::AttachThreadInput(from, to, FALSE) != FALSE;
  for (const MSG& message : input) ::PostMessageA(message.hwnd, message.message, message.wParam, message.lParam);
  return own || asked;
}

// The state of a key as this thread sees it follows the keys that have been taken from its queue. So a key that nobody
// uses, sent last, is seen down when all keys before it have been taken and worked at.
constexpr BYTE kMarker = 0xE8;

constexpr DWORD kPatience = 5000;      // milliseconds without handling messages
constexpr DWORD kBetweenPumps = 100;   // milliseconds
constexpr DWORD kTimeForOneKey = 400;  // milliseconds, after which a receiver is taken to be at something else
constexpr UINT kTimeToAnswer = 50;     // milliseconds
constexpr int kAnswersOfTheIdle = 5;   // in a row: more than there are messages of one key

}  // namespace

bool SetCursorPos(std::int32_t X, std::int32_t Y) { return ::SetCursorPos(X, Y) != FALSE; }

void mouse_event(std::uint32_t dwFlags, std::int32_t dx, std::int32_t dy, std::uint32_t dwData,
                 std::uint32_t dwExtraInfo) {
  ::mouse_event(dwFlags, static_cast<DWORD>(dx), static_cast<DWORD>(dy), dwData, dwExtraInfo);
}

void keybd_event(std::uint8_t bVk, std::uint8_t bScan, std::uint32_t dwFlags, std::uint32_t dwExtraInfo) {
  if (bScan == 0) bScan = static_cast<std::uint8_t>(::MapVirtualKeyA(bVk, MAPVK_VK_TO_VSC));
  ::keybd_event(bVk, bScan, dwFlags, dwExtraInfo == 0 ? kOwnKey : dwExtraInfo);
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

void NoteFront(std::int32_t hWnd) {
  broughtToFront = HandleOf<HWND>(hWnd);
  broughtAt = ::GetTickCount();
}

namespace {

constexpr DWORD kLate = 3000;   // milliseconds
constexpr DWORD kSettled = 60;  // milliseconds

// The window that was brought to the front lately, when it has stayed there for a while: some window managers let a
// dialog that was shown before come up later, and a key on its way then is lost.
HWND SettledFront() {
  const DWORD me = ::GetCurrentThreadId();
  if (::GetWindowThreadProcessId(broughtToFront, nullptr) == me) return nullptr;
  const DWORD start = ::GetTickCount();
  for (DWORD since = start; ::GetTickCount() - since < kSettled && ::GetTickCount() - start < kLate;) {
    AnswerSentMessages();
    ::Sleep(5);
    if (ForegroundThread() != me || !::IsWindow(broughtToFront)) continue;
    ::SetForegroundWindow(broughtToFront);
    since = ::GetTickCount();
  }
  return broughtToFront;
}

}  // namespace

struct KeyReceiver::Queue {
  HWND window = nullptr;
  DWORD thread = 0;        // 0: nobody, or the program itself
  bool knowsKeys = false;  // it has seen which keys went down
  bool joined = false;
  bool joinedHere = false;  // it was not joined before
  bool refused = false;     // the system does not let it be joined
  bool marked = false;      // the marker key is down, or on its way
  int answers = 0;          // prompt ones in a row
  const DWORD start = ::GetTickCount();
  DWORD pumped = start;            // when the program was to handle its messages
  std::optional<DWORD> waiting{};  // since when for one key

  void Join() {
    joined = JoinQueues(::GetCurrentThreadId(), thread, thread);
    refused = !joined;
    answers = 0;
    waiting.reset();
  }

  void Part() {
    if (joined) PartQueues(::GetCurrentThreadId(), thread, thread);
    joined = false;
  }

  void Mark(bool down) {
    if (marked != down) ::keybd_event(kMarker, 0, down ? 0 : KEYEVENTF_KEYUP, kOwnKey);
    marked = down;
  }

  // The window is gone and the thread has no other one in front.
  bool HasGone() {
    if (::IsWindow(window)) return false;
    if (ForegroundThread() != thread) return true;
    window = ::GetForegroundWindow();
    return false;
  }

  bool MustPump() {
    const DWORD now = ::GetTickCount();
    if (now - start < kPatience || now - pumped < kBetweenPumps) return false;
    pumped = now;
    return true;
  }

  // A message is answered between two keys, also before those that wait. One that is idle answers at once, every time.
  bool IsIdle() {
    DWORD_PTR ignored = 0;
    const bool prompt = ::SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kTimeToAnswer, &ignored) != 0;
    answers = prompt ? answers + 1 : 0;
    if (prompt && answers < kAnswersOfTheIdle) ::Sleep(kTimeToAnswer / 2);
    return answers >= kAnswersOfTheIdle;
  }

  // Whether the keys have been taken, as far as a look tells now.
  bool Look(BYTE key, bool down) {
    if (joined) {
      if ((::GetKeyState(marked ? kMarker : key) < 0) == (marked || down)) return true;
      if (!waiting) waiting = ::GetTickCount();
      if (::GetTickCount() - *waiting < kTimeForOneKey) return false;
      // Keys that another program keeps for itself are never seen either.
      Part();
      knowsKeys = false;
      return false;
    }
    if (!IsIdle()) return false;
    // The marker would go elsewhere.
    if (refused || ForegroundThread() != thread) return true;
    Join();
    marked = false;
    Mark(true);
    return false;
  }

  bool Wait(BYTE key, bool down) {
    if (thread == 0) return true;
    while (!HasGone()) {
      const bool done = Look(key, down);
      // While joined with one that hangs, a window of the program's own that comes to the front would hang, too.
      if ((done || !joined) && MustPump()) return false;
      if (done && !(joined && marked)) break;
      if (done) {
        // Still seen down, the marker would tell nothing the next time.
        Mark(false);
        key = kMarker;
        down = false;
      }
      AnswerSentMessages();
      ::Sleep(1);
    }
    waiting.reset();
    Mark(false);
    return true;
  }
};

KeyReceiver::KeyReceiver() : queue_(std::make_unique<Queue>()) {}

KeyReceiver::~KeyReceiver() {
  queue_->Mark(false);
  if (queue_->joinedHere) queue_->Part();
}

bool KeyReceiver::Follow() {
  Queue& queue = *queue_;
  const DWORD me = ::GetCurrentThreadId();
  if (queue.thread == 0 && ::GetTickCount() - broughtAt < kLate) queue.window = SettledFront();
  // A user may click on a dialog of the program meanwhile.
  if (ForegroundThread() == me && ::IsWindow(queue.window)) ::SetForegroundWindow(queue.window);
  const DWORD thread = ForegroundThread();
  const bool own = thread == me;
  if (const DWORD receiver = own ? 0 : thread; receiver != queue.thread) {
    if (queue.joinedHere) queue.Part();
    queue.thread = receiver;
    queue.joined = joinedThreads.contains(receiver);
    queue.joinedHere = !queue.joined;
    if (!queue.joined && receiver != 0) queue.Join();
    queue.knowsKeys = false;
  }
  queue.window = own ? nullptr : ::GetForegroundWindow();
  return !std::exchange(queue.knowsKeys, true);
}

bool KeyReceiver::Took(std::uint8_t bVk, bool down) { return queue_->refused || queue_->Wait(bVk, down); }

bool KeyReceiver::TookAll() {
  Queue& queue = *queue_;
  if (queue.thread == 0) return true;
  if (queue.joined) queue.Mark(true);
  return queue.Wait(kMarker, true);
}

bool KeyReceiver::IsOwn() const { return ForegroundThread() == ::GetCurrentThreadId(); }

bool AttachThreadInput(std::uint32_t idAttach, std::uint32_t idAttachTo, bool fAttach) {
  const DWORD other = idAttach == ::GetCurrentThreadId() ? idAttachTo : idAttach;
  return (fAttach ? JoinQueues : PartQueues)(idAttach, idAttachTo, other);
}

std::int32_t SetFocus(std::int32_t hWnd) { return NumberOf(::SetFocus(HandleOf<HWND>(hWnd))); }

bool BlockInput(bool fBlockIt) {
  const auto function = Bind<BOOL WINAPI(BOOL)>("user32.dll", "BlockInput");
  return function(fBlockIt ? TRUE : FALSE) != FALSE;
}

}  // namespace platform
