#include "platform/files.h"

#include <memory>

#include "platform/win32/late_binding.h"
#include "platform/win32/substitutes.h"
#include "platform/win32/system_errors.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

// A drive without a disk is a fault like any other; by itself the system would ask the user for one and hold the run.
[[maybe_unused]] const UINT formerErrorMode = ::SetErrorMode(SEM_FAILCRITICALERRORS);

// The 9x family has the wide functions only as stubs.
const wchar_t* Wide(const FilePath& path) { return reinterpret_cast<const wchar_t*>(path.characters.c_str()); }

DWORD AttributesOf(const FilePath& path) {
  return IsFamily9x() ? ::GetFileAttributesA(path.Text().c_str()) : ::GetFileAttributesW(Wide(path));
}

FilePath NameOf(const WIN32_FIND_DATAA& found) { return found.cFileName; }
FilePath NameOf(const WIN32_FIND_DATAW& found) {
  return std::u16string(reinterpret_cast<const char16_t*>(found.cFileName));
}

// The rest of a search whose first find is there. The two forms differ in their record and their functions alone.
template <class Record>
std::vector<FoundFile> FindAll(HANDLE hFindFile, Record& found, BOOL WINAPI (*next)(HANDLE, Record*)) {
  std::vector<FoundFile> files;
  if (hFindFile == INVALID_HANDLE_VALUE) {
    if (::GetLastError() == ERROR_FILE_NOT_FOUND) return files;
    RaiseLastError();
  }
  const std::unique_ptr<void, decltype(&::FindClose)> search(hFindFile, ::FindClose);
  do {
    std::u16string name = NameOf(found).characters;
    if (name != u"." && name != u"..") files.push_back({std::move(name), found.dwFileAttributes});
  } while (next(hFindFile, &found));
  if (::GetLastError() != ERROR_NO_MORE_FILES) RaiseLastError();
  return files;
}

}  // namespace

FilePath::FilePath(const std::string& text) : characters(text.size(), u'\0') {
  const int size = static_cast<int>(text.size());
  auto* wide = reinterpret_cast<wchar_t*>(characters.data());
  characters.resize(static_cast<std::size_t>(::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide, size)));
}

std::string FilePath::Text() const {
  const int size = static_cast<int>(characters.size());
  std::string text(2 * characters.size(), '\0');  // no code page of the system has characters of more bytes
  const auto convert = [&](DWORD flags) {
    return ::WideCharToMultiByte(CP_ACP, flags, Wide(*this), size, text.data(), static_cast<int>(text.size()), nullptr,
                                 nullptr);
  };
  // The first systems of both families don't know the flag.
  int length = convert(WC_NO_BEST_FIT_CHARS);
  if (length == 0) length = convert(0);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

bool FileExists(const FilePath& path) {
  const DWORD attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool FolderExists(const FilePath& path) {
  const DWORD attributes = AttributesOf(path);
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

std::int64_t FileSize(const FilePath& path) {
  const bool narrow = IsFamily9x();
  const auto function = BindIfThere<BOOL WINAPI(const void*, GET_FILEEX_INFO_LEVELS, void*)>(
      "kernel32.dll", narrow ? "GetFileAttributesExA" : "GetFileAttributesExW");
  const std::string text = path.Text();
  if (function == nullptr) return FileSizeBySearch(text);
  WIN32_FILE_ATTRIBUTE_DATA data;
  const void* name = narrow ? static_cast<const void*>(text.c_str()) : Wide(path);
  if (!function(name, GetFileExInfoStandard, &data)) RaiseLastError();
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw runtime::Fault(runtime::FaultNumber::FileNotFound);
  return static_cast<std::int64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
}

std::vector<FoundFile> FindFiles(const FilePath& lpFileName) {
  if (IsFamily9x()) {
    WIN32_FIND_DATAA found;
    return FindAll(::FindFirstFileA(lpFileName.Text().c_str(), &found), found, ::FindNextFileA);
  }
  WIN32_FIND_DATAW found;
  return FindAll(::FindFirstFileW(Wide(lpFileName), &found), found, ::FindNextFileW);
}

void SetFileAttributesW(const FilePath& lpFileName, std::uint32_t dwFileAttributes) {
  if (!(IsFamily9x() ? ::SetFileAttributesA(lpFileName.Text().c_str(), dwFileAttributes)
                     : ::SetFileAttributesW(Wide(lpFileName), dwFileAttributes)))
    RaiseLastError();
}

void DeleteFileW(const FilePath& lpFileName) {
  if (!(IsFamily9x() ? ::DeleteFileA(lpFileName.Text().c_str()) : ::DeleteFileW(Wide(lpFileName)))) RaiseLastError();
}

void CopyFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName, bool bFailIfExists) {
  if (!(IsFamily9x() ? ::CopyFileA(lpExistingFileName.Text().c_str(), lpNewFileName.Text().c_str(), bFailIfExists)
                     : ::CopyFileW(Wide(lpExistingFileName), Wide(lpNewFileName), bFailIfExists)))
    RaiseLastError();
}

void MoveFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName) {
  if (!(IsFamily9x() ? ::MoveFileA(lpExistingFileName.Text().c_str(), lpNewFileName.Text().c_str())
                     : ::MoveFileW(Wide(lpExistingFileName), Wide(lpNewFileName))))
    RaiseLastError();
}

void CreateDirectoryW(const FilePath& lpPathName) {
  if (!(IsFamily9x() ? ::CreateDirectoryA(lpPathName.Text().c_str(), nullptr)
                     : ::CreateDirectoryW(Wide(lpPathName), nullptr)))
    RaiseLastError();
}

void RemoveDirectoryW(const FilePath& lpPathName) {
  if (!(IsFamily9x() ? ::RemoveDirectoryA(lpPathName.Text().c_str()) : ::RemoveDirectoryW(Wide(lpPathName))))
    RaiseLastError();
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
