#include "forms/win32/message_loop.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "forms/realization.h"
#include "forms/win32/form_window.h"
#include "platform/win32/own_keys.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace forms::win32 {

namespace {

std::exception_ptr raised;

// Takes the input of the program's other windows away for as long as one window is modal.
class ModalSession {
 public:
  explicit ModalSession(HWND window);
  ~ModalSession() { End(); }
  ModalSession(const ModalSession&) = delete;
  ModalSession& operator=(const ModalSession&) = delete;

  HWND Window() const { return window_; }
  bool Ended() const { return ended_; }
  void End();

 private:
  const HWND window_;
  const HWND previous_;
  std::vector<HWND> disabled_;
  bool ended_ = false;
};

std::vector<ModalSession*> sessions;

// A key of the program's own that has missed its target must not press a button here, answer a box or move in a menu.
LRESULT CALLBACK DropOwnKeys(int code, WPARAM removed, LPARAM record) {
  MSG& message = *reinterpret_cast<MSG*>(record);
  const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
  if (code == HC_ACTION && isKey && static_cast<std::uint32_t>(::GetMessageExtraInfo()) == platform::kOwnKey)
    message.message = WM_NULL;
  return ::CallNextHookEx(nullptr, code, removed, record);
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

ModalSession::ModalSession(HWND window) : window_(window), previous_(::GetForegroundWindow()) {
  std::vector<HWND> windows;
  ::EnumThreadWindows(::GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows));
  for (const HWND other : windows) {
    if (other == window || !::IsWindowEnabled(other)) continue;
    const bool visible = ::IsWindowVisible(other) != FALSE;
    // What is hidden and no form is a part of one, such as the list that drops down from a combo box.
    if (!visible && !IsForm(platform::NumberOf(other))) continue;
    ::EnableWindow(other, FALSE);
    disabled_.push_back(other);
    // What takes no input cannot be moved out of the way.
    if (visible && (::GetWindowLongA(other, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0)
      ::SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  sessions.push_back(this);
}

void ModalSession::End() {
  if (ended_) return;
  ended_ = true;
  std::erase(sessions, this);
  for (const HWND other : disabled_) ::EnableWindow(other, TRUE);
  // The main form, in front for its menu, is never seen: the system then finds the window that was in front before.
  if (::GetForegroundWindow() == window_ && ::IsWindowVisible(previous_)) ::SetForegroundWindow(previous_);
  // Its loop may be waiting for a message.
  ::PostThreadMessageA(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

// Keys that move between controls and press buttons come first.
void Dispatch(MSG& message) {
  const HWND root = message.hwnd == nullptr ? nullptr : ::GetAncestor(message.hwnd, GA_ROOT);
  const bool isDialog = IsForm(platform::NumberOf(root)) && ::IsWindowVisible(root);
  if (!isDialog || !::IsDialogMessageA(root, &message)) {
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
  RethrowRaised();
}

}  // namespace

void Raise(const std::function<void()>& handler) {
  try {
    handler();
  } catch (...) {
    if (!raised) raised = std::current_exception();
  }
}

void RethrowRaised() {
  if (raised) std::rethrow_exception(std::exchange(raised, nullptr));
}

void WatchForOwnKeys() {
  static const HHOOK hook = ::SetWindowsHookExA(WH_GETMESSAGE, DropOwnKeys, nullptr, ::GetCurrentThreadId());
  (void)hook;
}

void EndModal(std::int32_t hWnd) {
  const auto found = std::find_if(sessions.begin(), sessions.end(), [&](const ModalSession* session) {
    return session->Window() == platform::HandleOf<HWND>(hWnd);
  });
  if (found != sessions.end()) (*found)->End();
}

}  // namespace forms::win32

namespace forms::realization {

using namespace win32;

void RunModal(Form& form) {
  const HWND window = platform::HandleOf<HWND>(form.Window());
  ModalSession session(window);
  ShowForm(form);
  ::SetForegroundWindow(window);
  MSG message;
  while (!session.Ended()) {
    if (::GetMessageA(&message, nullptr, 0, 0) <= 0) {
      // The program ends; the loops around this one must learn of it, too.
      ::PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    Dispatch(message);
  }
  RethrowRaised();
}

void PumpOnce() {
  MSG message;
  while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

void RunMessageLoop() {
  MSG message;
  while (AnyForm() && ::GetMessageA(&message, nullptr, 0, 0) > 0) Dispatch(message);
}

}  // namespace forms::realization
