// Whole files and folders: finding, deleting, copying, moving, making.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/simulated/host_files.h"
#include "platform/simulated/host_paths.h"
#include "platform/simulated/state.h"
#include "runtime/fault.h"

namespace platform {
namespace simulated {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

// The system's rules: an asterisk fits any number of characters; a question mark fits one that is no dot, and nothing
// at the end and in front of a dot; a dot in front of either fits the end of the name too.
bool Matches(std::u16string_view name, std::u16string_view mask) {
  std::vector<bool> reached(mask.size() + 1);
  reached[0] = true;
  for (std::size_t at = 0;; ++at) {
    const bool end = at == name.size();
    for (std::size_t m = 0; m < mask.size(); ++m) {
      const bool leads = m + 1 < mask.size() && (mask[m + 1] == u'*' || mask[m + 1] == u'?');
      const bool fitsNothing =
          mask[m] == u'*' || (mask[m] == u'?' && (end || name[at] == u'.')) || (mask[m] == u'.' && end && leads);
      if (reached[m] && fitsNothing) reached[m + 1] = true;
    }
    if (end) return reached.back();
    std::vector<bool> next(mask.size() + 1);
    for (std::size_t m = 0; m < mask.size(); ++m) {
      if (!reached[m]) continue;
      if (mask[m] == u'*') next[m] = true;
      else if (mask[m] == u'?' ? name[at] != u'.' : mask[m] == name[at]) next[m + 1] = true;
    }
    reached = std::move(next);
  }
}

// What a search looks for; the system drops dots and blanks from the end of a name, but not of a pattern.
std::u16string MaskOf(std::u16string name) {
  if (name.find_first_of(u"*?") == std::u16string::npos) name.erase(name.find_last_not_of(u". ") + 1);
  return ToUpper(name);
}

// A name as the 9x family finds it: the code page's character that looks most like it, for a wide form even a
// separator.
std::u16string InCodePage(std::u16string name) {
  for (char16_t& c : name)
    if (c >= 0xFF01 && c <= 0xFF5E) c = static_cast<char16_t>(c - 0xFEE0);
  return FilePath(FilePath(name).Text()).characters;
}

std::uint32_t AttributesOf(const std::filesystem::path& hostPath) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::symlink_status(hostPath, ignored);
  if (!std::filesystem::exists(status)) return 0;
  std::uint32_t attributes = KindOf(hostPath) == Kind::Folder ? FILE_ATTRIBUTE_DIRECTORY : 0;
  if (IsReadOnly(hostPath)) attributes |= FILE_ATTRIBUTE_READONLY;
  if (std::filesystem::is_symlink(status)) attributes |= FILE_ATTRIBUTE_REPARSE_POINT;
  return attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
}

// The host path of something that must exist and is no drive.
std::filesystem::path Existing(const FilePath& path) {
  if (FullPath(path).ends_with(u'\\')) throw Fault(FaultNumber::AccessDenied);
  const std::filesystem::path host = PathOnHost(path);
  if (AttributesOf(host) != 0) return host;
  const bool folder = KindOfPath(FolderOf(FullPath(path))) == Kind::Folder;
  throw Fault(folder ? FaultNumber::FileNotFound : FaultNumber::PathNotFound);
}

// The host path of something that is to be made in a folder that must exist and let it be made.
std::filesystem::path ToBeMade(const FilePath& path) {
  const std::filesystem::path host = PathOnHost(path);
  const std::filesystem::path folder = host.parent_path();
  if (KindOf(folder) != Kind::Folder) throw Fault(FaultNumber::PathNotFound);
  if (KindOf(host) == Kind::None && IsReadOnly(folder)) throw Fault(FaultNumber::AccessDenied);
  return host;
}

bool IsOpen(const std::filesystem::path& hostPath) {
  return std::ranges::any_of(TheDesktop().openFiles, [&](const auto& entry) {
    std::error_code ignored;
    return std::filesystem::equivalent(entry.second.Path(), hostPath, ignored);
  });
}

void NoteBlankEnds(const std::string& missing) {
  std::string& noted = TheDesktop().folderThatEndsInABlank;
  for (auto end = missing.find(" \\"); end != std::string::npos && noted.empty(); end = missing.find(" \\", end + 1))
    if (KindOfPath(missing.substr(0, end + 2)) == Kind::None) noted = missing.substr(0, end + 1);
}

void RaiseIfFailed(const std::error_code& error) {
  if (error) throw Fault(FaultOfError(error));
}

}  // namespace

const std::string& FolderThatEndsInABlank() { return TheDesktop().folderThatEndsInABlank; }

}  // namespace simulated

