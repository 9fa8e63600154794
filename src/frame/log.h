// The log, QUMAEXP.LOG in the program's folder: one line for each entry, without time stamps, for ever growing.
#pragma once

#include <memory>
#include <string>

#include "environment/file_system.h"

namespace basMain {

struct LogState {
  std::unique_ptr<TextStream> LogStream;  // from Form_Load until the main form closes
};

extern LogState log;

// The line of 80 stars that opens and closes the frame of a run.
extern const std::string kStarLine;

// Path of the log; computed anew at each use.
std::string LogFile();

// Opens the log for appending and makes it where it is missing. Faults: those of opening a file.
void OpenLog();

// Writes the text and a line end. Never fails: without an open log it does nothing.
void LogWrite(const std::string& text);

}  // namespace basMain
