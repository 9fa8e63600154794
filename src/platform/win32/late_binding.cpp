#include "platform/win32/late_binding.h"

#include "runtime/fault.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace platform {

AnyFunction FindFunction(const char* library, const char* name) {
  HMODULE module = ::GetModuleHandleA(library);
  if (module == nullptr) module = ::LoadLibraryA(library);
  const FARPROC function = module == nullptr ? nullptr : ::GetProcAddress(module, name);
  if (function == nullptr) throw runtime::Fault(runtime::FaultNumber::FunctionMissing);
  return reinterpret_cast<AnyFunction>(function);
}

}  // namespace platform
