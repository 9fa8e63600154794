#include "automation/windows_version.h"

#include "platform/system.h"

namespace SharedMemory {

bool IsWindowsNT() {
  platform::OSVERSIONINFO version;
  return platform::GetVersionExA(version) && version.dwPlatformId == platform::VER_PLATFORM_WIN32_NT;
}

std::string GetWindowsVersion() {
  platform::OSVERSIONINFO version;
  if (!platform::GetVersionExA(version)) return "";
  return std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion);
}

}  // namespace SharedMemory
