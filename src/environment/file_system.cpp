#include "environment/file_system.h"

#include <limits>

#include "runtime/fault.h"

namespace basMain {

using platform::FileMode;
using platform::FoundFile;
using runtime::Fault;
using runtime::FaultNumber;

namespace {

bool IsFolder(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_DIRECTORY) != 0; }
bool IsReadOnly(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_READONLY) != 0; }
bool IsLink(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_REPARSE_POINT) != 0; }

// All in front of the last name.
std::string FolderPart(const std::string& path) { return path.substr(0, path.find_last_of("\\/:") + 1); }

// The path of a folder itself. A root keeps its backslash: "C:" is another folder than "C:\".
std::string WithoutSeparator(std::string folder) {
  while (folder.size() > 1 && folder.ends_with('\\') && folder[folder.size() - 2] != ':') folder.pop_back();
  return folder;
}

// The names of the files that fit a pattern.
std::vector<std::string> FilesThatFit(const std::string& pattern) {
  std::vector<std::string> names;
  for (const FoundFile& found : platform::FindFiles(pattern))
    if (!IsFolder(found)) names.push_back(found.cFileName);
  if (names.empty()) throw Fault(FaultNumber::FileNotFound);
  return names;
}

enum class FollowLinks { No, Yes };

// What stands in front of a name in the folder. "C:" means the present folder of its drive and takes no backslash; two
// at the start would lead into the network.
std::string Inside(const std::string& folder) {
  return folder.ends_with('\\') || folder.ends_with(':') ? folder : folder + "\\";
}

// Adds all that a folder holds by its path, each folder in front of its content. A link that leads back to itself ends
// as a path that is too long.
void AddTree(const std::string& inside, FollowLinks follow, std::vector<FoundFile>& tree) {
  for (FoundFile& found : platform::FindFiles(inside + "*")) {
    found.cFileName.insert(0, inside);
    tree.push_back(found);
    if (IsFolder(found) && (!IsLink(found) || follow == FollowLinks::Yes))
      AddTree(Inside(found.cFileName), follow, tree);
  }
}

void MakeFolder(const std::string& path) {
  if (!platform::FolderExists(path)) platform::CreateDirectoryA(path);
}

}  // namespace

TextStream::TextStream(const std::string& path, FileMode mode) : file_(platform::OpenFile(path, mode)) {}

TextStream::~TextStream() {
  runtime::Skip([&] { platform::CloseFile(file_); });
}

void TextStream::Write(const std::string& text) { platform::WriteFile(file_, text); }
void TextStream::WriteLine(const std::string& text) { platform::WriteFile(file_, text + "\r\n"); }

void TextStream::SkipTo(std::int64_t position) { platform::SetFilePointer(file_, position); }

std::string TextStream::ReadAll() {
  std::string text;
  while (Fill()) {
    text.append(buffer_, position_);
    position_ = buffer_.size();
  }
  return text;
}

template <class Take>
bool TextStream::WalkLine(Take&& take) {
  if (AtEndOfStream()) throw Fault(FaultNumber::InputPastEnd);
  do {
    const std::string_view rest = std::string_view(buffer_).substr(position_);
    const std::size_t end = rest.find('\n');
    take(rest.substr(0, end));
    position_ = end == std::string_view::npos ? buffer_.size() : position_ + end + 1;
    if (end != std::string_view::npos) return true;
  } while (Fill());
  return false;
}

std::string TextStream::ReadLine() {
  std::string line;
  const bool ended = WalkLine([&](std::string_view piece) { line += piece; });
  if (ended && line.ends_with('\r')) line.pop_back();
  return line;
}

void TextStream::SkipLine() {
  WalkLine([](std::string_view) {});
}

bool TextStream::AtEndOfStream() { return !Fill(); }

bool TextStream::Fill() {
  if (position_ < buffer_.size()) return true;
  constexpr std::size_t kReadAhead = 1 << 16;
  buffer_.resize(kReadAhead);
  position_ = buffer_.size();  // a fault leaves nothing to be read
  buffer_.resize(platform::ReadFile(file_, buffer_.data(), buffer_.size()));
  position_ = 0;
  return !buffer_.empty();
}

