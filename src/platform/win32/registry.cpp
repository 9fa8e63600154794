#include "platform/registry.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

std::int32_t RegOpenKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult) {
  HKEY key = nullptr;
  const LONG code = ::RegOpenKeyA(HandleOf<HKEY>(hKey), lpSubKey.c_str(), &key);
  phkResult = NumberOf(key);
  return code;
}

std::int32_t RegCreateKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult) {
  HKEY key = nullptr;
  const LONG code = ::RegCreateKeyA(HandleOf<HKEY>(hKey), lpSubKey.c_str(), &key);
  phkResult = NumberOf(key);
  return code;
}

std::int32_t RegQueryValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t& lpType, char* lpData,
                              std::uint32_t& lpcbData) {
  DWORD type = 0;
  DWORD size = lpcbData;
  const LONG code = ::RegQueryValueExA(HandleOf<HKEY>(hKey), lpValueName.c_str(), nullptr, &type,
                                       reinterpret_cast<BYTE*>(lpData), &size);
  lpType = type;
  lpcbData = size;
  return code;
}

std::int32_t RegSetValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t dwType,
                            const std::string& lpData) {
  return ::RegSetValueExA(HandleOf<HKEY>(hKey), lpValueName.c_str(), 0, dwType,
                          reinterpret_cast<const BYTE*>(lpData.data()), static_cast<DWORD>(lpData.size()));
}

std::int32_t RegCloseKey(std::int32_t hKey) { return ::RegCloseKey(HandleOf<HKEY>(hKey)); }

}  // namespace platform
