// The tests' hand inside Windows: reads commands from standard input, one per line with fields separated by tabs, and
// answers each with lines of such fields and a closing line ".". Handles and numbers are decimal, texts are in the
// 8-bit code page with tab, line ends, NUL and backslash written as \t, \n, \r, \0, \\.
//
//   processes                      process, name of its file
//   windows                        handle, process, visible, enabled, class, text, left, top, right, bottom
//   children WINDOW                handle, parent, id, visible, enabled, class, text, left, top, right, bottom
//   foreground                     handle
//   focus WINDOW                   handle of the window with the focus, of those that share the queue of this one
//   xwindow WINDOW                 the window of the display that shows this top-level window, or 0
//   style WINDOW                   the style bits
//   extent WIDTH TEXT              width and height of the text in the dialog font, broken into lines where a width is
//                                  given; a text of one line, with its accelerator, where it is 0
//   text WINDOW                    text, asked by message
//   settext WINDOW TEXT            answer to WM_SETTEXT
//   post WINDOW MESSAGE W L        1 when posted
//   send WINDOW MESSAGE W L        answer; fails when there is none within 30 seconds
//   press WINDOW COUNT             sends WM_HOTKEY so often, each time waiting for its end
//   registermessage NAME           number of the message of this name
//   removeicon WINDOW ID           takes the icon of a window out of the notification area, as a shell that ends does
//   counts PROCESS                 kernel handles, windows, GDI objects, processor time in milliseconds
//   setregistry KEY NAME TEXT      writes a text below HKEY_LOCAL_MACHINE
//   getregistry KEY NAME           text
//   putclipboard TEXT              puts the text on the clipboard
//   holdclipboard HOLD             opens the clipboard and keeps it open, or lets it go
//   holdfile PATH                  opens the file for itself alone; the handle
//   letgofile HANDLE               closes it
#include <windows.h>

#include <shellapi.h>
#include <tlhelp32.h>
#include <winternl.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

using Fields = std::vector<std::string>;

struct Failure {
  std::string text;
};

std::string Escaped(const std::string& text) {
  std::string result;
  for (char c : text) {
    switch (c) {
      case '\t':
        result += "\\t";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\r':
        result += "\\r";
        break;
      case '\\':
        result += "\\\\";
        break;
      default:
        result += c;
    }
  }
  return result;
}

std::string Unescaped(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      result += text[i];
      continue;
    }
    char c = text[++i];
    result += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c == '0' ? '\0' : c;
  }
  return result;
}

void Answer(const Fields& fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : "\t") + Escaped(field);
  std::puts(line.c_str());
}

std::string Number(long long number) { return std::to_string(number); }
std::string Number(HWND window) { return Number(reinterpret_cast<long long>(window)); }

HWND Window(const std::string& text) { return reinterpret_cast<HWND>(std::atol(text.c_str())); }
LONG_PTR ToNumber(const std::string& text) { return static_cast<LONG_PTR>(std::strtoll(text.c_str(), nullptr, 0)); }

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT timeout = 30000) {
  DWORD_PTR answer = 0;
  if (!SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, timeout, &answer)) {
    throw Failure{"no answer from window " + Number(window)};
  }
  return static_cast<LRESULT>(answer);
}

// Asked by message, so that the text of another process's text box is told too.
std::string TextOf(HWND window) {
  std::vector<char> buffer(65536);
  Send(window, WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data()), 2000);
  return buffer.data();
}

