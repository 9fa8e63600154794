// Memory that the process of another window can reach.
//
// An address in another process or in a view is a plain 32-bit number, so that nobody can dereference it by accident;
// 0 is none. A handle or an address that is not valid yields 0 or false.
#pragma once

#include <cstdint>

namespace platform {

constexpr std::uint32_t PROCESS_VM_OPERATION = 8;
constexpr std::uint32_t PROCESS_VM_READ = 16;
constexpr std::uint32_t PROCESS_VM_WRITE = 32;

constexpr std::uint32_t MEM_COMMIT = 4096;
constexpr std::uint32_t MEM_RESERVE = 8192;
constexpr std::uint32_t MEM_RELEASE = 32768;
constexpr std::uint32_t PAGE_READWRITE = 4;
constexpr std::uint32_t FILE_MAP_ALL_ACCESS = 0xF001F;

std::int32_t OpenProcess(std::uint32_t dwDesiredAccess, bool bInheritHandle, std::uint32_t dwProcessId);

// Cleared memory in another process; at least one whole page, whatever the size in bytes. lpAddress 0: anywhere.
// Faults: FunctionMissing on the 9x family.
std::int32_t VirtualAllocEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize,
                            std::uint32_t flAllocationType, std::uint32_t flProtect);

// MEM_RELEASE is refused together with any size but 0. Faults: FunctionMissing on the 9x family.
bool VirtualFreeEx(std::int32_t hProcess, std::int32_t lpAddress, std::uint32_t dwSize, std::uint32_t dwFreeType);

// Copy nSize bytes, all or none; the count goes to the last argument.
bool WriteProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, const void* lpBuffer, std::uint32_t nSize,
                        std::uint32_t& lpNumberOfBytesWritten);
bool ReadProcessMemory(std::int32_t hProcess, std::int32_t lpBaseAddress, void* lpBuffer, std::uint32_t nSize,
                       std::uint32_t& lpNumberOfBytesRead);

// hFile -1: memory of the paging file, cleared; lpName null: without a name.
std::int32_t CreateFileMappingA(std::int32_t hFile, std::uint32_t flProtect, std::uint32_t dwMaximumSizeHigh,
                                std::uint32_t dwMaximumSizeLow, const char* lpName);

// The view's address; size 0: to the end. On the 9x family every process sees the view at this address, on the NT
// family this process alone.
std::int32_t MapViewOfFile(std::int32_t hFileMappingObject, std::uint32_t dwDesiredAccess,
                           std::uint32_t dwFileOffsetHigh, std::uint32_t dwFileOffsetLow,
                           std::uint32_t dwNumberOfBytesToMap);

// Takes a pointer, as the caller hands it the address of a variable of its own, in which no view lies.
bool UnmapViewOfFile(const void* lpBaseAddress);

bool CloseHandle(std::int32_t hObject);

// Plain copy into a view and out of it. Nothing is copied to or from address 0.
void RtlMoveMemory(std::int32_t Destination, const void* Source, std::uint32_t Length);
void RtlMoveMemory(void* Destination, std::int32_t Source, std::uint32_t Length);

}  // namespace platform
