#include "platform/process_memory.h"

#include <cstring>

#include "platform/win32/late_binding.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"
// A macro there.
#undef RtlMoveMemory

namespace platform {

std::int32_t OpenProcess(std::uint32_t dwDesiredAccess, bool bInheritHandle, std::uint32_t dwProcessId) {
  return NumberOf(::OpenProcess(dwDesiredAccess, bInheritHandle, dwProcessId));
}

std::int32_t VirtualAllocEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize,
                            std::uint32_t flAllocationType, std::uint32_t flProtect) {
  const auto function = Bind<void * WINAPI(HANDLE, void*, SIZE_T, DWORD, DWORD)>("kernel32.dll", "VirtualAllocEx");
  return NumberOf(
      function(HandleOf<HANDLE>(hProcess), HandleOf<void*>(lpAddress), dwSize, flAllocationType, flProtect));
}

bool VirtualFreeEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize, std::uint32_t dwFreeType) {
  const auto function = Bind<BOOL WINAPI(HANDLE, void*, SIZE_T, DWORD)>("kernel32.dll", "VirtualFreeEx");
  return function(HandleOf<HANDLE>(hProcess), HandleOf<void*>(lpAddress), dwSize, dwFreeType) != FALSE;
}

bool WriteProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, const void* lpBuffer, std::uint32_t nSize,
                        std::uint32_t& lpNumberOfBytesWritten) {
  SIZE_T count = 0;
  const BOOL done =
      ::WriteProcessMemory(HandleOf<HANDLE>(hProcess), HandleOf<void*>(lpBaseAddress), lpBuffer, nSize, &count);
  lpNumberOfBytesWritten = count;
  return done != FALSE;
}

bool ReadProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, void* lpBuffer, std::uint32_t nSize,
                       std::uint32_t& lpNumberOfBytesRead) {
  SIZE_T count = 0;
  const BOOL done =
      ::ReadProcessMemory(HandleOf<HANDLE>(hProcess), HandleOf<void*>(lpBaseAddress), lpBuffer, nSize, &count);
  lpNumberOfBytesRead = count;
  return done != FALSE;
}

std::int32_t CreateFileMappingA(std::int32_t hFile, std::uint32_t flProtect, std::uint32_t dwMaximumSizeHigh,
                                std::uint32_t dwMaximumSizeLow, const char* lpName) {
  return NumberOf(
      ::CreateFileMappingA(HandleOf<HANDLE>(hFile), nullptr, flProtect, dwMaximumSizeHigh, dwMaximumSizeLow, lpName));
}

std::int32_t MapViewOfFile(std::int32_t hFileMappingObject, std::uint32_t dwDesiredAccess,
                           std::uint32_t dwFileOffsetHigh, std::uint32_t dwFileOffsetLow,
                           std::uint32_t dwNumberOfBytesToMap) {
  return NumberOf(::MapViewOfFile(HandleOf<HANDLE>(hFileMappingObject), dwDesiredAccess, dwFileOffsetHigh,
                                  dwFileOffsetLow, dwNumberOfBytesToMap));
}

bool UnmapViewOfFile(const void* lpBaseAddress) { return ::UnmapViewOfFile(lpBaseAddress) != FALSE; }

bool CloseHandle(std::int32_t hObject) { return ::CloseHandle(HandleOf<HANDLE>(hObject)) != FALSE; }

void RtlMoveMemory(std::int32_t Destination, const void* Source, std::uint32_t Length) {
  if (Destination != 0) std::memmove(HandleOf<void*>(Destination), Source, Length);
}

void RtlMoveMemory(void* Destination, std::int32_t Source, std::uint32_t Length) {
  if (Source != 0) std::memmove(Destination, HandleOf<const void*>(Source), Length);
}

}  // namespace platform
