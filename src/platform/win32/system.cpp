#include "platform/system.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

static_assert(sizeof(OSVERSIONINFO) == sizeof(::OSVERSIONINFOA));

namespace {

std::string ApplicationFile() {
  std::string file(MAX_PATH, '\0');
  file.resize(::GetModuleFileNameA(nullptr, file.data(), MAX_PATH));
  return file;
}

int PropertyOfScreen(int index) {
  const HDC screen = ::GetDC(nullptr);
  const int value = ::GetDeviceCaps(screen, index);
  ::ReleaseDC(nullptr, screen);
  return value;
}

}  // namespace

void Sleep(std::int32_t dwMilliseconds) {
  if (dwMilliseconds < 0) return;  // the system would take it for a wait of weeks
  ::Sleep(static_cast<DWORD>(dwMilliseconds));
}

runtime::DateTime Now() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

bool GetVersionExA(OSVERSIONINFO& lpVersionInformation) {
  ::OSVERSIONINFOA version = {};
  version.dwOSVersionInfoSize = sizeof version;
  if (lpVersionInformation.dwOSVersionInfoSize != sizeof version || !::GetVersionExA(&version)) return false;
  lpVersionInformation.dwMajorVersion = version.dwMajorVersion;
  lpVersionInformation.dwMinorVersion = version.dwMinorVersion;
  lpVersionInformation.dwBuildNumber = version.dwBuildNumber;
  lpVersionInformation.dwPlatformId = version.dwPlatformId;
  std::copy(std::begin(version.szCSDVersion), std::end(version.szCSDVersion), lpVersionInformation.szCSDVersion);
  return true;
}

std::string ApplicationPath() {
  const std::string file = ApplicationFile();
  const std::size_t end = file.rfind('\\');
  if (end == std::string::npos) return "";
  const bool root = end > 0 && file[end - 1] == ':';
  return file.substr(0, root ? end + 1 : end);
}

// The resource as it lies in memory. The library that reads versions of files would be looked for beside the program
// first.
FileVersion ApplicationVersion() {
  struct VersionResource {
    WORD length, valueLength, type;
    WCHAR key[16];  // "VS_VERSION_INFO"
    VS_FIXEDFILEINFO value;
  };
  static_assert(offsetof(VersionResource, value) == 40);  // on a double-word boundary
  const HRSRC resource = ::FindResourceA(nullptr, MAKEINTRESOURCEA(VS_VERSION_INFO), RT_VERSION);
  if (resource == nullptr || ::SizeofResource(nullptr, resource) < sizeof(VersionResource)) return {};
  const auto* version = static_cast<const VersionResource*>(::LockResource(::LoadResource(nullptr, resource)));
  const VS_FIXEDFILEINFO& value = version->value;
  return {HIWORD(value.dwFileVersionMS), LOWORD(value.dwFileVersionMS), HIWORD(value.dwFileVersionLS)};
}

std::string CurrentDirectory() {
  std::string folder(MAX_PATH, '\0');
  folder.resize(::GetCurrentDirectoryA(MAX_PATH, folder.data()));
  return folder;
}

std::string GetEnvironmentVariableA(const std::string& lpName) {
  std::string value(32767, '\0');  // the longest that there can be
  value.resize(::GetEnvironmentVariableA(lpName.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return value;
}

double TwipsPerPixelX() { return 1440.0 / PropertyOfScreen(LOGPIXELSX); }
double TwipsPerPixelY() { return 1440.0 / PropertyOfScreen(LOGPIXELSY); }
double ScreenWidth() { return ::GetSystemMetrics(SM_CXSCREEN) * TwipsPerPixelX(); }
double ScreenHeight() { return ::GetSystemMetrics(SM_CYSCREEN) * TwipsPerPixelY(); }

}  // namespace platform
