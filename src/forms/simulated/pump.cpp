// Handling messages: pumps, timers, modal forms and menus.
#include <algorithm>
#include <stdexcept>

#include "forms/realization.h"
#include "forms/simulated/state.h"
#include "forms/simulated/user.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/modal.h"
#include "runtime/fault.h"

namespace forms::realization {

using simulated::RunningTimer;
using simulated::state;

namespace {

// A timer that is due ticks once, however long ago that was, as the system's timers do.
void RunDueTimers() {
  const std::int64_t now = platform::simulated::Clock();
  std::vector<Timer*> due;
  for (RunningTimer& running : state.timers) {
    if (running.due > now) continue;
    running.due = now + running.timer->Interval();
    due.push_back(running.timer);
  }
  for (Timer* timer : due) {
    // Another one's handler may have stopped it.
    if (std::ranges::count(state.timers, timer, &RunningTimer::timer) != 0) timer->Tick();
  }
}

std::function<void(Form&)> TakeAnswer() {
  if (state.modalAnswers.empty()) return state.anyModalAnswer ? state.anyModalAnswer : [](Form&) {};
  auto answer = std::move(state.modalAnswers.front());
  state.modalAnswers.pop_front();
  return answer;
}

}  // namespace

void RunModal(Form& form) {
  const auto answer = TakeAnswer();
  const platform::simulated::ModalScope others(form.Window());
  Show(form);
  PumpOnce();
  if (form.Visible()) answer(form);
  while (form.Visible()) {
    PumpOnce();
    if (!form.Visible() || platform::simulated::RunNextEvent()) continue;
    simulated::Confirm(form);
    if (form.Visible()) throw std::logic_error(form.name + " is still shown although its default button was pressed");
  }
}

void IntervalChanged(Form& form, Timer& timer) {
  std::erase_if(state.timers, [&](const RunningTimer& running) { return running.timer == &timer; });
  if (timer.Interval() > 0) state.timers.push_back({&form, &timer, platform::simulated::Clock() + timer.Interval()});
}

int ChooseFromMenu(Form& /*owner*/, const Menu& menu) {
  if (state.menuChoices.empty()) return -1;
  const std::string choice = std::move(state.menuChoices.front());
  state.menuChoices.pop_front();
  const auto found = std::ranges::find(menu.entries, choice, &MenuEntry::caption);
  if (found == menu.entries.end()) throw std::logic_error(menu.name + " has no entry " + choice);
  return static_cast<int>(found - menu.entries.begin());
}

void PumpOnce() {
  platform::simulated::HandleOwnMessages();
  RunDueTimers();
}

// When nothing is scheduled any more, nothing can happen any more.
void RunMessageLoop() {
  bool more = true;
  while (more) {
    runtime::Skip([&] {  // nobody is left to take the fault of a handler
      PumpOnce();
      more = !state.loaded.empty() && platform::simulated::RunNextEvent();
    });
  }
}

}  // namespace forms::realization
