// The windows of a desktop file, all of them open at once on the simulated desktop, so that the program's own search
// finds what a macro names.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "rehearsal.h"

namespace makcheck {

struct ControlView {
  std::int32_t handle = 0;
  std::int32_t id = 0;
  std::string cls = {};
  std::string text = {};
};

// "2111 ThunderRT6CommandButton "&Export starten"", for a message.
std::string Describe(const ControlView& control);

// There is one simulated desktop, so that there can be one of these at a time.
class Desktop {
 public:
  // Faults: tools::FileError with file, line and what was expected.
  explicit Desktop(const std::string& path);

  std::int32_t MainWindow() const { return mainWindow_; }
  std::vector<std::string> Titles() const;
  // The controls of all windows with a title that fits, deeper ones behind their parents.
  std::vector<ControlView> ControlsOf(const std::string& title, bool exact) const;
  static std::vector<ControlView> Below(std::int32_t hParent);
  // The menu commands that a window or control answers.
  std::vector<std::string> CommandsOf(std::int32_t hWnd) const;

 private:
  rehearsal::FreshSystem system_;
  std::int32_t mainWindow_ = 0;
  std::vector<std::int32_t> windows_;
};

}  // namespace makcheck
