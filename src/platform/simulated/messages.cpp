#include "platform/messages.h"

#include <algorithm>

#include "platform/simulated/state.h"

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

// Takes the first posted message whose window fits, and forgets those of windows that are gone.
template <class Fits>
std::optional<Posted> TakePosted(Fits fits) {
  auto& posted = TheDesktop().posted;
  std::erase_if(posted, [](const Posted& p) { return !Exists(p.hWnd); });
  const auto found = std::find_if(posted.begin(), posted.end(), [&](const Posted& p) { return fits(At(p.hWnd)); });
  if (found == posted.end()) return std::nullopt;
  const Posted first = *found;
  posted.erase(found);
  return first;
}

// Takes the first key if the window that has the focus fits; its character is posted to the same window. A key that
// nobody can get is lost.
template <class Fits>
std::optional<Posted> TakeKey(Fits fits) {
  auto& keys = TheDesktop().keys;
  if (keys.empty()) return std::nullopt;
  const std::int32_t focus = Focus();
  if (focus == 0) keys.clear();
  if (focus == 0 || !fits(At(focus))) return std::nullopt;
  const KeyInput first = keys.front();
  keys.pop_front();
  if (first.character.number != 0) TheDesktop().posted.push_back({focus, first.character});
  return Posted{focus, first.key};
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

std::int32_t Send(std::int32_t hWnd, Message message, TextBuffer* buffer = nullptr) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("SendMessageA")) return 0;
  // The other process has been running all the time: what is in its queue came first.
  if (window->process != kOwnProcess) RunOtherProcesses(window->process);
  return Deliver(hWnd, std::move(message), buffer);
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
  return procedure(hWnd, delivery.message.number, delivery.message.wParam, delivery.message.lParam);
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
