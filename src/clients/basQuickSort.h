// The sort of the asset matrix.
#pragma once

#include <cstdint>
#include <vector>

#include "clients/state.h"

namespace basQuickSort {

// Sorts all rows by their first day, ascending, by selection: of equal days the first stays first among the rows that
// are not swapped. Faults, in front of any swap: OutOfRange for a table without rows, which has no bounds; TypeMismatch
// for a first day that is no date.
void SortMatrix(std::vector<basMain::MatrixRow>& rows);

// The same for the rows from `first` to `last`, which exist.
void SortMatrixRange(std::vector<basMain::MatrixRow>& rows, std::int32_t first, std::int32_t last);

void SwapMatrixRows(basMain::MatrixRow& a, basMain::MatrixRow& b);

}  // namespace basQuickSort
