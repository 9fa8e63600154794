// A question for an account and its bank code.
#pragma once

#include <string>

#include "forms/form.h"

namespace basMain {

class InputBoxKontoForm : public forms::Form {
 public:
  InputBoxKontoForm();

  // The answer, to be read when the dialog has closed; a cancel leaves the answer before it.
  const std::string& Konto() const { return konto_; }
  const std::string& BLZ() const { return blz_; }

  void cmdOK_Click();
  void cmdCancel_Click();

  forms::Label lblInfo;
  forms::Label Label1;
  forms::TextBox txtKonto;
  forms::Label Label2;
  forms::TextBox txtBLZ;
  forms::Button cmdOK;
  forms::Button cmdCancel;

  forms::Box Layout() override;

 private:
  std::string konto_;
  std::string blz_;
};

extern InputBoxKontoForm frmInputBoxKonto;

}  // namespace basMain
