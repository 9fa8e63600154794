// What the dialogs with which a macro asks its user have in common: a question, a picture, and an answer that is read
// when the dialog has closed.
#pragma once

#include <cstdint>
#include <string>

#include "forms/form.h"

namespace basMain {

class InputDialog : public forms::Form {
 public:
  static constexpr std::int32_t kCancelled = -1;
  static constexpr std::int32_t kConfirmed = 8;

  // How the dialog ended: kCancelled, kConfirmed or a value of its own; 0 until it is answered.
  std::int32_t InputState() const { return state_; }

  virtual void cmdOK_Click() = 0;
  void cmdCancel_Click();

  forms::Picture imgQuest;
  forms::Label lblInfo;
  forms::Button cmdOK;
  forms::Button cmdCancel;

  void Form_Load() override;
  void Form_QueryUnload() override;

 protected:
  explicit InputDialog(const std::string& formName, forms::FormStyle formStyle = {});

  // Takes the answer; the dialog stays open until it is unloaded.
  void Answer(std::int32_t state);

  // A message over the dialog, which stays open; the icon is a style of the system's message box.
  void Refuse(const std::string& message, std::uint32_t icon);

 private:
  std::int32_t state_ = 0;
  bool answered_ = false;
};

// Shows a dialog for one verb: makes its window anew, top-most, handles waiting messages, calls `fill` and, unless that
// yields false, shows it until it is answered. A dialog that cannot be filled closes unseen. True when it was shown. A
// cancel sets StopRun. Faults: those of `fill`; FormShown when a nested run asks while the dialog waits for its answer.
bool AskUser(InputDialog& dialog, const std::function<bool()>& fill);

}  // namespace basMain
