#include "platform/simulated/host_files.h"

#include <cerrno>
#include <filesystem>

#include "platform/simulated/host_paths.h"

namespace platform::simulated {

using runtime::Fault;
using runtime::FaultNumber;

Kind KindOf(const std::filesystem::path& hostPath) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(hostPath, ignored);
  if (!std::filesystem::exists(status)) return Kind::None;
  return std::filesystem::is_directory(status) ? Kind::Folder : Kind::File;
}

Kind KindOfPath(const FilePath& path) {
  try {
    const Kind kind = KindOf(PathOnHost(path));
    return kind == Kind::File && MeansFolder(path) ? Kind::None : kind;
  } catch (const Fault&) {
    return Kind::None;
  }
}

bool MeansFolder(const FilePath& path) { return path.characters.ends_with(u'\\') || path.characters.ends_with(u'/'); }

bool IsReadOnly(const std::filesystem::path& hostPath) {
  using std::filesystem::perms;
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(hostPath, ignored);
  return std::filesystem::exists(status) && (status.permissions() & perms::owner_write) == perms::none;
}

FaultNumber FaultOfError(const std::error_code& error) {
  using std::errc;
  for (const errc refusal :
       {errc::permission_denied, errc::operation_not_permitted, errc::read_only_file_system, errc::bad_file_descriptor})
    if (error == refusal) return FaultNumber::AccessDenied;
#ifdef EDQUOT
  if (error.value() == EDQUOT) return FaultNumber::DiskFull;
#endif
  if (error == errc::no_space_on_device) return FaultNumber::DiskFull;
  if (error == errc::directory_not_empty) return FaultNumber::PathAccess;
  return FaultNumber::DeviceError;
}

FaultNumber FaultOfLastError() { return FaultOfError({errno, std::generic_category()}); }

}  // namespace platform::simulated
