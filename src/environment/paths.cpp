#include "environment/paths.h"

#include "environment/file_system.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace basAPI {

std::string JoinPieces(std::initializer_list<std::string_view> pieces) {
  std::string path;
  bool first = true;
  for (std::string_view piece : pieces) {
    if (!first && piece.starts_with('\\')) piece.remove_prefix(1);
    if (piece.ends_with('\\')) piece.remove_suffix(1);
    if (!first) path += '\\';
    path += piece;
    first = false;
  }
  return path;
}

bool CheckFileExists(const std::string& path) {
  bool exists = false;
  runtime::Skip([&] { exists = basMain::FileSystemObject().FileExists(path); });
  return exists;
}

std::string SettingsFile() { return JoinPath(platform::ApplicationPath(), "QUMAEXP.INI"); }

}  // namespace basAPI
