// The desktop files that lie beside macros.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "desktop.h"

namespace makcheck::lsp {

// The path of a document of the file system; empty for any other.
std::string PathOf(const std::string& uri);

class DesktopFiles {
 public:
  // The windows for a macro, read anew when the file has changed: NAME.desktop beside NAME.MAK, or in a folder "desktops"
  // beside it. nullptr where there is none, or where it cannot be read. It lives until the next call.
  const Desktop* For(const std::string& uri);

 private:
  std::string path_;
  std::filesystem::file_time_type written_;
  std::optional<Desktop> desktop_;
};

}  // namespace makcheck::lsp
