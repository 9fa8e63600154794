// Push buttons, check boxes and options.
#include <algorithm>

#include "platform/class_names.h"
#include "platform/simulated/controls.h"
#include "runtime/text.h"

namespace platform::simulated {
namespace {

using runtime::EqualIgnoringCase;

constexpr std::uint32_t kKindMask = 15;

std::uint32_t Kind(const Window& window) {
  if (EqualIgnoringCase(window.className, kCheckBoxClass)) return BS_AUTOCHECKBOX;
  if (EqualIgnoringCase(window.className, kOptionButtonClass)) return BS_AUTORADIOBUTTON;
  return window.style & kKindMask;
}

// The largest mark that a button of this kind can have.
std::int32_t LargestCheck(std::uint32_t kind) {
  switch (kind) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      return 1;
    case BS_3STATE:
    case BS_AUTO3STATE:
      return 2;
    default:
      return 0;
  }
}

// The siblings from the last one that begins a group, up to the next one that does.
std::vector<std::int32_t> GroupOf(const Window& window) {
  if (window.parent == 0) return {window.handle};
  const auto& siblings = At(window.parent).children;
  const auto begins = [](std::int32_t hWnd) { return (At(hWnd).style & WS_GROUP) != 0; };
  const auto self = std::find(siblings.begin(), siblings.end(), window.handle);
  auto first = self;
  while (first != siblings.begin() && !begins(*first)) --first;
  return {first, std::find_if(self + 1, siblings.end(), begins)};
}

void MarkOption(Window& option) {
  for (const std::int32_t hWnd : GroupOf(option)) {
    Window& other = At(hWnd);
    if (IsButton(other) && Kind(other) == BS_AUTORADIOBUTTON) other.check = 0;
  }
  option.check = 1;
}

void ChangeMark(Window& button) {
  switch (Kind(button)) {
    case BS_AUTOCHECKBOX:
      button.check = button.check == 0 ? 1 : 0;
      break;
    case BS_AUTO3STATE:
      button.check = (button.check + 1) % 3;
      break;
    case BS_AUTORADIOBUTTON:
      MarkOption(button);
      break;
    default:
      break;
  }
}

}  // namespace

bool IsButton(const Window& window) {
  constexpr const char* kClasses[] = {"Button", kCommandButtonClass, kCheckBoxClass, kOptionButtonClass};
  return std::ranges::any_of(kClasses, [&](const char* cls) { return EqualIgnoringCase(window.className, cls); });
}

std::optional<std::int32_t> ButtonProcedure(std::int32_t hWnd, const Message& message) {
  Window& button = At(hWnd);
  switch (message.number) {
    case BM_GETCHECK:
      return button.check;
    case BM_SETCHECK:
      button.check = std::clamp(message.wParam, 0, LargestCheck(Kind(button)));
      return 0;
    case BM_CLICK:
      if (Kind(button) == BS_GROUPBOX) return 0;
      ChangeMark(button);
      Deliver(button.parent, {WM_COMMAND, button.id & 0xFFFF, hWnd});
      return 0;
    default:
      return std::nullopt;
  }
}

}  // namespace platform::simulated
