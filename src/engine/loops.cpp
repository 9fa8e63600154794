#include "engine/loops.h"

#include <vector>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/state.h"
#include "frame/log.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"

namespace basMain {
namespace {

bool EndLoopOverMatrix() {
  run.LoopStart = 0;
  LogWrite("Loop: EOF");
  return true;
}

template <class Row>
bool IsChecked(const std::vector<Row>& matrix) {
  const auto row = static_cast<std::size_t>(clients.MatrixPos);
  return row < matrix.size() && matrix[row].Checked;
}

template <class Row>
bool LoopUntilEof(const std::vector<Row>& matrix) {
  const std::int32_t last = static_cast<std::int32_t>(matrix.size()) - 1;
  do {
    // The position is shared by both matrices, so it can lie beyond the last row of this one.
    if (matrix.empty() || clients.MatrixPos >= last) return EndLoopOverMatrix();
    ++clients.MatrixPos;
  } while (!IsChecked(matrix));
  LogWrite("Loop: MoveTo: " + std::to_string(clients.MatrixPos));
  run.LoopBack = true;
  return true;
}

}  // namespace

bool StartLoop() {
  run.LoopStart = run.CurrentLine;
  run.LoopBack = false;
  return true;
}

bool LoopUntilCount() {
  LogWrite("Loop: YearCount=" + std::to_string(run.YearUpper) + " CurrYear=" + std::to_string(run.YearIndex));
  if (run.YearIndex != run.YearUpper + 1 || automation.ListCount != automation.ListIndex) run.LoopBack = true;
  else run.LoopStart = 0;
  return true;
}

bool LoopUntilMatrixEof() { return LoopUntilEof(clients.Matrix); }
bool LoopUntilMerMatrixEof() { return LoopUntilEof(clients.MerMatrix); }

bool IsMatrixChecked() { return IsChecked(clients.Matrix); }
bool IsMerMatrixChecked() { return IsChecked(clients.MerMatrix); }

bool NextYear() {
  runtime::Skip([] { run.YearIndex = runtime::ToInteger(run.YearIndex + 1.0); });
  LogWrite("NextYear");
  return true;
}

bool CheckVJ() {
  if (run.YearIndex > run.YearUpper || automation.ListIndex == 0) {
    run.YearIndex = 0;
    LogWrite("VJ True");
    return true;
  }
  LogWrite("VJ False");
  return false;
}

}  // namespace basMain
