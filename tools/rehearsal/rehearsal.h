// The system on the simulated desktop: what the tests and makrun do to it from outside.
#pragma once

#include <string>
#include <vector>

namespace rehearsal {

// Folder of the program on the simulated desktop.
inline const std::string kProgram = "C:\\QUMA";

// A fresh desktop, fresh forms and fresh module state, with no file open, at its beginning and behind its end.
class FreshSystem {
 public:
  FreshSystem();
  ~FreshSystem();
  FreshSystem(const FreshSystem&) = delete;
  FreshSystem& operator=(const FreshSystem&) = delete;
};

// Loads the main form, with the suite's data directory C:\TeRu in the registry, unless another one stands there, so
// that no question comes up.
void StartProgram();

// The lines of a file of the simulated drives without their line ends CR LF; a last line without one counts as well.
std::vector<std::string> LinesOf(const std::string& path);

}  // namespace rehearsal
