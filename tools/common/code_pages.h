// The encodings of the files that the tools read. Inside, the engine's texts are in its code page, Windows-1252, and
// the tools' own texts in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tools {

enum class Encoding {
  CodePage,       // Windows-1252; also plain ASCII, and whatever is no well-formed UTF-8
  Utf8,           // with a character beyond ASCII
  Utf8WithMark,   // with a byte order mark
  Utf16WithMark,  // either byte order
  Utf16,          // without a mark: a NUL in every other byte of its beginning
};

Encoding EncodingOf(std::string_view bytes);

// A text in UTF-8, with or without a mark, or in the code page, as a text in the code page. What the code page lacks
// becomes a question mark.
std::string ProgramText(const std::string& text);

}  // namespace tools
