#include "scene.h"

#include <deque>
#include <optional>

#include "platform/messages.h"
#include "platform/simulated/memory.h"

namespace makrun {
namespace {

namespace simulated = platform::simulated;
using simulated::Message;

// The path ends at the first NUL of the window's own memory.
std::string PathAt(std::uint32_t process, std::int32_t address) {
  std::string path;
  for (char c = 0; simulated::ReadMemory(process, address, &c, 1) && c != '\0'; ++address) path += c;
  return path;
}

void TakeFolder(std::int32_t browser, const WindowPlan& control, const Message& message) {
  if (const std::int32_t shown = scene.Find(control))
    simulated::At(shown).text = PathAt(simulated::At(browser).process, message.lParam);
}

// What a planned window does with a message before its class sees it. The plan outlives the window.
std::optional<std::int32_t> React(const WindowPlan& plan, std::int32_t window, const Message& message) {
  const bool answers = message.number == platform::WM_COMMAND && plan.closesOnCommand;
  if (answers && !scene.TakeAnswer(window)) return 0;
  if (message.number == platform::BFFM_SETSELECTIONA && plan.folderControl != nullptr)
    TakeFolder(window, *plan.folderControl, message);
  for (const Reaction& reaction : plan.reactions) {
    if (!reaction.wanted(message)) continue;
    for (const Action& action : reaction.actions) action();
  }
  if (message.number == platform::WM_SETTEXT && plan.refusesText) return 0;
  if (message.number == platform::WM_CLOSE && plan.staysOnClose) return 0;
  if (answers) {
    if (plan.closesAfter == 0) simulated::DestroyWindow(window);
    else simulated::Schedule(plan.closesAfter, [window] { simulated::DestroyWindow(window); });
    return 0;
  }
  return std::nullopt;
}

}  // namespace

Scene scene;

const WindowPlan* FindControl(const WindowPlan& parent, std::int32_t id) {
  std::deque<const WindowPlan*> waiting = {&parent};
  for (; !waiting.empty(); waiting.pop_front()) {
    for (const WindowPlan& control : waiting.front()->controls) {
      if (control.window.id == id) return &control;
      waiting.push_back(&control);
    }
  }
  return nullptr;
}

void SelectEntry(simulated::Window& combo, std::int32_t index) {
  const bool has = index >= 0 && static_cast<std::size_t>(index) < combo.entries.size();
  combo.selection = has ? index : -1;
  combo.text = has ? combo.entries[static_cast<std::size_t>(index)] : "";
}

std::int32_t Scene::Make(const WindowPlan& plan, std::int32_t parent) {
  simulated::Window window = plan.window;
  window.parent = parent;
  if (window.selection >= 0) SelectEntry(window, window.selection);
  const std::int32_t handle = handles_[&plan] = simulated::AddWindow(window);
  simulated::At(handle).procedure = [&plan, handle](const Message& message) { return React(plan, handle, message); };
  for (const WindowPlan& control : plan.controls) Make(control, handle);
  return handle;
}

void Scene::Open(const std::string& name) {
  const WindowPlan& plan = plans.at(name);
  std::int32_t window = Find(plan);
  if (window == 0) window = Make(plan, 0);
  if (simulated::At(window).visible) simulated::Activate(window);
}

bool Scene::TakeAnswer(std::int32_t box) { return answered_.insert(box).second; }

std::int32_t Scene::Find(const WindowPlan& plan) const {
  const auto handle = handles_.find(&plan);
  return handle != handles_.end() && simulated::Exists(handle->second) ? handle->second : 0;
}

}  // namespace makrun
