// Files of the host, and texts on their way between host and program.
#pragma once

#include <string>

namespace makrun {

// The bytes of a file. Faults: FileError.
std::string ReadHostFile(const std::string& path);

// A text of the command line, of a desktop file or of a clipboard file in the program's code page. What is not valid
// UTF-8 is taken to be in the code page already.
std::string ProgramText(const std::string& text);

// Makes a file, or a folder, of the simulated drives. Faults: FileError for a path that no drive has.
void PutSimulatedFile(const std::string& path, const std::string& bytes);
void MakeSimulatedFolder(const std::string& path);

}  // namespace makrun
