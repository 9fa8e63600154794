#ifdef _WIN32

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "fixture.h"
#include "platform/win32/late_binding.h"
#include "runtime/code_page.h"

// The system's headers come last.
#include <windows.h>

#include <commctrl.h>

namespace contract {
namespace {

constexpr char kControllerClass[] = "ContractController";
constexpr ULONG_PTR kAdd = 1;
constexpr ULONG_PTR kDestroy = 2;
constexpr ULONG_PTR kAddRow = 3;
constexpr int kColumns = 3;
constexpr ULONG_PTR kFillClipboard = 4;
constexpr ULONG_PTR kHoldClipboard = 5;
constexpr ULONG_PTR kComeToFront = 6;

// A plan as it goes to the other process.
struct Order {
  char className[64];
  char text[1024];
  std::int32_t parent, id, left, top, width, height;
  BOOL enabled;
  DWORD style;
  DWORD keyTime;
};

// A row for a list view of the other process; it gets as many columns as there are texts.
struct RowOrder {
  std::int32_t list;
  char columns[kColumns][128];
};

HWND HandleOf(std::int32_t hWnd) { return reinterpret_cast<HWND>(static_cast<LONG_PTR>(hWnd)); }
std::int32_t NumberOf(HWND hWnd) { return static_cast<std::int32_t>(reinterpret_cast<LONG_PTR>(hWnd)); }

LRESULT CALLBACK PlainProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND) {
    const std::string text = std::to_string(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)) + " " +
                             std::to_string(static_cast<std::int32_t>(lParam));
    ::SetWindowTextA(hWnd, text.c_str());
    return 0;
  }
  if (message == WM_KEYDOWN && (wParam == kSlowKey || wParam == kEndlessKey)) {
    ::Sleep(wParam == kSlowKey ? 300 : 6000);
    ::SetWindowTextA(hWnd, wParam == kSlowKey ? "langsam" : "endlos");
  }
  return ::DefWindowProcA(hWnd, message, wParam, lParam);
}

LRESULT CALLBACK GrowingProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto grown = [hWnd] {
    wchar_t text[16] = L"";
    ::GetWindowTextW(hWnd, text, 16);
    return static_cast<std::size_t>(std::stoul(text));
  };
  if (message == CB_GETLBTEXTLEN) {
    const bool first = ::SetWindowLongA(hWnd, GWL_USERDATA, 1) == 0;
    return first ? 5 : static_cast<LRESULT>(grown());
  }
  if (message == CB_GETLBTEXT) {
    const std::wstring entry(grown(), L'x');
    std::copy_n(entry.c_str(), entry.size() + 1, reinterpret_cast<wchar_t*>(lParam));
    return static_cast<LRESULT>(entry.size());
  }
  return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// Of two-byte text, so that the system hands an entry over as it is.
void RegisterGrowingClass() {
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = GrowingProcedure;
  windowClass.hInstance = ::GetModuleHandleA(nullptr);
  windowClass.lpszClassName = L"ContractGrowing";
  ::RegisterClassW(&windowClass);
}

WNDPROC editProcedure = nullptr;

LRESULT CALLBACK SlowEditProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CHAR) ::Sleep(static_cast<DWORD>(::GetWindowLongA(hWnd, GWL_USERDATA)));
  return ::CallWindowProcA(editProcedure, hWnd, message, wParam, lParam);
}

void MakeSlow(HWND edit, DWORD keyTime) {
  ::SetWindowLongA(edit, GWL_USERDATA, static_cast<LONG>(keyTime));
  editProcedure = reinterpret_cast<WNDPROC>(
      ::SetWindowLongA(edit, GWL_WNDPROC, static_cast<LONG>(reinterpret_cast<LONG_PTR>(&SlowEditProcedure))));
}

void RegisterClassNamed(const char* name, WNDPROC procedure) {
  WNDCLASSA windowClass = {};
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = ::GetModuleHandleA(nullptr);
  windowClass.lpszClassName = name;
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  ::RegisterClassA(&windowClass);
}

