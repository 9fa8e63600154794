#include "input/merla_controls.h"

#include <array>
#include <cstddef>
#include <vector>

#include "automation/control_address.h"
#include "automation/state.h"
#include "automation/text_verbs.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "frame/log.h"
#include "input/state.h"
#include "platform/class_names.h"
#include "platform/messages.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Skip;

// What a date field shows, and the boxes in it.
struct DateControl {
  std::string Day, Month, Year;
  std::int32_t DayWindow = 0;
  std::int32_t MonthWindow = 0;
  std::int32_t YearWindow = 0;
  bool Valid = false;
};

class DateControls {
 public:
  // Faults: OutOfRange.
  DateControl& At(std::ptrdiff_t index) {
    if (index < 0 || index >= std::ssize(table_)) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
    return table_[static_cast<std::size_t>(index)];
  }

 private:
  std::array<DateControl, 21> table_;
};

// Reads one box and logs its handle; false when the field has no such box.
bool ReadBox(std::int32_t field, std::int32_t id, const std::string& word, std::int32_t& hBox, std::string& text) {
  const std::int32_t box = SearchChildWindow(field, "", "", platform::kTextBoxClass, id);
  if (box <= 0) return false;
  text = ReadControlText(box);
  hBox = box;
  LogWrite(word + " HWnd: " + std::to_string(box));
  return true;
}

void ReadDateControl(std::int32_t field, std::ptrdiff_t index, DateControl& control) {
  const bool month = ReadBox(field, kMonthBox, "Month", control.MonthWindow, control.Month);
  const bool year = ReadBox(field, kYearBox, "Year", control.YearWindow, control.Year);
  const bool day = ReadBox(field, kDayBox, "Day", control.DayWindow, control.Day);
  control.Valid = day && month && year;
  LogWrite((control.Valid ? "ValidValues: Index=" : ">>not ValidValues: ") + std::to_string(index) + " " + control.Day +
           "." + control.Month + "." + control.Year);
}

// The parts of a date on their way into one date field.
struct DateWriter {
  std::string side;  // "From" or "To" in the log words
  std::int16_t index;

  // `condition` is what a part needs besides being a number in front of a box that is there.
  void Write(const char* part, const std::string& value, std::int32_t hBox, bool condition,
             const std::string& refusal) const {
    if (!runtime::IsNumeric(value) || hBox <= 0 || !condition) {
      LogWrite("<< " + std::to_string(hBox) + " " + value + " Index: " + std::to_string(index) + refusal);
      return;
    }
    platform::SendMessageA(hBox, platform::WM_SETTEXT, 0, value);
    LogWrite(std::string("MerlaDate ") + part + side + ": " + value);
  }
};

// `shownDay` is the day of the from field for both dates: a to field gets a day only if the from field shows one.
void WriteDate(const std::string& date, const DateWriter& writer, const DateControl& target,
               const std::string& shownDay) {
  const auto parts = runtime::Split(date, '.');
  writer.Write("Day", runtime::Element(parts, 0), target.DayWindow, runtime::IsNumeric(shownDay),
               "Dayval: " + shownDay);
  writer.Write("Month", runtime::Element(parts, 1), target.MonthWindow, true, "");
  writer.Write("Year", runtime::Element(parts, 2), target.YearWindow, true, "");
}

}  // namespace

void FindChildrenOfClass(std::int32_t hParent, const std::string& cls, std::int32_t number) {
  EmptyChildWindowList();
  inputRoom.ClassWindows.assign(1, 0);
  if (number != 0) return;
  CollectChildWindows(hParent);
  const auto& children = automation.ChildWindowList;
  for (std::size_t i = 0; i + 1 < children.size(); ++i) {
    if (!runtime::EqualIgnoringCase(GetWindowClass(children[i]), cls)) continue;
    inputRoom.ClassWindows.back() = children[i];
    inputRoom.ClassWindows.push_back(0);
  }
}

bool SetMerlaDate(const std::string& from, const std::string& to, const std::string& window, const std::string& frame,
                  const std::string& fromIndex, const std::string& toIndex) {
  return Standard("SetMerlaDate", [&] {
    std::int32_t ignored = 0;
    std::int32_t hFrame = 0;
    SearchWindow(window, ignored, true, "", platform::kFrameClass, frame, "", hFrame);
    FindChildrenOfClass(hFrame, platform::kUserControlClass, 0);

    DateControls controls;
    for (std::ptrdiff_t i = 0; i < std::ssize(inputRoom.ClassWindows); ++i) {
      const std::int32_t field = inputRoom.ClassWindows[static_cast<std::size_t>(i)];
      if (field > 0) ReadDateControl(field, i, controls.At(i));
    }

    const std::int16_t fromNumber = runtime::ToInteger(fromIndex);
    const std::int16_t toNumber = runtime::ToInteger(toIndex);
    LogWrite(std::to_string(fromNumber) + " " + std::to_string(toNumber));
    if (runtime::Contains(from, "."))
      WriteDate(from, {"From", fromNumber}, controls.At(fromNumber), controls.At(fromNumber).Day);
    if (runtime::Contains(to, ".")) WriteDate(to, {"To", toNumber}, controls.At(toNumber), controls.At(fromNumber).Day);
    return true;
  });
}

bool SetMERLAText(const std::string& text, const std::string& id, const std::string& window, const std::string& exact,
                  const std::string& cls, const std::string& frameId, const std::string& searchClass) {
  return Standard("SetMERLAText",
                  [&] { return FillTextBox(FindControlInFrame(id, window, exact, cls, frameId, searchClass), text); });
}

}  // namespace basMain
