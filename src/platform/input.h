// Synthetic input: mouse, keys, and the input queues that decide who gets them.
//
// Keys go to the window that has the focus in the thread of the foreground window. Each thread has a queue of input
// with a focus of its own; two queues that are joined share both.
#pragma once

#include <cstdint>
#include <memory>

namespace platform {

// Mouse.

constexpr std::uint32_t MOUSEEVENTF_MOVE = 1;
constexpr std::uint32_t MOUSEEVENTF_LEFTDOWN = 2;
constexpr std::uint32_t MOUSEEVENTF_LEFTUP = 4;
constexpr std::uint32_t MOUSEEVENTF_RIGHTDOWN = 8;
constexpr std::uint32_t MOUSEEVENTF_RIGHTUP = 16;
constexpr std::uint32_t MOUSEEVENTF_MIDDLEDOWN = 32;
constexpr std::uint32_t MOUSEEVENTF_MIDDLEUP = 64;
constexpr std::uint32_t MOUSEEVENTF_ABSOLUTE = 32768;

// Screen pixels.
bool SetCursorPos(std::int32_t X, std::int32_t Y);

// With MOVE and ABSOLUTE dx and dy count from 0 to 65,535 over the width and the height of the screen. Flags that the
// system does not know are ignored.
void mouse_event(std::uint32_t dwFlags, std::int32_t dx, std::int32_t dy, std::uint32_t dwData,
                 std::uint32_t dwExtraInfo);

// Keys.

constexpr std::uint8_t VK_CANCEL = 3;
constexpr std::uint8_t VK_BACK = 8;
constexpr std::uint8_t VK_TAB = 9;
constexpr std::uint8_t VK_RETURN = 13;
constexpr std::uint8_t VK_SHIFT = 16;
constexpr std::uint8_t VK_CONTROL = 17;
constexpr std::uint8_t VK_MENU = 18;  // the Alt key
constexpr std::uint8_t VK_CAPITAL = 20;
constexpr std::uint8_t VK_ESCAPE = 27;
constexpr std::uint8_t VK_PRIOR = 33;
constexpr std::uint8_t VK_NEXT = 34;
constexpr std::uint8_t VK_END = 35;
constexpr std::uint8_t VK_HOME = 36;
constexpr std::uint8_t VK_LEFT = 37;
constexpr std::uint8_t VK_UP = 38;
constexpr std::uint8_t VK_RIGHT = 39;
constexpr std::uint8_t VK_DOWN = 40;
constexpr std::uint8_t VK_SNAPSHOT = 44;
constexpr std::uint8_t VK_INSERT = 45;
constexpr std::uint8_t VK_DELETE = 46;
constexpr std::uint8_t VK_HELP = 47;
constexpr std::uint8_t VK_F1 = 112;
constexpr std::uint8_t VK_NUMLOCK = 144;
constexpr std::uint8_t VK_SCROLL = 145;
// The right ones of the keys that stand on both sides. Ctrl and Alt of them are the left ones unless they are extended.
constexpr std::uint8_t VK_RSHIFT = 161;
constexpr std::uint8_t VK_RCONTROL = 163;
constexpr std::uint8_t VK_RMENU = 165;

constexpr std::uint32_t KEYEVENTF_EXTENDEDKEY = 1;
constexpr std::uint32_t KEYEVENTF_KEYUP = 2;

// One key goes down or up. A scan code of 0 is filled in by the keyboard layout, an extra info of 0 by the mark of the
// program's own keys, as that of a typed character: its own windows take no notice of them.
void keybd_event(std::uint8_t bVk, std::uint8_t bScan, std::uint32_t dwFlags, std::uint32_t dwExtraInfo);

// The key that types a character of the code page on the keyboard layout of the foreground window, with 256 for Shift,
// 512 for Ctrl and 1024 for Alt added; -1 when no key does, or only a dead one, which types with the key behind it.
std::int16_t VkKeyScanA(char ch);

// Types a character on any keyboard layout, without a key of its own.
void TypeCharacter(char ch);

// Negative while the key is down.
std::int16_t GetAsyncKeyState(std::int32_t vKey);
// An odd number while the key (such as VK_CAPITAL) is switched on.
std::int16_t GetKeyState(std::int32_t nVirtKey);

// The queue that keys go to while a string of them is sent: that of the window in front. It is joined with the queue of
// this thread meanwhile, since the state of the keys tells only those who share a queue what has been taken from it. A
// receiver that works at something else is left alone, for it would hold back the clicks on the program's own windows:
// what they share is handled in order.
class KeyReceiver {
 public:
  KeyReceiver();
  // Parts what Follow has joined. The window in front stays.
  ~KeyReceiver();
  KeyReceiver(const KeyReceiver&) = delete;
  KeyReceiver& operator=(const KeyReceiver&) = delete;

  // Before each key: goes over to the window that is in front now, or puts the receiver back where one of the program's
  // own, which takes no key, has come to the front meanwhile. True when the receiver does not know which keys are
  // down, since it is another one or has been parted meanwhile.
  bool Follow();

  // Wait until the key that was sent last, which went down or up, has been taken, or until all keys have been worked
  // at, or until the receiver has gone; there is no limit. A character (TypeCharacter) is waited for with all keys.
  // False: the sending takes more than 5 seconds, so the program handles its messages and calls again. True at once
  // for the program's own windows, which take theirs by the next pump, and without a window in front.
  bool Took(std::uint8_t bVk, bool down);
  bool TookAll();

  // The keys go to the program's own windows.
  bool IsOwn() const;

 private:
  struct Queue;
  std::unique_ptr<Queue> queue_;
};

// Queues and focus.

// Joins the input queue of the first thread to that of the second, or parts them. The foreground window stays, and so
// do the keys that wait in the queue of another thread.
bool AttachThreadInput(std::uint32_t idAttach, std::uint32_t idAttachTo, bool fAttach);

// Moves the focus within the queue of this thread, joined ones included, and activates the window that holds it. Yields
// the window that had it before; 0 for none, and when the window belongs to another queue.
std::int32_t SetFocus(std::int32_t hWnd);

// Keeps the user's own keys and clicks away (true) or lets them through; false when the system refuses.
bool BlockInput(bool fBlockIt);

}  // namespace platform
