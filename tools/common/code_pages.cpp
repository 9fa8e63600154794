#include "common/code_pages.h"

#include <algorithm>

#include "runtime/code_page.h"

namespace tools {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsWellFormedUtf8(std::string_view text) {
  std::size_t following = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (following > 0) {
      if ((byte & 0xC0) != 0x80) return false;
      --following;
    } else if (byte >= 0x80) {
      following = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC2 ? 1 : 0;
      if (following == 0 || byte > 0xF4) return false;
    }
  }
  return following == 0;
}

// What is written in Latin letters has one NUL in each pair of bytes, always on the same side.
bool LooksLikeUtf16(std::string_view bytes) {
  constexpr std::size_t kLookedAt = 64;
  const std::string_view start = bytes.substr(0, std::min(bytes.size(), kLookedAt) / 2 * 2);
  std::size_t nuls[2] = {};
  for (std::size_t i = 0; i < start.size(); ++i) nuls[i % 2] += start[i] == '\0';
  const std::size_t pairs = start.size() / 2;
  return pairs > 0 && std::min(nuls[0], nuls[1]) == 0 && std::max(nuls[0], nuls[1]) > pairs / 2;
}

}  // namespace

Encoding EncodingOf(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) return Encoding::Utf8WithMark;
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return Encoding::Utf16WithMark;
  if (LooksLikeUtf16(bytes)) return Encoding::Utf16;
  const bool ascii = std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return !ascii && IsWellFormedUtf8(bytes) ? Encoding::Utf8 : Encoding::CodePage;
}

std::string ProgramText(const std::string& text) {
  switch (EncodingOf(text)) {
    case Encoding::Utf8WithMark:
      return runtime::FromUtf8(text.substr(kUtf8Mark.size()));
    case Encoding::Utf8:
      return runtime::FromUtf8(text);
    default:
      return text;
  }
}

}  // namespace tools
