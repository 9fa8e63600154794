// Files and folders of the host, for the file operations of this folder.
#pragma once

#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "runtime/fault.h"

namespace platform::simulated {

enum class Kind { None, File, Folder };

Kind KindOf(const std::filesystem::path& hostPath);

// The same of a path of the program; a path that the system refuses names nothing.
Kind KindOfPath(const FilePath& path);

// A separator at the end says that a folder is meant.
bool MeansFolder(const FilePath& path);

// The builds run as a user who may write everything, so the permission is looked at and not tried.
bool IsReadOnly(const std::filesystem::path& hostPath);

// The fault for what the host reports, and for what it has just left in errno.
runtime::FaultNumber FaultOfError(const std::error_code& error);
runtime::FaultNumber FaultOfLastError();

}  // namespace platform::simulated
