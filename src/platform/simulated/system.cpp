#include "platform/system.h"

#include "platform/simulated/state.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {

void SetVersion(std::uint32_t platformId, std::uint32_t major, std::uint32_t minor) {
  Desktop& desktop = TheDesktop();
  desktop.platformId = platformId;
  desktop.majorVersion = major;
  desktop.minorVersion = minor;
}

void SetEnvironmentVariable(const std::string& name, const std::string& value) {
  TheDesktop().environment[runtime::ToUpper(name)] = value;
}

void SetTwipsPerPixel(double x, double y) {
  TheDesktop().twipsPerPixelX = x;
  TheDesktop().twipsPerPixelY = y;
}

}  // namespace simulated

using namespace simulated;

bool GetVersionExA(OSVERSIONINFO& lpVersionInformation) {
  if (lpVersionInformation.dwOSVersionInfoSize != sizeof(OSVERSIONINFO) || Fails("GetVersionExA")) return false;
  const Desktop& desktop = TheDesktop();
  lpVersionInformation = {};
  lpVersionInformation.dwMajorVersion = desktop.majorVersion;
  lpVersionInformation.dwMinorVersion = desktop.minorVersion;
  lpVersionInformation.dwBuildNumber = desktop.platformId == VER_PLATFORM_WIN32_NT ? 2600 : 2222;
  lpVersionInformation.dwPlatformId = desktop.platformId;
  return true;
}

std::string GetEnvironmentVariableA(const std::string& lpName) {
  const auto& environment = TheDesktop().environment;
  const auto found = environment.find(runtime::ToUpper(lpName));
  return found == environment.end() || Fails("GetEnvironmentVariableA") ? "" : found->second;
}

FileVersion ApplicationVersion() { return {VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION}; }

double TwipsPerPixelX() { return TheDesktop().twipsPerPixelX; }
double TwipsPerPixelY() { return TheDesktop().twipsPerPixelY; }
double ScreenWidth() { return (kScreen.right - kScreen.left) * TwipsPerPixelX(); }
double ScreenHeight() { return (kScreen.bottom - kScreen.top) * TwipsPerPixelY(); }

}  // namespace platform