void AddColumns(HWND list) {
  LVCOLUMNA column = {};
  column.mask = LVCF_WIDTH;
  column.cx = 60;
  for (int i = 0; i < kColumns; ++i) ::SendMessageA(list, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
}

void Add(const RowOrder& order) {
  const HWND list = HandleOf(order.list);
  LVITEMA item = {};
  item.mask = LVIF_TEXT;
  item.iItem = static_cast<int>(::SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
  for (item.iSubItem = 0; item.iSubItem < kColumns; ++item.iSubItem) {
    item.pszText = const_cast<char*>(order.columns[item.iSubItem]);
    ::SendMessageA(list, item.iSubItem == 0 ? LVM_INSERTITEMA : LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
  }
}

HWND Create(const Order& order) {
  DWORD style = order.style | WS_VISIBLE | (order.parent != 0 ? WS_CHILD : WS_OVERLAPPEDWINDOW);
  if (!order.enabled) style |= WS_DISABLED;
  if (::lstrcmpiA(order.className, WC_LISTVIEWA) == 0) style |= LVS_REPORT | LVS_SHOWSELALWAYS;
  const HWND hWnd = ::CreateWindowExA(
      0, order.className, order.text, style, order.left, order.top, order.width, order.height, HandleOf(order.parent),
      reinterpret_cast<HMENU>(static_cast<LONG_PTR>(order.id)), ::GetModuleHandleA(nullptr), nullptr);
  if (::lstrcmpiA(order.className, WC_LISTVIEWA) == 0) AddColumns(hWnd);
  if (order.keyTime != 0) MakeSlow(hWnd, order.keyTime);
  if (hWnd == nullptr) throw std::runtime_error("a window of class " + std::string(order.className) + " can't be made");
  return hWnd;
}

// Retries, since other programs look at the clipboard whenever it changes.
bool OpenClipboardAs(HWND hWnd) {
  for (int round = 0; round < 100; ++round) {
    if (::OpenClipboard(hWnd)) return true;
    ::Sleep(20);
  }
  return false;
}

bool FillClipboard(HWND hWnd, const void* bytes, std::size_t size) {
  if (!OpenClipboardAs(hWnd)) return false;
  ::EmptyClipboard();
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size + 1);
  ::CopyMemory(::GlobalLock(memory), bytes, size);
  ::GlobalUnlock(memory);
  const bool filled = ::SetClipboardData(CF_TEXT, memory) != nullptr;
  ::CloseClipboard();
  return filled;
}

LRESULT CALLBACK ControllerProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_COPYDATA) return ::DefWindowProcA(hWnd, message, wParam, lParam);
  const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
  if (data->dwData == kAdd) return NumberOf(Create(*static_cast<const Order*>(data->lpData)));
  if (data->dwData == kDestroy) return ::DestroyWindow(HandleOf(*static_cast<const std::int32_t*>(data->lpData)));
  if (data->dwData == kComeToFront)
    return ::SetForegroundWindow(HandleOf(*static_cast<const std::int32_t*>(data->lpData)));
  if (data->dwData == kAddRow) Add(*static_cast<const RowOrder*>(data->lpData));
  if (data->dwData == kFillClipboard) return FillClipboard(hWnd, data->lpData, data->cbData);
  if (data->dwData == kHoldClipboard)
    return *static_cast<const BOOL*>(data->lpData) ? OpenClipboardAs(hWnd) : ::CloseClipboard();
  return 0;
}

void HandleMessages() {
  MSG message;
  while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
}

