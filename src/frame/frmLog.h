// Shows the log as it stands when the form opens.
#pragma once

#include "forms/form.h"

namespace basMain {

struct LogForm : forms::Form {
  LogForm();

  forms::RichTextBox txtProtokoll;  // fills the form

  forms::Box Layout() override;
  void Form_Load() override;
};

extern LogForm frmLog;

}  // namespace basMain
