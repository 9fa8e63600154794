// Section files. A file is read and written whole at each call, so that a change takes effect at once.
#include "platform/settings.h"

#include <fstream>
#include <iterator>

#include "platform/files.h"
#include "platform/simulated/host_paths.h"
#include "platform/simulated/state.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

constexpr char kWindowsFolder[] = "C:\\WINDOWS\\";

// A bare name means a file of the Windows folder.
std::string PathOf(const std::string& file) {
  return file.find_first_of("\\/:") == std::string::npos ? kWindowsFolder + file : file;
}

// Blanks and tabs.
std::string_view Stripped(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// The name of the section that a line opens. It reaches to the last bracket.
std::optional<std::string_view> SectionOf(std::string_view line) {
  line = Stripped(line);
  const auto end = line.rfind(']');
  if (!line.starts_with('[') || end == std::string_view::npos) return std::nullopt;
  return Stripped(line.substr(1, end - 1));
}

// The name of the key that a line sets. A comment with an equal sign is a key too, by its name with the semicolon.
std::optional<std::string_view> KeyOf(std::string_view line) {
  const auto end = line.find('=');
  if (end == std::string_view::npos) return std::nullopt;
  return Stripped(line.substr(0, end));
}

std::string ValueOf(std::string_view line) {
  std::string_view value = Stripped(line.substr(line.find('=') + 1));
  const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
  return std::string(quoted ? value.substr(1, value.size() - 2) : value);
}

std::vector<std::string> LinesOf(const std::string& file) {
  std::vector<std::string> lines = runtime::Split(GetFile(PathOf(file)), '\n');
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  return lines;
}

// Where a section stands among the lines: behind its heading up to the next one. The first of that name counts.
struct Extent {
  std::size_t first = 0;
  std::size_t end = 0;
};

std::optional<Extent> FindSection(const std::vector<std::string>& lines, const std::string& section) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto name = SectionOf(lines[i]);
    if (!name || !runtime::EqualIgnoringCase(*name, Stripped(section))) continue;
    std::size_t end = i + 1;
    while (end < lines.size() && !SectionOf(lines[end])) ++end;
    return Extent{i + 1, end};
  }
  return std::nullopt;
}

std::optional<std::size_t> FindKey(const std::vector<std::string>& lines, Extent section, const std::string& key) {
  for (std::size_t i = section.first; i < section.end; ++i) {
    const auto name = KeyOf(lines[i]);
    if (name && runtime::EqualIgnoringCase(*name, Stripped(key))) return i;
  }
  return std::nullopt;
}

std::optional<std::string> FindValue(const std::string& file, const std::string& section, const std::string& key) {
  const auto lines = LinesOf(file);
  const auto found = FindSection(lines, section);
  const auto line = found ? FindKey(lines, *found, key) : std::nullopt;
  if (!line) return std::nullopt;
  return ValueOf(lines[*line]);
}

void SetValue(std::vector<std::string>& lines, const std::string& section, const std::string& key,
              const std::string& value) {
  auto found = FindSection(lines, section);
  if (!found) {
    lines.push_back("[" + section + "]");
    found = Extent{lines.size(), lines.size()};
  }
  if (const auto line = FindKey(lines, *found, key)) {
    lines[*line] = std::string(*KeyOf(lines[*line])) + "=" + value;
    return;
  }
  std::size_t end = found->end;
  while (end > found->first && Stripped(lines[end - 1]).empty()) --end;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(end), key + "=" + value);
}

void RemoveTrailingBlanks(std::string& text) { text.erase(text.find_last_not_of(' ') + 1); }

}  // namespace
}  // namespace simulated

using namespace simulated;

std::uint32_t GetPrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                       const std::string& lpDefault, std::string& lpReturnedString, std::uint32_t nSize,
                                       const std::string& lpFileName) {
  std::optional<std::string> value;
  if (!Fails("GetPrivateProfileStringA")) {
    // A file that can't be had is a file without keys.
    runtime::Skip([&] { value = FindValue(lpFileName, lpAppName, lpKeyName); });
  }
  lpReturnedString = value.value_or(lpDefault);
  if (!value) RemoveTrailingBlanks(lpReturnedString);
  lpReturnedString.resize(std::min<std::size_t>(lpReturnedString.size(), nSize == 0 ? 0 : nSize - 1));
  return static_cast<std::uint32_t>(lpReturnedString.size());
}

std::int32_t WritePrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                        const std::string& lpString, const std::string& lpFileName) {
  if (Fails("WritePrivateProfileStringA")) return 0;
  try {
    auto lines = LinesOf(lpFileName);
    SetValue(lines, lpAppName, lpKeyName, lpString);
    // Opening it says whether the system lets the file be written.
    CloseFile(OpenFile(PathOf(lpFileName), FileMode::Append));
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    PutFile(PathOf(lpFileName), text);
    return 1;
  } catch (const runtime::Fault&) {
    return 0;
  }
}

}  // namespace platform
