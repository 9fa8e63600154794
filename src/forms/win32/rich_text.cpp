#include "forms/win32/rich_text.h"

#include <algorithm>

#include "platform/win32/late_binding.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"
// Behind them, on which it stands.
#include <richedit.h>

namespace forms::win32 {

namespace {

bool HasRichText() {
  static const bool has = platform::LoadSystemLibrary("riched20.dll");
  return has;
}

// What is still to be handed over.
struct Source {
  const char* next;
  std::size_t left;
};

DWORD CALLBACK HandOver(DWORD_PTR cookie, BYTE* buffer, LONG size, LONG* count) {
  Source& source = *reinterpret_cast<Source*>(cookie);
  std::size_t part = std::min(source.left, static_cast<std::size_t>(size));
  // A line end that comes in two parts would count as two.
  if (part > 1 && part < source.left && source.next[part - 1] == '\r') --part;
  // The control would end its text at a NUL.
  std::replace_copy(source.next, source.next + part, reinterpret_cast<char*>(buffer), '\0', ' ');
  source.next += part;
  source.left -= part;
  *count = static_cast<LONG>(part);
  return 0;
}

WNDPROC originalProcedure = nullptr;

// For an editor's sake the control keeps Tab, Enter and Escape, and all of its text is selected when it gets the focus.
// One that is for reading leaves the keys to the form.
LRESULT CALLBACK ReadingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETDLGCODE) return DLGC_WANTARROWS | DLGC_WANTCHARS;
  return ::CallWindowProcA(originalProcedure, window, message, wParam, lParam);
}

}  // namespace

const char* RichTextClass() { return HasRichText() ? "RichEdit20A" : "Edit"; }

void PrepareRichText(std::int32_t hWnd) {
  const HWND window = platform::HandleOf<HWND>(hWnd);
  if (HasRichText()) ::SendMessageA(window, EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
  else ::SendMessageA(window, EM_SETLIMITTEXT, 0, 0);
  originalProcedure =
      platform::HandleOf<WNDPROC>(::SetWindowLongA(window, GWL_WNDPROC, platform::NumberOf(ReadingProcedure)));
}

void ShowRichText(std::int32_t hWnd, const std::string& text) {
  const HWND window = platform::HandleOf<HWND>(hWnd);
  if (HasRichText()) {
    Source source{text.data(), text.size()};
    EDITSTREAM stream = {};
    stream.dwCookie = reinterpret_cast<DWORD_PTR>(&source);
    stream.pfnCallback = HandOver;
    ::SendMessageA(window, EM_STREAMIN, SF_TEXT, reinterpret_cast<LPARAM>(&stream));
  } else {
    std::string shown = text;
    std::replace(shown.begin(), shown.end(), '\0', ' ');
    ::SetWindowTextA(window, shown.c_str());
  }
  // What the user looks for stands at the end.
  const auto end = static_cast<WPARAM>(::GetWindowTextLengthA(window));
  ::SendMessageA(window, EM_SETSEL, end, static_cast<LPARAM>(end));
  ::SendMessageA(window, EM_SCROLLCARET, 0, 0);
}

}  // namespace forms::win32
