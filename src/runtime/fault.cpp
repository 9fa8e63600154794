#include "runtime/fault.h"

#include <new>
#include <stdexcept>

namespace runtime {

std::string FaultDescription(FaultNumber number) {
  switch (number) {
    case FaultNumber::InvalidCall:
      return "Ungültiger Prozeduraufruf oder ungültiges Argument";
    case FaultNumber::Overflow:
      return "Überlauf";
    case FaultNumber::OutOfMemory:
      return "Nicht genügend Speicher";
    case FaultNumber::OutOfRange:
      return "Index außerhalb des gültigen Bereichs";
    case FaultNumber::TypeMismatch:
      return "Typen unverträglich";
    case FaultNumber::FunctionMissing:
      return "Angegebene DLL-Funktion nicht gefunden";
    case FaultNumber::BadFileNumber:
      return "Dateiname oder -nummer falsch";
    case FaultNumber::FileNotFound:
      return "Datei nicht gefunden";
    case FaultNumber::DeviceError:
      return "Ein-/Ausgabefehler";
    case FaultNumber::FileExists:
      return "Datei existiert bereits";
    case FaultNumber::DiskFull:
      return "Datenträger voll";
    case FaultNumber::InputPastEnd:
      return "Eingabe hinter Dateiende";
    case FaultNumber::BadFileName:
      return "Falscher Dateiname";
    case FaultNumber::AccessDenied:
      return "Zugriff verweigert";
    case FaultNumber::PathAccess:
      return "Fehler beim Zugriff auf Pfad/Datei";
    case FaultNumber::PathNotFound:
      return "Pfad nicht gefunden";
    case FaultNumber::InvalidPropertyValue:
      return "Ungültiger Eigenschaftswert";
    case FaultNumber::KeyNotUnique:
      return "Schlüssel ist in der Auflistung nicht eindeutig";
    case FaultNumber::FormShown:
      return "Formular wird bereits angezeigt; kann nicht als modal angezeigt werden";
    case FaultNumber::ClipboardBusy:
      return "Zwischenablage kann nicht geöffnet werden";
    case FaultNumber::ObjectNotSet:
      return "Objektvariable oder With-Blockvariable nicht festgelegt";
  }
  return "Anwendungs- oder objektdefinierter Fehler";
}

Fault CaughtFault() {
  try {
    throw;
  } catch (const Fault& fault) {
    return fault;
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {  // longer than any memory
  }
  return Fault(FaultNumber::OutOfMemory);
}

}  // namespace runtime
