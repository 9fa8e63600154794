// The user's answers to the modal dialogs of the program.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "forms/form.h"
#include "options.h"

namespace makrun {

// A dialog that is still shown when its answers are used up and it has been confirmed.
struct DialogStays {
  std::string form;
};

// While it lives, each modal dialog takes the next answers that name it, in their order, and is confirmed by its
// default button when they have not closed it.
class DialogAnswers {
 public:
  explicit DialogAnswers(const std::vector<Answer>& answers);
  ~DialogAnswers();
  DialogAnswers(const DialogAnswers&) = delete;
  DialogAnswers& operator=(const DialogAnswers&) = delete;

  // Those that no dialog has asked for.
  const std::deque<Answer>& Left() const { return answers_; }

 private:
  // Faults: UsageError for a control that the form does not have, DialogStays.
  void AnswerDialog(forms::Form& form);

  std::deque<Answer> answers_;
};

}  // namespace makrun
