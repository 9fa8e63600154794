#include "platform/settings.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

std::uint32_t GetPrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                       const std::string& lpDefault, std::string& lpReturnedString, std::uint32_t nSize,
                                       const std::string& lpFileName) {
  lpReturnedString.assign(nSize, '\0');
  const DWORD length = ::GetPrivateProfileStringA(lpAppName.c_str(), lpKeyName.c_str(), lpDefault.c_str(),
                                                  lpReturnedString.data(), nSize, lpFileName.c_str());
  lpReturnedString.resize(length);
  return length;
}

std::int32_t WritePrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                        const std::string& lpString, const std::string& lpFileName) {
  return ::WritePrivateProfileStringA(lpAppName.c_str(), lpKeyName.c_str(), lpString.c_str(), lpFileName.c_str());
}

}  // namespace platform
