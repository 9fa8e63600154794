// The keyboard, with the German layout, and the input queues: one for each process, with a focus of its own.
#include <algorithm>
#include <utility>

#include "platform/input.h"
#include "platform/simulated/state.h"
#include "platform/window_lookup.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

constexpr int kShift = 256, kControl = 512, kAlt = 1024;

struct Key {
  std::uint8_t key;
  char plain, shifted;
  char altGr = '\0';
};

// Keys whose two characters are not the small and the capital letter. The dead keys of the layout are left out.
constexpr Key kKeys[] = {
    {' ', ' ', ' '},       {'0', '0', '=', '}'}, {'1', '1', '!'},         {'2', '2', '"'},        {'3', '3', '\xA7'},
    {'4', '4', '$'},       {'5', '5', '%'},      {'6', '6', '&'},         {'7', '7', '/', '{'},   {'8', '8', '(', '['},
    {'9', '9', ')', ']'},  {0xBA, 'ü', 'Ü'},     {0xBB, '+', '*', '~'},   {0xBC, ',', ';'},       {0xBD, '-', '_'},
    {0xBE, '.', ':'},      {0xBF, '#', '\''},    {0xC0, 'ö', 'Ö'},        {0xDB, 'ß', '?', '\\'}, {0xDE, 'ä', 'Ä'},
    {0xE2, '<', '>', '|'}, {'Q', 'q', 'Q', '@'}, {'E', 'e', 'E', '\x80'},
};

// Keys that type a control character.
constexpr std::pair<std::uint8_t, char> kControlKeys[] = {
    {VK_BACK, '\b'}, {VK_TAB, '\t'}, {VK_RETURN, '\r'}, {VK_ESCAPE, '\x1B'}};

bool Down(std::uint8_t key) { return TheDesktop().keysDown.contains(key); }
bool On(std::uint8_t key) { return TheDesktop().keysOn.contains(key); }

// What a key types with the keys that are held; 0 for nothing.
char Typed(std::uint8_t key) {
  for (const auto& [controlKey, character] : kControlKeys)
    if (controlKey == key) return character;
  const bool letter = key >= 'A' && key <= 'Z';
  if (Down(VK_CONTROL) && !Down(VK_MENU)) return letter ? static_cast<char>(key - 'A' + 1) : '\0';
  const bool upper = Down(VK_SHIFT) != On(VK_CAPITAL);
  const auto found = std::find_if(std::begin(kKeys), std::end(kKeys), [key](const Key& k) { return k.key == key; });
  if (Down(VK_CONTROL)) return found == std::end(kKeys) ? '\0' : found->altGr;
  if (found != std::end(kKeys)) return upper ? found->shifted : found->plain;
  if (!letter) return '\0';
  return upper ? static_cast<char>(key) : static_cast<char>(key + 'a' - 'A');
}

std::uint32_t ThreadOf(std::int32_t hWnd) {
  std::uint32_t process = 0;
  return GetWindowThreadProcessId(hWnd, process);
}

bool JoinedWithOwn(std::uint32_t thread) {
  const std::uint32_t own = kOwnProcess + kThreadOfProcess;
  const auto& joined = TheDesktop().joinedThreads;
  return thread == own || joined.contains({thread, own}) || joined.contains({own, thread});
}

std::int32_t Root(std::int32_t hWnd) {
  while (At(hWnd).parent != 0) hWnd = At(hWnd).parent;
  return hWnd;
}

bool IsThread(std::uint32_t thread) {
  if (thread == kOwnProcess + kThreadOfProcess) return true;
  const auto& windows = TheDesktop().windows;
  return std::any_of(windows.begin(), windows.end(),
                     [&](const auto& window) { return window.second.process + kThreadOfProcess == thread; });
}

