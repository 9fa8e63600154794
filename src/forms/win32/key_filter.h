// Characters that a text box swallows.
#pragma once

#include "forms/control.h"

namespace forms::win32 {

// Asks the text box's KeyPress for each character that is typed into its window.
void FilterKeys(TextBox& textBox);

}  // namespace forms::win32
