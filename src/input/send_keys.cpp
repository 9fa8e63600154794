#include "input/send_keys.h"

#include <algorithm>
#include <cstdint>
#include <vector>

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

void Press(std::uint8_t key) {
  platform::keybd_event(key, 0, IsExtended(key) ? platform::KEYEVENTF_EXTENDEDKEY : 0, 0);
}

void LetGo(std::uint8_t key) {
  const std::uint32_t extended = IsExtended(key) ? platform::KEYEVENTF_EXTENDEDKEY : 0;
  platform::keybd_event(key, 0, extended | platform::KEYEVENTF_KEYUP, 0);
}

void Stroke(std::uint8_t key) {
  Press(key);
  LetGo(key);
}

// The user may still hold the keys that started the run.
void LetGoHeldModifiers() {
  constexpr std::uint8_t kModifiers[] = {platform::VK_MENU,  platform::VK_CONTROL,  platform::VK_SHIFT,
                                         platform::VK_RMENU, platform::VK_RCONTROL, platform::VK_RSHIFT};
  for (const std::uint8_t key : kModifiers) {
    if (platform::GetAsyncKeyState(key) >= 0) continue;
    // Alt alone would open the menu.
    if (key == platform::VK_MENU) Stroke(platform::VK_CONTROL);
    LetGo(key);
  }
}

// The modifiers that the string holds; those still down are let go when sending ends, also by a fault.
class Modifiers {
 public:
  Modifiers() = default;
  ~Modifiers() {
    while (!down_.empty()) Release(down_.back());
  }
  Modifiers(const Modifiers&) = delete;
  Modifiers& operator=(const Modifiers&) = delete;

  void Hold(std::uint8_t key) {
    Press(key);
    down_.push_back(key);
  }
  void Release(std::uint8_t key) {
    LetGo(key);
    std::erase(down_, key);
  }
  bool Any() const { return !down_.empty(); }
  bool Held(std::uint8_t key) const { return std::find(down_.begin(), down_.end(), key) != down_.end(); }

 private:
  std::vector<std::uint8_t> down_;
};

class CapsLockOff {
 public:
  CapsLockOff() : wasOn_((platform::GetKeyState(platform::VK_CAPITAL) & 1) != 0) {
    if (wasOn_) Stroke(platform::VK_CAPITAL);
  }
  ~CapsLockOff() {
    if (wasOn_) Stroke(platform::VK_CAPITAL);
  }
  CapsLockOff(const CapsLockOff&) = delete;
  CapsLockOff& operator=(const CapsLockOff&) = delete;

 private:
  const bool wasOn_;
};

// By its key where it has one, since programs also look at keys. What needs more than Shift has none of its own.
void Type(char character, Modifiers& modifiers) {
  const int key = platform::VkKeyScanA(character);
  if (key < 0 || ((key & kNeedsMore) != 0 && !modifiers.Any())) return platform::TypeCharacter(character);
  const auto code = static_cast<std::uint8_t>(key & 0xFF);
  const bool shift = (key & kNeedsShift) != 0 && !modifiers.Held(platform::VK_SHIFT);
  if (shift) modifiers.Hold(platform::VK_SHIFT);
  Stroke(code);
  if (shift) modifiers.Release(platform::VK_SHIFT);
}

void CarryOut(const Step& step, Modifiers& modifiers) {
  for (int i = 0; i < step.times; ++i) {
    switch (step.action) {
      case Action::Hold:
        modifiers.Hold(step.code);
        break;
      case Action::Release:
        modifiers.Release(step.code);
        break;
      case Action::Stroke:
        Stroke(step.code);
        break;
      case Action::Type:
        Type(static_cast<char>(step.code), modifiers);
        break;
    }
  }
}

}  // namespace

void SendKeys(const std::string& keys) {
  const std::vector<Step> steps = key_notation::Parse(keys);
  LetGoHeldModifiers();
  {
    const CapsLockOff capsLock;
    Modifiers modifiers;
    for (const Step& step : steps) CarryOut(step, modifiers);
  }
  // Keys for the program's own windows wait in its own queue.
  if (!platform::WaitForKeys()) forms::Pump();
}

}  // namespace basAPI
