#include "clients/basQuickSort.h"

#include <algorithm>
#include <utility>

#include "platform/system.h"
#include "runtime/dates.h"
#include "runtime/fault.h"

namespace basQuickSort {

using basMain::MatrixRow;

void SortMatrix(std::vector<MatrixRow>& rows) {
  if (rows.empty()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  SortMatrixRange(rows, 0, static_cast<std::int32_t>(rows.size()) - 1);
}

// A selection sort, in spite of the module's name. Each day is converted once, not at each comparison.
void SortMatrixRange(std::vector<MatrixRow>& rows, std::int32_t first, std::int32_t last) {
  if (first >= last) return;  // nothing is compared, so no day needs to be a date
  const int year = platform::Now().year;
  std::vector<runtime::DateTime> days;
  for (std::int32_t row = first; row <= last; ++row)
    days.push_back(runtime::ToDate(rows[static_cast<std::size_t>(row)].Beginn, year));
  const auto firstRow = rows.begin() + first;
  for (auto day = days.begin(); day != days.end(); ++day) {
    const auto smallest = std::min_element(day, days.end());  // the first of equal ones
    if (smallest == day) continue;
    SwapMatrixRows(firstRow[day - days.begin()], firstRow[smallest - days.begin()]);
    std::iter_swap(day, smallest);
  }
}

void SwapMatrixRows(MatrixRow& a, MatrixRow& b) {
  MatrixRow temporary = std::move(a);
  a = std::move(b);
  b = std::move(temporary);
}

}  // namespace basQuickSort
