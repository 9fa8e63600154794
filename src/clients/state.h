// The business data of a run: client and year, and the tables of business years.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/dates.h"

namespace basMain {

// A business year of the asset accounting. Dates are text, day first.
struct MatrixRow {
  std::string Bereich = {};
  std::string Beginn = {};
  std::string Ende = {};
  bool Checked = false;
};

// A business year of the second application.
struct MerMatrixRow {
  std::string Beginn;
  std::string Ende;
  std::string Waehrung;
  bool Steuerrecht = false;
  bool Kalkulation = false;
  bool Handelsrecht = false;
  bool IASIFRS = false;
  bool Checked = false;
  std::string Pfad;
};

struct ClientState {
  // Where each run begins, see engine/reset.h; a resumed one (not fresh) keeps its row.
  void BeginRun(bool fresh);

  std::string ContextPath;      // "\client\year" as confirmed; empty if not confirmed
  std::int32_t InputState = 0;  // how the client range dialog ended
  std::string MandantNrFrom;    // the client range as typed there; kept until the next range
  std::string MandantNrTo;
  std::string MerlaMaxYear;  // last year of the span that frmInputMerFib has taken; empty before
  std::vector<MatrixRow> Matrix;
  std::vector<MerMatrixRow> MerMatrix;
  std::int32_t MatrixPos = 0;  // the one current row of both tables
};

extern ClientState clients;

// The date in the text of a row, of the present year where the text names none. Faults: TypeMismatch for no date.
runtime::DateTime DateOf(const std::string& text);

}  // namespace basMain
