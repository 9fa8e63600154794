// A small program in the place of the accounting suite: it shows a client's books and offers their export in a dialog
// for a person to work through. It is there for the demonstration and the end-to-end tests.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <string>

#include "books.h"
#include "client_list.h"
#include "export_dialog.h"
#include "journal.h"
#include "look.h"
#include "main_window.h"

namespace {

struct Options {
  std::string caption;
  std::string log;
};

Options ReadCommandLine() {
  const teru::Firm& firm = teru::OurFirm();
  Options options{"TeRu - " + firm.consultant + "/" + firm.number + "/" + firm.year + "/Finanzbuchhaltung", ""};
  for (int i = 1; i + 1 < __argc; i += 2) {
    std::string option = __argv[i];
    if (option == "--caption") options.caption = __argv[i + 1];
    if (option == "--log") options.log = __argv[i + 1];
    if (option == "--clients") teru::clientCount = std::atoi(__argv[i + 1]);
    if (option == "--tick") teru::exportTick = static_cast<UINT>(std::atoi(__argv[i + 1]));
  }
  return options;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&controls);
  Options options = ReadCommandLine();
  if (!options.log.empty()) standin::OpenJournal(options.log);
  standin::Journal("Start: " + options.caption);

  standin::RegisterClasses(instance);
  HWND window = teru::OpenMainWindow(options.caption);
  teru::OpenExportDialog();
  SetForegroundWindow(window);

  return standin::MessageLoop();
}
