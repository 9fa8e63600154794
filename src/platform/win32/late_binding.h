// Functions that one of the Windows families lacks are looked up when they are called, so that the program starts
// without them.
//
// Libraries come from the system's folder alone: a file that lies beside the program under such a name is never loaded.
#pragma once

namespace platform {

using AnyFunction = void (*)();

// Loads a library of the system by the name of its file where it is not loaded yet; it stays. False where the system
// has none.
bool LoadSystemLibrary(const char* library);

// Null where the system lacks the function or its library.
AnyFunction LookForFunction(const char* library, const char* name);

// The same as a fault. Faults: FunctionMissing.
AnyFunction FindFunction(const char* library, const char* name);

template <class Function>
Function* BindIfThere(const char* library, const char* name) {
  return reinterpret_cast<Function*>(LookForFunction(library, name));
}

template <class Function>
Function* Bind(const char* library, const char* name) {
  return reinterpret_cast<Function*>(FindFunction(library, name));
}

}  // namespace platform
