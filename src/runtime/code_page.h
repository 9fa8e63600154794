// The code page of the program's texts, Windows-1252, against the two-byte text of the system.
#pragma once

#include <string>
#include <string_view>

namespace runtime {

// The five bytes without a character stand for the control characters of their code, in both directions.
std::u16string ToUtf16(std::string_view text);

// Characters that the code page lacks become "?".
std::string FromUtf16(std::u16string_view text);

// UTF-8 and the two-byte text, characters beyond 16 bits as pairs; an unpaired half keeps its code.
std::u16string Utf8ToUtf16(std::string_view text);
std::string Utf16ToUtf8(std::u16string_view text);

// The code page against UTF-8.
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view text);

}  // namespace runtime
