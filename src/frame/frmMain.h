// The main form: never seen, it owns a window for the message queue, the notification icon with its menu, the hot key
// and the clipboard timer. What a press or a choice in the menu sets going is no business of the form: it raises an
// event, and start_up.h puts in what follows.
#pragma once

#include <cstdint>

#include "forms/form.h"
#include "platform/shell.h"

namespace basMain {

// What the form only tells of; each does nothing until it is put in, before the form is loaded.
struct MainFormEvents {
  void (*Start)() = [] {};     // while the form loads: file system and log are there, icon and hot key not yet
  void (*Press)() = [] {};     // the hot key
  void (*ShowLog)() = [] {};   // chosen in the menu
  void (*ShowInfo)() = [] {};  // the same
  void (*Exit)() = [] {};      // the same, before the form unloads itself and ends the program
};

struct MainForm : forms::Form {
  MainForm();

  MainFormEvents Events;

  // Shows the state of the program in the notification area: 0 idle, 1 running, 2 failed. Another value keeps the icon.
  void SwitchTray(std::int16_t state);

  // Looks after the icon whenever a message arrives: puts it up again after the shell has started anew, and tries again
  // while the notification area has not taken it, as before the shell is up.
  void KeepIcon(std::uint32_t message);

  // One press of the hot key, see press.h. Returns when the run has ended or has failed.
  void Hotkey();

  void mnuProto_Click();
  void mnuInfo_Click();
  void mnuExit_Click();
  void Timer1_Timer();

  forms::Menu mnuDatei;
  forms::Timer Timer1;

  void Form_Load() override;
  void Form_Activate() override;
  void Form_MouseMove(double X) override;
  void Form_QueryUnload() override;

 private:
  platform::NOTIFYICONDATA TrayRecord() const;
  // Changes the icon, or adds it where there is none.
  void ShowIcon();

  std::int32_t icon_ = 0;             // the one that the notification area shows
  bool iconMissing_ = false;          // ... or did not take
  std::uint32_t taskbarCreated_ = 0;  // number of the message by which a new shell tells of itself; 0: not known
  bool trayEvent_ = false;            // guards Form_MouseMove against re-entry
};

extern MainForm frmMain;

// The window procedure that Form_Load puts in front of the form's own: answers the hot key, and gives it and the window
// procedure back when the window goes. A run takes place inside this call.
std::int32_t PLATFORM_CALLBACK MainWindowProc(std::int32_t hWnd, std::uint32_t uMsg, std::int32_t wParam,
                                              std::int32_t lParam);

}  // namespace basMain
