#include "runtime/code_page.h"

#include <algorithm>
#include <iterator>

namespace runtime {
namespace {

// The characters of the codes 0x80 to 0x9F; all others have the code of their character.
constexpr char16_t kUpperRow[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
static_assert(std::size(kUpperRow) == 32);

bool InUpperRow(unsigned code) { return code >= 0x80 && code <= 0x9F; }

char16_t CharacterOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return InUpperRow(code) ? kUpperRow[code - 0x80] : code;
}

char ByteOf(char16_t character) {
  if (character < 0x80 || (character > 0x9F && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(std::begin(kUpperRow), std::end(kUpperRow), character);
  return found == std::end(kUpperRow) ? '?' : static_cast<char>(0x80 + (found - std::begin(kUpperRow)));
}

}  // namespace

std::u16string ToUtf16(std::string_view text) {
  std::u16string wide(text.size(), u'\0');
  std::ranges::transform(text, wide.begin(), CharacterOf);
  return wide;
}

std::string FromUtf16(std::u16string_view text) {
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), ByteOf);
  return bytes;
}

std::u16string Utf8ToUtf16(std::string_view text) {
  std::u16string characters;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    unsigned code = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t k = 1; k < length && i + k < text.size(); ++k)
      code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3F);
    if (code > 0xFFFF) characters += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10 & 0x3FF));
    characters += static_cast<char16_t>(code > 0xFFFF ? 0xDC00 + (code & 0x3FF) : code);
    i += length;
  }
  return characters;
}

std::string Utf16ToUtf8(std::u16string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned code = text[i];
    if (code >= 0xD800 && code < 0xDC00 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00)
      code = 0x10000 + ((code & 0x3FF) << 10 | (text[++i] & 0x3FFu));
    const std::size_t following = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    result += static_cast<char>(kLeads[following] | code >> 6 * following);
    for (std::size_t k = following; k > 0; --k) result += static_cast<char>(0x80 | (code >> 6 * (k - 1) & 0x3F));
  }
  return result;
}

std::string ToUtf8(std::string_view text) { return Utf16ToUtf8(ToUtf16(text)); }

std::string FromUtf8(std::string_view text) {
  std::u16string characters = Utf8ToUtf16(text);
  std::erase_if(characters, [](char16_t c) { return (c & 0xFC00) == 0xDC00; });  // a pair is one character
  return FromUtf16(characters);
}

}  // namespace runtime
