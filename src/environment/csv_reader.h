// Walking over a delimited text file, one record at a time. A record is one line; there is no quoting.
//
// One file is open at a time. A run that stops leaves it open; the next OpenCSV replaces it.
#pragma once

#include <memory>
#include <string>

#include "environment/file_system.h"

namespace basMain {

struct CsvState {
  std::unique_ptr<TextStream> CsvStream;  // from OpenCSV until isCSVFileEOF meets the end
  std::string CsvLine;                    // the current record; stays behind the end of the file
  std::string CsvSeparator;               // as given, of any length
};

extern CsvState csv;

// "OPENCSV": opens the file, skips so many lines (16 bits; the text must be a number) and reads the first record. Logs
// "CSV-Datei (", the file and ") erfolgreich geöffnet". A fault, such as a file without a line left, leaves the stream
// open and the former record and separator in place.
bool OpenCSV(const std::string& file, const std::string& linesToSkip, const std::string& separator);

// "CSVVALUE": a field of the current record, counted from 0; never the last one, since records end in a separator. Logs
// the record and the field. A failure sets RunFailed, as the verb counts as successful, and yields the empty text.
std::string GetCSVValue(const std::string& position);

// "LOOP UNTIL CSVFILE.EOF": reads the next record and sends the loop back, or closes the file and ends the loop. Logs
// "isCSVFileEOF: EOF=" and the truth value. True, but for a fault.
bool isCSVFileEOF();

}  // namespace basMain
