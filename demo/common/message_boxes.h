// Message boxes of a stand-in's windows. Each writes down its text and the answer given.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace standin {

// The system's message box over its form and under its title, with a style of MB_ values. Yields the IDxxx of the
// button pressed.
int Report(HWND form, const std::string& text, UINT style);

// A box of our own, whose buttons bear exactly these captions: the system's have a letter underlined, which stands in
// their text as a mark. Yields the caption of the button pressed, or nothing when the box was closed otherwise.
std::string Ask(HWND form, const std::string& text, const std::vector<std::string>& buttons);

}  // namespace standin
