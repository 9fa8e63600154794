// Where the accounting suite keeps its data, and which client and year it shows. Computed afresh at each use.
#pragma once

#include <string>

namespace basMain {

// The suite's data directory without a trailing backslash: from the suite's setup file, else the installation directory
// of the registry, else asked of the user and stored in the registry. Logs the step that found it, and makes the
// directory. A fault is logged and yields the empty text.
std::string GetTeRuDestination();

// The directory "Extern" below it, made on the way.
std::string GetTeRuExternPath();

// Everything in front of the last backslash, forward slash or colon; the colon of a bare drive stays.
std::string GetFolderOfFile(const std::string& path);

// "\client\year" out of the caption of the target's main window, blanks kept; empty when the caption has fewer than two
// forward slashes.
std::string GetTitlePath();

}  // namespace basMain
