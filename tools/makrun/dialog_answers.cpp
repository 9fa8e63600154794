#include "dialog_answers.h"

#include <algorithm>

#include "common/code_pages.h"
#include "common/tool.h"
#include "forms/simulated/user.h"
#include "texts.h"

namespace makrun {
namespace {

namespace user = forms::simulated;

forms::Control* FindControl(const forms::Form& form, const std::string& name) {
  for (forms::Control* control : form.Controls())
    if (control->name == name) return control;
  return nullptr;
}

[[noreturn]] void Refuse(const tools::Text& why, const Answer& answer) {
  throw tools::UsageError{tools::Say(why, {answer.form, answer.control, answer.text})};
}

bool Shows(const forms::ListItem& item, const std::string& text) {
  return item.text == text || std::ranges::count(item.subItems, text) != 0;
}

void Choose(forms::ComboBox& combo, const Answer& answer, const std::string& entry) {
  if (std::ranges::count(combo.Items(), entry) == 0) Refuse(say::kNoSuchEntry, answer);
  user::Choose(combo, entry);
}

// Flips the check mark of each item that shows the text.
void Check(forms::ListView& list, const Answer& answer, const std::string& text) {
  bool found = false;
  for (std::size_t item = 0; item < list.Count(); ++item) {
    if (!Shows(list.Item(item), text)) continue;
    user::ClickBox(list, item);
    found = true;
  }
  if (!found) Refuse(say::kNoSuchRow, answer);
}

void Give(forms::Form& form, const Answer& answer) {
  forms::Control* const control = FindControl(form, answer.control);
  if (control == nullptr) Refuse(say::kNoSuchControl, answer);
  const std::string text = tools::ProgramText(answer.text);
  switch (control->kind) {
    case forms::ControlKind::Button:
      return user::Press(static_cast<forms::Button&>(*control));
    case forms::ControlKind::TextBox:
      return user::Type(static_cast<forms::TextBox&>(*control), text);
    case forms::ControlKind::OptionButton:
      return user::Press(static_cast<forms::OptionButton&>(*control));
    case forms::ControlKind::ComboBox:
      return Choose(static_cast<forms::ComboBox&>(*control), answer, text);
    case forms::ControlKind::ListView:
      return Check(static_cast<forms::ListView&>(*control), answer, text);
    default:
      Refuse(say::kTakesNoAnswer, answer);
  }
}

}  // namespace

DialogAnswers::DialogAnswers(const std::vector<Answer>& answers) : answers_(answers.begin(), answers.end()) {
  user::WheneverModal([this](forms::Form& form) { AnswerDialog(form); });
}

DialogAnswers::~DialogAnswers() { user::WheneverModal(nullptr); }

void DialogAnswers::AnswerDialog(forms::Form& form) {
  while (form.Visible() && !answers_.empty() && answers_.front().form == form.name) {
    const Answer answer = answers_.front();
    answers_.pop_front();
    Give(form, answer);
  }
  if (form.Visible()) user::Confirm(form);
  if (form.Visible()) throw DialogStays{form.name};
}

}  // namespace makrun
