// The dialog of the second application's asset export: which business years of its matrix are exported. It writes the
// configuration that the export reads, and makes a directory for each year.
#pragma once

#include <string>

#include "clients/year_list_dialog.h"

namespace basMain {

class InputMerANLForm : public YearListDialog {
 public:
  InputMerANLForm();

  // Shows the text as the question, its "%1" replaced by the client's number, and keeps that.
  void InfoCaption(const std::string& text, const std::string& client);

  // Checks the years from the configured first one on.
  void PresetMerYears();

  void cmdOK_Click() override;

  forms::Box Layout() override;

 private:
  // Writes export.cfg and makes the directories of the checked rows, which keep them as their Pfad. Old keys in the
  // file stay. Passes over its faults.
  void SaveMerExport();

  std::string client_;
};

extern InputMerANLForm frmInputMerANL;

// "SHOWINPUTMERANL": asks for the years of MerMatrix, whose rows take the answer; a cancel goes to StopRun. Logs
// "ShowInputMerANL". Always true, but for a fault, such as no matrix.
bool ShowInputMerANL(const std::string& text, const std::string& client);

}  // namespace basMain
