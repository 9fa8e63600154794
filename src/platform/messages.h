// Window messages. A text that is sent or asked for is carried over to the other process by the system.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

constexpr std::uint32_t WM_SETTEXT = 12;
constexpr std::uint32_t WM_GETTEXT = 13;
constexpr std::uint32_t WM_CLOSE = 16;
constexpr std::uint32_t WM_NCDESTROY = 130;
constexpr std::uint32_t WM_KEYDOWN = 256;
constexpr std::uint32_t WM_KEYUP = 257;
constexpr std::uint32_t WM_CHAR = 258;
constexpr std::uint32_t WM_SYSKEYDOWN = 260;
constexpr std::uint32_t WM_SYSKEYUP = 261;
constexpr std::uint32_t WM_SYSCHAR = 262;
constexpr std::uint32_t WM_COMMAND = 273;
constexpr std::uint32_t WM_MOUSEMOVE = 512;
constexpr std::uint32_t WM_RBUTTONUP = 517;
constexpr std::uint32_t WM_HOTKEY = 786;

// Buttons, check boxes and options. BM_CLICK does what the user's click does, BM_SETCHECK changes the mark alone.
constexpr std::uint32_t BM_GETCHECK = 240;
constexpr std::uint32_t BM_SETCHECK = 241;
constexpr std::uint32_t BM_CLICK = 245;

// Combo boxes. An answer of -1 is "none" or "no such entry". CB_FINDSTRING takes a text and answers the first entry
// that begins with it, ignoring case, of those behind the start index and then of those before it and the start itself.
constexpr std::uint32_t CB_GETCOUNT = 326;
constexpr std::uint32_t CB_GETCURSEL = 327;
constexpr std::uint32_t CB_GETLBTEXT = 328;
constexpr std::uint32_t CB_GETLBTEXTLEN = 329;
constexpr std::uint32_t CB_FINDSTRING = 332;
constexpr std::uint32_t CB_SETCURSEL = 334;
// What a combo box tells its parent in the high word of a WM_COMMAND.
constexpr std::int16_t CBN_SELCHANGE = 1;
constexpr std::int16_t CBN_SELENDOK = 9;

// List views. The record of a message lies in memory that the list's process can reach (process_memory.h); the address
// of its text, too.
struct LVITEM {
  std::uint32_t mask = 0;  // which of the fields are meant
  std::int32_t iItem = 0;
  std::int32_t iSubItem = 0;
  std::uint32_t state = 0;
  std::uint32_t stateMask = 0;
  std::int32_t pszText = 0;
  std::int32_t cchTextMax = 0;  // characters, a NUL included
  std::int32_t iImage = 0;
  std::int32_t lParam = 0;
  std::int32_t iIndent = 0;
};
static_assert(sizeof(LVITEM) == 40);

constexpr std::uint32_t LVIF_TEXT = 1;
constexpr std::uint32_t LVIS_FOCUSED = 1;
constexpr std::uint32_t LVIS_SELECTED = 2;
constexpr std::uint32_t LVM_GETITEMCOUNT = 4100;
constexpr std::uint32_t LVM_SETITEMSTATE = 4139;
constexpr std::uint32_t LVM_GETITEMTEXTA = 4141;
constexpr std::uint32_t LVM_GETSELECTEDCOUNT = 4146;
constexpr std::uint32_t LVM_GETSELECTIONMARK = 4162;
// A standard list takes this number for its LVM_GETITEMW: the row stands in the record, the first parameter is not
// looked at.
constexpr std::uint32_t LVM_GETITEMTEXTW = 4171;

// Folder browser dialogs.
constexpr std::uint32_t BFFM_SETSELECTIONA = 1126;

// Characters of an entry of a combo box; no list holds a longer one.
constexpr std::int32_t kLongestEntry = 1000000;

// A read buffer of fixed size, filled with NULs. WM_GETTEXT writes at most size - 1 bytes and a NUL into it.
// CB_GETLBTEXT, which is told no size, writes as much of the entry as fits, and a NUL where that still fits, and
// answers the entry's whole length, whatever length the control has told before.
struct TextBuffer {
  std::string bytes;
  explicit TextBuffer(std::size_t size) : bytes(size, '\0') {}
};

// Waits, without limit, until the window's procedure has answered, and yields its answer; 0 for no window.
std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam);
std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::string_view lParam);
std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, TextBuffer& lParam);

// Puts the message into the window's queue and returns at once; false when there is no such window.
bool PostMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam);

}  // namespace platform