std::string ClassOf(HWND window) {
  char name[256] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

void AddState(Fields& fields, HWND window, const std::string& text) {
  RECT place{};
  GetWindowRect(window, &place);
  for (std::string field : {Number(IsWindowVisible(window)), Number(IsWindowEnabled(window)), ClassOf(window), text,
                            Number(place.left), Number(place.top), Number(place.right), Number(place.bottom)}) {
    fields.push_back(field);
  }
}

BOOL CALLBACK AnswerWindow(HWND window, LPARAM) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  char title[1024] = "";
  GetWindowTextA(window, title, sizeof title);
  Fields fields{Number(window), Number(process)};
  AddState(fields, window, title);
  Answer(fields);
  return TRUE;
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

// A failure must not leave through the system's enumeration, so that comes first.
void AnswerChildren(HWND parent) {
  std::vector<HWND> children;
  EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&children));
  for (HWND child : children) {
    Fields fields{Number(child), Number(GetParent(child)), Number(GetDlgCtrlID(child))};
    try {
      AddState(fields, child, TextOf(child));
    } catch (const Failure&) {
      if (IsWindow(child)) throw;
      continue;  // it has gone meanwhile
    }
    Answer(fields);
  }
}

// Windows of a process: top-level, message-only, and all their descendants.
struct WindowCount {
  DWORD process;
  int count;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter) {
  auto* found = reinterpret_cast<WindowCount*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == found->process) ++found->count;
  return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM parameter) {
  CountWindow(window, parameter);
  EnumChildWindows(window, CountWindow, parameter);
  return TRUE;
}

int WindowsOf(DWORD process) {
  WindowCount found{process, 0};
  LPARAM parameter = reinterpret_cast<LPARAM>(&found);
  EnumWindows(CountWithChildren, parameter);
  HWND window = nullptr;
  while ((window = FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
    CountWithChildren(window, parameter);
  }
  return found.count;
}

// The system's own answer, or, where it has none, the entries in use of the process's table of GDI handles.
int GdiObjectsOf(HANDLE process) {
  DWORD objects = GetGuiResources(process, GR_GDIOBJECTS);
  if (objects != 0) return static_cast<int>(objects);

  struct Entry {
    unsigned char object[8], owner[4], unique[2], type, flags, userPointer[8];
  };
  constexpr int kEntries = 16384;
  constexpr int kTableOffset = 0x94;  // in the process's environment block
  PROCESS_BASIC_INFORMATION information{};
  NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr);
  const char* block = reinterpret_cast<const char*>(information.PebBaseAddress);
  const void* table = nullptr;
  std::vector<Entry> entries(kEntries);
  if (!ReadProcessMemory(process, block + kTableOffset, &table, sizeof table, nullptr) ||
      !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr)) {
    throw Failure{"the table of GDI handles cannot be read"};
  }
  int used = 0;
  for (const Entry& entry : entries) used += entry.type != 0;
  return used;
}

int HandlesOf(DWORD process) {
  struct Handle {
    USHORT process, creator;
    UCHAR type, flags;
    USHORT value;
    void* object;
    ULONG access;
  };
  std::vector<unsigned char> buffer(1 << 20);
  constexpr auto kSystemHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(16);
  if (NtQuerySystemInformation(kSystemHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr) <
      0) {
    throw Failure{"the table of handles cannot be read"};
  }
  ULONG count = *reinterpret_cast<ULONG*>(buffer.data());
  auto* handles = reinterpret_cast<Handle*>(buffer.data() + sizeof(ULONG));
  int found = 0;
  for (ULONG i = 0; i < count; ++i) found += handles[i].process == process;
  return found;
}

HANDLE Open(const std::string& process) {
  DWORD access = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ;
  HANDLE handle = OpenProcess(access, FALSE, static_cast<DWORD>(ToNumber(process)));
  if (handle == nullptr) throw Failure{"no process " + process};
  return handle;
}

void Processes(const Fields&) {
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
    Answer({Number(static_cast<long long>(entry.th32ProcessID)), entry.szExeFile});
  }
  CloseHandle(snapshot);
}

long long ProcessorTimeOf(HANDLE process) {
  FILETIME created, ended, kernel, user;
  if (!GetProcessTimes(process, &created, &ended, &kernel, &user)) throw Failure{"no processor time"};
  auto units = [](const FILETIME& time) {
    return static_cast<long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
  };
  return (units(kernel) + units(user)) / 10000;
}

