// The dialog of the asset export: which business years of the asset matrix are exported, and how low-value assets
// ("GWG") are treated in the reports.
#pragma once

#include <string>

#include "clients/year_list_dialog.h"

namespace basMain {

class InputANLForm : public YearListDialog {
 public:
  InputANLForm();

  // Shows the text as the question, its "%1" and "%2" replaced by client and year from the target's caption, and keeps
  // the client's and the consultant's number; both stay empty where the caption names no client. Logs the caption and
  // the consultant. Faults: InvalidCall for a caption that has no room for the consultant.
  void InfoCaption(const std::string& text);

  void cmdOK_Click() override;

  forms::Label Label1;
  forms::ComboBox cboGWG;

  forms::Box Layout() override;
  void Form_Load() override;
  void Form_Activate() override;

 private:
  void SaveOptions();

  std::string client_;
  std::string consultant_;
  bool firstActivation_ = false;
};

extern InputANLForm frmInputANL;

// "SHOWINPUTANL": asks for the years of Matrix, whose marks take the answer, and writes the treatment of low-value
// assets to TDConv.cfg; a cancel goes to StopRun. Logs "ShowInputANL". Always true, but for a fault, such as no matrix.
bool ShowInputANL(const std::string& text);

}  // namespace basMain
