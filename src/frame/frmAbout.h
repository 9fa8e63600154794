// The about dialog.
#pragma once

#include "forms/form.h"

namespace basMain {

struct AboutForm : forms::Form {
  AboutForm();

  void cmdOK_Click();
  void cmdSysInfo_Click();

  forms::Picture picIcon;
  forms::Label lblTitle;
  forms::Label lblVersion;
  forms::Label lblDisclaimer;
  forms::Button cmdOK;
  forms::Button cmdSysInfo;

  forms::Box Layout() override;
  void Form_Load() override;

 private:
  // Starts the system information tool; a message box tells where it cannot be found.
  void StartSysInfo();
};

extern AboutForm frmAbout;

}  // namespace basMain
