// The clipboard's text.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

constexpr std::uint32_t CF_TEXT = 1;

// Opens nothing, so it answers also while another program holds the clipboard.
bool IsClipboardFormatAvailable(std::uint32_t format);

// The text up to its first NUL; empty when there is none. A program that holds the clipboard is waited for, up to half
// a second. Faults: ClipboardBusy.
std::string GetClipboardText();

// Takes everything off the clipboard; waits like GetClipboardText. Faults: ClipboardBusy.
void ClearClipboard();

}  // namespace platform