// Starts the other process on first use; it ends with this one.
HWND Controller() {
  static const HWND controller = [] {
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    const std::string me = std::to_string(::GetCurrentProcessId());
    std::string command = "\"" + std::string(program) + "\" --foreign " + me;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process;
    if (!::CreateProcessA(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
      throw std::runtime_error("the foreign process can't be started");
    for (int round = 0; round < 200; ++round) {
      if (const HWND found = ::FindWindowA(kControllerClass, me.c_str())) return found;
      ::Sleep(50);
    }
    throw std::runtime_error("the foreign process does not show up");
  }();
  return controller;
}

LRESULT Ask(ULONG_PTR what, const void* data, std::size_t size) {
  COPYDATASTRUCT copy = {what, static_cast<DWORD>(size), const_cast<void*>(data)};
  return ::SendMessageA(Controller(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
}

std::vector<std::int32_t> foreignWindows;
std::vector<std::int32_t> ownWindows;
std::string scratchFolder;

// Whatever a test has left in it, also what must not be written; a link goes without what it leads to.
void RemoveFolder(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + name;
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (isFolder && !isLink) RemoveFolder(path);
    else if (isFolder) ::RemoveDirectoryW(path.c_str());
    else ::DeleteFileW(path.c_str());
  } while (::FindNextFileW(search, &found));
  ::FindClose(search);
  // The separator keeps a blank at the end of the name.
  ::RemoveDirectoryW((folder + L"\\").c_str());
}

void RemoveFolder(const std::string& folder) {
  const std::u16string wide = runtime::ToUtf16(folder);
  RemoveFolder(std::wstring(wide.begin(), wide.end()));
}

// The system removes only keys without any below them.
void RemoveKey(HKEY parent, const std::string& path) {
  HKEY key;
  if (::RegOpenKeyA(parent, path.c_str(), &key) != 0) return;
  char child[256];
  while (::RegEnumKeyA(key, 0, child, sizeof child) == 0) RemoveKey(key, child);
  ::RegCloseKey(key);
  ::RegDeleteKeyA(parent, path.c_str());
}

}  // namespace

void Test::SetUp() {
  char temporary[MAX_PATH];
  ::GetTempPathA(MAX_PATH, temporary);
  scratchFolder = std::string(temporary) + "contract-" + std::to_string(::GetCurrentProcessId());
  RemoveFolder(scratchFolder);
  if (!::CreateDirectoryA(scratchFolder.c_str(), nullptr)) throw std::runtime_error("no fresh folder can be made");
}

void Test::TearDown() {
  for (const std::int32_t hWnd : foreignWindows) DestroyForeignWindow(hWnd);
  for (const std::int32_t hWnd : ownWindows) DestroyOwnWindow(hWnd);
  foreignWindows.clear();
  ownWindows.clear();
  RemoveFolder(scratchFolder);
}

bool EndsTargetsThatOutgrowTheirLength() {
  const HMODULE library = ::GetModuleHandleA("ntdll.dll");
  const auto version = reinterpret_cast<const char* (*)()>(
      reinterpret_cast<void*>(::GetProcAddress(library, "wine_get_version")));
  return version != nullptr && std::atoi(version()) >= 9;
}

std::int32_t AddForeignWindow(const WindowPlan& plan) {
  Order order = {"",
                 "",
                 plan.parent,
                 plan.id,
                 plan.left,
                 plan.top,
                 plan.width,
                 plan.height,
                 plan.enabled,
                 plan.style,
                 static_cast<DWORD>(plan.keyTime)};
  plan.className.copy(order.className, sizeof order.className - 1);
  plan.text.copy(order.text, sizeof order.text - 1);
  foreignWindows.push_back(static_cast<std::int32_t>(Ask(kAdd, &order, sizeof order)));
  return foreignWindows.back();
}

// The foreign process has not said that it knows the resolution.
std::int32_t AddUnawareWindow() { return AddForeignWindow({kPlainClass}); }

void AddEntry(std::int32_t hWnd, const std::string& text) {
  ::SendMessageA(HandleOf(hWnd), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void AddRow(std::int32_t hWnd, const std::vector<std::string>& columns) {
  RowOrder order = {hWnd, {}};
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i].copy(order.columns[i], sizeof order.columns[i] - 1);
  Ask(kAddRow, &order, sizeof order);
}

void RemoveRow(std::int32_t hWnd, std::int32_t row) {
  ::SendMessageA(HandleOf(hWnd), LVM_DELETEITEM, static_cast<WPARAM>(row), 0);
}

void SetSelectionMark(std::int32_t hWnd, std::int32_t row) {
  ::SendMessageA(HandleOf(hWnd), LVM_SETSELECTIONMARK, 0, row);
}

std::int32_t AddOwnWindow(const std::string& text) {
  static const bool registered = (RegisterClassNamed(kPlainClass, ::DefWindowProcA), true);
  static_cast<void>(registered);
  Order order = {"", "", 0, 0, 40, 60, 300, 200, TRUE, 0, 0};
  std::string(kPlainClass).copy(order.className, sizeof order.className - 1);
  text.copy(order.text, sizeof order.text - 1);
  ownWindows.push_back(NumberOf(Create(order)));
  HandleMessages();
  return ownWindows.back();
}

void DestroyForeignWindow(std::int32_t hWnd) { Ask(kDestroy, &hWnd, sizeof hWnd); }
void ForeignWindowComesToFront(std::int32_t hWnd) { Ask(kComeToFront, &hWnd, sizeof hWnd); }
void DestroyOwnWindow(std::int32_t hWnd) { ::DestroyWindow(HandleOf(hWnd)); }

void PutOnClipboard(const std::string& text) {
  if (!Ask(kFillClipboard, text.data(), text.size())) throw std::runtime_error("the clipboard can't be filled");
}

void HoldClipboard(bool hold) {
  const BOOL value = hold;
  if (!Ask(kHoldClipboard, &value, sizeof value)) throw std::runtime_error("the clipboard can't be held or let go");
}

void RunFor(std::int32_t milliseconds) {
  const DWORD start = ::GetTickCount();
  for (DWORD passed = 0; passed < static_cast<DWORD>(milliseconds); passed = ::GetTickCount() - start) {
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(milliseconds) - passed, QS_ALLINPUT);
    HandleMessages();
  }
}

std::string ScratchFolder() { return scratchFolder; }

void WriteWhole(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

void AppendBehindTheBack(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::app) << bytes;
}

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool MakeReadOnly(const std::string& path) {
  ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
  const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return true;
  ::CloseHandle(file);
  return false;
}

bool IsWine() { return ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr; }

std::string ShortPath(const std::string& path) {
  char shortPath[MAX_PATH] = "";
  ::GetShortPathNameA(path.c_str(), shortPath, MAX_PATH);
  return shortPath;
}

void SetVariable(const std::string& name, const std::string& value) {
  ::SetEnvironmentVariableA(name.c_str(), value.empty() ? nullptr : value.c_str());
}

void RemoveRegistryKey(const std::string& path) { RemoveKey(HKEY_LOCAL_MACHINE, path); }

std::string MissingProgram() { return "C:\\no\\such\\program.exe"; }

std::optional<int> RunAsForeignProcess(int argc, char** argv) {
  if (argc != 3 || std::string(argv[1]) != "--foreign") {
    // As the program's manifest does.
    if (const auto aware = platform::BindIfThere<BOOL WINAPI()>("user32.dll", "SetProcessDPIAware")) aware();
    return std::nullopt;
  }
  const HANDLE starter = ::OpenProcess(SYNCHRONIZE, FALSE, std::stoul(argv[2]));
  if (starter == nullptr) return 1;
  ::InitCommonControls();
  RegisterClassNamed(kPlainClass, &PlainProcedure);
  RegisterClassNamed(kControllerClass, &ControllerProcedure);
  RegisterGrowingClass();
  ::CreateWindowExA(0, kControllerClass, argv[2], 0, 0, 0, 0, 0, nullptr, nullptr, ::GetModuleHandleA(nullptr),
                    nullptr);
  while (::MsgWaitForMultipleObjects(1, &starter, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) HandleMessages();
  return 0;
}

}  // namespace contract

#endif
