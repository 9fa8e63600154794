// What an export tells about the place of its data, turned into a folder of the export tree.
#pragma once

#include <cstdint>
#include <string>

namespace basMain {

// "PARSE": leaves its result in LastReadText and logs it. The mode minds no case:
// - "ANL": a path ...\consultant\client\folder\name of the target becomes the asset path below the suite's data, which
//   ends in the first day of the matrix' current row (ddmmyyyy). Fails when the path has fewer than four backslashes
//   or the matrix no current row with a date.
// - "ANLPATH": takes the fixed words out of the success message; the folder is left, untrimmed.
// - any other: the text as it stands.
// LastReadText stays when it fails.
bool Parse(const std::string& text, const std::string& mode);

// Place (from 1, from the left) of the n-th occurrence from the right; 0 when there are fewer, or when the place has
// more than 16 bits.
std::int16_t FindBackslashFromEnd(const std::string& text, char character, std::int16_t n);

// The text without the zeros in front; empty when it is all zeros.
std::string StripLeadingZeros(const std::string& text);

}  // namespace basMain
