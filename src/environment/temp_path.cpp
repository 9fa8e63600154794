#include "environment/temp_path.h"

#include <cstdint>

#include "frame/log.h"
#include "platform/files.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

std::string GetTemp() {
  std::string path;
  try {
    path = platform::GetEnvironmentVariableA("temp");
    if (path.empty()) path = platform::GetEnvironmentVariableA("tmp");
    if (!runtime::Contains(path, "~")) return path;
    std::string longPath;
    const std::uint32_t length = platform::GetLongPathNameA(path, longPath, 256);
    // A path that the buffer did not hold is used with its short names.
    if (length > 0 && !longPath.empty()) path = longPath.substr(0, length);
  } catch (...) {
    LogWrite("GetTemp: " + runtime::CaughtFault().description);
  }
  return path;
}

}  // namespace basMain
