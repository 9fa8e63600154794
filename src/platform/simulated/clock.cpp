// The simulated clock, and the moments in which other processes run.
#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/simulated/state.h"
#include "platform/system.h"

namespace platform {
namespace simulated {
namespace {

using std::chrono::milliseconds;
using LocalTime = std::chrono::local_time<milliseconds>;

void MoveClock(std::int64_t to) {
  Desktop& desktop = TheDesktop();
  const std::int64_t reached = std::max(desktop.clock, std::min(to, desktop.limit));
  if (desktop.realTime) std::this_thread::sleep_for(milliseconds{reached - desktop.clock});
  desktop.clock = reached;
  if (to > desktop.limit) throw TimeLimitPassed{};
}

void RunFirstEvent() {
  auto& events = TheDesktop().events;
  const auto first = events.begin();
  MoveClock(first->first);
  const auto event = std::move(first->second);
  events.erase(first);
  event();
  RunOtherProcesses();
}

}  // namespace

void Schedule(std::int32_t milliseconds, std::function<void()> event) {
  Desktop& desktop = TheDesktop();
  desktop.events.emplace(desktop.clock + std::max(0, milliseconds), std::move(event));
}

std::int64_t Clock() { return TheDesktop().clock; }

void SetNow(const runtime::DateTime& now) {
  using namespace std::chrono;
  const LocalTime time =
      local_days{year{now.year} / now.month / now.day} + hours{now.hour} + minutes{now.minute} + seconds{now.second};
  TheDesktop().startOfClock = time.time_since_epoch().count() - TheDesktop().clock;
}

void SetTimeLimit(std::int64_t milliseconds) { TheDesktop().limit = milliseconds; }

void SetRealTime(bool on) { TheDesktop().realTime = on; }

bool RunNextEvent() {
  if (TheDesktop().events.empty()) return false;
  RunFirstEvent();
  return true;
}

}  // namespace simulated

void Sleep(std::int32_t dwMilliseconds) {
  using namespace simulated;
  const std::int64_t end = Clock() + std::max(0, dwMilliseconds);
  RunOtherProcesses();
  const auto& events = TheDesktop().events;
  while (!events.empty() && events.begin()->first <= end) RunFirstEvent();
  MoveClock(end);
}

runtime::DateTime Now() {
  using namespace std::chrono;
  const simulated::LocalTime now{milliseconds{simulated::TheDesktop().startOfClock + simulated::Clock()}};
  const auto day = floor<days>(now);
  const year_month_day date{day};
  const hh_mm_ss time{floor<seconds>(now - day)};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

}  // namespace platform
