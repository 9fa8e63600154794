// Files and folders that a rehearsal puts on the simulated drives.
#pragma once

#include <string>

namespace makrun {

// Makes a file, or a folder, of the simulated drives. Faults: FileError for a path that no drive has.
void PutSimulatedFile(const std::string& path, const std::string& bytes);
void MakeSimulatedFolder(const std::string& path);

}  // namespace makrun
