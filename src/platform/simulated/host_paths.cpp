#include "platform/simulated/host_paths.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/simulated/state.h"
#include "platform/system.h"
#include "runtime/code_page.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

constexpr std::size_t kLongestPath = 259;

bool Exists(const std::filesystem::path& hostPath) {
  std::error_code ignored;
  return std::filesystem::exists(hostPath, ignored);
}

// The name of 8 and 3 characters that a long name has besides, its number always 1; empty for a name without one.
std::u16string ShortNameOf(const std::u16string& name) {
  const std::size_t dot = std::min(name.rfind(u'.'), name.size());
  const std::u16string extension = name.substr(dot, 4);
  std::u16string stem = name.substr(0, dot);
  std::erase(stem, u' ');
  std::erase(stem, u'.');
  if (stem.size() == dot && dot <= 8 && extension == name.substr(dot)) return {};
  return ToUpper(stem.substr(0, 6) + u"~1" + extension);
}

#ifdef _WIN32
// Such a host drops a blank at the end of a name, so a blank that does not break stands for it.
constexpr char16_t kStandIn = 0xA0;
std::filesystem::path ToHost(std::u16string name) {
  if (name.ends_with(u' ')) name.back() = kStandIn;
  return std::wstring(name.begin(), name.end());
}
#else
std::filesystem::path ToHost(const std::u16string& name) { return runtime::Utf16ToUtf8(name); }
#endif

// The name that a host folder has for an entry, by its long or short name, or the name itself when there is none.
std::filesystem::path EntryOf(const std::filesystem::path& hostFolder, const std::u16string& name) {
  std::error_code ignored;
  const std::u16string wanted = ToUpper(name);
  const bool isShort = wanted.find(u'~') != std::u16string::npos;
  for (const auto& entry : std::filesystem::directory_iterator(hostFolder, ignored)) {
    const std::u16string found = FromHost(entry.path().filename());
    if (ToUpper(found) == wanted || (isShort && ShortNameOf(found) == wanted)) return entry.path().filename();
  }
  return ToHost(name);
}

bool IsAllowed(char16_t c) { return c >= 32 && std::u16string_view(u"<>:\"|?*").find(c) == std::u16string_view::npos; }

// The names between the separators of a path without its drive.
std::vector<std::u16string> NamesOf(std::u16string_view path) {
  std::vector<std::u16string> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(u'\\'), path.size());
    if (end > 0) names.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return names;
}

// The drive and all behind it, as it was written.
std::u16string Absolute(const std::u16string& path) {
  const std::u16string current = FilePath(CurrentDirectory()).characters;
  if (path.size() >= 2 && path[1] == u':') {
    const std::u16string drive = ToUpper(path.substr(0, 2));
    if (path.size() > 2 && path[2] == u'\\') return drive + path.substr(2);
    return (ToUpper(current.substr(0, 2)) == drive ? current : drive) + u"\\" + path.substr(2);
  }
  if (path.starts_with(u"\\\\")) throw Fault(FaultNumber::PathNotFound);  // there is no network
  return path.starts_with(u'\\') ? current.substr(0, 2) + path : current + u"\\" + path;
}

}  // namespace

#ifdef _WIN32
std::u16string FromHost(const std::filesystem::path& name) {
  const std::wstring& characters = name.native();
  std::u16string text(characters.begin(), characters.end());
  if (text.ends_with(kStandIn)) text.back() = u' ';
  return text;
}
#else
std::u16string FromHost(const std::filesystem::path& name) { return runtime::Utf8ToUtf16(name.native()); }
#endif

