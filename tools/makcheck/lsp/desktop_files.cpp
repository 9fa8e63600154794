#include "lsp/desktop_files.h"

#include <string_view>

#include "common/tool.h"

namespace makcheck::lsp {
namespace {

namespace fs = std::filesystem;

int DigitOf(char c) {
  const std::string_view digits = "0123456789abcdef";
  const auto at = digits.find(static_cast<char>(c >= 'A' && c <= 'F' ? c - 'A' + 'a' : c));
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

fs::path FileBeside(const fs::path& macro) {
  const fs::path name = fs::path(macro.filename()).replace_extension(".desktop");
  std::error_code error;
  for (const fs::path& candidate : {macro.parent_path() / name, macro.parent_path() / "desktops" / name})
    if (fs::is_regular_file(candidate, error)) return candidate;
  return {};
}

}  // namespace

std::string PathOf(const std::string& uri) {
  constexpr std::string_view kFile = "file://";
  if (!uri.starts_with(kFile)) return "";
  std::string path;
  for (std::size_t i = kFile.size(); i < uri.size(); ++i) {
    const int high = uri[i] == '%' && i + 2 < uri.size() ? DigitOf(uri[i + 1]) : -1;
    const int low = high >= 0 ? DigitOf(uri[i + 2]) : -1;
    if (low < 0) {
      path += uri[i];
      continue;
    }
    path += static_cast<char>(high * 16 + low);
    i += 2;
  }
  // "/C:/x" of a system with drives.
  if (path.size() > 2 && path[0] == '/' && path[2] == ':') path.erase(0, 1);
  return path;
}

const Desktop* DesktopFiles::For(const std::string& uri) {
  const fs::path file = FileBeside(tools::PathOf(PathOf(uri)));
  std::error_code error;
  const auto written = file.empty() ? fs::file_time_type() : fs::last_write_time(file, error);
  const std::string path = tools::NameOf(file);
  if (path == path_ && written == written_) return desktop_ ? &*desktop_ : nullptr;
  path_ = path;
  written_ = written;
  desktop_.reset();
  if (path_.empty()) return nullptr;
  try {
    desktop_.emplace(path_);
  } catch (const tools::FileError&) {  // makrun tells its author what is wrong in it
    desktop_.reset();
  }
  return desktop_ ? &*desktop_ : nullptr;
}

}  // namespace makcheck::lsp