bool FileSystemObject::FileExists(const std::string& path) const { return platform::FileExists(path); }
bool FileSystemObject::FolderExists(const std::string& path) const { return platform::FolderExists(path); }

std::unique_ptr<TextStream> FileSystemObject::OpenTextFile(const std::string& path, FileMode mode) const {
  if (!FileExists(path)) throw Fault(FaultNumber::FileNotFound);
  return std::make_unique<TextStream>(path, mode);
}

std::unique_ptr<TextStream> FileSystemObject::OpenToAppend(const std::string& path) const {
  return std::make_unique<TextStream>(path, FileMode::Append);
}

std::vector<FolderFile> FileSystemObject::FilesOf(const std::string& folder) const {
  if (folder.empty()) throw Fault(FaultNumber::PathNotFound);
  std::vector<FolderFile> files;
  for (const FoundFile& found : platform::FindFiles(Inside(folder) + "*"))
    if (!IsFolder(found)) files.push_back({found.cFileName, Inside(folder) + found.cFileName});
  return files;
}

std::int32_t FileSystemObject::SizeOf(const std::string& path) const {
  const std::int64_t size = platform::FileSize(path);
  if (size > std::numeric_limits<std::int32_t>::max()) throw Fault(FaultNumber::Overflow);
  return static_cast<std::int32_t>(size);
}

void FileSystemObject::DeleteFile(const std::string& pattern) const {
  for (const std::string& name : FilesThatFit(pattern)) platform::DeleteFileA(FolderPart(pattern) + name);
}

void FileSystemObject::DeleteFolder(const std::string& folder) const {
  const std::string path = WithoutSeparator(folder);
  auto tree = platform::FindFiles(path);
  if (tree.empty()) throw Fault(FaultNumber::PathNotFound);
  tree.front().cFileName = path;
  if (!IsLink(tree.front())) AddTree(Inside(path), FollowLinks::No, tree);
  for (const FoundFile& entry : tree)
    if (IsReadOnly(entry)) platform::SetFileAttributesA(entry.cFileName, platform::FILE_ATTRIBUTE_NORMAL);
  for (auto entry = tree.rbegin(); entry != tree.rend(); ++entry) {
    if (IsFolder(*entry)) platform::RemoveDirectoryA(entry->cFileName);
    else platform::DeleteFileA(entry->cFileName);
  }
}

void FileSystemObject::CopyFile(const std::string& source, const std::string& destination) const {
  if (destination.empty()) throw Fault(FaultNumber::PathNotFound);
  const bool pattern = source.find_first_of("*?") != std::string::npos;
  const bool intoFolder = pattern || destination.ends_with('\\');
  for (const std::string& name : FilesThatFit(source))
    platform::CopyFileA(FolderPart(source) + name, intoFolder ? Inside(destination) + name : destination, false);
}

void FileSystemObject::CopyFolder(const std::string& source, const std::string& destination) const {
  const std::string from = WithoutSeparator(source);
  const std::string to = destination.ends_with('\\') ? destination + from.substr(FolderPart(from).size()) : destination;
  // Listed before the first copy is made, so that a destination inside the source comes to an end.
  std::vector<FoundFile> tree;
  AddTree(Inside(from), FollowLinks::Yes, tree);
  MakeFolder(to);
  for (const FoundFile& entry : tree) {
    const std::string target = Inside(to) + entry.cFileName.substr(Inside(from).size());
    if (IsFolder(entry)) MakeFolder(target);
    else platform::CopyFileA(entry.cFileName, target, false);
  }
}

void FileSystemObject::MoveFolder(const std::string& source, const std::string& destination) const {
  platform::MoveFileA(WithoutSeparator(source), WithoutSeparator(destination));
}

std::optional<FileSystemObject> FileSystemState;

const FileSystemObject& FileSystem() {
  if (!FileSystemState) throw Fault(FaultNumber::ObjectNotSet);
  return *FileSystemState;
}

}  // namespace basMain
