// One value of the registry, read or written. Holds no handle between calls.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace modRegistry {

struct RegistryState {
  bool RegError = false;       // a read has found no key
  std::int32_t RegResult = 0;  // code of the last registry call
};

extern RegistryState state;

// REG_SZ as text, cut at its first NUL; REG_DWORD as a number. Any other type, and a key or value that is missing,
// yields the empty text.
std::variant<std::string, std::int32_t> ReadRegistryValue(std::int32_t rootKey, const std::string& keyPath,
                                                          const std::string& valueName);

// Makes the key where it is missing and writes the text, trimmed of blanks, as REG_SZ with its terminating NUL. No
// failure is reported.
void WriteRegistryValue(std::int32_t rootKey, const std::string& keyPath, const std::string& valueName,
                        const std::string& value);

}  // namespace modRegistry
