// The user at the keyboard: a macro that belongs to a window's caption, presses of the hot key over it, and clicks that
// wait until the program pumps.
#pragma once

#include <cstdint>
#include <functional>
#include <source_location>
#include <string>
#include <vector>

#include "forms/form.h"
#include "support/system.h"

namespace support {

// The icon of each state of the program.
inline const std::string kIdle = "ICOQUM";
inline const std::string kRunning = "ICOEXP";
inline const std::string kFailed = "ICOERR";

// Puts a macro file, its lines ended by CR LF, beside the program.
void Macro(const std::string& file, const std::vector<std::string>& lines);

// Entry of the macro table.
void MacroEntry(int number, const std::string& entry);

// One press of Alt+F12 over the window in front, up to the end of the run.
void PressHotKey();

// The press is carried out at the next pump after so many simulated milliseconds.
void PressHotKeyAfter(std::int32_t milliseconds);

// What the user does in the next dialog that waits for an answer.
void User(std::function<void()> acts);

// A click on a button, or on the system menu's "close": carried out when the program pumps next.
void Click(const forms::Button& button);
void ClickClose(forms::Form& form);

// The log lines that begin a run on the simulated desktop's first morning.
std::vector<std::string> Header(const std::string& macro);

// All lines of both.
std::vector<std::string> operator+(std::vector<std::string> first, const std::vector<std::string>& second);

// The log holds exactly these lines.
void ExpectLog(const std::vector<std::string>& lines, std::source_location where = std::source_location::current());

// The icon that the notification area shows; empty when there is none.
std::string ShownIcon();

}  // namespace support
