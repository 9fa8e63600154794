// What the verbs cost against the bare calls that they make, in the windows of another process.
//
// READLISTITEM walks a list of 30,000 rows that has no such value; the bare walk writes the record and the buffer,
// sends the message and reads the buffer for each row. SETTEXT fills a text box; the bare run makes the same calls,
// with the same pauses. Both are taken in turn, and each figure is the best of some runs, so that a busy machine does
// not spoil it. The program ends with 1 when a limit is passed.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "automation/list_views.h"
#include "automation/text_verbs.h"
#include "environment/file_system.h"
#include "frame/log.h"

// The system's headers come last.
#include <windows.h>

#include <commctrl.h>

namespace {

constexpr double kListLimit = 1.2;  // times the bare walk
constexpr double kTextLimit = 1.0;  // milliseconds beyond the bare run
constexpr int kRows = 30000;
constexpr int kWalks = 2;  // a walk takes long under Wine, which stops the other process for each access
constexpr int kTexts = 101;

constexpr char kTitle[] = "Prüfstand";
constexpr int kListId = 12;
constexpr int kEditId = 8;

// The other process.

void FillList(HWND list) {
  LVCOLUMNA column = {};
  column.mask = LVCF_WIDTH;
  column.cx = 100;
  ::SendMessageA(list, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
  ::SendMessageA(list, LVM_SETITEMCOUNT, kRows, 0);
  for (int row = 0; row < kRows; ++row) {
    std::string text = "Mandant " + std::to_string(row);
    LVITEMA item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = text.data();
    ::SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
  }
}

HWND Child(HWND parent, const char* cls, DWORD style, int id, int top) {
  return ::CreateWindowExA(0, cls, "", WS_CHILD | WS_VISIBLE | style, 0, top, 300, 100, parent,
                           reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
}

int RunAsTarget(DWORD starterId) {
  const HANDLE starter = ::OpenProcess(SYNCHRONIZE, FALSE, starterId);
  if (starter == nullptr) return 1;
  ::InitCommonControls();
  const HWND window =
      ::CreateWindowExA(0, WC_DIALOG, "", WS_OVERLAPPEDWINDOW, 40, 60, 400, 300, nullptr, nullptr, nullptr, nullptr);
  FillList(Child(window, WC_LISTVIEWA, LVS_REPORT, kListId, 0));
  Child(window, "Edit", 0, kEditId, 120);
  ::ShowWindow(window, SW_SHOW);
  ::SetWindowTextA(window, kTitle);  // the starter waits for it
  while (::MsgWaitForMultipleObjects(1, &starter, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
  }
  return 0;
}

HWND StartTarget() {
  char program[MAX_PATH];
  ::GetModuleFileNameA(nullptr, program, MAX_PATH);
  std::string command = "\"" + std::string(program) + "\" " + std::to_string(::GetCurrentProcessId());
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process;
  if (!::CreateProcessA(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
    return nullptr;
  HWND window = nullptr;
  for (int round = 0; round < 600 && window == nullptr; ++round) {
    ::Sleep(100);
    window = ::FindWindowA(nullptr, kTitle);
  }
  ::Sleep(1000);  // until it is drawn and the window manager has done its work
  return window;
}

// The bare calls.

bool BareWalk(HWND list) {
  DWORD id = 0;
  ::GetWindowThreadProcessId(list, &id);
  const HANDLE process = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
  auto* block = static_cast<char*>(::VirtualAllocEx(process, nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
  char* text = block + 1024;
  std::int32_t record[10] = {LVIF_TEXT, 0, 0, 0, 0, static_cast<std::int32_t>(reinterpret_cast<LONG_PTR>(text)), 80};
  const char cleared[160] = {};
  char buffer[160] = {};
  bool all = block != nullptr;
  for (int row = 0; row < kRows; ++row) {
    record[1] = row;
    all = ::WriteProcessMemory(process, block, record, sizeof record, nullptr) && all;
    all = ::WriteProcessMemory(process, text, cleared, sizeof cleared, nullptr) && all;
    ::SendMessageA(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(block));
    all = ::ReadProcessMemory(process, text, buffer, sizeof buffer, nullptr) && all;
    all = all && buffer[0] == 'M';
  }
  ::VirtualFreeEx(process, block, 0, MEM_RELEASE);
  ::CloseHandle(process);
  return all;
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

HWND BareEdit(HWND window) {
  std::vector<HWND> children;
  ::EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&children));
  for (const HWND child : children) {
    char name[128];
    ::GetClassNameA(child, name, sizeof name);
    if (::lstrcmpiA(name, "Edit") == 0 && ::GetDlgCtrlID(child) == kEditId) return child;
  }
  return nullptr;
}

// The window by its title, with the pause that each titled window costs.
HWND BareSearch() {
  for (HWND window = ::FindWindowA(nullptr, nullptr); window != nullptr; window = ::GetWindow(window, GW_HWNDNEXT)) {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
    std::string title(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    if (::GetWindowTextA(window, title.data(), static_cast<int>(title.size())) == 0) continue;
    ::Sleep(10);
    if (title.c_str() == std::string(kTitle)) return window;
  }
  return nullptr;
}

bool BareText(HANDLE file) {
  const HWND window = BareSearch();
  if (BareEdit(window) == nullptr) return false;
  const LRESULT answer = ::SendMessageA(BareEdit(window), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Text"));
  const std::string line = "Das Textfeld wurde ausgefüllt (Text)\r\n";
  DWORD written = 0;
  return ::WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) && answer == 1;
}

// Times.

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

bool failed = false;

void Check(bool good, const char* what) {
  if (good) return;
  std::printf("FAILED: %s\n", what);
  failed = true;
}

void TimeList(HWND list) {
  double verb = 1e9;
  double bare = 1e9;
  for (int i = 0; i < kWalks; ++i) {
    bare = std::min(bare, Milliseconds([&] { Check(BareWalk(list), "bare walk"); }));
    verb = std::min(verb, Milliseconds([&] {
                      Check(!basMain::ReadListItem("Mandant", std::to_string(kListId), kTitle, "1"), "READLISTITEM");
                    }));
  }
  std::printf("READLISTITEM over %d rows: %.0f ms, bare calls %.0f ms, ratio %.3f (limit %.1f)\n", kRows, verb, bare,
              verb / bare, kListLimit);
  std::fflush(stdout);
  Check(verb / bare <= kListLimit, "ratio of READLISTITEM");
}

void TimeText() {
  const HANDLE file =
      ::CreateFileA("bare.log", GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  double verb = 1e9;
  double bare = 1e9;
  for (int i = 0; i < kTexts; ++i) {
    bare = std::min(bare, Milliseconds([&] { Check(BareText(file), "bare text"); }));
    verb = std::min(verb, Milliseconds([&] {
                      Check(basMain::SetText("Text", std::to_string(kEditId), kTitle, "1", "Edit"), "SETTEXT");
                    }));
  }
  ::CloseHandle(file);
  const double difference = verb - bare;
  std::printf("SETTEXT, best of %d: %.3f ms, bare calls %.3f ms, difference %.3f ms (limit %.1f ms)\n", kTexts, verb,
              bare, difference, kTextLimit);
  Check(difference <= kTextLimit, "difference of SETTEXT");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) return RunAsTarget(std::stoul(argv[1]));
  basMain::FileSystemState.emplace();
  basMain::OpenLog();
  const HWND window = StartTarget();
  Check(window != nullptr, "no target");
  if (window != nullptr) {
    TimeList(::GetDlgItem(window, kListId));
    TimeText();
  }
  return failed ? 1 : 0;
}
