// The user of the simulated desktop, as a test or a rehearsal plays him: presses buttons, types, chooses from menus and
// answers modal dialogs.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"

namespace forms::simulated {

// Forgets all answers and unloads all forms without their events. Goes with platform::simulated::Reset(). A form that
// does not live as long as the program, as one of a test, must be unloaded or reset before it goes.
void Reset();

// What a click or a key does: nothing on a disabled control or a form that is not shown or waits for a modal dialog.
// What is typed takes the place of the text that was there; characters that the text box swallows are left out.
void Press(Button& button);
void Type(TextBox& textBox, const std::string& text);
void Press(OptionButton& option);
// Choosing an entry that a combo box does not have, or working an item that a list does not have, is a
// std::logic_error.
void Choose(ComboBox& combo, const std::string& entry);
void ClickItem(ListView& list, std::size_t item);    // on its text
void ClickBox(ListView& list, std::size_t item);     // on its check box, or the blank while it has the keys
void DoubleClick(ListView& list, std::size_t item);  // on its text
// The system menu's "close".
void Close(Form& form);

// The next modal dialog is answered by this, in the order of the calls. A dialog without an answer waits for scheduled
// events; when there are none left, its default button is pressed, or the dialog is closed if it has none. A dialog
// that stays open even then ends the test with a std::logic_error.
void WhenModal(std::function<void(Form&)> answer);
// Modal dialogs that have no answer of their own are answered by this; null: by nobody.
void WheneverModal(std::function<void(Form&)> answer);
// What a user does who wants to be done with a dialog: presses its default button, or closes it if it has none.
void Confirm(Form& form);
// The next menu's user chooses the entry with this caption; without a choice the menu closes.
void WhenMenu(const std::string& caption);
// Prepared for the user, but nobody asked: "dialog" for an answer of WhenModal, and the captions of menu entries.
std::vector<std::string> UnaskedAnswers();

// The control that has the focus, or null.
Control* Focused();

// The item of a list that was brought into view last, or nothing.
std::optional<std::size_t> BroughtIntoView();

// The button of a form by its name, or null.
Button* FindButton(Form& form, const std::string& name);

}  // namespace forms::simulated
