#include "input/send_keys.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "engine/state.h"
#include "forms/form.h"
#include "input/key_notation.h"
#include "platform/input.h"

namespace basAPI {
namespace {

using key_notation::Action;
using key_notation::Step;

// What VkKeyScanA adds for the modifiers that a character needs.
constexpr int kNeedsShift = 256;
constexpr int kNeedsMore = 512 + 1024;

// The keys of the pad between letters and numbers, and those that came with it, as Ctrl and Alt on the right.
bool IsExtended(std::uint8_t key) {
  return (key >= platform::VK_PRIOR && key <= platform::VK_DOWN) || key == platform::VK_INSERT ||
         key == platform::VK_DELETE || key == platform::VK_SNAPSHOT || key == platform::VK_NUMLOCK ||
         key == platform::VK_CANCEL || key == platform::VK_RCONTROL || key == platform::VK_RMENU;
}

// What ends the sending when the user has stopped the run meanwhile.
struct GivenUp {};

// Sends key after key, each when the one before has been taken. So what a receiver that hangs leaves behind is one key.
class Sender {
 public:
  Sender() = default;
  // The keys that are still held are let go, also behind a fault.
  ~Sender() {
    for (auto key = held_.rbegin(); key != held_.rend(); ++key) Send(*key, false);
  }
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  void Press(std::uint8_t key) { Step(key, true); }
  void LetGo(std::uint8_t key) { Step(key, false); }
  void Stroke(std::uint8_t key) {
    Press(key);
    LetGo(key);
  }
  void Character(char character) {
    Follow();
    platform::TypeCharacter(character);
    WaitForAll();
  }

  // Modifiers of the string.
  void Hold(std::uint8_t key) {
    Follow();
    held_.push_back(key);
    Press(key);
  }
  void Release(std::uint8_t key) {
    std::erase(held_, key);
    LetGo(key);
  }
  bool HoldsAny() const { return !held_.empty(); }
  bool Holds(std::uint8_t key) const { return std::ranges::count(held_, key) != 0; }

  void WaitForAll() {
    WaitUntil([this] { return receiver_.TookAll(); });
    // Those for the program's own windows wait in its own queue.
    if (receiver_.IsOwn()) forms::Pump();
  }

 private:
  static void Send(std::uint8_t key, bool down) {
    const std::uint32_t extended = IsExtended(key) ? platform::KEYEVENTF_EXTENDEDKEY : 0;
    platform::keybd_event(key, 0, extended | (down ? 0 : platform::KEYEVENTF_KEYUP), 0);
  }

  void Follow() {
    if (!receiver_.Follow()) return;
    for (const std::uint8_t key : held_) Send(key, true);
  }

  void Step(std::uint8_t key, bool down) {
    Follow();
    Send(key, down);
    WaitUntil([&] { return receiver_.Took(key, down); });
  }

  template <class Done>
  void WaitUntil(Done done) {
    while (!done()) {
      forms::Pump();
      if (basMain::run.StopRun) throw GivenUp{};
    }
  }

  platform::KeyReceiver receiver_;
  std::vector<std::uint8_t> held_;
};

// The user may still hold the keys that started the run.
void LetGoHeldModifiers(Sender& sender) {
  constexpr std::uint8_t kModifiers[] = {platform::VK_MENU,  platform::VK_CONTROL,  platform::VK_SHIFT,
                                         platform::VK_RMENU, platform::VK_RCONTROL, platform::VK_RSHIFT};
  for (const std::uint8_t key : kModifiers) {
    if (platform::GetAsyncKeyState(key) >= 0) continue;
    // Alt alone would open the menu.
    if (key == platform::VK_MENU) sender.Stroke(platform::VK_CONTROL);
    sender.LetGo(key);
  }
}

// By its key where it has one, since programs also look at keys. What needs more than Shift has none of its own.
void Type(char character, Sender& sender) {
  const int key = platform::VkKeyScanA(character);
  if (key < 0 || ((key & kNeedsMore) != 0 && !sender.HoldsAny())) return sender.Character(character);
  const auto code = static_cast<std::uint8_t>(key & 0xFF);
  const bool shift = (key & kNeedsShift) != 0 && !sender.Holds(platform::VK_SHIFT);
  if (shift) sender.Hold(platform::VK_SHIFT);
  sender.Stroke(code);
  if (shift) sender.Release(platform::VK_SHIFT);
}

void CarryOut(const Step& step, Sender& sender) {
  for (int i = 0; i < step.times; ++i) {
    switch (step.action) {
      case Action::Hold:
        sender.Hold(step.code);
        break;
      case Action::Release:
        sender.Release(step.code);
        break;
      case Action::Stroke:
        sender.Stroke(step.code);
        break;
      case Action::Type:
        Type(static_cast<char>(step.code), sender);
        break;
    }
  }
}

void SendSteps(const std::vector<Step>& steps) {
  const bool capsLock = (platform::GetKeyState(platform::VK_CAPITAL) & 1) != 0;
  Sender sender;
  LetGoHeldModifiers(sender);
  if (capsLock) sender.Stroke(platform::VK_CAPITAL);
  for (const Step& step : steps) CarryOut(step, sender);
  if (capsLock) sender.Stroke(platform::VK_CAPITAL);
  sender.WaitForAll();
}

}  // namespace

void SendKeys(const std::string& keys) {
  const std::vector<Step> steps = key_notation::Parse(keys);
  try {
    SendSteps(steps);
  } catch (const GivenUp&) {
  }
}

}  // namespace basAPI
