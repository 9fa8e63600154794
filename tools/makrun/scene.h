// The windows of a desktop file by their names: how each is made, which of them are open, and what they do.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/simulated/desktop.h"

namespace makrun {

using Action = std::function<void()>;

struct Reaction {
  std::function<bool(const platform::simulated::Message&)> wanted;
  std::vector<Action> actions;
};

// A window or control as the file describes it.
struct WindowPlan {
  platform::simulated::Window window;
  std::vector<Reaction> reactions;
  std::vector<WindowPlan> controls;
  bool refusesText = false;        // WM_SETTEXT has no effect and answers 0
  bool staysOnClose = false;       // WM_CLOSE does what the file says and nothing else
  std::int32_t folderControl = 0;  // a folder browser: the path that BFFM_SETSELECTIONA brings goes to this child
  bool closesOnCommand = false;    // a message box: any command closes it, after the reactions
};

// A window by its name, or a control below it by its id and those of its parents that are named.
struct Target {
  std::string window;
  std::vector<std::int32_t> ids;
};

// Selects an entry of a combo box, which then shows it; -1 for none.
void SelectEntry(platform::simulated::Window& combo, std::int32_t index);

class Scene {
 public:
  std::map<std::string, WindowPlan> plans;

  // Makes the window on top of all others and in front. One that is open comes to the front.
  void Open(const std::string& name);
  void Close(const std::string& name);

  // The window of a target; 0 when it is not open.
  std::int32_t Find(const Target& target) const;

 private:
  std::int32_t Make(const WindowPlan& plan, std::int32_t parent);

  std::map<std::string, std::int32_t> handles_;
};

// The windows of the desktop file at hand.
extern Scene scene;

}  // namespace makrun
