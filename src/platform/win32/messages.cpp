#include "platform/messages.h"

#include <algorithm>
#include <string_view>

#include "runtime/code_page.h"
#include "runtime/fault.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {
namespace {

// Where an entry is put. The message names no size, and the length that the control tells can be wrong, or right no
// longer. So there is room for the longest entry, and behind it a place that cannot be written: the system then ends
// the copy of a longer one.
class EntryRoom {
 public:
  EntryRoom() : start_(::VirtualAlloc(nullptr, kSize + kGuard, MEM_RESERVE, PAGE_NOACCESS)) {
    if (start_ == nullptr || ::VirtualAlloc(start_, kSize, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
      Release();
      throw runtime::Fault(runtime::FaultNumber::OutOfMemory);
    }
  }
  ~EntryRoom() { Release(); }
  EntryRoom(const EntryRoom&) = delete;
  EntryRoom& operator=(const EntryRoom&) = delete;

  std::int32_t Address() const { return NumberOf(start_); }

  // What stands there in front of a NUL.
  template <class Character>
  std::basic_string_view<Character> Text() const {
    const std::basic_string_view<Character> all(static_cast<const Character*>(start_), kLongestEntry);
    return all.substr(0, all.find(Character{}));
  }

 private:
  static constexpr SIZE_T kSize = (kLongestEntry + 1) * sizeof(wchar_t);
  static constexpr SIZE_T kGuard = 1 << 16;

  void Release() { ::VirtualFree(start_, 0, MEM_RELEASE); }

  void* start_;
};

// The entry in two-byte text: asked for 8-bit text, a combo box of another process gives two-byte text all the same.
// The 9x family knows 8-bit text alone.
std::int32_t ReadEntry(std::int32_t hWnd, std::int32_t index, TextBuffer& target) {
  const EntryRoom room;
  std::int32_t answer = 0;
  std::string entry;
  if (IsFamily9x()) {
    answer = SendMessageA(hWnd, CB_GETLBTEXT, index, room.Address());
    entry = room.Text<char>();
  } else {
    answer = static_cast<std::int32_t>(
        ::SendMessageW(HandleOf<HWND>(hWnd), CB_GETLBTEXT, static_cast<WPARAM>(index), room.Address()));
    entry = runtime::FromUtf16(room.Text<char16_t>());
  }
  if (answer < 0) return answer;
  const std::size_t count = std::min({static_cast<std::size_t>(answer), entry.size(), target.bytes.size()});
  std::copy_n(entry.begin(), count, target.bytes.begin());
  if (count < target.bytes.size()) target.bytes[count] = '\0';
  return answer;
}

}  // namespace

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam) {
  // Asked for the length of 8-bit text, some versions of the system fetch the entry into room of the length told first.
  if (Msg == CB_GETLBTEXTLEN && !IsFamily9x())
    return static_cast<std::int32_t>(::SendMessageW(HandleOf<HWND>(hWnd), Msg, static_cast<WPARAM>(wParam), lParam));
  return static_cast<std::int32_t>(::SendMessageA(HandleOf<HWND>(hWnd), Msg, static_cast<WPARAM>(wParam), lParam));
}

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::string_view lParam) {
  const std::string text(lParam);  // ended by a NUL
  return SendMessageA(hWnd, Msg, wParam, NumberOf(text.c_str()));
}

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, TextBuffer& lParam) {
  if (Msg == CB_GETLBTEXT) return ReadEntry(hWnd, wParam, lParam);
  // The window's procedure believes the size that it is told.
  if (Msg == WM_GETTEXT) wParam = std::min(wParam, static_cast<std::int32_t>(lParam.bytes.size()));
  return SendMessageA(hWnd, Msg, wParam, NumberOf(lParam.bytes.data()));
}

bool PostMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam) {
  // Without a window the system posts to the thread and reports success.
  if (hWnd == 0) return false;
  return ::PostMessageA(HandleOf<HWND>(hWnd), Msg, static_cast<WPARAM>(wParam), lParam) != FALSE;
}

}  // namespace platform
