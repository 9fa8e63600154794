// Files that the exports of the stand-ins write.
#pragma once

#include <string>
#include <vector>

namespace standin {

bool FolderExists(const std::string& path);

// A new file with these lines, each ended by CR LF; journaled. False when it cannot be written.
bool WriteLines(const std::string& path, const std::vector<std::string>& lines);

}  // namespace standin