std::u16string FullPath(const FilePath& path) {
  if (path.characters.empty()) throw Fault(FaultNumber::PathNotFound);
  std::u16string written = path.characters;
  std::ranges::replace(written, u'/', u'\\');
  const std::u16string absolute = Absolute(written);
  std::vector<std::u16string> names;
  for (std::u16string& name : NamesOf(std::u16string_view(absolute).substr(2))) {
    if (name == u".." && !names.empty()) names.pop_back();
    if (!std::ranges::all_of(name, IsAllowed)) throw Fault(FaultNumber::BadFileName);
    if (name != u"." && name != u"..") names.push_back(std::move(name));
  }
  // Only the end of the whole path is rid of dots and blanks.
  if (!names.empty() && !absolute.ends_with(u'\\')) {
    names.back().erase(names.back().find_last_not_of(u". ") + 1);
    if (names.back().empty()) names.pop_back();
  }
  std::u16string full = absolute.substr(0, 2);
  for (const std::u16string& name : names) full += u"\\" + name;
  if (names.empty()) full += u"\\";
  if (full.size() > kLongestPath) throw Fault(FaultNumber::PathNotFound);
  return full;
}

std::u16string FolderOf(const std::u16string& fullPath) { return fullPath.substr(0, fullPath.rfind(u'\\') + 1); }

std::u16string ToUpper(const std::u16string& name) {
  std::u16string upper = runtime::ToUtf16(runtime::ToUpper(runtime::FromUtf16(name)));
  for (std::size_t i = 0; i < name.size(); ++i)
    if (upper[i] == u'?') upper[i] = name[i];
  return upper;
}

// The spelling that the caller uses is tried first, so that only a path in other letters costs a look into folders.
std::filesystem::path PathOnHost(const FilePath& path) {
  const std::u16string full = FullPath(path);
  const auto& drives = TheDesktop().drives;
  const auto drive = drives.find(static_cast<char>(full[0]));
  if (drive == drives.end()) throw Fault(FaultNumber::PathNotFound);

  const auto names = NamesOf(std::u16string_view(full).substr(2));
  std::filesystem::path asWritten = drive->second;
  for (const std::u16string& name : names) asWritten /= ToHost(name);
  if (Exists(asWritten)) return asWritten;
  std::filesystem::path host = drive->second;
  for (const std::u16string& name : names) {
    const std::filesystem::path next = host / ToHost(name);
    host = Exists(next) ? next : host / EntryOf(host, name);
  }
  return host;
}

// By way of char8_t: what plain characters mean to the host's library depends on its version.
std::string HostPath(const std::string& path) {
  const std::u8string host = PathOnHost(path).u8string();
  return {host.begin(), host.end()};
}

std::u16string LongPath(const FilePath& path) {
  const std::u16string drive = FullPath(path).substr(0, 3);
  const std::filesystem::path host = PathOnHost(path);
  const std::filesystem::path root = PathOnHost(drive);
  std::u16string result = drive.substr(0, 2);
  if (host != root)
    for (const std::filesystem::path& name : host.lexically_relative(root)) result += u"\\" + FromHost(name);
  if (host == root || path.characters.ends_with(u'\\')) result += u"\\";
  return result;
}

std::string ShortPath(const std::string& path) {
  const std::u16string full = LongPath(path);
  std::u16string result = full.substr(0, 2);
  for (const std::u16string& name : NamesOf(std::u16string_view(full).substr(2))) {
    const std::u16string shortName = ShortNameOf(name);
    result += u"\\" + (shortName.empty() ? name : shortName);
  }
  return FilePath(result).Text();
}

void SetDrive(char letter, const std::string& hostFolder) {
  TheDesktop().drives[runtime::ToUpper(std::string(1, letter))[0]] = std::u8string(hostFolder.begin(), hostFolder.end());
}

void SetApplicationPath(const std::string& path) {
  TheDesktop().applicationPath = FilePath(FullPath(path)).Text();
  TheDesktop().currentDirectory.clear();
  std::filesystem::create_directories(PathOnHost(path));
}

}  // namespace simulated

FilePath::FilePath(const std::string& text) : characters(runtime::ToUtf16(text)) {}

std::string FilePath::Text() const { return runtime::FromUtf16(characters); }

std::string ApplicationPath() { return simulated::TheDesktop().applicationPath; }

std::string CurrentDirectory() {
  const simulated::Desktop& desktop = simulated::TheDesktop();
  return desktop.currentDirectory.empty() ? desktop.applicationPath : desktop.currentDirectory;
}

}  // namespace platform
