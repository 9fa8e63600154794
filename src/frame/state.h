// What the last press of the hot key chose.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

struct FrameState {
  std::int32_t MainWindow = 0;   // foreground window at the last press: the target of all verbs that name no window
  std::string MakroFile;         // chosen macro, relative to the program's folder; kept between presses
  bool ClipboardFilled = false;  // set by the main form's timer
};

extern FrameState frame;

}  // namespace basMain
