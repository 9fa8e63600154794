#include "desktop.h"

#include "automation/state.h"
#include "automation/window_search.h"
#include "frame/state.h"
#include "makrun/desktop_file.h"
#include "makrun/scene.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "runtime/text.h"

namespace makcheck {
namespace {

// The plan that a window or control was made by.
const makrun::WindowPlan* PlanOf(std::int32_t hWnd, const makrun::WindowPlan& plan) {
  if (makrun::scene.Find(plan) == hWnd) return &plan;
  for (const makrun::WindowPlan& control : plan.controls)
    if (const auto* found = PlanOf(hWnd, control)) return found;
  return nullptr;
}

// The names of the windows that are open.
std::vector<std::string> NamesFromTheTop() {
  std::vector<std::string> names;
  for (std::int32_t hWnd = platform::FindWindowA(nullptr, nullptr); hWnd != 0;
       hWnd = platform::GetWindow(hWnd, platform::GW_HWNDNEXT))
    for (const auto& [name, plan] : makrun::scene.plans)
      if (makrun::scene.Find(plan) == hWnd) names.push_back(name);
  return names;
}

}  // namespace

std::string Describe(const ControlView& control) {
  std::string text = std::to_string(control.id) + " " + control.cls;
  if (!control.text.empty()) text += " \"" + control.text + "\"";
  return text;
}

// What is open from the start lies on top in its order, and the message boxes below all: a box bears the title of the
// window that it belongs to.
Desktop::Desktop(const std::string& path) {
  makrun::LoadDesktopFile(path);
  mainWindow_ = platform::GetForegroundWindow();
  basMain::frame.MainWindow = mainWindow_;
  std::vector<std::string> order;  // from the lowest up
  for (const bool boxes : {true, false})
    for (const auto& [name, plan] : makrun::scene.plans)
      if (plan.closesOnCommand == boxes && makrun::scene.Find(plan) == 0) order.push_back(name);
  const auto fromTheStart = NamesFromTheTop();
  order.insert(order.end(), fromTheStart.rbegin(), fromTheStart.rend());
  for (const std::string& name : order) {
    makrun::scene.Open(name);
    windows_.push_back(makrun::scene.Find(makrun::scene.plans.at(name)));
  }
}

std::vector<std::string> Desktop::Titles() const {
  std::vector<std::string> titles;
  for (const std::int32_t window : windows_) titles.push_back(basMain::GetWindowTitle(window));
  return titles;
}

std::vector<ControlView> Desktop::ControlsOf(const std::string& title, bool exact) const {
  std::vector<ControlView> controls;
  for (const std::int32_t window : windows_) {
    const std::string shown = basMain::GetWindowTitle(window);
    if (exact ? shown != title : !runtime::Contains(shown, title)) continue;
    const auto below = Below(window);
    controls.insert(controls.end(), below.begin(), below.end());
  }
  return controls;
}

std::vector<ControlView> Desktop::Below(std::int32_t hParent) {
  basMain::EmptyChildWindowList();
  basMain::CollectChildWindows(hParent);
  std::vector<ControlView> controls;
  for (std::size_t i = 0; i + 1 < basMain::automation.ChildWindowList.size(); ++i) {
    const std::int32_t control = basMain::automation.ChildWindowList[i];
    controls.push_back({control, platform::GetDlgCtrlID(control), basMain::GetWindowClass(control),
                        basMain::GetWindowTitle(control)});
  }
  return controls;
}

std::vector<std::string> Desktop::CommandsOf(std::int32_t hWnd) const {
  constexpr std::int32_t kLastCommand = 0xFFFF;
  std::vector<std::string> commands;
  for (const auto& [name, window] : makrun::scene.plans) {
    const makrun::WindowPlan* plan = PlanOf(hWnd, window);
    if (plan == nullptr) continue;
    for (std::int32_t id = 0; id <= kLastCommand; ++id)
      for (const makrun::Reaction& reaction : plan->reactions)
        if (reaction.wanted({platform::WM_COMMAND, id, 0})) commands.push_back(std::to_string(id));
  }
  return commands;
}

}  // namespace makcheck
