// What makes windows of forms: implemented once for Windows (win32/) and once for the simulated desktop (simulated/),
// chosen at link time. Called by the forms alone. The realization raises a form's events and keeps the texts of text
// boxes up to date in the controls' values while the user types.
#pragma once

#include <cstddef>
#include <cstdint>

#include "forms/form.h"

namespace forms::realization {

// Makes the form's window and those of its controls, invisible, sets the controls' handles, and yields the window.
std::int32_t Create(Form& form);
void Destroy(Form& form);

void Show(Form& form);
void Hide(Form& form);
// Handles messages until the form is no longer visible; the program's other windows take no input meanwhile.
void RunModal(Form& form);

// A value of a control of a loaded form has changed.
void TextChanged(Control& control);
void EnabledChanged(Control& control);
void ProgressChanged(Control& control);
void FocusTo(Control& control);
void OptionChanged(OptionButton& option);
void ItemAdded(ComboBox& combo);
void ListIndexChanged(ComboBox& combo);
void ItemAdded(ListView& list);
void ItemChanged(ListView& list, std::size_t item);
void SelectionChanged(ListView& list, std::size_t item);
void ScrollTo(ListView& list, std::size_t item);

void IntervalChanged(Form& form, Timer& timer);
// Yields the chosen entry's position, or -1.
int ChooseFromMenu(Form& owner, const Menu& menu);
void PumpOnce();
void RunMessageLoop();

}  // namespace forms::realization
