// The dialog of the second application's bookkeeping export: picks clients of a list that comes from a file, and a span
// of years, and writes a line for each client and year to a work file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "clients/input_dialog.h"

namespace basMain {

class InputMerFibForm : public InputDialog {
 public:
  InputMerFibForm();

  using InputDialog::InputState;
  // Shows the text as the question.
  void InfoCaption(const std::string& text);
  // Keeps the path of the client file and shows it.
  void FileName(const std::string& file);
  // Path of the work file; empty until the dialog has been confirmed.
  const std::string& ExportFileName() const { return exportFileName_; }

  // Fills the list from the client file: two lines that are skipped, then a client in each, with fields between
  // semicolons, of which there must be six. False when that fails; LastError tells why.
  bool ShowData();

  void cmdSelect_Click();
  void cmdOK_Click() override;

  forms::ListView lstViewMandanten;
  forms::Label Label3;
  forms::Label lblFile;
  forms::Label Label1;
  forms::TextBox txtFrom;
  forms::Label Label2;
  forms::TextBox txtTo;
  forms::Label Label4;
  forms::TextBox txtMandantVon;
  forms::Label Label5;
  forms::TextBox txtMandantBis;
  forms::Button cmdSelect;

  forms::Box Layout() override;
  void Form_Load() override;

 private:
  // Adds a checked client. Passes over its faults: of clients with the same number the first one stays.
  void AddClientRow(const std::string& number, const std::string& client, const std::string& begin);
  void SelectClient(std::size_t item, std::int32_t first, std::int32_t last);

  // Writes the work file, which is made anew. False when that fails; message_ tells why.
  bool WriteClientYears();
  void WriteLines(std::int32_t from, std::int16_t span);

  std::string fileName_;
  std::string exportFileName_;
  std::string message_;
};

extern InputMerFibForm frmInputMerFib;

// "SHOWINPUTMERFIB": asks for clients of the file and years; yields the path of the work file. A confirmation sets
// MerlaMaxYear, a cancel StopRun, and a client file that cannot be read RunFailed, as does any other fault. Logs
// "ShowInputMerFib (state)".
std::string ShowInputMerFib(const std::string& text, const std::string& file);

}  // namespace basMain
