// The registry. Results are the system's codes, 0 is success.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

constexpr std::int32_t HKEY_LOCAL_MACHINE = static_cast<std::int32_t>(0x80000002u);
constexpr std::uint32_t REG_SZ = 1;
constexpr std::uint32_t REG_EXPAND_SZ = 2;
constexpr std::uint32_t REG_DWORD = 4;

// Opens an existing key; phkResult stays 0 when there is none.
std::int32_t RegOpenKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult);

// Opens a key and makes it where it is missing.
std::int32_t RegCreateKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult);

// Without a buffer (lpData null): type and byte length. With one: its first lpcbData bytes are filled, and lpcbData
// becomes the count of bytes that the value has; a buffer that is too small is an error.
std::int32_t RegQueryValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t& lpType, char* lpData,
                              std::uint32_t& lpcbData);

std::int32_t RegSetValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t dwType,
                            const std::string& lpData);

std::int32_t RegCloseKey(std::int32_t hKey);

}  // namespace platform
