// The export at work: writes the tables piece by piece, so that its files are seen growing.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "books.h"

namespace teru {

class ExportJob {
 public:
  ~ExportJob();

  // Begins in a folder that exists. False when it doesn't.
  bool Start(const std::string& folder);
  bool Running() const { return running_; }

  // Writes the next piece. False when a file cannot be written; the job has then ended.
  bool Step();
  void Stop();

  std::size_t FileCount() const { return tables_.size(); }
  // What is being written, for the user.
  std::string Progress() const;
  // Share that is done, 0 to 100.
  int Percent() const;

 private:
  bool OpenTable();
  void CloseFile();
  bool WriteLine(const std::string& line);

  std::string folder_;
  std::vector<Table> tables_;
  std::size_t table_ = 0;
  std::size_t row_ = 0;
  std::size_t rowsDone_ = 0;
  std::size_t rowsInAll_ = 0;
  HANDLE file_ = INVALID_HANDLE_VALUE;
  bool running_ = false;
};

}  // namespace teru
