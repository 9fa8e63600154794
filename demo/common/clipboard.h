// Texts that a stand-in puts on the clipboard.
#pragma once

#include <windows.h>

#include <string>

namespace standin {

// As text, in the place of whatever is there; journaled. Nothing happens while another program holds the clipboard.
void PutOnClipboard(HWND owner, const std::string& text);

}  // namespace standin
