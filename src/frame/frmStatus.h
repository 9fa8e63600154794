// The status dialog: the one window that the user sees during a run. It tells what goes on, is the only way to
// interrupt a run, and after a failure offers to go on behind the failed line.
#pragma once

#include <cstdint>
#include <string>

#include "forms/form.h"

namespace basMain {

struct StatusForm : forms::Form {
  StatusForm();

  // Raised by cmdResume, which only tells that the run is to go on; does nothing until start_up.h puts in what follows.
  void (*Resume)() = [] {};

  // Pumps once, then shows the phase of the run.
  void Info(const std::string& strInfo);
  // Pumps once, then shows the current step.
  void Status(const std::string& strStatus);
  // Shows how far the run is: the value of the progress bar.
  void Progress(std::int16_t intProg);
  // Shows and logs LastError and offers to go on.
  void ProcessError();
  // Shows and logs that the run has completed or was stopped, and the closing star line.
  void ProcessComplete();

  void cmdResume_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  forms::Label lblInfo;
  forms::Label lblStatus;
  forms::ProgressBar ProgressBar;
  forms::Button cmdResume;
  forms::Button cmdOK;
  forms::Button cmdCancel;

  forms::Box Layout() override;
  void Form_Load() override;
  void Form_Unload() override;
};

extern StatusForm frmStatus;

}  // namespace basMain
