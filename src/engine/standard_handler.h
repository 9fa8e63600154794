// The standard handler: a fault in a routine becomes the run's error text, and the routine yields false.
//
// A few routines tell of their faults without ending: each of their statements is handed to the
// NoteFault of the routine, and behind a fault the next one runs.
#pragma once

#include <string>
#include <utility>

#include "engine/state.h"
#include "runtime/fault.h"

namespace basMain {

// "Fehler in Funktion %1:" with the routine's name, followed directly by the fault's description.
std::string StandardErrorText(const std::string& routine, const runtime::Fault& fault);

// A failure that a routine tells of by itself: sets LastError and yields false.
bool Fail(std::string text);

template <class Body>
bool Standard(const std::string& routine, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return Fail(StandardErrorText(routine, runtime::CaughtFault()));
  }
}

struct NoteFault {
  const char* routine;

  template <class Statement>
  void operator()(Statement&& statement) const {
    try {
      std::forward<Statement>(statement)();
    } catch (...) {
      run.LastError = StandardErrorText(routine, runtime::CaughtFault());
    }
  }
};

}  // namespace basMain
