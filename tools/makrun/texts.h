// What makrun says; of desktop files in desktop_texts.h.
#pragma once

#include "common/texts.h"

namespace makrun::say {

using tools::Text;

// The command line.
constexpr Text kNoMacro(u8"no macro is named", u8"es ist kein Makro genannt");
constexpr Text kOneMacro(u8"one macro at a time: \"%1\" or \"%2\"", u8"nur ein Makro auf einmal: \"%1\" oder \"%2\"");
constexpr Text kWantsTime(u8"--now wants a time such as \"2006-03-14 09:30:00\", not \"%1\"",
                          u8"--now braucht eine Zeit wie \"2006-03-14 09:30:00\", nicht \"%1\"");
constexpr Text kWantsAnswer(u8"--answer wants FORM.CONTROL or FORM.CONTROL=TEXT, not \"%1\"",
                            u8"--answer braucht FORM.CONTROL oder FORM.CONTROL=TEXT, nicht \"%1\"");
constexpr Text kWantsFamily(u8"--family wants nt or 9x, not \"%1\"", u8"--family braucht nt oder 9x, nicht \"%1\"");

// Files and folders.
constexpr Text kNoFolder(u8"%1 is no folder", u8"%1 ist kein Ordner");
constexpr Text kNotCopied(u8"%1 cannot be copied: %2", u8"%1 kann nicht kopiert werden: %2");
constexpr Text kNotMade(u8"%1 cannot be made: %2", u8"%1 kann nicht angelegt werden: %2");
constexpr Text kNotWritten(u8"%1 cannot be written", u8"%1 kann nicht geschrieben werden");
constexpr Text kStandardOutput(u8"standard output", u8"die Standardausgabe");

// Answers.
constexpr Text kNoSuchControl(u8"--answer: %1.%2 does not exist", u8"--answer: %1.%2 gibt es nicht");
constexpr Text kNoSuchEntry(u8"--answer: %1.%2 has no entry \"%3\"", u8"--answer: %1.%2 hat keinen Eintrag \"%3\"");
constexpr Text kNoSuchRow(u8"--answer: %1.%2 has no row \"%3\"", u8"--answer: %1.%2 hat keine Zeile \"%3\"");
constexpr Text kTakesNoAnswer(u8"--answer: %1.%2 takes no answer", u8"--answer: %1.%2 nimmt keine Antwort an");
constexpr Text kNotAskedFor(u8"the answer %1.%2 was not asked for", u8"nach der Antwort %1.%2 hat niemand gefragt");

// The end of a run.
constexpr Text kMessageBox(u8"message box: %1", u8"Meldung: %1");
constexpr Text kNoRun(u8"the press started no run", u8"der Tastendruck hat keinen Lauf gestartet");
constexpr Text kGivenUp(u8"given up: %1", u8"aufgegeben: %1");
constexpr Text kGoesOnWaiting(u8"went on waiting although the user had cancelled after %1 seconds",
                              u8"wartet weiter, obwohl der Benutzer nach %1 Sekunden abgebrochen hat");
constexpr Text kLineLimit(u8"passed the limit of %1 lines", u8"überschreitet die Grenze von %1 Zeilen");
constexpr Text kDialogStays(u8"shows %1, which stays open whatever is answered",
                            u8"zeigt %1, das offen bleibt, was auch geantwortet wird");

// The file of the macro.
constexpr Text kIsUtf8(
    u8"%1:%2: warning: the file is in UTF-8, and the program reads each byte as a character of "
    u8"Windows-1252. Save it in the encoding \"ANSI\" (Windows-1252).",
    u8"%1:%2: Warnung: Die Datei ist in UTF-8, und das Programm liest jedes Byte als ein Zeichen von "
    u8"Windows-1252. Speichern Sie sie in der Codierung \"ANSI\" (Windows-1252).");
constexpr Text kHasMark(
    u8"%1:1: warning: the file begins with a byte order mark, which the program takes for text of "
    u8"the first line. Save it in the encoding \"ANSI\" (Windows-1252), without a mark.",
    u8"%1:1: Warnung: Die Datei beginnt mit einer Bytereihenfolge-Marke, die das Programm für Text "
    u8"der ersten Zeile hält. Speichern Sie sie in der Codierung \"ANSI\" (Windows-1252), ohne Marke.");
constexpr Text kIsUtf16(
    u8"%1:1: warning: the file is in UTF-16, of which the program understands no line. Save it in the "
    u8"encoding \"ANSI\" (Windows-1252).",
    u8"%1:1: Warnung: Die Datei ist in UTF-16, wovon das Programm keine Zeile versteht. Speichern Sie "
    u8"sie in der Codierung \"ANSI\" (Windows-1252).");

// A line of the macro.
constexpr Text kPassedOver(u8"(passed over)", u8"(übergangen)");
constexpr Text kCancelled(u8"cancelled by the user", u8"vom Benutzer abgebrochen");
constexpr Text kNoText(u8"failed without a text of its own", u8"ohne eigenen Text fehlgeschlagen");
constexpr Text kLine(u8"line:        %1", u8"Zeile:      %1");
constexpr Text kCarriedOut(u8"carried out: %1", u8"ausgeführt: %1");
constexpr Text kWhy(u8"because:     %1", u8"weil:       %1");

// What a line looked for and did not find.
constexpr Text kNone(u8"none", u8"keine");
constexpr Text kNoWindow(u8"there is no window with the title \"%1\"; there are: %2",
                         u8"es gibt kein Fenster mit dem Titel \"%1\"; es gibt: %2");
constexpr Text kNoWindowWith(u8"there is no window with \"%1\" in its title; there are: %2",
                             u8"es gibt kein Fenster mit \"%1\" im Titel; es gibt: %2");
constexpr Text kNoControl(u8"the window %1 has no control %2", u8"das Fenster %1 hat kein Steuerelement %2");
constexpr Text kWithId(u8"with the id %1", u8"mit der Nummer %1");
constexpr Text kDirectly(u8"directly in it (no class is given)",
                         u8"unmittelbar in ihm (es ist keine Klasse angegeben)");
constexpr Text kOfClass(u8"of the class \"%1\"", u8"der Klasse \"%1\"");
constexpr Text kWithText(u8"with the text \"%1\"", u8"mit dem Text \"%1\"");
constexpr Text kControl(u8"id %1 of the class \"%2\" with the text \"%3\"",
                        u8"Nummer %1 der Klasse \"%2\" mit dem Text \"%3\"");
constexpr Text kInstead(u8"; it has: %1", u8"; es hat: %1");
constexpr Text kNoBoxText(u8"the window %1 shows no text with \"%2\"", u8"das Fenster %1 zeigt keinen Text mit \"%2\"");
constexpr Text kNoFile(u8"there is no file \"%1\"", u8"es gibt keine Datei \"%1\"");
constexpr Text kNoFileOfKind(u8"there is no file of the folder and extension of \"%1\"",
                             u8"es gibt keine Datei in Ordner und mit Endung von \"%1\"");
constexpr Text kFolderNoFile(u8"\"%1\" is a folder and not a file", u8"\"%1\" ist ein Ordner und keine Datei");
constexpr Text kNoClipboard(u8"no text came to the clipboard", u8"in die Zwischenablage kam kein Text");
constexpr Text kUndeclared(u8"\"%1\" is no declared variable: DIM %1 belongs in front",
                           u8"\"%1\" ist keine deklarierte Variable: Davor gehört DIM %1");
constexpr Text kNoDo(
    u8"line %1 ends a loop that no DO has begun, and the run stays at the first line",
    u8"Zeile %1 beendet eine Schleife, die kein DO begonnen hat, und der Lauf bleibt in der ersten Zeile");
constexpr Text kBlanks(u8"no blanks may stand round \"%1\"", u8"um \"%1\" dürfen keine Leerzeichen stehen");
constexpr Text kBrackets(u8"a command is written %1=a,b,c; parentheses belong to an assignment",
                         u8"ein Befehl schreibt sich %1=a,b,c; Klammern gehören zu einer Zuweisung");
constexpr Text kOpenQuote(u8"a single quote is not closed, so that the arguments from there on are empty",
                          u8"ein einfaches Anführungszeichen ist nicht geschlossen, so dass die Argumente ab dort leer "
                          u8"sind");
constexpr Text kNoNumber(u8"\"%1\" is no number of milliseconds", u8"\"%1\" ist keine Zahl von Millisekunden");
constexpr Text kNoMouseButton(u8"\"%1\" is neither LEFT nor RIGHT", u8"\"%1\" ist weder LEFT noch RIGHT");
constexpr Text kBlockRefused(u8"the system refused to block the input",
                             u8"das System hat die Sperre der Eingabe verweigert");
constexpr Text kNoClassOrText(u8"neither a class nor a text is given", u8"weder Klasse noch Text ist angegeben");
constexpr Text kNoMessage(u8"no text is given", u8"es ist kein Text angegeben");
constexpr Text kNoClass(u8"no class is given, and a control is found by its text only together with its class",
                        u8"es ist keine Klasse angegeben, und ein Steuerelement wird nach seinem Text nur zusammen mit "
                        u8"seiner Klasse gefunden");
constexpr Text kNotChecked(u8"the box is not checked", u8"das Kästchen ist nicht gesetzt");
constexpr Text kEmptyList(u8"the list is empty", u8"die Liste ist leer");
constexpr Text kNoWindowNamed(u8"no window is given; the arguments of %1 are: %2",
                              u8"es ist kein Fenster angegeben; die Argumente von %1 sind: %2");

// The table of verbs.
constexpr Text kAction(u8"action", u8"Aktion");
constexpr Text kForcedAction(u8"action, never fails", u8"Aktion, schlägt nie fehl");
constexpr Text kCondition(u8"condition", u8"Bedingung");
constexpr Text kValue(u8"value", u8"Wert");
constexpr Text kForcedValue(u8"value, always counts as done", u8"Wert, gilt immer als getan");
constexpr Text kBranch(u8"branch", u8"Verzweigung");

constexpr Text kUsage(
    u8"usage: makrun [options] MACRO.MAK\n"
    u8"Runs a macro on a simulated desktop and prints the log of the run.\n"
    u8"\n"
    u8"  --desktop FILE          the windows that the macro meets; without it one main window\n"
    u8"  --caption TEXT          caption of that main window; default \"TeRu - 0012 / 4711 / 2005 / Probelauf\"\n"
    u8"  --ini FILE              settings; default QUMAEXP.INI beside the macro, none if it is not there\n"
    u8"  --drive DIR             folder that stands for drive C: and is kept; default a temporary one\n"
    u8"  --press                 start as the hot key does instead of running the macro directly\n"
    u8"  --answer FORM.CONTROL=TEXT\n"
    u8"                          what the user does in a dialog, in order; FORM.cmdOK and FORM.cmdCancel press\n"
    u8"  --clipboard FILE        text that is on the clipboard at the start\n"
    u8"  --resume N              go on behind a failed line, N times at most; default 0\n"
    u8"  --now \"2006-03-14 09:30:00\"\n"
    u8"                          the clock at the start\n"
    u8"  --family nt|9x          the Windows family; default nt\n"
    u8"  --time-limit SECONDS    simulated seconds after which the user cancels; default 3600\n"
    u8"  --line-limit N          visited lines after which the rehearsal is given up; default 10000000\n"
    u8"  --real-time             sleep in real time\n"
    u8"  --trace                 each visited line, its verb and arguments, on standard error\n"
    u8"  --list-verbs            the verbs of the language with their arguments, and nothing else\n"
    u8"  --lang de|en            language of what makrun says; default that of the system\n"
    u8"  --help                  this text\n"
    u8"\n"
    u8"Exit status: 0 completed, 1 failed, 2 stopped or given up, 64 wrong command line, 66 a file cannot be read.\n",
    u8"Aufruf: makrun [Optionen] MAKRO.MAK\n"
    u8"Führt ein Makro auf einem simulierten Bildschirm aus und gibt das Protokoll des Laufs aus.\n"
    u8"\n"
    u8"  --desktop DATEI         die Fenster, auf die das Makro trifft; sonst ein Hauptfenster\n"
    u8"  --caption TEXT          Titel dieses Hauptfensters; sonst \"TeRu - 0012 / 4711 / 2005 / Probelauf\"\n"
    u8"  --ini DATEI             Einstellungen; sonst QUMAEXP.INI neben dem Makro, keine, wenn sie dort fehlt\n"
    u8"  --drive ORDNER          Ordner, der für Laufwerk C: steht und erhalten bleibt; sonst ein vorübergehender\n"
    u8"  --press                 beginnt wie die Tastenkombination, statt das Makro unmittelbar auszuführen\n"
    u8"  --answer FORM.CONTROL=TEXT\n"
    u8"                          was der Benutzer in einem Dialog tut, der Reihe nach; FORM.cmdOK und\n"
    u8"                          FORM.cmdCancel drücken die Schaltfläche\n"
    u8"  --clipboard DATEI       Text, der zu Beginn in der Zwischenablage steht\n"
    u8"  --resume N              nach einer fehlgeschlagenen Zeile fortfahren, höchstens N-mal; sonst 0\n"
    u8"  --now \"2006-03-14 09:30:00\"\n"
    u8"                          die Uhr zu Beginn\n"
    u8"  --family nt|9x          die Windows-Familie; sonst nt\n"
    u8"  --time-limit SEKUNDEN   simulierte Sekunden, nach denen der Benutzer abbricht; sonst 3600\n"
    u8"  --line-limit N          besuchte Zeilen, nach denen die Probe aufgegeben wird; sonst 10000000\n"
    u8"  --real-time             in wirklicher Zeit warten\n"
    u8"  --trace                 jede besuchte Zeile, ihr Verb und ihre Argumente auf der Fehlerausgabe\n"
    u8"  --list-verbs            die Verben der Sprache mit ihren Argumenten, und nichts sonst\n"
    u8"  --lang de|en            Sprache, in der makrun spricht; sonst die des Systems\n"
    u8"  --help                  dieser Text\n"
    u8"\n"
    u8"Rückgabewert: 0 durchgelaufen, 1 fehlgeschlagen, 2 angehalten oder aufgegeben, 64 falscher Aufruf,\n"
    u8"66 eine Datei kann nicht gelesen werden.\n");

}  // namespace makrun::say
