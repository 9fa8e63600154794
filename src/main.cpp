// The program: loads the main form, which sets everything up, and waits.
#include "frame/frmMain.h"

extern "C" int __stdcall WinMain(void*, void*, char*, int) {
  basMain::frmMain.Load();
  forms::RunMessageLoop();
  return 0;
}
