// From the program's paths to those of the host: drive letters, case and characters.
#pragma once

#include <filesystem>
#include <string>

#include "runtime/code_page.h"

namespace platform::simulated {

using runtime::FromUtf8;
using runtime::ToUtf8;

// Windows-1252 and names of the host's files: UTF-8, but for a Windows host, which takes the code page.
std::string ToHost(const std::string& text);
std::string FromHost(const std::string& text);

// A path of the host's file system in those characters.
std::string HostText(const std::filesystem::path& path);

// The path with its drive, without dots, doubled separators and what the system drops from the end of a name.
// Faults: PathNotFound for an empty path and one beyond 259 characters, BadFileName for a name that the system refuses.
std::string FullPath(const std::string& path);

// What stands before the last name of a full path, "C:\" for a file of the drive's root.
std::string FolderOf(const std::string& fullPath);

// The path of something that exists as the drive has it, short names made long.
std::string LongPath(const std::string& path);

}  // namespace platform::simulated
