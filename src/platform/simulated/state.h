// What the simulated desktop keeps. For the sources of this folder only; everybody else uses desktop.h.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "platform/types.h"

namespace platform::simulated {

constexpr Rect kScreen = {0, 0, 1024, 768};

// Each process has one thread; this added to the process id is its id.
constexpr std::uint32_t kThreadOfProcess = 1000;

// A message on its way to a window: what a window procedure can't be handed through its 32-bit arguments.
struct Delivery {
  std::int32_t hWnd = 0;
  Message message;
  TextBuffer* buffer = nullptr;
};

struct Posted {
  std::int32_t hWnd = 0;
  Message message;
};

// A key in the queue of a process, and the message for the character that it types (number 0 for none).
struct KeyInput {
  std::uint32_t process = 0;
  Message key;
  Message character;
};

struct HotKey {
  std::int32_t hWnd = 0;  // 0: another program's
  std::int32_t id = 0;
  std::uint32_t modifiers = 0;
  std::uint32_t key = 0;
};

// What an operation still has before it: calls that work, then calls that fail (negative: without end).
struct Failure {
  int times = 0;
  int after = 0;
  runtime::FaultNumber fault = {};
};

// A host folder that lives as long as this object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// An open file of the host.
class HostFile {
 public:
  HostFile(std::string path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) {}
  HostFile(HostFile&& other) noexcept
      : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}
  HostFile& operator=(HostFile&&) = delete;
  ~HostFile();
  const std::string& Path() const { return path_; }
  int Descriptor() const { return descriptor_; }

 private:
  std::string path_;
  int descriptor_;
};

using Bytes = std::shared_ptr<std::vector<unsigned char>>;

// A block in a process, or a view of a mapping.
struct MemoryRegion {
  std::uint32_t process = 0;
  std::int32_t address = 0;
  std::size_t size = 0;  // as asked for
  bool isView = false;
  Bytes bytes = {};  // whole pages
};

// An open process, or a mapping.
struct MemoryHandle {
  std::uint32_t process = 0;
  std::uint32_t access = 0;
  std::size_t size = 0;
  Bytes mapping = {};
};

struct Desktop {
  Desktop();

  // Windows.
  std::map<std::int32_t, Window> windows;
  std::vector<std::int32_t> topLevel;            // Z-order
  std::map<std::int32_t, Rect> normalPositions;  // of maximized windows
  std::int32_t foreground = 0;
  std::int32_t nextHandle = 0x10010;
  std::uint32_t nextProcess = 100;
  std::deque<Posted> posted;
  std::vector<Delivery*> deliveries;  // the innermost last

  // Clock.
  std::int64_t clock = 0;
  std::int64_t limit = 24LL * 60 * 60 * 1000;
  bool realTime = false;
  std::int64_t startOfClock = 0;  // local time at clock 0 in milliseconds since 1970
  std::multimap<std::int64_t, std::function<void()>> events;
  std::map<std::string, Failure> failures;

  // Memory that processes share or have allocated in each other.
  std::vector<MemoryRegion> memory;
  std::map<std::int32_t, MemoryHandle> memoryHandles;
  std::int32_t nextAddress = 0x00340000;
  std::int32_t nextSharedAddress = -0x7F000000;
  std::int32_t nextMemoryHandle = 0x600;

  // Input, shell and dialogs.
  std::vector<std::string> inputLog;
  std::map<std::uint32_t, std::int32_t> focus;  // of each process
  std::set<std::pair<std::uint32_t, std::uint32_t>> joinedThreads;
  std::set<std::uint8_t> keysDown;
  std::set<std::uint8_t> keysOn;                    // such as Caps Lock
  std::deque<KeyInput> keys;                        // of all queues, in the order in which they were pressed
  std::map<std::uint32_t, std::int64_t> busyUntil;  // of each process
  std::multiset<std::uint32_t> asked;               // processes whose answer to a message is waited for
  std::vector<HotKey> hotKeys;
  std::optional<TrayIcon> tray;
  std::vector<TrayCall> trayCalls;
  std::vector<StartedProgram> startedPrograms;
  std::vector<std::string> missingPrograms;
  std::vector<ShownBox> messageBoxes;
  std::function<void(const ShownBox&)> whileMessageBox;
  std::vector<OPENFILENAME> fileDialogs;
  std::deque<std::string> fileAnswers;

  // Registry: path below HKEY_LOCAL_MACHINE of each open handle.
  std::map<std::string, std::map<std::string, RegistryValue>> registry;
  std::map<std::int32_t, std::string> openKeys;
  std::int32_t nextKey = 0x200;

  // Files.
  TemporaryFolder temporaryFolder;
  std::map<char, std::string> drives;  // upper-case letter, host folder
  std::string applicationPath = "C:\\QUMA";
  std::string currentDirectory;  // empty: the program's folder
  std::map<std::int32_t, HostFile> openFiles;
  std::int32_t nextFile = 0x400;

  // System.
  std::uint32_t platformId = VER_PLATFORM_WIN32_NT;
  std::uint32_t majorVersion = 5;
  std::uint32_t minorVersion = 1;
  std::map<std::string, std::string> environment = {{"TEMP", "C:\\TEMP"}, {"TMP", "C:\\TEMP"}};  // names in capitals
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
  std::optional<std::string> clipboard;
};

Desktop& TheDesktop();

// The window, or null.
Window* Find(std::int32_t hWnd);

// Hands a message to the window's procedure and yields the answer; 0 for no window.
std::int32_t Deliver(std::int32_t hWnd, Message message, TextBuffer* buffer = nullptr);

// What the window's class does with a message.
std::int32_t ClassProcedure(std::int32_t hWnd, const Message& message, TextBuffer* buffer);

// The window that has the focus in the queue of a process; 0 for none.
std::int32_t FocusOf(std::uint32_t process);
// Whether keys for a process wait behind those of other ones, in the order of queues that are joined.
std::uint32_t QueueOf(std::uint32_t process);
// Whether a process works at something, or answers a message first.
bool IsBusy(std::uint32_t process);

// Handles what is posted to the windows of other processes, of one process alone where it is given.
void RunOtherProcesses(std::optional<std::uint32_t> process = std::nullopt);

}  // namespace platform::simulated
