#include "platform/simulated/host_paths.h"

#include <algorithm>
#include <filesystem>

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

bool Exists(const std::string& hostPath) {
  std::error_code ignored;
  return std::filesystem::exists(hostPath, ignored);
}

// The name of 8 and 3 characters that a long name has besides, its number always 1; empty for a name without one.
std::string ShortNameOf(const std::string& name) {
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  const std::string extension = name.substr(dot, 4);
  const std::string stem = runtime::Remove(runtime::Remove(name.substr(0, dot), ' '), '.');
  if (stem.size() == dot && dot <= 8 && extension == name.substr(dot)) return "";
  return runtime::ToUpper(stem.substr(0, 6) + "~1" + extension);
}

// The name that a host folder has for an entry, by its long or short name, or the name itself when there is none.
std::string EntryOf(const std::string& hostFolder, const std::string& name) {
  std::error_code ignored;
  const bool isShort = runtime::Contains(name, "~");
  for (const auto& entry : std::filesystem::directory_iterator(hostFolder, ignored)) {
    const std::string found = FromHost(HostText(entry.path().filename()));
    if (runtime::EqualIgnoringCase(found, name) || (isShort && runtime::EqualIgnoringCase(ShortNameOf(found), name)))
      return HostText(entry.path().filename());
  }
  return ToHost(name);
}

bool IsAllowed(char c) {
  return static_cast<unsigned char>(c) >= 32 && std::string_view("<>:\"|?*").find(c) == std::string_view::npos;
}

// The drive and all behind it, as it was written.
std::string Absolute(const std::string& path) {
  const std::string current = CurrentDirectory();
  if (path.size() >= 2 && path[1] == ':') {
    const std::string drive = runtime::ToUpper(path.substr(0, 2));
    if (path.size() > 2 && path[2] == '\\') return drive + path.substr(2);
    const bool sameDrive = runtime::EqualIgnoringCase(current.substr(0, 2), drive);
    return (sameDrive ? current : drive) + "\\" + path.substr(2);
  }
  if (path.starts_with("\\\\")) throw Fault(FaultNumber::PathNotFound);  // there is no network
  return path.starts_with('\\') ? current.substr(0, 2) + path : current + "\\" + path;
}

}  // namespace

#ifdef _WIN32
// Such a host drops a blank at the end of a name, so a blank that does not break stands for it.
std::string ToHost(const std::string& text) {
  std::string host = text;
  for (std::size_t i = 0; i < host.size(); ++i) {
    if (host[i] == ' ' && (i + 1 == host.size() || host[i + 1] == '\\')) host[i] = '\xA0';
  }
  return host;
}
std::string FromHost(const std::string& text) {
  return text.ends_with('\xA0') ? text.substr(0, text.size() - 1) + " " : text;
}
std::string HostText(const std::filesystem::path& path) { return FromUtf8(path.string()); }
#else
std::string ToHost(const std::string& text) { return ToUtf8(text); }
std::string FromHost(const std::string& text) { return FromUtf8(text); }
std::string HostText(const std::filesystem::path& path) { return path.string(); }
#endif

std::string FullPath(const std::string& path) {
  if (path.empty()) throw Fault(FaultNumber::PathNotFound);
  const std::string absolute = Absolute(runtime::Replace(path, "/", "\\"));
  std::vector<std::string> names;
  for (std::string name : runtime::Split(std::string_view(absolute).substr(2), '\\')) {
    if (name == ".." && !names.empty()) names.pop_back();
    if (!std::ranges::all_of(name, IsAllowed)) throw Fault(FaultNumber::BadFileName);
    if (!name.empty() && name != "." && name != "..") names.push_back(std::move(name));
  }
  // Only the end of the whole path is rid of dots and blanks.
  if (!names.empty() && !absolute.ends_with('\\')) {
    names.back().erase(names.back().find_last_not_of(". ") + 1);
    if (names.back().empty()) names.pop_back();
  }
  std::string full = absolute.substr(0, 2);
  for (const std::string& name : names) full += "\\" + name;
  if (names.empty()) full += "\\";
  if (full.size() > kLongestPath) throw Fault(FaultNumber::PathNotFound);
  return full;
}

std::string FolderOf(const std::string& fullPath) {
  const std::size_t end = fullPath.rfind('\\');
  return fullPath.substr(0, end == 2 ? 3 : end);
}

// The spelling that the caller uses is tried first, so that only a path in other letters costs a look into folders.
std::string HostPath(const std::string& path) {
  const std::string full = FullPath(path);
  const auto& drives = TheDesktop().drives;
  const auto drive = drives.find(full[0]);
  if (drive == drives.end()) throw Fault(FaultNumber::PathNotFound);

  const std::string rest = full.substr(3);
  std::string host = drive->second;
  if (rest.empty()) return host;
  const std::string asWritten = host + "/" + runtime::Replace(ToHost(rest), "\\", "/");
  if (Exists(asWritten)) return asWritten;
  for (const std::string& name : runtime::Split(rest, '\\')) {
    const std::string next = host + "/" + ToHost(name);
    host = Exists(next) ? next : host + "/" + EntryOf(host, name);
  }
  return host;
}

std::string LongPath(const std::string& path) {
  const std::string full = FullPath(path);
  const std::string host = HostPath(path).substr(HostPath(full.substr(0, 3)).size());
  const std::string names = runtime::Replace(FromUtf8(host), "/", "\\");
  return full.substr(0, 2) + (names.empty() || path.ends_with('\\') ? names + "\\" : names);
}

std::string ShortPath(const std::string& path) {
  const std::string full = LongPath(path);
  std::string result = full.substr(0, 2);
  for (const std::string& name : runtime::Split(full.substr(3), '\\'))
    result += "\\" + (ShortNameOf(name).empty() ? name : ShortNameOf(name));
  return result;
}

void SetDrive(char letter, const std::string& hostFolder) {
  TheDesktop().drives[runtime::ToUpper(std::string(1, letter))[0]] = hostFolder;
}

void SetApplicationPath(const std::string& path) {
  TheDesktop().applicationPath = FullPath(path);
  TheDesktop().currentDirectory.clear();
  std::filesystem::create_directories(HostPath(path));
}

}  // namespace simulated

std::string ApplicationPath() { return simulated::TheDesktop().applicationPath; }

std::string CurrentDirectory() {
  const simulated::Desktop& desktop = simulated::TheDesktop();
  return desktop.currentDirectory.empty() ? desktop.applicationPath : desktop.currentDirectory;
}

}  // namespace platform