// Into the queue of the window in front; lost without one.
void Enqueue(bool fromProgram, std::uint32_t message, std::uint8_t key, std::uint32_t characterMessage = 0,
             char character = '\0') {
  const Window* front = Find(TheDesktop().foreground);
  if (front == nullptr) return;
  TheDesktop().keys.push_back(
      {front->process,
       {.number = message, .wParam = key, .fromProgram = fromProgram},
       {.number = characterMessage, .wParam = static_cast<unsigned char>(character), .fromProgram = fromProgram}});
}

void KeyEvent(bool fromProgram, std::uint8_t key, std::uint32_t flags) {
  Desktop& desktop = TheDesktop();
  const bool system = Down(VK_MENU) && !Down(VK_CONTROL);
  if ((flags & KEYEVENTF_KEYUP) != 0) {
    // What is not extended is the left one of the two.
    const bool left = (key == VK_RCONTROL || key == VK_RMENU) && (flags & KEYEVENTF_EXTENDEDKEY) == 0;
    if (!left) desktop.keysDown.erase(key);
    Enqueue(fromProgram, system ? WM_SYSKEYUP : WM_KEYUP, key);
    return;
  }
  if (desktop.keysDown.insert(key).second && desktop.keysOn.erase(key) == 0) desktop.keysOn.insert(key);
  const char typed = Typed(key);
  const std::uint32_t characterMessage = typed == '\0' ? 0 : system ? WM_SYSCHAR : WM_CHAR;
  Enqueue(fromProgram, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, characterMessage, typed);
}

}  // namespace

std::int32_t FocusOf(std::uint32_t process) {
  const Desktop& desktop = TheDesktop();
  const auto found = desktop.focus.find(process);
  const std::int32_t focus = found != desktop.focus.end() && Exists(found->second) ? found->second : 0;
  const Window* front = Find(desktop.foreground);
  if (front == nullptr || front->process != process) return focus;
  return focus != 0 && Root(focus) == front->handle ? focus : front->handle;
}

std::uint32_t QueueOf(std::uint32_t process) {
  return JoinedWithOwn(process + kThreadOfProcess) ? kOwnProcess : process;
}

std::int32_t Focus() {
  const Window* front = Find(TheDesktop().foreground);
  return front == nullptr ? 0 : FocusOf(front->process);
}

std::string TypedText(std::int32_t hWnd) {
  std::string text;
  for (const Message& message : At(hWnd).received)
    if (message.number == WM_CHAR) text += static_cast<char>(message.wParam);
  return text;
}

void HoldKey(std::uint8_t key) { TheDesktop().keysDown.insert(key); }
void PressKey(std::uint8_t key) {
  KeyEvent(false, key, 0);
  KeyEvent(false, key, KEYEVENTF_KEYUP);
}
void SwitchOn(std::uint8_t key) { TheDesktop().keysOn.insert(key); }

}  // namespace simulated

using namespace simulated;

void keybd_event(std::uint8_t bVk, std::uint8_t bScan, std::uint32_t dwFlags, std::uint32_t dwExtraInfo) {
  InputLog().push_back("keybd_event " + std::to_string(bVk) + " " + std::to_string(bScan) + " " +
                       std::to_string(dwFlags) + " " + std::to_string(dwExtraInfo));
  KeyEvent(dwExtraInfo == 0, bVk, dwFlags);
}

std::int16_t VkKeyScanA(char ch) {
  if (Fails("VkKeyScanA")) return -1;
  for (const auto& [key, character] : kControlKeys)
    if (character == ch) return key;
  for (const Key& key : kKeys) {
    if (key.plain == ch) return key.key;
    if (key.shifted == ch) return static_cast<std::int16_t>(key.key + kShift);
    if (key.altGr == ch && ch != '\0') return static_cast<std::int16_t>(key.key + kControl + kAlt);
  }
  if (ch >= 'a' && ch <= 'z') return static_cast<std::int16_t>(ch - 'a' + 'A');
  if (ch >= 'A' && ch <= 'Z') return static_cast<std::int16_t>(ch + kShift);
  return -1;
}

