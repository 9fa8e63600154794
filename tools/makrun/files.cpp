#include "files.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/simulated/desktop.h"
#include "platform/simulated/host_paths.h"
#include "rehearse.h"
#include "runtime/fault.h"

namespace makrun {
namespace {

// Whether the bytes are well-formed UTF-8; a text in the code page with a single umlaut is not.
bool IsUtf8(const std::string& text) {
  std::size_t following = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (following > 0) {
      if ((byte & 0xC0) != 0x80) return false;
      --following;
    } else if (byte >= 0x80) {
      following = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC2 ? 1 : 0;
      if (following == 0 || byte > 0xF4) return false;
    }
  }
  return following == 0;
}

template <class Operation>
void OnDrive(const std::string& path, Operation&& operation) {
  const std::string told = platform::simulated::ToUtf8(path);
  try {
    operation();
  } catch (const runtime::Fault& fault) {
    throw FileError{told + " cannot be made: " + platform::simulated::ToUtf8(fault.description)};
  } catch (const std::filesystem::filesystem_error& error) {
    throw FileError{told + " cannot be made: " + error.code().message()};
  }
}

}  // namespace

std::string ReadHostFile(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) throw FileError{path + " cannot be read: it is a folder"};
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file) throw FileError{path + " cannot be read: " + std::strerror(errno)};
  return text;
}

std::string ProgramText(const std::string& text) {
  const std::string mark = "\xEF\xBB\xBF";
  if (!IsUtf8(text)) return text;
  return platform::simulated::FromUtf8(text.starts_with(mark) ? text.substr(mark.size()) : text);
}

void PutSimulatedFile(const std::string& path, const std::string& bytes) {
  OnDrive(path, [&] { platform::simulated::PutFile(path, bytes); });
}

void MakeSimulatedFolder(const std::string& path) {
  OnDrive(path, [&] { std::filesystem::create_directories(platform::simulated::HostPath(path)); });
}

}  // namespace makrun
