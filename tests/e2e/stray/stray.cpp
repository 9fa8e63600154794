// A library that tells when it is loaded: it leaves a file beside itself, with its own name and ".loaded" behind it.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  char path[MAX_PATH] = "";
  GetModuleFileNameA(library, path, sizeof path);
  const std::string told = std::string(path) + ".loaded";
  CloseHandle(CreateFileA(told.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  return TRUE;
}
