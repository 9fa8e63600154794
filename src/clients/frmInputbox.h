// The client and year dialog: shows client and year from the target's caption, lets the user correct them, and stores
// the answer as ContextPath.
#pragma once

#include <string>

#include "forms/form.h"

namespace basMain {

class InputboxForm : public forms::Form {
 public:
  InputboxForm();

  // The answer, to be read when the dialog has closed.
  const std::string& Mandant() const { return mandant_; }
  const std::string& Jahr() const { return jahr_; }
  bool Result() const { return result_; }

  void cmdOK_Click();
  void cmdCancel_Click();

  forms::Picture imgQuest;
  forms::Label lblInfo;
  forms::Label Label1;
  forms::TextBox txtMandant;
  forms::Label Label2;
  forms::TextBox txtJahr;
  forms::Button cmdOK;
  forms::Button cmdCancel;

  forms::Box Layout() override;
  void Form_Load() override;

 private:
  std::string mandant_;
  std::string jahr_;
  bool result_ = false;
};

extern InputboxForm frmInputbox;

}  // namespace basMain
