#include "resources/texts.h"

#include "runtime/text.h"

namespace resources {

const char* const kProgramTitle = "TARVEN Datenexport";

std::string Text(TextId id) {
  switch (id) {
    case TextId::Notice:
      return "Dieses Programm bedient den Datenexport der Anwendungen anstelle des Benutzers. Für die Vollständigkeit "
             "und die Richtigkeit der exportierten Daten bleibt der Benutzer verantwortlich.";
    case TextId::Client:
      return "Mandant: ";
    case TextId::BusinessYear:
      return "Wirtschaftsjahr: ";
    case TextId::ConfirmClient:
      return "Möchten Sie den Mandanten %1 aus dem Wirtschaftsjahr %2 übernehmen?";
    case TextId::ClientUnknown:
      return "Der Mandant und das Wirtschaftsjahr konnten nicht ermittelt werden.";
    case TextId::MacroMissing:
      return "Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet.";
    case TextId::HotKeyTaken:
      return "Fehler beim registrieren der Aktionstaste.";
    case TextId::RunStarted:
      return "Tarven Datenexport wurde gestartet...";
    case TextId::RunDate:
      return "Datum:";
    case TextId::RunFailed:
      return "Beim exportieren ist ein Fehler aufgetreten.";
    case TextId::RunCompleted:
      return "Die Verarbeitung ist erfolgreich abgeschlossen.";
    case TextId::RunStopped:
      return "Die Verarbeitung wurde angehalten.";
    case TextId::PathCreated:
      return "Ausgabeverzeichnis erstellt: ";
    case TextId::FunctionFault:
      return "Fehler in Funktion %1:";
    case TextId::RunInProgress:
      return "Die Verarbeitung wird ausgeführt. Dieser Vorgang kann einige Minuten in Anspruch nehmen...";
    case TextId::UnknownCommand:
      return "Unknown Command: ";
    case TextId::MenuChosen:
      return "Menu wurde ausgewählt (%1)";
    case TextId::MenuNotFound:
      return "Das Menu konnte nicht gefunden werden.";
    case TextId::ListSelected:
      return "Die Liste wurde ausgewählt (%1)";
    case TextId::ListNotSelected:
      return "Die Liste konnte nicht ausgewählt werden.";
    case TextId::ListEmpty:
      return "In der Liste sind keine Einträge vorhanden.";
    case TextId::ComboSelected:
      return "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden.";
    case TextId::ComboNotSelected:
      return "Der Eintrag aus der Combobox konnte nicht ausgewählt werden.";
    case TextId::TextBoxFilled:
      return "Das Textfeld wurde ausgefüllt (%1)";
    case TextId::TextBoxNotFilled:
      return "Das Textfeld konnte nicht ausgefüllt werden. (%1)";
    case TextId::ButtonPressed:
      return "Schaltfläche wurde gedrückt. (%1)";
    case TextId::ButtonNotPressed:
      return "Die Schaltfläche konnte nicht ausgewählt werden.";
    case TextId::OptionSet:
      return "Das Optionsfeld konnte erfolgreich ausgewählt werden. (%1)";
    case TextId::OptionNotSet:
      return "Das Optionsfeld konnte nicht ausgewählt werden. (%1)";
    case TextId::OptionNotFound:
      return "Das Optionsfeld konnte nicht gefunden werden.";
    case TextId::MousePositioned:
      return "Die Maus wurde positioniert. (%1)";
    case TextId::ClipboardCleared:
      return "Die Zwischenablage wurde gelöscht.";
    case TextId::ControlFocused:
      return "Der Fokus wurde auf das Feld gesetzt. (%1)";
    case TextId::WindowFocused:
      return "Der Fokus wurde gesetzt.";
    case TextId::ClipboardFileMissing:
      return "Fehler beim Speichern der Zwischenablage: kein Dateiname angegeben";
    case TextId::ClipboardSaved:
      return "Die Zwischenablage wurde erfolgreich gespeichert.";
    case TextId::ClipboardFilled:
      return "Die Zwischenablage wurde gefüllt.";
    case TextId::WindowFound:
      return "Warten auf Fenster war erfolgreich.";
    case TextId::ProgramStarted:
      return "Programm wird ausgeführt: ";
    case TextId::ProgramNotStarted:
      return "Programm kann nicht ausgeführt werden: ";
    case TextId::KeySent:
      return "Taste wurde gesendet: ";
    case TextId::MouseMoved:
      return "Maus an Koordinate bewegt: ";
    case TextId::MouseClicked:
      return "Maustaste gedrückt: ";
    case TextId::WindowMaximized:
      return "Fenster wurde maximiert.";
    case TextId::FilesDeleted:
      return "Dateien gelöscht: ";
    case TextId::FileDeleted:
      return "Datei gelöscht: ";
    case TextId::WindowClosed:
      return "Fenster wurde geschlossen.";
    case TextId::WindowNotClosed:
      return "Das Fenster kann nicht geschlossen werden.";
    case TextId::Cancelled:
      return "<Cancel>";
    case TextId::TextBoxRead:
      return "Das Textfeld konnte nicht gelesen werden. (%1)";
    case TextId::ValueNotInList:
      return "Der Wert %1 konnte in der Liste nicht gefunden werden.";
    case TextId::ValueInList:
      return "Der Wert %1 wurde in der Liste gefunden.";
    case TextId::ClientNotNumeric:
      return "Bitte geben Sie eine numerische Mandantennummer ein!";
    case TextId::FileRead:
      return "Datei wird eingelesen (%1) ";
    case TextId::FileGone:
      return "Datei existiert nicht mehr: ";
    case TextId::FolderDeleted:
      return "Ordner gelöscht:";
    case TextId::YearMissing:
      return "Bitte wählen Sie ein Wirtschaftsjahr aus!";
    case TextId::ComboTextRead:
      return "Der Text aus der Combobox wurde erfolgreich gelesen.";
    case TextId::ComboTextNotRead:
      return "Der Text aus der Combobox konnte nicht gelesen werden.";
  }
  return "";
}

std::string Text(TextId id, const std::string& value) { return runtime::Replace(Text(id), "%1", value); }

}  // namespace resources
