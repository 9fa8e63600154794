// The windows of forms.
#pragma once

#include <cstdint>

#include "forms/form.h"

namespace forms::win32 {

bool IsForm(std::int32_t hWnd);
// Whether any form is loaded.
bool AnyForm();

// Shows the form; at the first time in the size that its texts have now, in the middle of the screen's free area.
void ShowForm(Form& form);

}  // namespace forms::win32
