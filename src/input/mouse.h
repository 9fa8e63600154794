// The mouse verbs. Places are screen pixels, except in MouseClick, which takes twips.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// "MOUSEMOVE": to a screen pixel. Logs text 1042 and "x/y". Always true.
bool MouseMove(std::int32_t x, std::int32_t y);

// Presses a button, 1 (left), 2 (right) or 4 (middle), at a place in twips; where both coordinates are -1, at the
// present place. Any other button presses nothing. Logs text 1043 and the button. Always true.
bool MouseClick(const std::int32_t& button, const std::int32_t& x, const std::int32_t& y);

// "MOUSECLICK": the word "LEFT" or "RIGHT", in any letters, at the present place. False for any other word, which does
// nothing and writes nothing.
bool ClickMouseButton(const std::string& button);

// "MOUSECLICKBYWINDOWOFFSET": clicks a place so many pixels of the window, decimals allowed, from the outer corner of
// the form with this whole caption; with the right button unless the word is "LEFT". Without the form, and for an
// offset that is no number, LastError is the standard error text.
bool MouseClickbyWindowOffset(const std::string& caption, const std::string& button, const std::string& xOffset,
                              const std::string& yOffset);

// "MOUSEMOVETOCTL": into the corner of the first descendant of MainWindow with this class and, unless it is empty, this
// caption. Logs text 1042 and text 1030. False when there is none, with a text of its own, and, without any text, when
// both arguments are empty.
bool MouseMoveToCtl(const std::string& cls, const std::string& caption);

// First descendant with this class and, unless it is empty, this caption, both without case; 0 when there is none.
std::int32_t FindChildWindow(std::int32_t hParent, const std::string& cls, const std::string& caption);

// The point 5 pixels of the window inside its upper left corner.
void GetControlCorner(std::int32_t hWnd, std::int32_t& x, std::int32_t& y);

}  // namespace basMain
