// Windows of the simulated desktop: their life, their order, and which one is in front.
#include <algorithm>
#include <stdexcept>

#include "platform/simulated/state.h"

namespace platform::simulated {
namespace {

std::vector<std::int32_t>& SiblingsOf(const Window& window) {
  return window.parent == 0 ? TheDesktop().topLevel : At(window.parent).children;
}

// Where the top of the Z-order is for a window: below the top-most ones unless it is one of them.
std::vector<std::int32_t>::iterator TopFor(const Window& window, std::vector<std::int32_t>& siblings) {
  if (window.topMost) return siblings.begin();
  return std::find_if(siblings.begin(), siblings.end(), [](std::int32_t other) { return !At(other).topMost; });
}

void ChooseNewForeground() {
  Desktop& desktop = TheDesktop();
  const auto next = std::find_if(desktop.topLevel.begin(), desktop.topLevel.end(),
                                 [](std::int32_t hWnd) { return At(hWnd).visible && At(hWnd).enabled; });
  desktop.foreground = next == desktop.topLevel.end() ? 0 : *next;
}

}  // namespace

Window* Find(std::int32_t hWnd) {
  auto& windows = TheDesktop().windows;
  const auto found = windows.find(hWnd);
  return found == windows.end() ? nullptr : &found->second;
}

std::int32_t AddWindow(Window window) {
  Desktop& desktop = TheDesktop();
  window.handle = desktop.nextHandle;
  desktop.nextHandle += 2;
  // A combo box shows the entry that is selected.
  if (window.selection >= 0) window.text = window.entries.at(static_cast<std::size_t>(window.selection));
  if (window.process == 0) window.process = window.parent == 0 ? desktop.nextProcess++ : At(window.parent).process;
  std::vector<std::int32_t>& siblings = SiblingsOf(window);
  siblings.insert(window.parent == 0 ? TopFor(window, siblings) : siblings.end(), window.handle);
  const std::int32_t handle = window.handle;
  desktop.windows.emplace(handle, std::move(window));
  return handle;
}

// Each window is told before it is gone, the children first.
void DestroyWindow(std::int32_t hWnd) {
  if (!Exists(hWnd)) return;
  for (const std::int32_t child : std::vector(At(hWnd).children)) DestroyWindow(child);
  Deliver(hWnd, {WM_NCDESTROY, 0, 0});
  if (!Exists(hWnd)) return;
  Desktop& desktop = TheDesktop();
  for (auto& [process, focus] : desktop.focus)
    if (focus == hWnd) focus = At(hWnd).parent;
  std::erase(SiblingsOf(At(hWnd)), hWnd);
  desktop.windows.erase(hWnd);
  desktop.normalPositions.erase(hWnd);
  if (desktop.foreground == hWnd) ChooseNewForeground();
}

bool Exists(std::int32_t hWnd) { return Find(hWnd) != nullptr; }

Window& At(std::int32_t hWnd) {
  Window* window = Find(hWnd);
  if (window == nullptr) throw std::logic_error("no window with handle " + std::to_string(hWnd));
  return *window;
}

void BringToFront(std::int32_t hWnd) {
  const Window& window = At(hWnd);
  std::vector<std::int32_t>& siblings = SiblingsOf(window);
  std::erase(siblings, hWnd);
  siblings.insert(TopFor(window, siblings), hWnd);
}

void Activate(std::int32_t hWnd) {
  BringToFront(hWnd);
  TheDesktop().foreground = hWnd;
}

void ShowWindow(std::int32_t hWnd, bool visible) {
  At(hWnd).visible = visible;
  if (!visible && TheDesktop().foreground == hWnd) ChooseNewForeground();
}

std::int32_t Foreground() { return TheDesktop().foreground; }

}  // namespace platform::simulated
