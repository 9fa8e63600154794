// Conditions and loop ends that look at the walk over years, list rows and matrices. None of them fails; each yields
// true unless said otherwise.
//
// There is one open loop at a time. A loop end that wants another pass sets LoopBack; otherwise it sets LoopStart to 0.
#pragma once

namespace basMain {

// "DO": remembers the running line as the start of the loop.
bool StartLoop();

// "LOOP UNTIL COUNT": ends when the years are used up and the last list row is done. Logs the year count and index.
bool LoopUntilCount();

// "LOOP UNTIL MATRIX.EOF", "LOOP UNTIL MERMATRIX.EOF": steps to the next checked row. Log "Loop: EOF" at the end, which
// is also where a matrix that does not exist ends, or "Loop: MoveTo: " and the row.
bool LoopUntilMatrixEof();
bool LoopUntilMerMatrixEof();

// "IF MATRIX.CHECKED", "IF MERMATRIX.CHECKED": false when there is no such row.
bool IsMatrixChecked();
bool IsMerMatrixChecked();

// "NEXT VJ": moves to the next assessment year. Logs "NextYear".
bool NextYear();

// "IF VJ": true before the first list row and behind the last year, and then begins the years again. Logs the answer.
bool CheckVJ();

}  // namespace basMain