void Counts(const Fields& fields) {
  DWORD id = static_cast<DWORD>(ToNumber(fields[1]));
  HANDLE process = Open(fields[1]);
  int gdi = GdiObjectsOf(process);
  long long time = ProcessorTimeOf(process);
  CloseHandle(process);
  Answer({Number(HandlesOf(id)), Number(WindowsOf(id)), Number(gdi), Number(time)});
}

void SetRegistry(const Fields& fields) {
  HKEY key = nullptr;
  if (RegCreateKeyA(HKEY_LOCAL_MACHINE, fields[1].c_str(), &key) != ERROR_SUCCESS) throw Failure{"no key " + fields[1]};
  RegSetValueExA(key, fields[2].c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(fields[3].c_str()),
                 static_cast<DWORD>(fields[3].size() + 1));
  RegCloseKey(key);
}

void GetRegistry(const Fields& fields) {
  HKEY key = nullptr;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, fields[1].c_str(), &key) != ERROR_SUCCESS) throw Failure{"no key " + fields[1]};
  char text[4096] = "";
  DWORD size = sizeof text - 1;
  LSTATUS status = RegQueryValueExA(key, fields[2].c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size);
  RegCloseKey(key);
  if (status != ERROR_SUCCESS) throw Failure{"no value " + fields[2]};
  Answer({text});
}

void Focus(const Fields& fields) {
  GUITHREADINFO information{};
  information.cbSize = sizeof information;
  if (!GetGUIThreadInfo(GetWindowThreadProcessId(Window(fields[1]), nullptr), &information)) {
    throw Failure{"no window " + fields[1]};
  }
  Answer({Number(information.hwndFocus)});
}

void ExtentOfText(const Fields& fields) {
  NONCLIENTMETRICSA metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  HDC screen = GetDC(nullptr);
  HFONT font = CreateFontIndirectA(&metrics.lfMessageFont);
  HGDIOBJ former = SelectObject(screen, font);
  RECT room{0, 0, static_cast<LONG>(ToNumber(fields[1])), 0};
  UINT drawing = room.right == 0 ? DT_SINGLELINE : DT_NOPREFIX | DT_EXPANDTABS | DT_WORDBREAK | DT_EDITCONTROL;
  DrawTextA(screen, fields[2].c_str(), -1, &room, drawing | DT_CALCRECT);
  SelectObject(screen, former);
  DeleteObject(font);
  ReleaseDC(nullptr, screen);
  Answer({Number(room.right), Number(room.bottom)});
}

// The clipboard needs an owner for what is put on it.
HWND ClipboardOwner() {
  static const HWND owner =
      CreateWindowA("Static", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, GetModuleHandleA(nullptr), nullptr);
  return owner;
}

// Tries again, since other programs look at the clipboard whenever it changes.
void OpenClipboardPatiently() {
  for (int attempt = 0; !OpenClipboard(ClipboardOwner()); ++attempt) {
    if (attempt == 100) throw Failure{"the clipboard is in use"};
    Sleep(20);
  }
}

void HoldClipboard(const Fields& fields) {
  if (fields[1] == "1") OpenClipboardPatiently();
  else CloseClipboard();
}

void PutOnClipboard(const Fields& fields) {
  OpenClipboardPatiently();
  EmptyClipboard();
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, fields[1].size() + 1);
  CopyMemory(GlobalLock(memory), fields[1].c_str(), fields[1].size() + 1);
  GlobalUnlock(memory);
  SetClipboardData(CF_TEXT, memory);
  CloseClipboard();
}

