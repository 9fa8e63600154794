#include "look.h"

#include "journal.h"

namespace standin {

namespace {

WNDPROC textBoxProcedure = nullptr;  // of the class of all text boxes

constexpr char kFormClass[] = "ThunderRT6FormDC";

WNDPROC editProcedure = nullptr;

// The button that Enter presses, as a dialog answers it; the focus can be in any other control.
LRESULT DefaultButton(HWND form) {
  for (HWND child = GetWindow(form, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    bool isDefault = (SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
    if (isDefault && IsWindowEnabled(child)) return MAKELRESULT(GetDlgCtrlID(child), DC_HASDEFID);
  }
  return 0;
}

// All forms are of one class, so each brings its own procedure.
LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    void* procedure = reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams;
    SetWindowLongA(window, GWL_USERDATA, reinterpret_cast<LONG>(procedure));
  }
  // The Alt of a system-wide hot key arrives here without its other key and must not open the menu.
  if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_KEYMENU && lParam == 0) return 0;
  if (message == DM_GETDEFID) return DefaultButton(window);
  LONG procedure = GetWindowLongA(window, GWL_USERDATA);
  if (procedure == 0) return DefWindowProcA(window, message, wParam, lParam);
  return reinterpret_cast<WNDPROC>(procedure)(window, message, wParam, lParam);
}

// A text box writes down each text that another program puts into it.
LRESULT CALLBACK TextBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETTEXT && InSendMessage()) {
    Journal("Text " + IdPath(window) + ": " + reinterpret_cast<const char*>(lParam));
  }
  return CallWindowProcA(editProcedure, window, message, wParam, lParam);
}

LRESULT CALLBACK ContainerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && lParam == 0) {
    Journal("Rahmen " + std::to_string(GetDlgCtrlID(window)) + ": Befehl " + std::to_string(LOWORD(wParam)));
  }
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
      return SendMessageA(GetParent(window), message, wParam, lParam);
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

void PaintFrame(HWND window) {
  PAINTSTRUCT paint;
  HDC surface = BeginPaint(window, &paint);
  std::string text = " " + TextOf(window) + " ";
  HGDIOBJ oldFont = SelectObject(surface, DialogFont());
  RECT place;
  GetClientRect(window, &place);
  RECT line = place;
  line.top += Scaled(7);
  DrawEdge(surface, &line, EDGE_ETCHED, BF_RECT);
  SetBkColor(surface, GetSysColor(COLOR_BTNFACE));
  if (text != "  ") TextOutA(surface, Scaled(8), 0, text.c_str(), static_cast<int>(text.size()));
  SelectObject(surface, oldFont);
  EndPaint(window, &paint);
}

LRESULT CALLBACK FrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    PaintFrame(window);
    return 0;
  }
  return ContainerProcedure(window, message, wParam, lParam);
}

void RegisterOwn(HINSTANCE instance, const char* name, WNDPROC procedure) {
  WNDCLASSA description{};
  description.lpfnWndProc = procedure;
  description.hInstance = instance;
  description.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  description.lpszClassName = name;
  RegisterClassA(&description);
}

void RegisterAs(HINSTANCE instance, const char* systemClass, const char* name, WNDPROC procedure = nullptr) {
  WNDCLASSA description{};
  GetClassInfoA(nullptr, systemClass, &description);
  description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  description.hInstance = instance;
  description.lpszClassName = name;
  if (procedure != nullptr) {
    editProcedure = description.lpfnWndProc;
    description.lpfnWndProc = procedure;
  }
  RegisterClassA(&description);
}

int ScreenResolution() {
  HDC screen = GetDC(nullptr);
  int resolution = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return resolution;
}

DWORD ExtendedStyle(const std::string& windowClass) {
  if (windowClass == kTextBoxClass) return WS_EX_CLIENTEDGE;
  if (windowClass == kFrameClass || windowClass == kUserControlClass) return WS_EX_CONTROLPARENT;
  return 0;
}

}  // namespace

std::string IdPath(HWND control) {
  std::string path = std::to_string(GetDlgCtrlID(control));
  HWND parent = GetParent(control);
  bool inContainer = parent != nullptr && (GetWindowLongA(parent, GWL_STYLE) & WS_CHILD) != 0;
  return inContainer ? IdPath(parent) + "/" + path : path;
}

void RegisterClasses(HINSTANCE instance) {
  RegisterOwn(instance, kFormClass, FormProcedure);
  RegisterOwn(instance, kFrameClass, FrameProcedure);
  RegisterOwn(instance, kUserControlClass, ContainerProcedure);
  RegisterAs(instance, "Edit", kTextBoxClass, TextBoxProcedure);
  RegisterAs(instance, "Button", kButtonClass);
  RegisterAs(instance, "Button", kCheckBoxClass);
  RegisterAs(instance, "Button", kOptionButtonClass);
  RegisterAs(instance, "ComboBox", kComboBoxClass);
}

HWND CreateForm(const char* title, DWORD style, int x, int y, int width, int height, HMENU menu, WNDPROC procedure,
                HWND owner) {
  RECT frame{0, 0, Scaled(width), Scaled(height)};
  AdjustWindowRect(&frame, style, menu != nullptr);
  return CreateWindowExA(0, kFormClass, title, style, Scaled(x), Scaled(y), frame.right - frame.left,
                         frame.bottom - frame.top, owner, menu, GetModuleHandleA(nullptr),
                         reinterpret_cast<void*>(procedure));
}

void HandleMessage(MSG& message) {
  HWND active = GetActiveWindow();
  if (active != nullptr && IsDialogMessageA(active, &message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

int MessageLoop() {
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) HandleMessage(message);
  return static_cast<int>(message.wParam);
}

int Scaled(int length) {
  static const int resolution = ScreenResolution();
  return MulDiv(length, resolution, 96);
}

HFONT DialogFont() {
  static const HFONT font =
      CreateFontA(-Scaled(11), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                  CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS, "Tahoma");
  return font;
}

HWND AddControl(HWND parent, const char* windowClass, const char* text, DWORD style, int id, int x, int y, int width,
                int height) {
  HWND control = CreateWindowExA(ExtendedStyle(windowClass), windowClass, text, style | WS_CHILD | WS_VISIBLE,
                                 Scaled(x), Scaled(y), Scaled(width), Scaled(height), parent,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
  SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(DialogFont()), TRUE);
  return control;
}

void SubclassTextBox(HWND box, WNDPROC procedure) {
  textBoxProcedure = reinterpret_cast<WNDPROC>(
      SetWindowLongA(box, GWL_WNDPROC, static_cast<LONG>(reinterpret_cast<LONG_PTR>(procedure))));
}

LRESULT TextBoxProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcA(textBoxProcedure, box, message, wParam, lParam);
}

std::string TextOf(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
  text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace standin
