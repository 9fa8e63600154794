// The windows of a desktop file by their names: how each is made, which of them are open, and what they do.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/simulated/desktop.h"

namespace makrun {

using Action = std::function<void()>;

struct Reaction {
  std::function<bool(const platform::simulated::Message&)> wanted;
  std::vector<Action> actions;
};

// A window or control as the file describes it. It stays where it is once it is part of the scene.
struct WindowPlan {
  platform::simulated::Window window;
  std::vector<Reaction> reactions;
  std::list<WindowPlan> controls;
  bool refusesText = false;      // WM_SETTEXT has no effect and answers 0
  bool staysOnClose = false;     // WM_CLOSE does what the file says and nothing else
  bool closesOnCommand = false;  // a message box: the first command closes it, after the reactions
  std::int32_t closesAfter = 0;  // so many milliseconds later
  // A folder browser: the path that BFFM_SETSELECTIONA brings is shown by this child.
  const WindowPlan* folderControl = nullptr;
};

// The control with this id below a window or control: direct children come first, then deeper ones level by level; null
// where there is none.
const WindowPlan* FindControl(const WindowPlan& parent, std::int32_t id);

// Selects an entry of a combo box, which then shows it; -1 for none.
void SelectEntry(platform::simulated::Window& combo, std::int32_t index);

class Scene {
 public:
  std::map<std::string, WindowPlan> plans;

  // Makes the window on top of all others and in front. One that is open comes to the front.
  void Open(const std::string& name);

  // Whether nobody has answered this message box before.
  bool TakeAnswer(std::int32_t box);

  // The window or control that was made by a plan last; 0 when it is not there.
  std::int32_t Find(const WindowPlan& plan) const;

 private:
  std::int32_t Make(const WindowPlan& plan, std::int32_t parent);

  std::map<const WindowPlan*, std::int32_t> handles_;
  std::set<std::int32_t> answered_;
};

// The windows of the desktop file at hand.
extern Scene scene;

}  // namespace makrun
