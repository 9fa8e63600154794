#include "environment/modRegistry.h"

#include <cstring>

#include "environment/paths.h"
#include "platform/registry.h"
#include "runtime/text.h"

namespace modRegistry {
namespace {

std::string ReadText(std::int32_t key, const std::string& valueName, std::uint32_t length) {
  std::string buffer(length, ' ');
  std::uint32_t type = 0;
  state.RegResult = platform::RegQueryValueExA(key, valueName, type, buffer.data(), length);
  return state.RegResult == 0 ? basAPI::TrimAtNul(buffer) : "";
}

std::variant<std::string, std::int32_t> ReadNumber(std::int32_t key, const std::string& valueName) {
  char bytes[4] = {};
  std::uint32_t length = sizeof bytes;
  std::uint32_t type = 0;
  state.RegResult = platform::RegQueryValueExA(key, valueName, type, bytes, length);
  if (state.RegResult != 0) return "";
  std::int32_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

std::variant<std::string, std::int32_t> ReadValue(std::int32_t key, const std::string& valueName) {
  std::uint32_t type = 0;
  std::uint32_t length = 0;
  state.RegResult = platform::RegQueryValueExA(key, valueName, type, nullptr, length);
  if (state.RegResult != 0) return "";
  if (type == platform::REG_SZ) return ReadText(key, valueName, length);
  if (type == platform::REG_DWORD) return ReadNumber(key, valueName);
  return "";
}

}  // namespace

RegistryState state;

std::variant<std::string, std::int32_t> ReadRegistryValue(std::int32_t rootKey, const std::string& keyPath,
                                                          const std::string& valueName) {
  state.RegError = false;
  std::int32_t key = 0;
  state.RegResult = platform::RegOpenKeyA(rootKey, keyPath, key);
  if (key == 0) {
    state.RegError = true;
    state.RegResult = platform::RegCloseKey(key);
    return "";
  }
  const auto value = ReadValue(key, valueName);
  state.RegResult = platform::RegCloseKey(key);
  return value;
}

void WriteRegistryValue(std::int32_t rootKey, const std::string& keyPath, const std::string& valueName,
                        const std::string& value) {
  std::int32_t key = 0;
  state.RegResult = platform::RegCreateKeyA(rootKey, keyPath, key);
  state.RegResult = platform::RegSetValueExA(key, valueName, platform::REG_SZ, runtime::Trim(value) + '\0');
  state.RegResult = platform::RegCloseKey(key);
}

}  // namespace modRegistry
