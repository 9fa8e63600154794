// Whole files and folders: finding, deleting, copying, moving, making.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/simulated/host_files.h"
#include "platform/simulated/host_paths.h"
#include "platform/simulated/state.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

bool Matches(std::string_view name, std::string_view mask) {
  // Where to go on when the letters behind the last asterisk don't fit.
  std::size_t at = 0, m = 0, retry = 0, asterisk = std::string_view::npos;
  while (at < name.size()) {
    if (m < mask.size() && mask[m] == '*') {
      asterisk = m++;
      retry = at;
    } else if (m < mask.size() && (mask[m] == '?' || mask[m] == name[at])) {
      ++m;
      ++at;
    } else if (asterisk != std::string_view::npos) {
      m = asterisk + 1;
      at = ++retry;
    } else {
      return false;
    }
  }
  return mask.find_first_not_of('*', m) == std::string_view::npos;
}

bool Fits(const std::string& entry, const std::string& mask) {
  return mask == "*.*" || Matches(runtime::ToUpper(entry), mask);
}

std::uint32_t AttributesOf(const std::string& hostPath) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::symlink_status(hostPath, ignored);
  if (!std::filesystem::exists(status)) return 0;
  std::uint32_t attributes = KindOf(hostPath) == Kind::Folder ? FILE_ATTRIBUTE_DIRECTORY : 0;
  if (IsReadOnly(hostPath)) attributes |= FILE_ATTRIBUTE_READONLY;
  if (std::filesystem::is_symlink(status)) attributes |= FILE_ATTRIBUTE_REPARSE_POINT;
  return attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
}

// The host path of something that must exist and is no drive.
std::string Existing(const std::string& path) {
  if (FullPath(path).ends_with('\\')) throw Fault(FaultNumber::AccessDenied);
  const std::string host = HostPath(path);
  if (AttributesOf(host) != 0) return host;
  const bool folder = KindOfPath(FolderOf(FullPath(path))) == Kind::Folder;
  throw Fault(folder ? FaultNumber::FileNotFound : FaultNumber::PathNotFound);
}

std::string FolderOfHost(const std::string& hostPath) { return hostPath.substr(0, hostPath.rfind('/')); }

// The host path of something that is to be made in a folder that must exist and let it be made.
std::string ToBeMade(const std::string& path) {
  const std::string host = HostPath(path);
  const std::string folder = FolderOfHost(host);
  if (KindOf(folder) != Kind::Folder) throw Fault(FaultNumber::PathNotFound);
  if (KindOf(host) == Kind::None && IsReadOnly(folder)) throw Fault(FaultNumber::AccessDenied);
  return host;
}

bool IsOpen(const std::string& hostPath) {
  return std::ranges::any_of(TheDesktop().openFiles, [&](const auto& entry) {
    std::error_code ignored;
    return std::filesystem::equivalent(entry.second.Path(), hostPath, ignored);
  });
}

void RaiseIfFailed(const std::error_code& error) {
  if (error) throw Fault(FaultOfError(error));
}

}  // namespace
}  // namespace simulated

using namespace simulated;

std::vector<FoundFile> FindFiles(const std::string& lpFileName) {
  RaiseIfFailing("FindFiles");
  if (lpFileName.empty()) throw Fault(FaultNumber::PathNotFound);
  const std::size_t end = lpFileName.find_last_of("\\/:") + 1;
  const std::string folder = HostPath(end == 0 ? "." : lpFileName.substr(0, end));
  if (KindOf(folder) != Kind::Folder) throw Fault(FaultNumber::PathNotFound);
  std::string mask = runtime::ToUpper(lpFileName.substr(end));
  if (mask.find_first_of("*?") == std::string::npos) mask.erase(mask.find_last_not_of(". ") + 1);
  std::vector<FoundFile> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string name = FromHost(HostText(entry.path().filename()));
    if (Fits(name, mask)) files.push_back({name, AttributesOf(HostText(entry.path()))});
  }
  std::ranges::sort(files, {}, [](const FoundFile& file) { return runtime::ToUpper(file.cFileName); });
  return files;
}

