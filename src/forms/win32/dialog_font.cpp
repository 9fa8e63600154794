#include "forms/win32/dialog_font.h"

#include <algorithm>
#include <array>

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace forms::win32 {

namespace {

// A device context of the screen with the dialog font.
class FontContext {
 public:
  explicit FontContext(HFONT font) : context_(::GetDC(nullptr)), former_(::SelectObject(context_, font)) {}
  ~FontContext() {
    ::SelectObject(context_, former_);
    ::ReleaseDC(nullptr, context_);
  }
  FontContext(const FontContext&) = delete;
  FontContext& operator=(const FontContext&) = delete;
  operator HDC() const { return context_; }

 private:
  const HDC context_;
  const HGDIOBJ former_;
};

DialogFont MakeDialogFont() {
  NONCLIENTMETRICSA metrics = {};
  metrics.cbSize = sizeof metrics;
  HFONT handle = nullptr;
  if (::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
    handle = ::CreateFontIndirectA(&metrics.lfMessageFont);
  if (handle == nullptr) handle = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));

  DialogFont font;
  font.handle = platform::NumberOf(handle);
  const FontContext context(handle);
  TEXTMETRICA text = {};
  ::GetTextMetricsA(context, &text);
  font.lineHeight = text.tmHeight;
  // The average over the letters; the font's own figure is too small for proportional fonts.
  constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  constexpr int kCount = sizeof kLetters - 1;
  SIZE size = {};
  ::GetTextExtentPoint32A(context, kLetters, kCount, &size);
  font.averageWidth = (size.cx + kCount / 2) / kCount;
  return font;
}

}  // namespace

const DialogFont& TheDialogFont() {
  static const DialogFont font = MakeDialogFont();
  return font;
}

int DialogUnits(int units) { return (units * TheDialogFont().lineHeight + 4) / 8; }

Extent ExtentOfText(const std::string& text, std::uint32_t drawFlags, int width) {
  const FontContext context(platform::HandleOf<HFONT>(TheDialogFont().handle));
  RECT room = {0, 0, width, 0};
  ::DrawTextA(context, text.data(), static_cast<int>(text.size()), &room, drawFlags | DT_CALCRECT);
  return {static_cast<int>(room.right), static_cast<int>(room.bottom)};
}

int WidthOfText(const std::string& text) {
  static const auto widths = [] {
    std::array<INT, 256> each = {};
    const FontContext context(platform::HandleOf<HFONT>(TheDialogFont().handle));
    ::GetCharWidthA(context, 0, each.size() - 1, each.data());
    return each;
  }();
  std::int64_t width = 0;
  for (const char character : text) width += widths[static_cast<unsigned char>(character)];
  constexpr int kBeyondAnyScreen = 0x7FFF;
  return static_cast<int>(std::min<std::int64_t>(width, kBeyondAnyScreen));
}

}  // namespace forms::win32
