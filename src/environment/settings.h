// Reading and writing section files. Nothing is cached: a change takes effect at its next use.
#pragma once

#include <cstdint>
#include <string>

#include "environment/paths.h"

namespace basAPI {

// The value of a key, at most 4,095 characters, or the default where file, section or key is missing.
std::string ReadIniString(const std::string& file, const std::string& section, const std::string& key,
                          const std::string& defaultValue);

// Writes one key; yields the system's result, 0 when it refuses.
std::int32_t WriteIniString(const std::string& file, const std::string& section, const std::string& key,
                            const std::string& value);

// The verb "READINI": reads the program's settings with an empty default. Logs "ReadINI=" and the value.
std::string ReadINI(const std::string& section, const std::string& key);

}  // namespace basAPI

namespace basMain {

// "IF GDPDU": the setting GDPDU, "0" by default, equals the value.
bool IsGdpduMode(const std::string& value);

}  // namespace basMain
