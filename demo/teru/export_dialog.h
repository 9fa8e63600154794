// The dialog "GDPdU-Export": a window of its own beside the main window, with a path box and a start button.
#pragma once

#include <windows.h>

namespace teru {

constexpr char kExportTitle[] = "GDPdU-Export";

constexpr int kIdPath = 2110;
constexpr int kIdStart = 2111;
constexpr int kIdClose = 2112;
constexpr int kIdProgressText = 2113;
constexpr int kIdProgressBar = 2114;

// Milliseconds between two pieces of an export.
extern UINT exportTick;

// Opens the dialog without taking the focus; an open one stays as it is.
void OpenExportDialog();
// Opens the dialog and brings it to the front.
void ActivateExportDialog();

}  // namespace teru
