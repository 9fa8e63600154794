// A date field: a user control with separate text boxes for day, month and year.
#pragma once

#include <windows.h>

#include <string>

namespace merla {

constexpr int kIdYearBox = 2;
constexpr int kIdDayBox = 3;
constexpr int kIdMonthBox = 4;

// Without `withDay` the field shows month and year; its day box is there, empty and out of sight.
HWND AddDateField(HWND parent, int id, int x, int y, bool withDay = true);

// Shows a date dd.mm.yyyy.
void SetDate(HWND field, const std::string& date);

struct Date {
  std::string day, month, year;
};

// What the boxes show.
Date DateIn(HWND field);

}  // namespace merla
