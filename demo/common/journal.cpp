#include "journal.h"

#include <windows.h>

namespace standin {

namespace {
HANDLE journal = INVALID_HANDLE_VALUE;
}

void OpenJournal(const std::string& path) {
  journal = CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
}

void Journal(const std::string& line) {
  if (journal == INVALID_HANDLE_VALUE) return;
  std::string text = line + "\r\n";
  DWORD written = 0;
  WriteFile(journal, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

}  // namespace standin
