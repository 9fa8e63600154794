// A target that takes its time: a field that works at each character, and a key whose handler takes seconds.
//
//   SLOW.EXE --key-time MILLISECONDS --handler MILLISECONDS --log FILE
//
// The window "Langsames Fenster" has an edit field (id 7) and a button "Fertig" (id 8). The field writes down each
// character when it has worked at it ("Zeichen 97"), F5 when its handler begins and ends, and the button what stands in
// the field when it is pressed ("Fertig: abc"), which then is empty and has the focus.
#include <windows.h>

#include <cstdlib>
#include <map>
#include <string>

namespace {

constexpr int kIdField = 7;
constexpr int kIdButton = 8;

std::map<std::string, std::string> options;
WNDPROC editProcedure = nullptr;
HWND field = nullptr;

DWORD Milliseconds(const char* option) { return static_cast<DWORD>(std::atoi(options[option].c_str())); }

void Journal(const std::string& line) {
  HANDLE file = CreateFileA(options["--log"].c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  const std::string text = line + "\r\n";
  DWORD written = 0;
  WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
}

LRESULT CALLBACK FieldProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CHAR) {
    Sleep(Milliseconds("--key-time"));
    Journal("Zeichen " + std::to_string(wParam));
  }
  if (message == WM_KEYDOWN && wParam == VK_F5) {
    Journal("F5 beginnt");
    Sleep(Milliseconds("--handler"));
    Journal("F5 endet");
  }
  return CallWindowProcA(editProcedure, window, message, wParam, lParam);
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == kIdButton) {
        char text[200] = "";
        GetWindowTextA(field, text, sizeof text);
        Journal(std::string("Fertig: ") + text);
        SetWindowTextA(field, "");
        SetFocus(field);
      }
      return 0;
    case WM_SETFOCUS:
      SetFocus(field);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int main(int count, char** arguments) {
  for (int i = 1; i + 1 < count; i += 2) options[arguments[i]] = arguments[i + 1];
  WNDCLASSA windowClass = {};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  windowClass.lpszClassName = "SlowWindow";
  RegisterClassA(&windowClass);
  const HWND window = CreateWindowA("SlowWindow", "Langsames Fenster", WS_OVERLAPPEDWINDOW, 40, 40, 500, 140, nullptr,
                                    nullptr, nullptr, nullptr);
  constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
  field = CreateWindowA("Edit", "", kChild | WS_BORDER | ES_AUTOHSCROLL, 12, 12, 450, 24, window,
                        reinterpret_cast<HMENU>(kIdField), nullptr, nullptr);
  CreateWindowA("Button", "Fertig", kChild, 12, 50, 100, 26, window, reinterpret_cast<HMENU>(kIdButton), nullptr,
                nullptr);
  editProcedure = reinterpret_cast<WNDPROC>(SetWindowLongA(field, GWL_WNDPROC, reinterpret_cast<LONG>(FieldProcedure)));
  ShowWindow(window, SW_SHOWNORMAL);
  SetForegroundWindow(window);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}
