// The program: wires its forms, loads the main form, which sets everything up, and waits.
#include "frame/frmMain.h"
#include "frame/start_up.h"

extern "C" int __stdcall WinMain(void*, void*, char*, int) {
  basMain::ConnectForms();
  basMain::frmMain.Load();
  forms::RunMessageLoop();
  return 0;
}
