// What makrun says.
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
constexpr Text kGivenUp(u8"given up: line %1 (%2) %3", u8"aufgegeben: Zeile %1 (%2) %3");
constexpr Text kGoesOnWaiting(u8"went on waiting although the user had cancelled after %1 seconds",
                              u8"wartet weiter, obwohl der Benutzer nach %1 Sekunden abgebrochen hat");
constexpr Text kLineLimit(u8"passed the limit of %1 lines", u8"überschreitet die Grenze von %1 Zeilen");
constexpr Text kDialogStays(u8"shows %1, which stays open whatever is answered",
                            u8"zeigt %1, das offen bleibt, was auch geantwortet wird");

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
    u8"  --lang de|en            language of what makrun says; default that of the system\n"
    u8"  --help                  this text\n"
    u8"  --version               the version\n"
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
    u8"  --lang de|en            Sprache, in der makrun spricht; sonst die des Systems\n"
    u8"  --help                  dieser Text\n"
    u8"  --version               die Version\n"
    u8"\n"
    u8"Rückgabewert: 0 durchgelaufen, 1 fehlgeschlagen, 2 angehalten oder aufgegeben, 64 falscher Aufruf,\n"
    u8"66 eine Datei kann nicht gelesen werden.\n");

}  // namespace makrun::say
