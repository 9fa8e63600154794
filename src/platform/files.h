// Files and folders.
//
// Faults by what the system reports: FileNotFound, PathNotFound, AccessDenied, FileExists, DiskFull, BadFileName,
// DeviceError.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);

enum class FileMode {
  Read,       // must exist
  Append,     // made where missing; each write goes to the end, whoever wrote there before
  CreateNew,  // must not exist
  Overwrite,  // made where missing; writes from the first byte on and leaves what lies behind
};

// Opens a file, shared with readers and writers. Yields a handle.
std::int32_t OpenFile(const std::string& path, FileMode mode);

// Reads at most size bytes and yields their count; 0 at the end of the file.
std::size_t ReadFile(std::int32_t hFile, char* buffer, std::size_t size);

// Moves on to a byte of the file, counted from its start, at which the next read begins.
void SetFilePointer(std::int32_t hFile, std::int64_t position);

// Writes all bytes, straight to the system, without a buffer in between.
void WriteFile(std::int32_t hFile, std::string_view bytes);

void CloseFile(std::int32_t hFile);

// Bytes.
std::int64_t FileSize(const std::string& path);

constexpr std::uint32_t FILE_ATTRIBUTE_READONLY = 0x1;
constexpr std::uint32_t FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr std::uint32_t FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr std::uint32_t FILE_ATTRIBUTE_REPARSE_POINT = 0x400;

struct FoundFile {
  std::string cFileName;  // the name alone
  std::uint32_t dwFileAttributes = 0;
};

// The files and folders whose name fits the last name of the path, which may hold * and ?, in the system's order. "*.*"
// fits all. None when the name is missing or the path ends in a backslash; a missing folder is a fault.
std::vector<FoundFile> FindFiles(const std::string& lpFileName);

// Gives a file or folder these attributes; of those above only FILE_ATTRIBUTE_READONLY can be changed.
void SetFileAttributesA(const std::string& lpFileName, std::uint32_t dwFileAttributes);

// Deletes one file. A read-only file, an open one and a folder are refused.
void DeleteFileA(const std::string& lpFileName);

// Copies one file with its attributes; lpNewFileName is the new file's whole path. A folder is refused on either side.
void CopyFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName, bool bFailIfExists);

// Gives a file or folder a new path that must not exist. A folder stays on its drive.
void MoveFileA(const std::string& lpExistingFileName, const std::string& lpNewFileName);

// Makes one folder, which must not exist.
void CreateDirectoryA(const std::string& lpPathName);

// Removes an empty folder. One that holds something raises PathAccess.
void RemoveDirectoryA(const std::string& lpPathName);

// Makes all missing directories of a path that ends in a backslash. False when the system refuses. Faults:
// FunctionMissing without the library that holds it, imagehlp.dll.
bool MakeSureDirectoryPathExists(const std::string& DirPath);

// Puts the path of something that exists, with all short names in it made long, into lpszLongPath and yields its
// length. Yields the size that is needed, and no path, when cchBuffer bytes don't hold it with a NUL; 0 for a missing
// path. Windows before 98 and 2000 lacks it.
std::uint32_t GetLongPathNameA(const std::string& lpszShortPath, std::string& lpszLongPath, std::uint32_t cchBuffer);

}  // namespace platform
