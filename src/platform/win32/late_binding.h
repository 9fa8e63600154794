// Functions that one of the Windows families lacks are looked up when they are called, so that the program starts
// without them.
#pragma once

namespace platform {

using AnyFunction = void (*)();

// Loads the library where it is not loaded yet; it stays. Faults: FunctionMissing.
AnyFunction FindFunction(const char* library, const char* name);

template <class Function>
Function* Bind(const char* library, const char* name) {
  return reinterpret_cast<Function*>(FindFunction(library, name));
}

}  // namespace platform
