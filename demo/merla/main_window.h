// The main window: the client whose books are open, and the menus that lead to the dialogs.
#pragma once

#include <windows.h>

namespace merla {

constexpr int kIdMenuQuit = 3001;
constexpr int kIdMenuYear = 3101;
constexpr int kIdMenuAssets = 3201;
constexpr int kIdMenuPostings = 3202;
constexpr int kIdClientNumber = 3301;
constexpr int kIdClientName = 3302;

HWND OpenMainWindow();

}  // namespace merla
