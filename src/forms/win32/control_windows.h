// The windows of controls: their classes, the room that they need, and how they show their values.
#pragma once

#include <cstdint>
#include <vector>

#include "forms/control.h"
#include "forms/layout.h"

namespace forms::win32 {

// Makes the windows of the controls, in the order of the Tab key, and sets the controls' handles.
void CreateControls(std::int32_t form, const std::vector<Control*>& controls);

// Gives back what the system does not release with the windows.
void ReleaseControls(const std::vector<Control*>& controls);

// The control whose window this is, or null.
Control* FindControl(const std::vector<Control*>& controls, std::int32_t hWnd);

// Room that a control needs, in pixels, with the text that it has now.
Extent ExtentOf(const Control& control);
// The same with growing controls at the smallest size in which they can be used.
Extent SmallestUsableExtentOf(const Control& control);

// Puts the window of a control to its place in its form.
void Place(const Placement& place, int margin);

void ShowText(const Control& control);
void ShowProgress(const Control& control);

// What the user has chosen.
void ShowOption(const OptionButton& option);
void ShowListIndex(const ComboBox& combo);
// Takes over what the control's window tells its form; false when that is nothing that concerns the control's values.
void TakeOver(Control& control, int notification);

// False when a text of the control needs more room than its window has.
bool TextFits(const Control& control);

}  // namespace forms::win32
