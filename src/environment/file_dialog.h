// The file dialog, open or save.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace basAPI {

struct FileDialog {
  std::optional<std::string> directory;  // default: the current directory
  std::string filter;
  std::uint32_t filterIndex = 1;
  std::uint32_t flags = 0;  // receives the flags that the dialog returned
  std::string defaultExtension;
  std::string fileName;
  std::string title;
  std::optional<std::int32_t> owner;  // default: the main form's window
  bool open = true;                   // false: save
};

// The chosen path, or the empty text when the user cancels or the dialog cannot be shown.
std::string ShowFileDialog(FileDialog& dialog);

// The filter so far with description NUL mask NUL behind it.
std::string AddFileFilter(const std::string& filter, const std::string& description, const std::string& mask = "*.*");

}  // namespace basAPI
