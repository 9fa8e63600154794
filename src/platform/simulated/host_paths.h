// From the program's paths to those of the host: drive letters, case and characters.
#pragma once

#include <filesystem>
#include <string>

#include "platform/files.h"
#include "runtime/code_page.h"

namespace platform::simulated {

using runtime::FromUtf8;
using runtime::ToUtf8;

// Of an existing or new file. Faults: those of FullPath; PathNotFound for a missing drive.
std::filesystem::path PathOnHost(const FilePath& path);

// A name as the host has it: UTF-8, on a Windows host the system's 16-bit characters.
std::u16string FromHost(const std::filesystem::path& name);

// The path with its drive, without dots, doubled separators and what the system drops from the end of a name.
// Faults: PathNotFound for an empty path and one beyond 259 characters, BadFileName for a name that the system refuses.
std::u16string FullPath(const FilePath& path);

// What stands before the last name of a full path. The separator at its end keeps a blank in front of it.
std::u16string FolderOf(const std::u16string& fullPath);

// Capitals for the letters of the code page; the simulated drives tell the case of all others apart.
std::u16string ToUpper(const std::u16string& name);

// The path of something that exists as the drive has it, short names made long.
std::u16string LongPath(const FilePath& path);

}  // namespace platform::simulated
