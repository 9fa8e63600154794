// The simulated desktop: what tests and rehearsals do with it. The program itself sees it only through the platform
// operations.
//
// It holds processes, top-level windows in Z-order with their controls, a clock, an input log, a registry, an
// environment, drives over host folders, the notification area and the user who answers message boxes. There is one
// desktop; Reset() makes a fresh one. Time stands still except in Sleep (and while a modal dialog waits for its user):
// a sleep moves the clock and runs what was scheduled up to then, so a wait of an hour takes a millisecond. What is
// posted to another process is handled at the next moment in which that process could run: a sleep, a pump or a message
// sent to it. What is posted to the program's own windows is handled when the program pumps.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/types.h"
#include "platform/window_state.h"
#include "runtime/dates.h"
#include "runtime/fault.h"

namespace platform::simulated {

// The process of the program itself.
constexpr std::uint32_t kOwnProcess = 1;

struct Message {
  std::uint32_t number = 0;
  std::int32_t wParam = 0;
  std::int32_t lParam = 0;
  std::string text = {};     // what SendMessageA carries over as a text
  bool fromProgram = false;  // comes of a key that the program itself has sent
};

// The styles that the controls go by, under the system's names.
constexpr std::uint32_t WS_GROUP = 0x20000;
constexpr std::uint32_t BS_CHECKBOX = 2;
constexpr std::uint32_t BS_AUTOCHECKBOX = 3;
constexpr std::uint32_t BS_RADIOBUTTON = 4;
constexpr std::uint32_t BS_3STATE = 5;
constexpr std::uint32_t BS_AUTO3STATE = 6;
constexpr std::uint32_t BS_GROUPBOX = 7;
constexpr std::uint32_t BS_AUTORADIOBUTTON = 9;
constexpr std::uint32_t CBS_DROPDOWNLIST = 3;
constexpr std::uint32_t LVS_SINGLESEL = 4;

// What the file dialog tells when the chosen file has another extension than the default one.
constexpr std::uint32_t OFN_EXTENSIONDIFFERENT = 0x400;

struct ListRow {
  std::vector<std::string> columns = {};
  std::uint32_t state = 0;  // of LVIS_FOCUSED and LVIS_SELECTED
};

struct Window {
  // What a test says when it adds a window.
  std::string className = {};
  std::string text = {};
  std::int32_t parent = 0;  // 0: top-level
  std::int32_t id = 0;
  std::uint32_t process = 0;  // 0: that of the parent, or a process of its own
  bool visible = true;
  bool enabled = true;
  Rect rectangle = {};  // screen pixels
  // Of a top-level window: its program knows the resolution of the screen. One that does not is drawn larger on screens
  // of more than 96 dots to the inch.
  bool knowsResolution = true;
  // A "Button" is a push button unless its style says otherwise; a "ThunderRT6CheckBox" is a check box and a
  // "ThunderRT6OptionButton" an option without any style.
  std::uint32_t style = 0;
  std::int32_t check = 0;                 // check boxes and options: 1 marked, 2 undetermined
  std::vector<std::string> entries = {};  // combo boxes
  std::int32_t selection = -1;            // the selected entry
  std::vector<ListRow> rows = {};         // list views: class "SysListView32", or any other that is given rows
  std::int32_t selectionMark = -1;        // row that the user selected last
  // The list takes the row of LVM_GETITEMTEXTW from the message's first parameter instead of the record.
  bool rowFromParameter = false;
  std::int32_t keyTime = 0;      // milliseconds that its process works at each key that it gets
  std::int32_t messageTime = 0;  // the same for each other message
  // The application's own reaction, asked before the behaviour of the class. An answer ends the matter.
  std::function<std::optional<std::int32_t>(const Message&)> procedure = {};

