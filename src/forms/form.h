// Forms: the program's own windows. A form is a struct with its controls as members and its handlers named control,
// underscore, event. It exists once, as a global; its window is made when it is loaded and is gone when it is unloaded,
// and the next use loads it anew with the values of its design. Members of the form that are no controls keep their
// values beyond that, so a dialog's answer can be read when it has closed.
//
// How a form looks is said in rows and columns (layout.h). What makes windows of it is the realization
// (realization.h): real ones on Windows, windows of the simulated desktop for tests.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/layout.h"

namespace forms {

struct FormStyle {
  bool topMost = false;    // comes up above all other windows
  bool resizable = false;  // the user can change its size
};

class Form {
 public:
  Form(std::string name, std::string title, FormStyle style = {});
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  const std::string name;
  const std::string title;
  const FormStyle style;

  // Makes the window, not yet visible, and runs Form_Load. Does nothing when loaded.
  void Load();
  // Runs Form_QueryUnload and Form_Unload and ends the window. Does nothing when not loaded. A modal form's ShowModal
  // returns.
  void Unload();
  bool Loaded() const { return loaded_; }
  // Ends what is known of the window without any event: it is gone already. For the realization.
  void WindowGone();

  // Loads and shows without blocking.
  void Show();
  // Loads, shows, and handles messages until the form is unloaded or hidden. The program's other windows take no input
  // meanwhile. Faults: FormShown when it is visible already.
  void ShowModal();
  void Hide();
  bool Visible() const { return visible_; }

  // The window; loads the form.
  std::int32_t hWnd();
  // The window, or 0 while the form is not loaded.
  std::int32_t Window() const { return handle_; }

  const std::vector<Control*>& Controls() const { return controls_; }
  virtual Box Layout() { return Column({}); }

  // Events, raised by the realization.
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_QueryUnload() {}
  virtual void Form_Unload() {}
  // X in twips from the left edge of the client area.
  virtual void Form_MouseMove(double /*X*/) {}

 private:
  friend class Control;
  std::vector<Control*> controls_;
  std::int32_t handle_ = 0;
  bool loaded_ = false;
  bool visible_ = false;
};

// Calls its handler every Interval milliseconds while messages are handled; 0 stops it. It belongs to a loaded form.
class Timer {
 public:
  Timer(Form& form, std::function<void()> handler) : Tick(std::move(handler)), form_(form) {}
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);

  const std::function<void()> Tick;

 private:
  Form& form_;
  int interval_ = 0;
};

struct MenuEntry {
  std::string name;
  std::string caption;  // "-" is a separator
  std::function<void()> Click;
};

struct Menu {
  std::string name;
  std::string caption;
  std::vector<MenuEntry> entries;
};

// Opens the menu at the pointer, waits for the user's choice and runs the chosen entry's handler.
void PopupMenu(Form& owner, const Menu& menu);

// Handles the waiting messages of the program's own windows once.
void Pump();

// The program's main loop: handles messages until the system ends the program or no form is loaded any more.
void RunMessageLoop();

}  // namespace forms
