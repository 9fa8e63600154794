#include "input/key_notation.h"

#include <algorithm>
#include <iterator>

#include "platform/input.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace key_notation {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

struct KeyName {
  std::string_view name;
  std::uint8_t key;
};

constexpr std::uint8_t FunctionKey(int number) { return static_cast<std::uint8_t>(platform::VK_F1 + number - 1); }

constexpr KeyName kKeyNames[] = {
    {"BACKSPACE", platform::VK_BACK},
    {"BKSP", platform::VK_BACK},
    {"BREAK", platform::VK_CANCEL},
    {"BS", platform::VK_BACK},
    {"CAPSLOCK", platform::VK_CAPITAL},
    {"DEL", platform::VK_DELETE},
    {"DELETE", platform::VK_DELETE},
    {"DOWN", platform::VK_DOWN},
    {"END", platform::VK_END},
    {"ENTER", platform::VK_RETURN},
    {"ESC", platform::VK_ESCAPE},
    {"F1", FunctionKey(1)},
    {"F2", FunctionKey(2)},
    {"F3", FunctionKey(3)},
    {"F4", FunctionKey(4)},
    {"F5", FunctionKey(5)},
    {"F6", FunctionKey(6)},
    {"F7", FunctionKey(7)},
    {"F8", FunctionKey(8)},
    {"F9", FunctionKey(9)},
    {"F10", FunctionKey(10)},
    {"F11", FunctionKey(11)},
    {"F12", FunctionKey(12)},
    {"F13", FunctionKey(13)},
    {"F14", FunctionKey(14)},
    {"F15", FunctionKey(15)},
    {"F16", FunctionKey(16)},
    {"HELP", platform::VK_HELP},
    {"HOME", platform::VK_HOME},
    {"INS", platform::VK_INSERT},
    {"INSERT", platform::VK_INSERT},
    {"LEFT", platform::VK_LEFT},
    {"NUMLOCK", platform::VK_NUMLOCK},
    {"PGDN", platform::VK_NEXT},
    {"PGUP", platform::VK_PRIOR},
    {"PRTSC", platform::VK_SNAPSHOT},
    {"RIGHT", platform::VK_RIGHT},
    {"SCROLLLOCK", platform::VK_SCROLL},
    {"TAB", platform::VK_TAB},
    {"UP", platform::VK_UP},
};

// The modifier that a character holds; 0 for none.
std::uint8_t ModifierOf(char character) {
  switch (character) {
    case '+':
      return platform::VK_SHIFT;
    case '^':
      return platform::VK_CONTROL;
    case '%':
      return platform::VK_MENU;
    default:
      return 0;
  }
}

Step StepOfName(std::string_view name) {
  if (name.size() == 1) return {Action::Type, static_cast<std::uint8_t>(name.front())};
  const auto* const found = std::find_if(std::begin(kKeyNames), std::end(kKeyNames), [&](const KeyName& key) {
    return runtime::EqualIgnoringCase(key.name, name);
  });
  if (found == std::end(kKeyNames)) throw Fault(FaultNumber::InvalidCall);
  return {Action::Stroke, found->key};
}

int Count(std::string_view digits) {
  constexpr int kMost = 32767;
  int count = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') throw Fault(FaultNumber::InvalidCall);
    count = count * 10 + (digit - '0');
    if (count > kMost) throw Fault(FaultNumber::InvalidCall);
  }
  if (digits.empty()) throw Fault(FaultNumber::InvalidCall);
  return count;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  std::vector<Step> Run() {
    while (at_ < text_.size()) Next();
    if (groups_.size() != 1) throw Fault(FaultNumber::InvalidCall);
    ReleaseToGroup();
    return std::move(steps_);
  }

 private:
  void Next() {
    const char character = text_[at_++];
    if (const std::uint8_t modifier = ModifierOf(character)) Hold(modifier);
    else if (character == '(') groups_.push_back(held_.size());
    else if (character == ')') EndGroup();
    else if (character == '{') Finish(Braces());
    else if (character == '}') throw Fault(FaultNumber::InvalidCall);
    else if (character == '~') Finish({Action::Stroke, platform::VK_RETURN});
    else Finish({Action::Type, static_cast<std::uint8_t>(character)});
  }

  // A modifier that is held already has nothing to add.
  void Hold(std::uint8_t modifier) {
    if (std::find(held_.begin(), held_.end(), modifier) != held_.end()) return;
    steps_.push_back({Action::Hold, modifier});
    held_.push_back(modifier);
  }

  // What stands behind modifiers ends them, down to those that hold for the group around it.
  void Finish(Step step) {
    steps_.push_back(step);
    ReleaseToGroup();
  }

  void EndGroup() {
    if (groups_.size() == 1) throw Fault(FaultNumber::InvalidCall);
    ReleaseToGroup();
    groups_.pop_back();
    ReleaseToGroup();
  }

  void ReleaseToGroup() {
    for (; held_.size() > groups_.back(); held_.pop_back()) steps_.push_back({Action::Release, held_.back()});
  }

  // Behind the opening brace. The first character belongs to the name whatever it is, so that braces quote a brace.
  Step Braces() {
    const std::size_t end = text_.find('}', at_ + 1);
    if (end == std::string_view::npos) throw Fault(FaultNumber::InvalidCall);
    const std::string_view content = text_.substr(at_, end - at_);
    at_ = end + 1;
    const std::size_t blank = content.find(' ', 1);
    Step step = StepOfName(content.substr(0, blank));
    if (blank != std::string_view::npos) step.times = Count(content.substr(blank + 1));
    return step;
  }

  const std::string_view text_;
  std::size_t at_ = 0;
  std::vector<Step> steps_;
  std::vector<std::uint8_t> held_;
  std::vector<std::size_t> groups_ = {0};  // for each open group the number of modifiers held around it
};

}  // namespace

std::vector<Step> Parse(std::string_view keys) { return Parser(keys).Run(); }

}  // namespace key_notation
