// The behaviour of window classes.
#include "platform/simulated/controls.h"

#include <algorithm>

#include "platform/class_names.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

bool IsEditField(const Window& window) {
  return runtime::EqualIgnoringCase(window.className, "Edit") ||
         runtime::EqualIgnoringCase(window.className, kTextBoxClass);
}

// A field of one line adds what is typed to its end.
void Type(std::string& text, char character) {
  if (character == '\b' && !text.empty()) text.pop_back();
  if (static_cast<unsigned char>(character) >= ' ') text += character;
}

// Copies at most size - 1 bytes of the text and a NUL; yields the count without the NUL.
std::int32_t CopyText(const std::string& text, std::size_t size, TextBuffer& buffer) {
  const std::size_t room = std::min(size, buffer.bytes.size());
  if (room == 0) return 0;
  const std::size_t count = std::min(text.size(), room - 1);
  std::copy_n(text.begin(), count, buffer.bytes.begin());
  buffer.bytes[count] = '\0';
  return static_cast<std::int32_t>(count);
}

// What every window does.
std::int32_t PlainProcedure(std::int32_t hWnd, const Message& message, TextBuffer* buffer) {
  Window& window = At(hWnd);
  switch (message.number) {
    case WM_SETTEXT:
      window.text = message.text;
      return 1;
    case WM_CHAR:
      if (IsEditField(window)) Type(window.text, static_cast<char>(message.wParam));
      return 0;
    case WM_GETTEXT:
      if (buffer == nullptr) return 0;
      return CopyText(window.text, static_cast<std::size_t>(std::max(0, message.wParam)), *buffer);
    case WM_CLOSE:
      DestroyWindow(hWnd);
      return 0;
    default:
      return 0;
  }
}

}  // namespace

std::int32_t ClassProcedure(std::int32_t hWnd, const Message& message, TextBuffer* buffer) {
  const Window& window = At(hWnd);
  std::optional<std::int32_t> answer;
  if (IsButton(window)) answer = ButtonProcedure(hWnd, message);
  else if (IsComboBox(window)) answer = ComboBoxProcedure(hWnd, message, buffer);
  else if (IsListView(window)) answer = ListViewProcedure(hWnd, message);
  return answer ? *answer : PlainProcedure(hWnd, message, buffer);
}

}  // namespace platform::simulated
