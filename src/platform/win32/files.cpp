#include "platform/files.h"

#include "platform/win32/late_binding.h"
#include "platform/win32/system_errors.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// A drive without a disk is a fault like any other; by itself the system would ask the user for one and hold the run.
[[maybe_unused]] const UINT formerErrorMode = ::SetErrorMode(SEM_FAILCRITICALERRORS);

}  // namespace

bool FileExists(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool FolderExists(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::int32_t OpenFile(const std::string& path, FileMode mode) {
  DWORD access = GENERIC_READ;
  DWORD disposition = OPEN_EXISTING;
  if (mode == FileMode::Append) {
    // This right alone lets the system put each write behind what others have written meanwhile. The 9x family knows
    // the generic rights only.
    access = IsFamily9x() ? GENERIC_WRITE : FILE_APPEND_DATA;
    disposition = OPEN_ALWAYS;
  } else if (mode == FileMode::CreateNew) {
    access = GENERIC_WRITE;
    disposition = CREATE_NEW;
  } else if (mode == FileMode::Overwrite) {
    access = GENERIC_WRITE;
    disposition = OPEN_ALWAYS;
  }
  const HANDLE file = ::CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) RaiseLastError();
  if (mode == FileMode::Append && IsFamily9x()) ::SetFilePointer(file, 0, nullptr, FILE_END);
  return NumberOf(file);
}

std::size_t ReadFile(std::int32_t hFile, char* buffer, std::size_t size) {
  DWORD count = 0;
  if (!::ReadFile(HandleOf<HANDLE>(hFile), buffer, static_cast<DWORD>(size), &count, nullptr)) RaiseLastError();
  return count;
}

void SetFilePointer(std::int32_t hFile, std::int64_t position) {
  LONG high = static_cast<LONG>(position >> 32);
  const DWORD low = ::SetFilePointer(HandleOf<HANDLE>(hFile), static_cast<LONG>(position), &high, FILE_BEGIN);
  if (low == INVALID_SET_FILE_POINTER && ::GetLastError() != NO_ERROR) RaiseLastError();
}

void WriteFile(std::int32_t hFile, std::string_view bytes) {
  DWORD count = 0;
  if (!::WriteFile(HandleOf<HANDLE>(hFile), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
    RaiseLastError();
  // The system writes a part and reports success when the disk gets full.
  if (count != bytes.size()) throw runtime::Fault(runtime::FaultNumber::DiskFull);
}

void CloseFile(std::int32_t hFile) {
  if (!::CloseHandle(HandleOf<HANDLE>(hFile))) RaiseLastError();
}

std::int64_t FileSize(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!::GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) RaiseLastError();
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw runtime::Fault(runtime::FaultNumber::FileNotFound);
  return static_cast<std::int64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
}

std::vector<FoundFile> FindFiles(const std::string& lpFileName) {
  std::vector<FoundFile> files;
  WIN32_FIND_DATAA found;
  const HANDLE search = ::FindFirstFileA(lpFileName.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    if (::GetLastError() == ERROR_FILE_NOT_FOUND) return files;
    RaiseLastError();
  }
  do {
    const std::string_view name = found.cFileName;
    if (name != "." && name != "..") files.push_back({found.cFileName, found.dwFileAttributes});
  } while (::FindNextFileA(search, &found));
  const DWORD end = ::GetLastError();
  ::FindClose(search);
  if (end != ERROR_NO_MORE_FILES) throw runtime::Fault(FaultOfCode(end));
  return files;
}

void SetFileAttributesA(const std::string& lpFileName, std::uint32_t dwFileAttributes) {
  if (!::SetFileAttributesA(lpFileName.c_str(), dwFileAttributes)) RaiseLastError();
}

void DeleteFileA(const std::string& lpFileName) {
  if (!::DeleteFileA(lpFileName.c_str())) RaiseLastError();
}

void CopyFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName, bool bFailIfExists) {
  if (!::CopyFileA(lpExistingFileName.c_str(), lpNewFileName.c_str(), bFailIfExists)) RaiseLastError();
}

void MoveFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName) {
  if (!::MoveFileA(lpExistingFileName.c_str(), lpNewFileName.c_str())) RaiseLastError();
}

void CreateDirectoryA(const std::string& lpPathName) {
  if (!::CreateDirectoryA(lpPathName.c_str(), nullptr)) RaiseLastError();
}

void RemoveDirectoryA(const std::string& lpPathName) {
  if (!::RemoveDirectoryA(lpPathName.c_str())) RaiseLastError();
}

bool MakeSureDirectoryPathExists(const std::string& DirPath) {
  // Some systems copy the path into a buffer of this size without asking for its length.
  if (DirPath.size() >= MAX_PATH) return false;
  const auto function = Bind<BOOL WINAPI(const char*)>("imagehlp.dll", "MakeSureDirectoryPathExists");
  return function(DirPath.c_str()) != FALSE;
}

std::uint32_t GetLongPathNameA(const std::string& lpszShortPath, std::string& lpszLongPath, std::uint32_t cchBuffer) {
  const auto function = Bind<DWORD WINAPI(const char*, char*, DWORD)>("kernel32.dll", "GetLongPathNameA");
  std::string buffer(cchBuffer, '\0');
  const DWORD length = function(lpszShortPath.c_str(), buffer.data(), cchBuffer);
  lpszLongPath = length < cchBuffer ? buffer.substr(0, length) : "";
  return length;
}

}  // namespace platform
