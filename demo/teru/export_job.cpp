#include "export_job.h"

#include <algorithm>

#include "journal.h"

namespace teru {

using namespace standin;

namespace {

// So many steps make the whole; at a tenth of a second each the export takes between three and four seconds.
constexpr std::size_t kSteps = 34;

std::string Join(const std::string& folder, const std::string& name) {
  bool hasSeparator = !folder.empty() && folder.back() == '\\';
  return folder + (hasSeparator ? "" : "\\") + name;
}

}  // namespace

ExportJob::~ExportJob() { Stop(); }

bool ExportJob::Start(const std::string& folder) {
  DWORD attributes = GetFileAttributesA(folder.c_str());
  if (folder.empty() || attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)) return false;

  folder_ = folder;
  tables_ = {Accounts(), Customers(), Postings()};
  rowsInAll_ = 0;
  for (const Table& table : tables_) rowsInAll_ += table.rows.size();
  table_ = row_ = rowsDone_ = 0;
  running_ = true;
  Journal("Export: " + folder_);
  return true;
}

bool ExportJob::Step() {
  std::size_t piece = (rowsInAll_ + kSteps - 1) / kSteps;
  while (piece > 0 && table_ < tables_.size()) {
    const Table& table = tables_[table_];
    if (file_ == INVALID_HANDLE_VALUE && !OpenTable()) {
      Stop();
      return false;
    }
    std::size_t end = std::min(table.rows.size(), row_ + piece);
    piece -= end - row_;
    rowsDone_ += end - row_;
    for (; row_ < end; ++row_) {
      if (!WriteLine(table.rows[row_])) {
        Stop();
        return false;
      }
    }
    if (row_ == table.rows.size()) {
      Journal("Datei: " + table.file + ", " + std::to_string(GetFileSize(file_, nullptr)) + " Bytes");
      CloseFile();
      ++table_;
      row_ = 0;
    }
  }
  if (table_ == tables_.size()) running_ = false;
  return true;
}

void ExportJob::Stop() {
  CloseFile();
  running_ = false;
}

std::string ExportJob::Progress() const {
  if (!running_) return "";
  return "Datei " + tables_[table_].file + " wird geschrieben (" + std::to_string(rowsDone_) + " von " +
         std::to_string(rowsInAll_) + " Sätzen)";
}

int ExportJob::Percent() const { return rowsInAll_ == 0 ? 0 : static_cast<int>(rowsDone_ * 100 / rowsInAll_); }

bool ExportJob::OpenTable() {
  file_ = CreateFileA(Join(folder_, tables_[table_].file).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  return file_ != INVALID_HANDLE_VALUE && WriteLine(tables_[table_].heading);
}

void ExportJob::CloseFile() {
  if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
  file_ = INVALID_HANDLE_VALUE;
}

bool ExportJob::WriteLine(const std::string& line) {
  std::string text = line + "\r\n";
  DWORD written = 0;
  return WriteFile(file_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) && written == text.size();
}

}  // namespace teru
