#include "export_form.h"

#include "journal.h"

namespace standin {

namespace {

void Press(const ExportForm& form, HWND window, int id) {
  // A posted command reaches a disabled button too.
  if (id == form.startId && IsWindowEnabled(GetDlgItem(window, id))) {
    Journal("Schaltfläche: Export starten");
    form.Start();
  } else if (id == form.closeId || id == IDCANCEL) {
    Journal("Schaltfläche: Schließen");
    DestroyWindow(window);
  }
}

}  // namespace

LRESULT HandleExportForm(const ExportForm& form, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wParam) == BN_CLICKED) Press(form, window, LOWORD(wParam));
      return 0;
    case WM_TIMER:
      form.Continue();
      return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace standin
