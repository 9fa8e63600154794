// Dates in the notation of formats.
#pragma once

#include <string>

#include "runtime/dates.h"
#include "runtime/format_notation.h"

namespace runtime {

// True when the sign at this place begins one that only a date has.
bool IsDateSign(const Notation& notation, std::size_t at);

std::string FormatDate(const DateTime& date, const Notation& notation, const WeekRule& weeks);

}  // namespace runtime
