// The window of a rich text box: a text of any length, for reading.
#pragma once

#include <cstdint>
#include <string>

namespace forms::win32 {

// The class for it, loaded on first use; a plain edit field where the system has none.
const char* RichTextClass();

// Lifts the limit of the text's length and leaves the keys of dialogs to the form.
void PrepareRichText(std::int32_t hWnd);

// Shows the text, from its beginning. A NUL shows as a blank.
void ShowRichText(std::int32_t hWnd, const std::string& text);

}  // namespace forms::win32
