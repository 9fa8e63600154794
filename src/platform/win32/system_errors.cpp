#include "platform/win32/system_errors.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

using runtime::FaultNumber;

namespace {

constexpr struct {
  std::uint32_t code;
  FaultNumber fault;
} kFaults[] = {
    {ERROR_FILE_NOT_FOUND, FaultNumber::FileNotFound},    {ERROR_PATH_NOT_FOUND, FaultNumber::PathNotFound},
    {ERROR_INVALID_DRIVE, FaultNumber::PathNotFound},     {ERROR_BAD_NETPATH, FaultNumber::PathNotFound},
    {ERROR_BAD_NET_NAME, FaultNumber::PathNotFound},      {ERROR_FILENAME_EXCED_RANGE, FaultNumber::PathNotFound},
    {ERROR_ACCESS_DENIED, FaultNumber::AccessDenied},     {ERROR_NETWORK_ACCESS_DENIED, FaultNumber::AccessDenied},
    {ERROR_SHARING_VIOLATION, FaultNumber::AccessDenied}, {ERROR_LOCK_VIOLATION, FaultNumber::AccessDenied},
    {ERROR_WRITE_PROTECT, FaultNumber::AccessDenied},     {ERROR_FILE_EXISTS, FaultNumber::FileExists},
    {ERROR_ALREADY_EXISTS, FaultNumber::FileExists},      {ERROR_DISK_FULL, FaultNumber::DiskFull},
    {ERROR_HANDLE_DISK_FULL, FaultNumber::DiskFull},      {ERROR_INVALID_NAME, FaultNumber::BadFileName},
    {ERROR_BAD_PATHNAME, FaultNumber::BadFileName},       {ERROR_DIRECTORY, FaultNumber::BadFileName},
    {ERROR_DIR_NOT_EMPTY, FaultNumber::PathAccess},       {ERROR_INVALID_HANDLE, FaultNumber::BadFileNumber},
};

}  // namespace

FaultNumber FaultOfCode(std::uint32_t code) {
  for (const auto& entry : kFaults) {
    if (entry.code == code) return entry.fault;
  }
  return FaultNumber::DeviceError;
}

void RaiseLastError() { throw runtime::Fault(FaultOfCode(::GetLastError())); }

}  // namespace platform
