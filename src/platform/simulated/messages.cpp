#include "platform/messages.h"

#include <algorithm>
#include <set>

#include "platform/input.h"
#include "platform/simulated/state.h"
#include "platform/system.h"

namespace platform {
namespace simulated {
namespace {

// What a window does with a message when its hook has passed it on or there is none: the application's own reaction,
// then the behaviour of the class.
std::int32_t PLATFORM_CALLBACK WindowProcedure(std::int32_t hWnd, std::uint32_t uMsg, std::int32_t wParam,
                                               std::int32_t lParam) {
  const Window* window = Find(hWnd);
  if (window == nullptr) return 0;
  Delivery delivery{hWnd, {uMsg, wParam, lParam}};
  const auto& deliveries = TheDesktop().deliveries;
  if (!deliveries.empty() && deliveries.back()->hWnd == hWnd && deliveries.back()->message.number == uMsg)
    delivery = *deliveries.back();
  const auto procedure = window->procedure;  // a copy: the reaction may destroy the window
  if (procedure) {
    if (const auto answer = procedure(delivery.message)) return *answer;
  }
  return Exists(hWnd) ? ClassProcedure(hWnd, delivery.message, delivery.buffer) : 0;
}

// Takes the first posted message whose window fits and is not busy, and forgets those of windows that are gone.
template <class Fits>
std::optional<Posted> TakePosted(Fits fits) {
  auto& posted = TheDesktop().posted;
  std::erase_if(posted, [](const Posted& p) { return !Exists(p.hWnd); });
  const auto found = std::find_if(posted.begin(), posted.end(),
                                  [&](const Posted& p) { return fits(At(p.hWnd)) && !IsBusy(At(p.hWnd).process); });
  if (found == posted.end()) return std::nullopt;
  const Posted first = *found;
  posted.erase(found);
  return first;
}

bool IsModifier(std::int32_t key) { return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU; }

// Takes the first key of its queue whose window fits; its character is posted to the same window. A key that nobody can
// get is lost.
template <class Fits>
std::optional<Posted> TakeKey(Fits fits) {
  auto& keys = TheDesktop().keys;
  std::erase_if(keys, [](const KeyInput& key) { return FocusOf(key.process) == 0; });
  std::set<std::uint32_t> held;  // queues whose first key is not to be taken now
  for (auto key = keys.begin(); key != keys.end(); ++key) {
    const std::uint32_t queue = QueueOf(key->process);
    if (held.contains(queue)) continue;
    const std::int32_t focus = FocusOf(key->process);
    if (!fits(At(focus)) || IsBusy(key->process)) {
      held.insert(queue);
      continue;
    }
    const KeyInput taken = *key;
    keys.erase(key);
    const bool down = taken.key.number == WM_KEYDOWN || taken.key.number == WM_SYSKEYDOWN;
    if (down && !IsModifier(taken.key.wParam)) Occupy(focus, At(focus).keyTime);
    if (taken.character.number != 0) TheDesktop().posted.push_back({focus, taken.character});
    return Posted{focus, taken.key};
  }
  return std::nullopt;
}

// What is posted comes before what is typed.
template <class Fits>
void HandleQueues(Fits fits) {
  while (true) {
    auto next = TakePosted(fits);
    if (!next) next = TakeKey(fits);
    if (!next) return;
    Deliver(next->hWnd, next->message);
  }
}

// Lets time pass until a process has come to answer a message; the keys in its queue wait meanwhile.
void WaitForAnswer(std::uint32_t process) {
  Desktop& desktop = TheDesktop();
  const auto asked = desktop.asked.insert(process);
  struct Done {
    Desktop& desktop;
    std::multiset<std::uint32_t>::iterator asked;
    ~Done() { desktop.asked.erase(asked); }
  } done{desktop, asked};
  const auto free = desktop.busyUntil.find(process);
  while (free != desktop.busyUntil.end() && free->second > desktop.clock)
    Sleep(static_cast<std::int32_t>(free->second - desktop.clock));
}

std::int32_t Send(std::int32_t hWnd, Message message, TextBuffer* buffer = nullptr) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("SendMessageA")) return 0;
  const std::uint32_t process = window->process;
  if (process == kOwnProcess) return Deliver(hWnd, std::move(message), buffer);
  // The other process has been running all the time: what is in its queue came first.
  RunOtherProcesses(process);
  WaitForAnswer(process);
  const std::int32_t answer = Deliver(hWnd, std::move(message), buffer);
  WaitForAnswer(process);
  return answer;
}

}  // namespace