void HoldFile(const Fields& fields) {
  HANDLE file = CreateFileA(fields[1].c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw Failure{"no file " + fields[1]};
  Answer({Number(reinterpret_cast<long long>(file))});
}

void LetGoFile(const Fields& fields) { CloseHandle(reinterpret_cast<HANDLE>(ToNumber(fields[1]))); }

void RemoveIcon(const Fields& fields) {
  NOTIFYICONDATAA icon{};
  icon.cbSize = sizeof icon;
  icon.hWnd = Window(fields[1]);
  icon.uID = static_cast<UINT>(ToNumber(fields[2]));
  if (!Shell_NotifyIconA(NIM_DELETE, &icon)) throw Failure{"no icon " + fields[2]};
}

struct Command {
  std::size_t arguments;
  std::function<void(const Fields&)> run;
};

const std::map<std::string, Command>& Commands() {
  static const std::map<std::string, Command> commands{
      {"processes", {0, Processes}},
      {"windows", {0, [](const Fields&) { EnumWindows(AnswerWindow, 0); }}},
      {"children", {1, [](const Fields& f) { AnswerChildren(Window(f[1])); }}},
      {"foreground", {0, [](const Fields&) { Answer({Number(GetForegroundWindow())}); }}},
      {"xwindow",
       {1,
        [](const Fields& f) {
          Answer({Number(static_cast<HWND>(GetPropA(Window(f[1]), "__wine_x11_whole_window")))});
        }}},
      {"style", {1, [](const Fields& f) { Answer({Number(GetWindowLongA(Window(f[1]), GWL_STYLE))}); }}},
      {"extent", {2, ExtentOfText}},
      {"text", {1, [](const Fields& f) { Answer({TextOf(Window(f[1]))}); }}},
      {"settext",
       {2,
        [](const Fields& f) {
          Answer({Number(Send(Window(f[1]), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(f[2].c_str())))});
        }}},
      {"post",
       {4,
        [](const Fields& f) {
          Answer({Number(PostMessageA(Window(f[1]), static_cast<UINT>(ToNumber(f[2])),
                                      static_cast<WPARAM>(ToNumber(f[3])), ToNumber(f[4])))});
        }}},
      {"send",
       {4,
        [](const Fields& f) {
          Answer({Number(Send(Window(f[1]), static_cast<UINT>(ToNumber(f[2])), static_cast<WPARAM>(ToNumber(f[3])),
                              ToNumber(f[4])))});
        }}},
      {"press",
       {2,
        [](const Fields& f) {
          for (LONG_PTR i = ToNumber(f[2]); i > 0; --i) Send(Window(f[1]), WM_HOTKEY, 1, MAKELPARAM(MOD_ALT, VK_F12));
        }}},
      {"registermessage",
       {1, [](const Fields& f) { Answer({Number(static_cast<long long>(RegisterWindowMessageA(f[1].c_str())))}); }}},
      {"removeicon", {2, RemoveIcon}},
      {"counts", {1, Counts}},
      {"setregistry", {3, SetRegistry}},
      {"getregistry", {2, GetRegistry}},
      {"focus", {1, Focus}},
      {"putclipboard", {1, PutOnClipboard}},
      {"holdclipboard", {1, HoldClipboard}},
      {"holdfile", {1, HoldFile}},
      {"letgofile", {1, LetGoFile}},
  };
  return commands;
}

Fields Split(const std::string& line) {
  Fields fields;
  std::size_t start = 0;
  for (std::size_t end; (end = line.find('\t', start)) != std::string::npos; start = end + 1) {
    fields.push_back(Unescaped(line.substr(start, end - start)));
  }
  fields.push_back(Unescaped(line.substr(start)));
  return fields;
}

void Run(const Fields& fields) {
  auto command = Commands().find(fields[0]);
  if (command == Commands().end()) throw Failure{"unknown command " + fields[0]};
  if (fields.size() != command->second.arguments + 1) throw Failure{"wrong count of arguments for " + fields[0]};
  command->second.run(fields);
}

}  // namespace

int main() {
  // Places are pixels of the screen, as the tests' clicks are. A program that does not know the resolution is told
  // scaled ones: on Windows from Vista on, and in Wine 10; Wine 8 tells every program the pixels of the screen.
  SetProcessDPIAware();
  static char line[65536];
  while (std::fgets(line, sizeof line, stdin) != nullptr) {
    std::string text = line;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    try {
      Run(Split(text));
    } catch (const Failure& failure) {
      Answer({"error", failure.text});
    }
    std::puts(".");
    std::fflush(stdout);
  }
  return 0;
}
