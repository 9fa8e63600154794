// The controls of the second application. Its date fields are composite: a user control that holds separate text boxes
// for day, month and year, which no plain text verb reaches.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// Ids of the text boxes in a date field, which is a user control.
constexpr std::int32_t kYearBox = 2;
constexpr std::int32_t kDayBox = 3;
constexpr std::int32_t kMonthBox = 4;

// All descendants of a class (without case) into ClassWindows, in the order of the enumeration. `number` must be 0; any
// other leaves the list empty.
void FindChildrenOfClass(std::int32_t hParent, const std::string& cls, std::int32_t number);

// "SETMERLADATE": reads all date fields of the frame with id `frame` and writes two dates (day.month.year) into those
// at the indices, an index from 0 to 20. A date without a dot is left out. Logs each box that was found, what each
// field shows, the indices, and each part of a date that was written or refused. A part is written if it is a number
// and its box is there; a day moreover only if the from field shows one, since a field without days has an empty day
// box. Refused parts fail nothing: true, but for a fault (more than 21 date fields, an index that is no number or out
// of range, a date without a third part), behind which the parts written so far stay.
bool SetMerlaDate(const std::string& from, const std::string& to, const std::string& window, const std::string& frame,
                  const std::string& fromIndex, const std::string& toIndex);

// "SETMERLATEXT": like "SETTEXT", for a control that may stand in a frame. The window is searched by `searchClass`
// (`cls` where it is empty) and the frame's id where given; the control is then looked for below the frame.
bool SetMERLAText(const std::string& text, const std::string& id, const std::string& window, const std::string& exact,
                  const std::string& cls, const std::string& frameId, const std::string& searchClass);

}  // namespace basMain
