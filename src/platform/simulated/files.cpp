#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "platform/simulated/host_files.h"
#include "platform/simulated/host_paths.h"
#include "platform/simulated/state.h"
#include "runtime/fault.h"

namespace platform {
namespace simulated {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

const HostFile& OpenedFile(std::int32_t hFile) {
  const auto& files = TheDesktop().openFiles;
  const auto found = files.find(hFile);
  if (found == files.end()) throw Fault(FaultNumber::BadFileNumber);
  return found->second;
}

// Bytes as they are, and no business of child processes.
#ifdef _WIN32
int OpenHostFile(const std::filesystem::path& host, int flags) {
  return ::_wopen(host.c_str(), flags | O_BINARY | O_NOINHERIT, 0666);
}

std::int64_t Seek(int descriptor, std::int64_t position) { return ::_lseeki64(descriptor, position, SEEK_SET); }
#else
int OpenHostFile(const std::filesystem::path& host, int flags) { return ::open(host.c_str(), flags | O_CLOEXEC, 0666); }

std::int64_t Seek(int descriptor, std::int64_t position) { return ::lseek(descriptor, position, SEEK_SET); }
#endif

int FlagsOf(FileMode mode) {
  switch (mode) {
    case FileMode::Read:
      return O_RDONLY;
    case FileMode::Append:
      return O_WRONLY | O_CREAT | O_APPEND;
    case FileMode::Overwrite:
      return O_WRONLY | O_CREAT;
    case FileMode::CreateNew:
      break;
  }
  return O_WRONLY | O_CREAT | O_EXCL;
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  constexpr int kAttempts = 100;  // a name that another process has taken is tried again
  std::random_device random;
  for (int i = 0; i < kAttempts; ++i) {
    path_ = std::filesystem::temp_directory_path() / ("simulated-" + std::to_string(random()));
    std::error_code error;
    if (std::filesystem::create_directory(path_, error)) return;
  }
  throw std::runtime_error("no temporary folder can be made");
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

HostFile::~HostFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void PutFile(const std::string& path, const std::string& bytes) {
  std::filesystem::create_directories(PathOnHost(FolderOf(FullPath(path))));
  const std::filesystem::path file = PathOnHost(path);
  if (!(std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes << std::flush))
    throw std::filesystem::filesystem_error("cannot be written", file, std::error_code(errno, std::generic_category()));
}

std::string GetFile(const std::string& path) {
  if (KindOfPath(path) != Kind::File) return "";
  std::ifstream file(PathOnHost(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace simulated

using namespace simulated;

bool FileExists(const FilePath& path) { return !Fails("FileExists") && KindOfPath(path) == Kind::File; }
bool FolderExists(const FilePath& path) { return !Fails("FolderExists") && KindOfPath(path) == Kind::Folder; }

std::int32_t OpenFile(const std::string& path, FileMode mode) {
  RaiseIfFailing("OpenFile");
  const std::filesystem::path host = PathOnHost(path);
  const Kind kind = KindOf(host);
  if (kind != Kind::None && mode == FileMode::CreateNew) throw Fault(FaultNumber::FileExists);
  if (kind == Kind::Folder) throw Fault(FaultNumber::AccessDenied);
  if (kind == Kind::None && KindOfPath(FolderOf(FullPath(path))) != Kind::Folder)
    throw Fault(FaultNumber::PathNotFound);
  if (kind == Kind::None && mode == FileMode::Read) throw Fault(FaultNumber::FileNotFound);
  if (MeansFolder(path)) throw Fault(FaultNumber::BadFileName);
  if (mode != FileMode::Read && IsReadOnly(host)) throw Fault(FaultNumber::AccessDenied);

  HostFile file(host, OpenHostFile(host, FlagsOf(mode)));
  if (file.Descriptor() < 0) throw Fault(FaultOfLastError());
  Desktop& desktop = TheDesktop();
  const std::int32_t handle = desktop.nextFile;
  desktop.nextFile += 4;
  desktop.openFiles.emplace(handle, std::move(file));
  return handle;
}

void SetFilePointer(std::int32_t hFile, std::int64_t position) {
  RaiseIfFailing("SetFilePointer");
  if (Seek(OpenedFile(hFile).Descriptor(), position) < 0) throw Fault(FaultOfLastError());
}

std::size_t ReadFile(std::int32_t hFile, char* buffer, std::size_t size) {
  RaiseIfFailing("ReadFile");
  const auto count = ::read(OpenedFile(hFile).Descriptor(), buffer, size);
  if (count < 0) throw Fault(FaultOfLastError());
  return static_cast<std::size_t>(count);
}

void WriteFile(std::int32_t hFile, std::string_view bytes) {
  RaiseIfFailing("WriteFile");
  const auto count = ::write(OpenedFile(hFile).Descriptor(), bytes.data(), bytes.size());
  if (count < 0) throw Fault(FaultOfLastError());
  if (static_cast<std::size_t>(count) != bytes.size()) throw Fault(FaultNumber::DiskFull);
}

void CloseFile(std::int32_t hFile) {
  RaiseIfFailing("CloseFile");
  if (TheDesktop().openFiles.erase(hFile) == 0) throw Fault(FaultNumber::BadFileNumber);
}

std::int64_t FileSize(const FilePath& path) {
  RaiseIfFailing("FileSize");
  const std::filesystem::path host = PathOnHost(path);
  if (KindOf(host) == Kind::None && KindOfPath(FolderOf(FullPath(path))) != Kind::Folder)
    throw Fault(FaultNumber::PathNotFound);
  if (KindOf(host) != Kind::File) throw Fault(FaultNumber::FileNotFound);
  return static_cast<std::int64_t>(std::filesystem::file_size(host));
}

}  // namespace platform
