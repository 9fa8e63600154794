#include "platform/win32/substitutes.h"

#include "platform/win32/system_errors.h"
#include "runtime/fault.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

std::int64_t FileSizeBySearch(const std::string& path) {
  // A search would take these for a pattern.
  if (path.find_first_of("*?") != std::string::npos) throw runtime::Fault(runtime::FaultNumber::BadFileName);
  WIN32_FIND_DATAA found;
  const HANDLE search = ::FindFirstFileA(path.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) RaiseLastError();
  ::FindClose(search);
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
    throw runtime::Fault(runtime::FaultNumber::FileNotFound);
  return static_cast<std::int64_t>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
}

std::int32_t RootOf(std::int32_t hWnd) {
  HWND window = HandleOf<HWND>(hWnd);
  while ((::GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) window = ::GetParent(window);
  return NumberOf(window);
}

}  // namespace platform
