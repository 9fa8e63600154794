#include "platform/simulated/host_files.h"

#include <cerrno>
#include <filesystem>

#include "platform/simulated/desktop.h"

namespace platform::simulated {

using runtime::Fault;
using runtime::FaultNumber;

Kind KindOf(const std::string& hostPath) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(hostPath, ignored);
  if (!std::filesystem::exists(status)) return Kind::None;
  return std::filesystem::is_directory(status) ? Kind::Folder : Kind::File;
}

Kind KindOfPath(const std::string& path) {
  try {
    const Kind kind = KindOf(HostPath(path));
    return kind == Kind::File && MeansFolder(path) ? Kind::None : kind;
  } catch (const Fault&) {
    return Kind::None;
  }
}

bool MeansFolder(const std::string& path) { return path.ends_with('\\') || path.ends_with('/'); }

bool IsReadOnly(const std::string& hostPath) {
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
