// Turning the words of a macro line into window handles. Nothing is cached: a handle lives for one verb, and each verb
// searches again from the top of the window order. An operation searches once and does not retry.
#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace basMain {

// Looks through the top-level windows from the top for one whose title is (exact) or holds (not exact) `window`, both
// case-sensitively. With `text` and `cls` empty the window alone is wanted. Otherwise a window counts only if it has
// a descendant that SearchControl finds, by the number of `frameId` where that is given, else of `id`; it comes back in
// hControl. Each titled window costs a pause of 10 ms.
//
// Without such a window a descendant of MainWindow is looked for, and comes back through hWindow (0 included) also when
// it is a control; hControl is then left alone.
//
// True when something was found. Faults, such as an id that is no number, go to LastError as "SearchWindow".
bool SearchWindow(const std::string& window, std::int32_t& hWindow, bool exact, const std::string& text,
                  const std::string& cls, const std::string& id, const std::string& frameId, std::int32_t& hControl);

// First descendant whose class is `cls` and, where given, whose whole text is `text` and whose id is `id` (0: any);
// texts and classes without case. 0 when there is none; an empty class matches nothing.
std::int32_t SearchControl(std::int32_t hParent, const std::string& text, const std::string& cls, std::int32_t id);

// Like SearchControl; with `text` and `cls` empty the first descendant whose whole text is `caption`, without case.
std::int32_t SearchChildWindow(std::int32_t hParent, const std::string& caption, const std::string& text,
                               const std::string& cls, std::int32_t id);

// Window text; empty for a window without text or no window.
std::string GetWindowTitle(std::int32_t hWnd);

// Class name, cut to 127 bytes, as the lookups see it.
std::string GetWindowClass(std::int32_t hWnd);

// The thread that owns a window; 0 for no window.
std::uint32_t ThreadOf(std::int32_t hWnd);

// Empties ChildWindowList to its one spare slot.
void EmptyChildWindowList();

// Adds all descendants to ChildWindowList.
void CollectChildWindows(std::int32_t hParent);

// Callback of the enumeration: stores the window in the spare last slot and adds a new one. Always 1.
std::int32_t PLATFORM_CALLBACK CollectChildProc(std::int32_t hWnd, std::int32_t lParam);

// High times 65536 plus low: the first parameter of a WM_COMMAND notification.
std::int32_t MakeLong(std::int16_t low, std::int16_t high);

}  // namespace basMain
