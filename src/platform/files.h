// Files and folders.
//
// Faults by what the system reports: FileNotFound, PathNotFound, AccessDenied, FileExists, DiskFull, BadFileName,
// DeviceError.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// A path, or a name alone, in the system's own 16-bit characters. The program's text becomes one without loss. A name
// that was found on a disk stays one: the code page lacks some characters and makes a separator of others.
struct FilePath {
  FilePath(const char* text) : FilePath(std::string(text)) {}
  FilePath(const std::string& text);
  FilePath(std::u16string wide) : characters(std::move(wide)) {}

  // Not to find the file again: what the code page lacks becomes "?".
  std::string Text() const;

  std::u16string characters;
};

bool FileExists(const FilePath& path);
bool FolderExists(const FilePath& path);

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
std::int64_t FileSize(const FilePath& path);

constexpr std::uint32_t FILE_ATTRIBUTE_READONLY = 0x1;
constexpr std::uint32_t FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr std::uint32_t FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr std::uint32_t FILE_ATTRIBUTE_REPARSE_POINT = 0x400;

struct FoundFile {
  std::u16string cFileName;  // the name alone
  std::uint32_t dwFileAttributes = 0;
};

// The files and folders whose name fits the last name of the path, which may hold * and ?, in the system's order. "*.*"
// fits all. None when the name is missing or the path ends in a backslash; a missing folder is a fault.
std::vector<FoundFile> FindFiles(const FilePath& lpFileName);

// Gives a file or folder these attributes; of those above only FILE_ATTRIBUTE_READONLY can be changed.
void SetFileAttributesW(const FilePath& lpFileName, std::uint32_t dwFileAttributes);

// Deletes one file. A read-only file, an open one and a folder are refused.
void DeleteFileW(const FilePath& lpFileName);

// Copies one file with its attributes; lpNewFileName is the new file's whole path. A folder is refused on either side.
void CopyFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName, bool bFailIfExists);

// Gives a file or folder a new path that must not exist. A folder stays on its drive.
void MoveFileW(const FilePath& lpExistingFileName, const FilePath& lpNewFileName);

// Makes one folder, which must not exist.
void CreateDirectoryW(const FilePath& lpPathName);

// Removes an empty folder. One that holds something raises PathAccess.
void RemoveDirectoryW(const FilePath& lpPathName);

// Makes all missing directories of a path that ends in a backslash. False when the system refuses. Faults:
// FunctionMissing without the library that holds it, imagehlp.dll.
bool MakeSureDirectoryPathExists(const std::string& DirPath);

// Puts the path of something that exists, with all short names in it made long, into lpszLongPath and yields its
// length. Yields the size that is needed, and no path, when cchBuffer bytes don't hold it with a NUL; 0 for a missing
// path. Windows before 98 and 2000 lacks it.
std::uint32_t GetLongPathNameA(const std::string& lpszShortPath, std::string& lpszLongPath, std::uint32_t cchBuffer);

}  // namespace platform
