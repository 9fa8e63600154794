// A small program in the place of the second accounting application: business years in a dialog that differs between
// its versions, and two exports. It is there for the demonstration and the end-to-end tests.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <string>

#include "firm.h"
#include "journal.h"
#include "look.h"
#include "main_window.h"
#include "options.h"

merla::Options merla::options;

namespace {

std::string JournalBesideProgram() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  std::string program = path;
  return program.substr(0, program.find_last_of('\\')) + "\\MERLA.LOG";
}

void ReadCommandLine() {
  using merla::options;
  for (int i = 1; i + 1 < __argc; i += 2) {
    std::string option = __argv[i];
    std::string value = __argv[i + 1];
    if (option == "--version") options.version = value;
    if (option == "--caption") options.caption = value;
    if (option == "--log") options.log = value;
    if (option == "--dates") options.monthsOnly = value == "month";
    if (option == "--tick") options.tick = static_cast<unsigned>(std::atoi(value.c_str()));
  }
  if (options.caption.empty()) options.caption = "MERLA " + options.version + " - " + merla::OurClient().name;
  if (options.log.empty()) options.log = JournalBesideProgram();
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&controls);
  ReadCommandLine();
  standin::OpenJournal(merla::options.log);
  standin::Journal("Start: " + merla::options.caption);

  standin::RegisterClasses(instance);
  SetForegroundWindow(merla::OpenMainWindow());
  return standin::MessageLoop();
}