void TypeCharacter(char ch) {
  InputLog().push_back(std::string("TypeCharacter ") + ch);
  constexpr std::uint8_t kPacket = 231;  // the key that stands for any character
  Enqueue(true, WM_KEYDOWN, kPacket, WM_CHAR, ch);
  Enqueue(true, WM_KEYUP, kPacket);
}

std::int16_t GetAsyncKeyState(std::int32_t vKey) { return Down(static_cast<std::uint8_t>(vKey)) ? INT16_MIN : 0; }

std::int16_t GetKeyState(std::int32_t nVirtKey) {
  const auto key = static_cast<std::uint8_t>(nVirtKey);
  return static_cast<std::int16_t>((Down(key) ? INT16_MIN : 0) | (On(key) ? 1 : 0));
}

struct KeyReceiver::Queue {
  std::int32_t window = 0;  // of another process
  std::uint32_t process = 0;
  const std::int64_t start = Clock();
  std::int64_t pumped = start;  // when the program was to handle its messages

  bool MustPump() {
    constexpr std::int64_t kPatience = 5000, kBetweenPumps = 100;  // milliseconds
    if (Clock() - start < kPatience || Clock() - pumped < kBetweenPumps) return false;
    pumped = Clock();
    return true;
  }

  bool HasGone() const {
    const auto& windows = TheDesktop().windows;
    return std::none_of(windows.begin(), windows.end(), [&](const auto& w) { return w.second.process == process; });
  }

  template <class Done>
  bool Wait(Done done) {
    if (process == 0 || process == kOwnProcess) return true;
    RunOtherProcesses();
    while (!HasGone()) {
      if (MustPump()) return false;
      if (done()) break;
      Sleep(10);
    }
    return true;
  }

  bool HasKeys() const { return std::ranges::count(TheDesktop().keys, process, &KeyInput::process) != 0; }
};

KeyReceiver::KeyReceiver() : queue_(std::make_unique<Queue>()) {}
KeyReceiver::~KeyReceiver() = default;

bool KeyReceiver::Follow() {
  if (IsOwn() && Exists(queue_->window)) Activate(queue_->window);
  const Window* front = Find(TheDesktop().foreground);
  const std::uint32_t process = front == nullptr ? 0 : front->process;
  if (process != kOwnProcess) queue_->window = TheDesktop().foreground;
  return std::exchange(queue_->process, process) != process;
}

bool KeyReceiver::Took(std::uint8_t /*bVk*/, bool /*down*/) {
  return queue_->Wait([this] { return !queue_->HasKeys(); });
}

bool KeyReceiver::TookAll() {
  return queue_->Wait([this] { return !queue_->HasKeys() && !IsBusy(queue_->process); });
}

bool KeyReceiver::IsOwn() const {
  const Window* front = Find(TheDesktop().foreground);
  return front != nullptr && front->process == kOwnProcess;
}

bool AttachThreadInput(std::uint32_t idAttach, std::uint32_t idAttachTo, bool fAttach) {
  InputLog().push_back("AttachThreadInput " + std::to_string(idAttach) + " " + std::to_string(idAttachTo) + " " +
                       (fAttach ? "1" : "0"));
  if (Fails("AttachThreadInput") || idAttach == idAttachTo || !IsThread(idAttach) || !IsThread(idAttachTo))
    return false;
  auto& joined = TheDesktop().joinedThreads;
  if (!fAttach) return joined.erase({idAttach, idAttachTo}) != 0;
  joined.insert({idAttach, idAttachTo});
  return true;
}

std::int32_t SetFocus(std::int32_t hWnd) {
  InputLog().push_back("SetFocus " + std::to_string(hWnd));
  if (!Exists(hWnd) || Fails("SetFocus") || !JoinedWithOwn(ThreadOf(hWnd))) return 0;
  const std::int32_t before = Focus();
  TheDesktop().focus[At(hWnd).process] = hWnd;
  const bool inFront = Exists(Foreground()) && JoinedWithOwn(ThreadOf(Foreground()));
  if (inFront && Root(hWnd) != Foreground()) Activate(Root(hWnd));
  return inFront ? before : 0;
}

}  // namespace platform
