// What the forms with an export share: a button that starts it, a timer by which it goes on, a button that closes.
#pragma once

#include <windows.h>

namespace standin {

constexpr UINT_PTR kExportTimer = 1;

struct ExportForm {
  int startId;
  int closeId;
  // The start button, while it is enabled.
  void (*Start)();
  // Each tick of the timer.
  void (*Continue)();
};

// Handles a message of such a form: its two buttons, each of which the journal names, Escape, and the timer. All else
// goes to the system.
LRESULT HandleExportForm(const ExportForm& form, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace standin