  // What the desktop keeps.
  std::int32_t handle = 0;
  bool topMost = false;
  std::uint32_t showCmd = SW_SHOWNORMAL;
  WNDPROC hook = nullptr;                   // set by SetWindowLongA
  std::vector<std::int32_t> children = {};  // Z-order
  std::vector<Message> received = {};       // every message that was handled, sent or posted
};

// Thrown when the simulated clock passes the limit, so that an endless wait ends a test instead of hanging it. It is no
// Fault: no skip mode and no handler swallows it.
struct TimeLimitPassed {};
// Thrown by EndProgram.
struct ProgramEnded {};

// A fresh desktop: no windows, empty registry, drive C: over a new temporary host folder, 14 March 2006 09:30:00, the
// NT family version 5.1, program folder C:\QUMA (made).
void Reset();

// Windows. A new top-level window comes up on top of the Z-order (below top-most ones); a new child goes to the bottom
// of its siblings.
std::int32_t AddWindow(Window window);
void DestroyWindow(std::int32_t hWnd);
bool Exists(std::int32_t hWnd);
Window& At(std::int32_t hWnd);         // must exist; the reference is valid until a window is added or destroyed
void BringToFront(std::int32_t hWnd);  // top of the Z-order, without becoming the foreground window
void Activate(std::int32_t hWnd);      // top of the Z-order and foreground window
// A foreground window that is hidden or destroyed leaves its place to the next visible one below.
void ShowWindow(std::int32_t hWnd, bool visible);
std::int32_t Foreground();

// The clock.
void Schedule(std::int32_t milliseconds, std::function<void()> event);  // from now on
std::int64_t Clock();                                                   // simulated milliseconds since Reset
void SetNow(const runtime::DateTime& now);
void SetTimeLimit(std::int64_t milliseconds);  // default: 24 simulated hours
void SetRealTime(bool on);                     // whether the clock's moves take their time; default: no
// Runs the clock to the next scheduled event and carries that out; false when nothing is scheduled.
bool RunNextEvent();
// Lets the other processes run and handles what is posted to the program's own windows. Part of a pump.
void HandleOwnMessages();

// Lets an operation, or a library, fail, by its name in the platform headers, so many times (-1: always, 0: never
// again), from the first call on or after so many that work. It then yields what the system yields on failure, or
// raises the fault where it raises faults.
void Fail(const std::string& operation, int times = -1, int after = 0,
          runtime::FaultNumber fault = runtime::FaultNumber::AccessDenied);
bool Fails(const std::string& operation);           // for the implementation: counts down
void RaiseIfFailing(const std::string& operation);  // the same with the fault

// Every mouse_event, SetCursorPos, BlockInput, SetForegroundWindow, keybd_event, TypeCharacter, AttachThreadInput,
// SetFocus and SetWindowPos (window and place in the Z-order), in order, as "SetCursorPos 10 20".
std::vector<std::string>& InputLog();

// The keyboard has the German layout. A key waits in the queue of the process that is in front when it is pressed, and
// is handled when that process runs, by the window that has the focus then: it gets WM_KEYDOWN and WM_KEYUP, and
// WM_CHAR for what the key types. In queues that are joined each process waits for the keys that come first.
std::int32_t Focus();                      // of the foreground window's process
std::string TypedText(std::int32_t hWnd);  // the characters that the window has received
void HoldKey(std::uint8_t key);            // the user keeps a key down
void PressKey(std::uint8_t key);           // the user presses a key and lets it go
void SwitchOn(std::uint8_t key);           // such as Caps Lock

// The process of a window handles no message for so long, as behind a handler that takes its time; meant to be called
// by a window's procedure. Whoever sends it a message waits, and is answered before the keys in its queue are.
void Occupy(std::int32_t hWnd, std::int32_t milliseconds);

// The user presses a key combination; nothing happens when nobody registered it.
void PressHotKey(std::uint32_t modifiers, std::uint32_t key);
bool HotKeyRegistered(std::uint32_t modifiers, std::uint32_t key);
// Another program holds the key combination.
void OccupyHotKey(std::uint32_t modifiers, std::uint32_t key);

// Notification area: the icon if there is one, and all calls so far.
struct TrayIcon {
  NOTIFYICONDATA record;
  std::string icon;  // name of the resource
};
const std::optional<TrayIcon>& Tray();
struct TrayCall {
  std::uint32_t message;
  TrayIcon icon;
};
const std::vector<TrayCall>& TrayCalls();
// The shell ends and starts anew: the icon is gone, and all top-level windows are told so.
void RestartShell();
// The mouse does this at the icon (message number such as WM_RBUTTONUP): the callback message is posted.
void MouseAtTray(std::uint32_t message);

// Message boxes: those shown so far. The user presses OK; a hook runs while the box is up.
struct ShownBox {
  std::string text, caption;
  std::uint32_t type;
};
const std::vector<ShownBox>& MessageBoxes();
void WhileMessageBox(std::function<void(const ShownBox&)> hook);

// File dialogs: the records handed over so far, and the answers to the next ones; without one the user cancels.
const std::vector<OPENFILENAME>& FileDialogs();
void AnswerFileDialog(std::string path);
// Prepared for the user, but nobody asked: the paths of file dialogs, and "message box" for a hook that never ran.
std::vector<std::string> UnaskedAnswers();

struct StartedProgram {
  std::string command;
  std::uint32_t showStyle = SW_SHOWNORMAL;  // for its window

  bool operator==(const StartedProgram&) const = default;
};
// Programs started so far; one that was named as missing fails to start.
const std::vector<StartedProgram>& StartedPrograms();
void SetMissingProgram(const std::string& command);

// Registry: key path below HKEY_LOCAL_MACHINE (without a trailing backslash), value name, type and raw bytes.
struct RegistryValue {
  std::uint32_t type;
  std::string bytes;
};
std::map<std::string, std::map<std::string, RegistryValue>>& Registry();

// Files: the host folder behind a drive letter, whole files as bytes. Letters of names are compared without case.
void SetDrive(char letter, const std::string& hostFolder);  // in UTF-8
std::string HostPath(const std::string& path);                    // of an existing or new file; UTF-8
void PutFile(const std::string& path, const std::string& bytes);  // makes missing folders
std::string GetFile(const std::string& path);                     // empty when missing
void SetApplicationPath(const std::string& path);
// The first folder that was made under a name that ends in a blank, or nothing. Windows of the NT family drops the
// blank when it makes the folder, but not inside a longer path, so that it then finds no folder of that name.
const std::string& FolderThatEndsInABlank();
// The path with the short names of 8 and 3 characters for all longer ones; of something that exists.
std::string ShortPath(const std::string& path);
// A variable of the environment; a fresh desktop has TEMP and TMP, C:\TEMP (not made). Empty: there is none.
void SetEnvironmentVariable(const std::string& name, const std::string& value);
void SetVersion(std::uint32_t platformId, std::uint32_t major, std::uint32_t minor);
void SetTwipsPerPixel(double x, double y);  // default: 15 on both axes

// The clipboard's text, or nothing. A failing "OpenClipboard" is a clipboard that another program holds.
std::optional<std::string>& Clipboard();

}  // namespace platform::simulated
