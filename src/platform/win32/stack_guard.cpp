// The mark that the compiler puts behind the arrays of a function, and what happens when something has written over it.
// The compiler's own library draws the mark with functions that the first Windows 95 lacks, so that the program would
// not even start there. These take that library's place.
#include <cstdint>

#include "platform/win32/late_binding.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

// There is no way on: the return address cannot be trusted either.
[[noreturn]] void __stack_chk_fail() { __builtin_trap(); }

}  // extern "C"

namespace {

// A mark of this function's own would change under it.
[[gnu::constructor, gnu::no_stack_protector]] void DrawMark() {
  // Windows XP and later; "SystemFunction036" is the name under which the library exports RtlGenRandom.
  const auto random = platform::BindIfThere<BOOLEAN WINAPI(void*, ULONG)>("advapi32.dll", "SystemFunction036");
  if (random != nullptr && random(&__stack_chk_guard, sizeof __stack_chk_guard)) return;
  LARGE_INTEGER counter = {};
  ::QueryPerformanceCounter(&counter);
  __stack_chk_guard =
      static_cast<std::uintptr_t>(counter.QuadPart) * 2654435761u ^ ::GetTickCount() ^ ::GetCurrentProcessId() << 16;
}

}  // namespace