std::int32_t Deliver(std::int32_t hWnd, Message message, TextBuffer* buffer) {
  Window* window = Find(hWnd);
  if (window == nullptr) return 0;
  window->received.push_back(message);
  const WNDPROC procedure = window->hook != nullptr ? window->hook : &WindowProcedure;

  Delivery delivery{hWnd, std::move(message), buffer};
  auto& deliveries = TheDesktop().deliveries;
  deliveries.push_back(&delivery);
  struct Done {
    std::vector<Delivery*>& deliveries;
    ~Done() { deliveries.pop_back(); }
  } done{deliveries};
  const bool isKey = delivery.message.number >= WM_KEYDOWN && delivery.message.number <= WM_SYSCHAR;
  if (!isKey) Occupy(hWnd, window->messageTime);
  return procedure(hWnd, delivery.message.number, delivery.message.wParam, delivery.message.lParam);
}

void Occupy(std::int32_t hWnd, std::int32_t milliseconds) {
  if (milliseconds <= 0) return;
  std::int64_t& until = TheDesktop().busyUntil[At(hWnd).process];
  until = std::max(until, Clock()) + milliseconds;
  // What waits is handled then.
  Schedule(static_cast<std::int32_t>(until - Clock()), [] {});
}

bool IsBusy(std::uint32_t process) {
  const Desktop& desktop = TheDesktop();
  const auto until = desktop.busyUntil.find(process);
  return desktop.asked.contains(process) || (until != desktop.busyUntil.end() && until->second > desktop.clock);
}

void HandleOwnMessages() {
  RunOtherProcesses();
  HandleQueues([](const Window& window) { return window.process == kOwnProcess; });
}

void RunOtherProcesses(std::optional<std::uint32_t> process) {
  HandleQueues(
      [process](const Window& window) { return process ? window.process == *process : window.process != kOwnProcess; });
}

}  // namespace simulated

using namespace simulated;

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam) {
  return Send(hWnd, {Msg, wParam, lParam});
}

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::string_view lParam) {
  return Send(hWnd, {Msg, wParam, 0, std::string(lParam.substr(0, lParam.find('\0')))});
}

std::int32_t SendMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, TextBuffer& lParam) {
  return Send(hWnd, {Msg, wParam, 0}, &lParam);
}

bool PostMessageA(std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam, std::int32_t lParam) {
  if (!Exists(hWnd) || Fails("PostMessageA")) return false;
  TheDesktop().posted.push_back({hWnd, {Msg, wParam, lParam}});
  return true;
}

WNDPROC SetWindowLongA(std::int32_t hWnd, std::int32_t nIndex, WNDPROC dwNewLong) {
  Window* window = Find(hWnd);
  if (window == nullptr || window->process != kOwnProcess || nIndex != GWL_WNDPROC || Fails("SetWindowLongA"))
    return nullptr;
  const WNDPROC old = window->hook != nullptr ? window->hook : &WindowProcedure;
  window->hook = dwNewLong == &WindowProcedure ? nullptr : dwNewLong;
  return old;
}

std::int32_t CallWindowProcA(WNDPROC lpPrevWndFunc, std::int32_t hWnd, std::uint32_t Msg, std::int32_t wParam,
                             std::int32_t lParam) {
  return lpPrevWndFunc == nullptr ? 0 : lpPrevWndFunc(hWnd, Msg, wParam, lParam);
}

}  // namespace platform
