#include "platform/messages.h"

#include <algorithm>

#include "runtime/code_page.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {
namespace {

// The message names no size, so the entry gets a buffer of its own, with room for one that has grown meanwhile.
constexpr std::size_t kRoomToGrow = 4096;

// The entry in two-byte text: asked for 8-bit text, a combo box of another process gives two-byte text all the same.
std::int32_t ReadEntryW(std::int32_t hWnd, std::int32_t index, std::size_t length, std::string& entry) {
  std::u16string buffer(length + kRoomToGrow, u'\0');
  const auto answer = static_cast<std::int32_t>(
      ::SendMessageW(HandleOf<HWND>(hWnd), CB_GETLBTEXT, static_cast<WPARAM>(index), NumberOf(buffer.data())));
  entry = runtime::FromUtf16(buffer);
  return answer;
}

// The 9x family knows 8-bit text alone.
std::int32_t ReadEntryA(std::int32_t hWnd, std::int32_t index, std::size_t length, std::string& entry) {
  entry.assign(length + kRoomToGrow, '\0');
  return SendMessageA(hWnd, CB_GETLBTEXT, index, NumberOf(entry.data()));
}

std::int32_t ReadEntry(std::int32_t hWnd, std::int32_t index, TextBuffer& target) {
  const std::int32_t length = SendMessageA(hWnd, CB_GETLBTEXTLEN, index, 0);
  if (length < 0) return length;
  std::string entry;
  const auto read = IsFamily9x() ? ReadEntryA : ReadEntryW;
  const std::int32_t answer = read(hWnd, index, static_cast<std::size_t>(length), entry);
  if (answer < 0) return answer;
  const std::size_t count = std::min({static_cast<std::size_t>(answer), entry.size(), target.bytes.size()});
  std::copy_n(entry.begin(), count, target.bytes.begin());
  if (count < target.bytes.size()) target.bytes[count] = '\0';
  return answer;
}

}  // namespace

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam) {
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
