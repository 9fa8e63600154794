#include "environment/file_system.h"

#include <limits>

#include "runtime/fault.h"

namespace basMain {

using platform::FileMode;
using platform::FilePath;
using platform::FoundFile;
using runtime::Fault;
using runtime::FaultNumber;

namespace {

bool IsFolder(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_DIRECTORY) != 0; }
bool IsReadOnly(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_READONLY) != 0; }
bool IsLink(const FoundFile& found) { return (found.dwFileAttributes & platform::FILE_ATTRIBUTE_REPARSE_POINT) != 0; }

// All in front of the last name.
std::u16string FolderPart(const std::u16string& path) { return path.substr(0, path.find_last_of(u"\\/:") + 1); }

// The path of a folder itself. A root keeps its backslash: "C:" is another folder than "C:\".
std::u16string WithoutSeparator(const FilePath& path) {
  std::u16string folder = path.characters;
  while (folder.size() > 1 && folder.ends_with(u'\\') && folder[folder.size() - 2] != u':') folder.pop_back();
  return folder;
}

// A name that is no entry of its folder once it is part of a path. The 9x family makes a backslash of a wide one, and a
// drive of another system may hold what this one reads otherwise.
bool LeadsElsewhere(const std::u16string& name) {
  return name.find_first_of(u"\\/:") != std::u16string::npos || name.find_first_not_of(u". ") == std::u16string::npos;
}

// What fits a pattern. Nothing is done to a folder that holds a name which leads out of it.
std::vector<FoundFile> EntriesThatFit(const std::u16string& pattern) {
  auto entries = platform::FindFiles(pattern);
  for (const FoundFile& found : entries)
    if (LeadsElsewhere(found.cFileName)) throw Fault(FaultNumber::BadFileName);
  return entries;
}

// The names of the files that fit a pattern.
std::vector<std::u16string> FilesThatFit(const std::u16string& pattern) {
  std::vector<std::u16string> names;
  for (const FoundFile& found : EntriesThatFit(pattern))
    if (!IsFolder(found)) names.push_back(found.cFileName);
  if (names.empty()) throw Fault(FaultNumber::FileNotFound);
  return names;
}

enum class FollowLinks { No, Yes };

// What stands in front of a name in the folder. "C:" means the present folder of its drive and takes no backslash; two
// at the start would lead into the network.
std::u16string Inside(const std::u16string& folder) {
  return folder.ends_with(u'\\') || folder.ends_with(u':') ? folder : folder + u"\\";
}

// Adds all that a folder holds by its path, each folder in front of its content. A link that leads back to itself ends
// as a path that is too long.
void AddTree(const std::u16string& inside, FollowLinks follow, std::vector<FoundFile>& tree) {
  for (FoundFile& found : EntriesThatFit(inside + u"*")) {
    found.cFileName.insert(0, inside);
    tree.push_back(found);
    if (IsFolder(found) && (!IsLink(found) || follow == FollowLinks::Yes))
      AddTree(Inside(found.cFileName), follow, tree);
  }
}

void MakeFolder(const std::u16string& path) {
  if (!platform::FolderExists(path)) platform::CreateDirectoryW(path);
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

bool FileSystemObject::FileExists(const FilePath& path) const { return platform::FileExists(path); }
bool FileSystemObject::FolderExists(const FilePath& path) const { return platform::FolderExists(path); }

std::unique_ptr<TextStream> FileSystemObject::OpenTextFile(const std::string& path, FileMode mode) const {
  if (!FileExists(path)) throw Fault(FaultNumber::FileNotFound);
  return std::make_unique<TextStream>(path, mode);
}

std::unique_ptr<TextStream> FileSystemObject::OpenToAppend(const std::string& path) const {
  return std::make_unique<TextStream>(path, FileMode::Append);
}

std::vector<FolderFile> FileSystemObject::FilesOf(const std::string& folder) const {
  if (folder.empty()) throw Fault(FaultNumber::PathNotFound);
  const std::u16string inside = Inside(FilePath(folder).characters);
  std::vector<FolderFile> files;
  for (const FoundFile& found : platform::FindFiles(inside + u"*"))
    if (!IsFolder(found)) files.push_back({FilePath(found.cFileName).Text(), inside + found.cFileName});
  return files;
}

std::int32_t FileSystemObject::SizeOf(const FilePath& path) const {
  const std::int64_t size = platform::FileSize(path);
  if (size > std::numeric_limits<std::int32_t>::max()) throw Fault(FaultNumber::Overflow);
  return static_cast<std::int32_t>(size);
}

void FileSystemObject::DeleteFile(const std::string& pattern) const {
  const std::u16string path = FilePath(pattern).characters;
  for (const std::u16string& name : FilesThatFit(path)) platform::DeleteFileW(FolderPart(path) + name);
}

void FileSystemObject::DeleteFolder(const std::string& folder) const {
  const std::u16string path = WithoutSeparator(folder);
  auto tree = platform::FindFiles(path);
  if (tree.empty()) throw Fault(FaultNumber::PathNotFound);
  tree.front().cFileName = path;
  if (!IsLink(tree.front())) AddTree(Inside(path), FollowLinks::No, tree);
  for (const FoundFile& entry : tree)
    if (IsReadOnly(entry)) platform::SetFileAttributesW(entry.cFileName, platform::FILE_ATTRIBUTE_NORMAL);
  for (auto entry = tree.rbegin(); entry != tree.rend(); ++entry) {
    // A separator keeps a blank at the end of a folder's name.
    if (entry->cFileName.ends_with(u' ') && IsFolder(*entry)) entry->cFileName += u'\\';
    if (IsFolder(*entry)) platform::RemoveDirectoryW(entry->cFileName);
    else platform::DeleteFileW(entry->cFileName);
  }
}

void FileSystemObject::CopyFile(const std::string& source, const std::string& destination) const {
  if (destination.empty()) throw Fault(FaultNumber::PathNotFound);
  const std::u16string from = FilePath(source).characters;
  const std::u16string to = FilePath(destination).characters;
  const bool intoFolder = from.find_first_of(u"*?") != std::u16string::npos || to.ends_with(u'\\');
  for (const std::u16string& name : FilesThatFit(from))
    platform::CopyFileW(FolderPart(from) + name, intoFolder ? Inside(to) + name : to, false);
}

void FileSystemObject::CopyFolder(const std::string& source, const std::string& destination) const {
  const std::u16string from = WithoutSeparator(source);
  std::u16string to = FilePath(destination).characters;
  if (to.ends_with(u'\\')) to += from.substr(FolderPart(from).size());
  // Listed before the first copy is made, so that a destination inside the source comes to an end.
  std::vector<FoundFile> tree;
  AddTree(Inside(from), FollowLinks::Yes, tree);
  MakeFolder(to);
  for (const FoundFile& entry : tree) {
    const std::u16string target = Inside(to) + entry.cFileName.substr(Inside(from).size());
    if (IsFolder(entry)) MakeFolder(target);
    else platform::CopyFileW(entry.cFileName, target, false);
  }
}

void FileSystemObject::MoveFolder(const std::string& source, const std::string& destination) const {
  platform::MoveFileW(WithoutSeparator(source), WithoutSeparator(destination));
}

std::optional<FileSystemObject> FileSystemState;

const FileSystemObject& FileSystem() {
  if (!FileSystemState) throw Fault(FaultNumber::ObjectNotSet);
  return *FileSystemState;
}

}  // namespace basMain
