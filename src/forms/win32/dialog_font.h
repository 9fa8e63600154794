// The system's dialog font, from which all measures of forms are derived, so that they are right at any resolution.
#pragma once

#include <cstdint>
#include <string>

#include "forms/layout.h"

namespace forms::win32 {

struct DialogFont {
  std::int32_t handle = 0;
  int averageWidth = 0;  // pixels
  int lineHeight = 0;    // pixels
};

// Made at the first call and kept; every control shows it.
const DialogFont& TheDialogFont();

// Dialog units of the height (eight to the line) in pixels.
int DialogUnits(int units);

// Room of a text in this font, in pixels, as the system draws it with these flags. A width is the room in which words
// are wrapped.
Extent ExtentOfText(const std::string& text, std::uint32_t drawFlags, int width = 0);

// Width of a text that stands in one line, in pixels, without asking the system: for measuring many.
int WidthOfText(const std::string& text);

}  // namespace forms::win32
