// What the forms' realization on the simulated desktop keeps. For the sources of this folder only.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"

namespace forms::simulated {

struct RunningTimer {
  Form* form = nullptr;
  Timer* timer = nullptr;
  std::int64_t due = 0;  // simulated milliseconds
};

struct State {
  std::vector<Form*> loaded;
  std::vector<RunningTimer> timers;
  Control* focused = nullptr;
  std::optional<std::size_t> broughtIntoView;
  std::deque<std::function<void(Form&)>> modalAnswers;
  std::function<void(Form&)> anyModalAnswer;
  std::deque<std::string> menuChoices;
};

extern State state;

}  // namespace forms::simulated
