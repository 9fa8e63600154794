// Clock, version, environment, screen: facts about the system that the program runs on.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/dates.h"

namespace platform {

// Holds the thread for so many milliseconds; a negative number does not wait. No message is handled meanwhile.
void Sleep(std::int32_t dwMilliseconds);

// Local date and time, whole seconds.
runtime::DateTime Now();

constexpr std::uint32_t VER_PLATFORM_WIN32_WINDOWS = 1;
constexpr std::uint32_t VER_PLATFORM_WIN32_NT = 2;

struct OSVERSIONINFO {
  std::uint32_t dwOSVersionInfoSize = 148;  // bytes; another size is refused
  std::uint32_t dwMajorVersion = 0;
  std::uint32_t dwMinorVersion = 0;
  std::uint32_t dwBuildNumber = 0;
  std::uint32_t dwPlatformId = 0;
  char szCSDVersion[128] = {};
};
static_assert(sizeof(OSVERSIONINFO) == 148);

bool GetVersionExA(OSVERSIONINFO& lpVersionInformation);

// Folder of the program, without a trailing backslash unless it is a drive's root.
std::string ApplicationPath();

// Version of the program's own file.
struct FileVersion {
  std::int32_t major = 0, minor = 0, revision = 0;
};
FileVersion ApplicationVersion();

std::string CurrentDirectory();

// A variable of the environment, its name without case; empty when there is none.
std::string GetEnvironmentVariableA(const std::string& lpName);

// Twips (1440 to the logical inch) for each pixel of the screen's width and height.
double TwipsPerPixelX();
double TwipsPerPixelY();
// Size of the screen in twips.
double ScreenWidth();
double ScreenHeight();

}  // namespace platform
