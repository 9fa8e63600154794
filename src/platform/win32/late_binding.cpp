#include "platform/win32/late_binding.h"

#include <string>

#include "runtime/fault.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

namespace {

HMODULE SystemLibrary(const char* library) {
  char folder[MAX_PATH];
  const UINT length = ::GetSystemDirectoryA(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  const std::string path = std::string(folder, length) + "\\" + library;
  const HMODULE loaded = ::GetModuleHandleA(path.c_str());
  return loaded != nullptr ? loaded : ::LoadLibraryA(path.c_str());
}

// What the system's own libraries load by name, for its dialogs for instance, does not come from the program's folder
// either. Windows 7 with its updates and later can do that. Older ones could only leave out the current folder, which
// the programs that a macro starts would inherit.
[[maybe_unused]] const bool narrowed = [] {
  const auto narrow = BindIfThere<BOOL WINAPI(DWORD)>("kernel32.dll", "SetDefaultDllDirectories");
  return narrow != nullptr && narrow(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS) != FALSE;
}();

}  // namespace

bool LoadSystemLibrary(const char* library) { return SystemLibrary(library) != nullptr; }

AnyFunction LookForFunction(const char* library, const char* name) {
  const HMODULE module = SystemLibrary(library);
  return module == nullptr ? nullptr : reinterpret_cast<AnyFunction>(::GetProcAddress(module, name));
}

AnyFunction FindFunction(const char* library, const char* name) {
  const AnyFunction function = LookForFunction(library, name);
  if (function == nullptr) throw runtime::Fault(runtime::FaultNumber::FunctionMissing);
  return function;
}

}  // namespace platform
