#include "forms/simulated/user.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "forms/simulated/state.h"
#include "platform/simulated/desktop.h"

namespace forms::simulated {
namespace {

using platform::simulated::At;

bool TakesInput(const Form& form) { return form.Visible() && At(form.Window()).enabled; }

bool TakesInput(const Control& control) {
  if (control.now.handle == 0 || !control.now.enabled) return false;
  const auto& form = At(At(control.now.handle).parent);
  return form.visible && form.enabled;
}

// Gives the list the focus if it takes input.
bool TakesClick(ListView& list, std::size_t item) {
  if (!TakesInput(list)) return false;
  if (item >= list.Items().size()) throw std::logic_error(list.name + " has no item " + std::to_string(item));
  state.focused = &list;
  return true;
}

// The first button that is wanted, or null.
template <class Wanted>
Button* FindAmongButtons(const Form& form, Wanted wanted) {
  for (Control* control : form.Controls()) {
    if (control->kind != ControlKind::Button) continue;
    Button* button = static_cast<Button*>(control);
    if (wanted(*button)) return button;
  }
  return nullptr;
}

// The button that Enter presses, or null.
Button* DefaultButton(const Form& form) {
  return FindAmongButtons(form, [](const Button& button) { return button.role == ButtonRole::Default; });
}

}  // namespace

void Reset() {
  for (Form* form : state.loaded) form->WindowGone();
  state = {};
}

void Press(Button& button) {
  if (!TakesInput(button)) return;
  state.focused = &button;
  button.Click();
}

void Type(TextBox& textBox, const std::string& text) {
  if (!TakesInput(textBox)) return;
  state.focused = &textBox;
  std::string typed;
  for (const char character : text) {
    if (!textBox.KeyPress || textBox.KeyPress(static_cast<unsigned char>(character))) typed += character;
  }
  textBox.now.text = typed;
  At(textBox.now.handle).text = typed;
}

void Press(OptionButton& option) {
  if (!TakesInput(option)) return;
  state.focused = &option;
  option.SetValue(true);
}

void Choose(ComboBox& combo, const std::string& entry) {
  if (!TakesInput(combo)) return;
  const auto found = std::ranges::find(combo.Items(), entry);
  if (found == combo.Items().end()) throw std::logic_error(combo.name + " has no entry " + entry);
  state.focused = &combo;
  combo.SetListIndex(static_cast<int>(found - combo.Items().begin()));
}

void ClickItem(ListView& list, std::size_t item) {
  if (TakesClick(list, item)) list.SelectByUser(item);
}

void ClickBox(ListView& list, std::size_t item) {
  if (TakesClick(list, item)) list.ToggleByUser(item);
}

void DoubleClick(ListView& list, std::size_t item) {
  ClickItem(list, item);
  if (TakesInput(list) && list.events.DblClick) list.events.DblClick();
}

void Close(Form& form) {
  if (TakesInput(form)) form.Unload();
}

void WhenModal(std::function<void(Form&)> answer) { state.modalAnswers.push_back(std::move(answer)); }
void WheneverModal(std::function<void(Form&)> answer) { state.anyModalAnswer = std::move(answer); }

void Confirm(Form& form) {
  Button* button = DefaultButton(form);
  if (button == nullptr) form.Unload();
  else if (button->now.enabled) button->Click();
}

void WhenMenu(const std::string& caption) { state.menuChoices.push_back(caption); }

std::vector<std::string> UnaskedAnswers() {
  std::vector<std::string> unasked(state.modalAnswers.size(), "dialog");
  unasked.insert(unasked.end(), state.menuChoices.begin(), state.menuChoices.end());
  return unasked;
}

Control* Focused() { return state.focused; }

std::optional<std::size_t> BroughtIntoView() { return state.broughtIntoView; }

Button* FindButton(Form& form, const std::string& name) {
  return FindAmongButtons(form, [&](const Button& button) { return button.name == name; });
}

}  // namespace forms::simulated
