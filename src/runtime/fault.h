// The run-time fault: what a statement raises when it cannot be carried out.
//
// A routine of this program is in one of two modes. In skip mode a faulty statement is passed over and the next
// one runs (Skip, below). Under the standard handler the fault ends the routine and becomes the run's error text
// (engine/standard_handler.h). A fault carries the number and the German description that users of such run-times know.
// Memory that runs out is a fault like any other, wherever one is caught.
#pragma once

#include <string>
#include <utility>

namespace runtime {

enum class FaultNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  OutOfRange = 9,
  TypeMismatch = 13,
  FunctionMissing = 453,
  BadFileNumber = 52,
  FileNotFound = 53,
  DeviceError = 57,
  FileExists = 58,
  DiskFull = 61,
  InputPastEnd = 62,
  BadFileName = 64,
  AccessDenied = 70,
  PathAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidPropertyValue = 380,
  FormShown = 400,
  ClipboardBusy = 521,
  KeyNotUnique = 35602,
};

// The usual wording of a fault; a number without an entry yields "Anwendungs- oder objektdefinierter Fehler".
std::string FaultDescription(FaultNumber number);

struct Fault {
  FaultNumber number;
  std::string description;

  explicit Fault(FaultNumber n) : number(n), description(FaultDescription(n)) {}
};

// The fault that is being handled, for a `catch (...)`: a Fault, or OutOfMemory for memory that the run-time library
// could not give. Any other exception goes on its way.
Fault CaughtFault();

// Skip mode: carries out one statement and passes over its fault. Reports nothing.
template <class Statement>
void Skip(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (...) {
    CaughtFault();
  }
}

}  // namespace runtime
