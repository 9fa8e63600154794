#include "input/mouse.h"

#include <algorithm>
#include <iterator>

#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/class_names.h"
#include "platform/input.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using resources::Text;
using resources::TextId;
using runtime::Skip;

namespace {

constexpr std::int32_t kLeft = 1;
constexpr std::int32_t kRight = 2;
constexpr std::int32_t kMiddle = 4;
constexpr std::int32_t kPresentPlace = -1;

struct Button {
  std::int32_t number;
  std::uint32_t down, up;
};

constexpr Button kButtons[] = {
    {kLeft, platform::MOUSEEVENTF_LEFTDOWN, platform::MOUSEEVENTF_LEFTUP},
    {kRight, platform::MOUSEEVENTF_RIGHTDOWN, platform::MOUSEEVENTF_RIGHTUP},
    {kMiddle, platform::MOUSEEVENTF_MIDDLEDOWN, platform::MOUSEEVENTF_MIDDLEUP},
};

// The high bits come from a constant that was sign-extended; the system ignores them.
constexpr std::uint32_t kAbsoluteMove = 0xFFFF0000 | platform::MOUSEEVENTF_ABSOLUTE | platform::MOUSEEVENTF_MOVE;

// A place on the scale that absolute moves count in.
std::int32_t OnScale(std::int32_t twips, double screen) { return runtime::ToLong(twips / screen * 65535); }

// Rounded by itself, before anything is added.
std::int32_t Twips(double pixels, double twipsPerPixel) { return runtime::ToLong(pixels * twipsPerPixel); }

std::int32_t Sum(std::int32_t a, std::int32_t b) { return runtime::ToLong(static_cast<double>(a) + b); }

void MoveToTwips(std::int32_t x, std::int32_t y) {
  std::int32_t dx = 0;
  std::int32_t dy = 0;
  Skip([&] { dy = OnScale(y, platform::ScreenHeight()); });
  Skip([&] { dx = OnScale(x, platform::ScreenWidth()); });
  platform::mouse_event(kAbsoluteMove, dx, dy, 0, 0);
}

void PressButton(std::int32_t number) {
  const auto* const button = std::find_if(std::begin(kButtons), std::end(kButtons),
                                          [number](const Button& candidate) { return candidate.number == number; });
  if (button == std::end(kButtons)) return;
  platform::mouse_event(button->down, 0, 0, 0, 0);
  platform::mouse_event(button->up, 0, 0, 0, 0);
}

}  // namespace

bool MouseMove(std::int32_t x, std::int32_t y) {
  Skip([&] { platform::SetCursorPos(x, y); });
  LogWrite(Text(TextId::MouseMoved) + std::to_string(x) + "/" + std::to_string(y));
  return true;
}

bool MouseClick(const std::int32_t& button, const std::int32_t& x, const std::int32_t& y) {
  if (x != kPresentPlace || y != kPresentPlace) Skip([&] { MoveToTwips(x, y); });
  Skip([&] { PressButton(button); });
  LogWrite(Text(TextId::MouseClicked) + std::to_string(button));
  return true;
}

bool ClickMouseButton(const std::string& button) {
  const std::string word = runtime::ToUpper(button);
  if (word == "LEFT") return MouseClick(kLeft, kPresentPlace, kPresentPlace);
  if (word == "RIGHT") return MouseClick(kRight, kPresentPlace, kPresentPlace);
  return false;
}

bool MouseClickbyWindowOffset(const std::string& caption, const std::string& button, const std::string& xOffset,
                              const std::string& yOffset) {
  constexpr char kName[] = "MouseClickbyWindowOffset";
  return Standard(kName, [&] {
    const std::int32_t window = platform::FindWindowA(platform::kFormClass, caption.c_str());
    if (window <= 0) return Fail(Text(TextId::FunctionFault, kName) + "Fenster konnte nicht gefunden werden.");
    platform::Rect place;
    platform::GetWindowRect(window, place);
    const double twipsX = platform::TwipsPerPixelX();
    const double twipsY = platform::TwipsPerPixelY();
    // An offset counts in the pixels of the window, which may be drawn larger than its program knows.
    const double scale = platform::WindowScale(window);
    std::int32_t x = Twips(place.left, twipsX);
    std::int32_t y = Twips(place.top, twipsY);
    x = Sum(x, Twips(runtime::ToDouble(xOffset) * scale, twipsX));
    y = Sum(y, Twips(runtime::ToDouble(yOffset) * scale, twipsY));
    return MouseClick(runtime::ToUpper(button) == "LEFT" ? kLeft : kRight, x, y);
  });
}

bool MouseMoveToCtl(const std::string& cls, const std::string& caption) {
  if ((cls + caption).empty()) return false;
  const std::int32_t control = FindChildWindow(frame.MainWindow, cls, caption);
  if (control == 0) return Fail("Das Steuerelement konnte nicht gefunden werden!");
  std::int32_t x = 0;
  std::int32_t y = 0;
  GetControlCorner(control, x, y);
  MouseMove(x, y);
  LogWrite(Text(TextId::MousePositioned, std::to_string(control)));
  return true;
}

std::int32_t FindChildWindow(std::int32_t hParent, const std::string& cls, const std::string& caption) {
  std::int32_t found = 0;
  Skip([&] { found = SearchControl(hParent, caption, cls, 0); });
  return found;
}

void GetControlCorner(std::int32_t hWnd, std::int32_t& x, std::int32_t& y) {
  constexpr std::int32_t kInside = 5;  // pixels of the control
  platform::Rect place;
  Skip([&] { platform::GetWindowRect(hWnd, place); });
  const std::int32_t inside = runtime::ToLong(kInside * platform::WindowScale(hWnd));
  x = place.left + inside;
  y = place.top + inside;
}

}  // namespace basMain
