// The file-system object: files and folders by path, and text streams. The program has one for its whole life; a
// routine may make another for a single call.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace basMain {

// An open text file, closed when it is released. Faults: those of platform/files.h.
class TextStream {
 public:
  TextStream(const std::string& path, platform::FileMode mode);
  ~TextStream();
  TextStream(const TextStream&) = delete;
  TextStream& operator=(const TextStream&) = delete;

  // Writes the text, with a line end (CR LF) behind it or without, in one piece, straight to the system.
  void Write(const std::string& text);
  void WriteLine(const std::string& text);

  // Moves on to a byte, counted from the start of the file; before anything is read.
  void SkipTo(std::int64_t position);

  // Everything from the present position to the end.
  std::string ReadAll();

  // The next line, which ends at a line feed or at the end of the file; a carriage return in front of the line feed is
  // no part of it, and one that stands alone ends no line. Faults: InputPastEnd when nothing is left.
  std::string ReadLine();

  // The same without its text, for however long a line.
  void SkipLine();

  bool AtEndOfStream();

 private:
  // Reads on when the buffer is used up; false at the end of the file.
  bool Fill();

  // Hands the bytes of the next line in front of its line feed to a function, piece by piece; false when the file ends
  // without a line feed.
  template <class Take>
  bool WalkLine(Take&& take);

  std::int32_t file_;
  std::string buffer_;        // read ahead
  std::size_t position_ = 0;  // in the buffer; what lies in front of it is used up
};

struct FolderFile {
  std::string Name;         // "?" for what the code page lacks
  platform::FilePath Path;  // by which it is found again
};

// Read-only files and folders go with a deleted folder; everywhere else they are refused. Whatever the system refuses
// is a fault, and what was done before it stays done. A folder in which a name is found that would lead out of it is
// refused untouched, as BadFileName.
class FileSystemObject {
 public:
  bool FileExists(const platform::FilePath& path) const;
  bool FolderExists(const platform::FilePath& path) const;

  // Opens an existing file to read it, or to append to it.
  std::unique_ptr<TextStream> OpenTextFile(const std::string& path, platform::FileMode mode) const;

  // Opens for appending, and makes the file where it is missing. Each line goes to the end, also behind what another
  // stream has written meanwhile.
  std::unique_ptr<TextStream> OpenToAppend(const std::string& path) const;

  // The files of a folder. Faults: PathNotFound.
  std::vector<FolderFile> FilesOf(const std::string& folder) const;

  // Bytes, as a 32-bit number. Faults: FileNotFound; Overflow for a larger file.
  std::int32_t SizeOf(const platform::FilePath& path) const;

  // Deletes the files, not the folders, that fit the last name of the path, which may hold * and ?. Faults:
  // FileNotFound when there is none.
  void DeleteFile(const std::string& pattern) const;

  // Deletes a folder with all that it holds, but not what a link in it leads to. A drive's root is refused untouched.
  void DeleteFolder(const std::string& folder) const;

  // Copies the files that fit the source, whose last name may hold * and ?, over existing ones. The destination is a
  // folder that must exist when it ends in a backslash or the source is a pattern, else the new file's path; a folder's
  // path is then refused. Faults: FileNotFound when no file fits, PathNotFound for an empty destination.
  void CopyFile(const std::string& source, const std::string& destination) const;

  // Copies a folder with all that it holds at this moment over the destination: merges folders, replaces files. A
  // destination that ends in a backslash takes the folder in under its own name.
  void CopyFolder(const std::string& source, const std::string& destination) const;

  // Gives a folder a new path on the same drive, which must not exist.
  void MoveFolder(const std::string& source, const std::string& destination) const;
};

// The one file-system object, from the start to the end of the program. Faults: ObjectNotSet outside that time.
extern std::optional<FileSystemObject> FileSystemState;
const FileSystemObject& FileSystem();

}  // namespace basMain
