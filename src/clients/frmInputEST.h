// The client range dialog: all clients, the one worked on last, or a range of client numbers.
#pragma once

#include <string>

#include "clients/input_dialog.h"

namespace basMain {

class InputESTForm : public InputDialog {
 public:
  static constexpr std::int32_t kAll = 1;
  static constexpr std::int32_t kCurrent = 2;
  static constexpr std::int32_t kFromTo = 4;

  InputESTForm();

  // The answer, to be read when the dialog has closed; InputState is 0 when it was confirmed with no option set. The
  // range is as typed, and set only with kFromTo.
  using InputDialog::InputState;
  const std::string& MandantNrFrom() const { return from_; }
  const std::string& MandantNrTo() const { return to_; }
  // Shows the text as the question.
  void InfoCaption(const std::string& text);

  void cmdOK_Click() override;

  forms::OptionButton optAll;
  forms::OptionButton optCurrent;
  forms::OptionButton optFromTo;
  forms::Label Label1;
  forms::TextBox txtFrom;
  forms::Label Label2;
  forms::TextBox txtTo;

  forms::Box Layout() override;

 private:
  bool TakeRange();

  std::string from_;
  std::string to_;
};

extern InputESTForm frmInputEST;

// "SHOWINPUTDLG": asks for the clients to be processed; the answer goes to InputState, MandantNrFrom and MandantNrTo, a
// cancel to StopRun. Logs "ShowInputDlg (state)". Always true, but for a fault.
bool ShowInputDlg(const std::string& text);

}  // namespace basMain