void SetFileAttributesA(const std::string& lpFileName, std::uint32_t dwFileAttributes) {
  RaiseIfFailing("SetFileAttributesA");
  using std::filesystem::perms;
  const bool readOnly = (dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
  std::error_code error;
  std::filesystem::permissions(
      Existing(lpFileName),
      readOnly ? perms::owner_write | perms::group_write | perms::others_write : perms::owner_write,
      readOnly ? std::filesystem::perm_options::remove : std::filesystem::perm_options::add, error);
  RaiseIfFailed(error);
}

void DeleteFileA(const std::string& lpFileName) {
  RaiseIfFailing("DeleteFileA");
  const std::string host = Existing(lpFileName);
  if (KindOf(host) == Kind::Folder || IsReadOnly(host) || IsReadOnly(FolderOfHost(host)) || IsOpen(host))
    throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::remove(host, error);
  RaiseIfFailed(error);
}

void CopyFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName, bool bFailIfExists) {
  RaiseIfFailing("CopyFileA");
  const std::string from = Existing(lpExistingFileName);
  const std::string to = ToBeMade(lpNewFileName);
  if (KindOf(from) == Kind::Folder || KindOf(to) == Kind::Folder) throw Fault(FaultNumber::AccessDenied);
  if (KindOf(to) == Kind::File && bFailIfExists) throw Fault(FaultNumber::FileExists);
  if (from == to || IsReadOnly(to)) throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
  RaiseIfFailed(error);
}

void MoveFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName) {
  RaiseIfFailing("MoveFileA");
  const std::string from = Existing(lpExistingFileName);
  const std::string to = ToBeMade(lpNewFileName);
  if (KindOf(to) != Kind::None) throw Fault(FaultNumber::FileExists);
  const bool inItself = to.starts_with(from + "/");
  const bool otherDrive = FullPath(lpExistingFileName)[0] != FullPath(lpNewFileName)[0];
  if (inItself || (otherDrive && KindOf(from) == Kind::Folder)) throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::rename(from, to, error);
  RaiseIfFailed(error);
}

void CreateDirectoryA(const std::string& lpPathName) {
  RaiseIfFailing("CreateDirectoryA");
  const std::string host = ToBeMade(lpPathName);
  if (KindOf(host) != Kind::None) throw Fault(FaultNumber::FileExists);
  std::error_code error;
  std::filesystem::create_directory(host, error);
  RaiseIfFailed(error);
}

void RemoveDirectoryA(const std::string& lpPathName) {
  RaiseIfFailing("RemoveDirectoryA");
  const std::string host = Existing(lpPathName);
  const std::uint32_t attributes = AttributesOf(host);
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) throw Fault(FaultNumber::BadFileName);
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0 || IsReadOnly(FolderOfHost(host)))
    throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::remove(host, error);  // of a link it takes the link
  RaiseIfFailed(error);
}

// The text behind the last backslash is no folder's name.
bool MakeSureDirectoryPathExists(const std::string& DirPath) {
  RaiseIfFailing("imagehlp.dll");
  if (Fails("MakeSureDirectoryPathExists")) return false;
  const std::size_t end = DirPath.rfind('\\');
  if (end == std::string::npos) return true;
  try {
    std::error_code error;
    std::filesystem::create_directories(HostPath(DirPath.substr(0, end + 1)), error);
    return !error;
  } catch (const Fault&) {
    return false;
  }
}

std::uint32_t GetLongPathNameA(const std::string& lpszShortPath, std::string& lpszLongPath, std::uint32_t cchBuffer) {
  const Desktop& desktop = TheDesktop();
  const bool nt = desktop.platformId == VER_PLATFORM_WIN32_NT;
  if (nt ? desktop.majorVersion < 5 : desktop.minorVersion < 10) throw Fault(FaultNumber::FunctionMissing);
  lpszLongPath.clear();
  if (Fails("GetLongPathNameA") || KindOfPath(lpszShortPath) == Kind::None) return 0;
  const std::string path = LongPath(lpszShortPath);
  if (path.size() >= cchBuffer) return static_cast<std::uint32_t>(path.size()) + 1;
  lpszLongPath = path;
  return static_cast<std::uint32_t>(path.size());
}

}  // namespace platform
