// Texts that a stand-in puts on the clipboard.
#pragma once

#include <windows.h>

#include <string>

namespace standin {

// As text, in the place of whatever is there; journaled. When another program holds the clipboard for more than a
// second, the journal says so and nothing else happens.
void PutOnClipboard(HWND owner, const std::string& text);

}  // namespace standin