using namespace simulated;

std::vector<FoundFile> FindFiles(const FilePath& lpFileName) {
  RaiseIfFailing("FindFiles");
  const std::u16string& path = lpFileName.characters;
  if (path.empty()) throw Fault(FaultNumber::PathNotFound);
  const std::size_t end = path.find_last_of(u"\\/:") + 1;
  const std::filesystem::path folder = PathOnHost(end == 0 ? u"." : path.substr(0, end));
  if (KindOf(folder) != Kind::Folder) throw Fault(FaultNumber::PathNotFound);
  const std::u16string mask = MaskOf(path.substr(end));
  std::vector<FoundFile> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::u16string name = FromHost(entry.path().filename());
    if (TheDesktop().platformId != VER_PLATFORM_WIN32_NT) name = InCodePage(name);
    if (Matches(ToUpper(name), mask)) files.push_back({name, AttributesOf(entry.path())});
  }
  std::ranges::sort(files, {}, [](const FoundFile& file) { return ToUpper(file.cFileName); });
  return files;
}

void SetFileAttributesW(const FilePath& lpFileName, std::uint32_t dwFileAttributes) {
  RaiseIfFailing("SetFileAttributesW");
  using std::filesystem::perms;
  const bool readOnly = (dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
  std::error_code error;
  std::filesystem::permissions(
      Existing(lpFileName),
      readOnly ? perms::owner_write | perms::group_write | perms::others_write : perms::owner_write,
      readOnly ? std::filesystem::perm_options::remove : std::filesystem::perm_options::add, error);
  RaiseIfFailed(error);
}

void DeleteFileW(const FilePath& lpFileName) {
  RaiseIfFailing("DeleteFileW");
  const std::filesystem::path host = Existing(lpFileName);
  if (KindOf(host) == Kind::Folder || IsReadOnly(host) || IsReadOnly(host.parent_path()) || IsOpen(host))
    throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::remove(host, error);
  RaiseIfFailed(error);
}

void CopyFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName, bool bFailIfExists) {
  RaiseIfFailing("CopyFileW");
  const std::filesystem::path from = Existing(lpExistingFileName);
  const std::filesystem::path to = ToBeMade(lpNewFileName);
  if (KindOf(from) == Kind::Folder || KindOf(to) == Kind::Folder) throw Fault(FaultNumber::AccessDenied);
  if (KindOf(to) == Kind::File && bFailIfExists) throw Fault(FaultNumber::FileExists);
  if (from == to || IsReadOnly(to)) throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
  RaiseIfFailed(error);
}

void MoveFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName) {
  RaiseIfFailing("MoveFileW");
  const std::filesystem::path from = Existing(lpExistingFileName);
  const std::filesystem::path to = ToBeMade(lpNewFileName);
  if (KindOf(to) != Kind::None) throw Fault(FaultNumber::FileExists);
  const bool inItself = std::ranges::mismatch(from, to).in1 == from.end();
  const bool otherDrive = FullPath(lpExistingFileName)[0] != FullPath(lpNewFileName)[0];
  if (inItself || (otherDrive && KindOf(from) == Kind::Folder)) throw Fault(FaultNumber::AccessDenied);
  std::error_code error;
  std::filesystem::rename(from, to, error);
  RaiseIfFailed(error);
}

void CreateDirectoryW(const FilePath& lpPathName) {
  RaiseIfFailing("CreateDirectoryW");
  const std::filesystem::path host = ToBeMade(lpPathName);
  if (KindOf(host) != Kind::None) throw Fault(FaultNumber::FileExists);
  std::error_code error;
  std::filesystem::create_directory(host, error);
  RaiseIfFailed(error);
}

void RemoveDirectoryW(const FilePath& lpPathName) {
  RaiseIfFailing("RemoveDirectoryW");
  const std::filesystem::path host = Existing(lpPathName);
  const std::uint32_t attributes = AttributesOf(host);
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) throw Fault(FaultNumber::BadFileName);
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0 || IsReadOnly(host.parent_path()))
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
  NoteBlankEnds(DirPath.substr(0, end + 1));
  try {
    std::error_code error;
    std::filesystem::create_directories(PathOnHost(DirPath.substr(0, end + 1)), error);
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
  const std::string path = FilePath(LongPath(lpszShortPath)).Text();
  if (path.size() >= cchBuffer) return static_cast<std::uint32_t>(path.size()) + 1;
  lpszLongPath = path;
  return static_cast<std::uint32_t>(path.size());
}

}  // namespace platform
