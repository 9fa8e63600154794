// What makcheck says besides its findings (finding_kinds.h).
#pragma once

#include "common/texts.h"

namespace makcheck::say {

inline constexpr tools::Text kUsage(
    u8"usage: makcheck [--json | --sarif] [--desktop FILE] [--ini FILE] FILE...\n"
    u8"       makcheck --explain NAME | --findings | --verbs [--json]\n"
    u8"       makcheck --lsp\n"
    u8"\n"
    u8"Reads macros without running them and tells what is wrong in them.\n"
    u8"\n"
    u8"  --json          findings, or the verb table, as JSON\n"
    u8"  --sarif         findings as SARIF 2.1.0\n"
    u8"  --explain NAME  what a finding means, with wrong and right lines\n"
    u8"  --findings      the names of all findings\n"
    u8"  --verbs         the verbs with their arguments\n"
    u8"  --lsp           serves an editor as a language server on standard input and output\n"
    u8"  --lang de|en    the language; that of the system if it is not given\n"
    u8"\n"
    u8"Exit status: 0 nothing found, 1 something found, 64 wrong command line, 66 a file cannot be read.\n",
    u8"Aufruf: makcheck [--json | --sarif] [--desktop DATEI] [--ini DATEI] DATEI...\n"
    u8"        makcheck --explain NAME | --findings | --verbs [--json]\n"
    u8"        makcheck --lsp\n"
    u8"\n"
    u8"Liest Makros, ohne sie auszuführen, und sagt, was daran falsch ist.\n"
    u8"\n"
    u8"  --json          Befunde oder Befehlstabelle als JSON\n"
    u8"  --sarif         Befunde als SARIF 2.1.0\n"
    u8"  --explain NAME  was ein Befund bedeutet, mit falschen und richtigen Zeilen\n"
    u8"  --findings      die Namen aller Befunde\n"
    u8"  --verbs         die Befehle mit ihren Argumenten\n"
    u8"  --lsp           bedient einen Editor als Sprachserver über Standardein- und -ausgabe\n"
    u8"  --lang de|en    die Sprache; ohne Angabe die des Systems\n"
    u8"\n"
    u8"Rückgabewert: 0 nichts gefunden, 1 etwas gefunden, 64 falscher Aufruf, 66 eine Datei ist nicht lesbar.\n");

inline constexpr tools::Text kVerbLegend(
    u8"Arguments in [brackets] can be left out, those in (parentheses) are not read.",
    u8"Argumente in [eckigen Klammern] sind entbehrlich, die in (runden) werden nicht gelesen.");
inline constexpr tools::Text kWrong(u8"wrong:", u8"falsch:");
inline constexpr tools::Text kRight(u8"right:", u8"richtig:");
inline constexpr tools::Text kNoFinding(u8"there is no finding \"%1\"", u8"den Befund „%1“ gibt es nicht");
inline constexpr tools::Text kWholeTitle(u8"the whole title", u8"der ganze Titel");
inline constexpr tools::Text kPartOfTitle(u8"a part of the title", u8"ein Teil des Titels");
inline constexpr tools::Text kNeeded(u8"needed", u8"nötig");
inline constexpr tools::Text kOptional(u8"can be left out", u8"entbehrlich");
inline constexpr tools::Text kNotRead(u8"not read", u8"wird nicht gelesen");
inline constexpr tools::Text kFixTitle(u8"Replace by \"%1\"", u8"Ersetzen durch „%1“");
inline constexpr tools::Text kNothingToRename(u8"Neither a variable nor a mark stands here.",
                                              u8"Hier steht weder eine Variable noch eine Marke.");
inline constexpr tools::Text kNotAName(u8"\"%1\" cannot be a name here, or is taken.",
                                       u8"„%1“ kann hier kein Name sein oder ist vergeben.");
inline constexpr tools::Text kNoFile(u8"a macro file is missing", u8"eine Makrodatei fehlt");
inline constexpr tools::Text kNotWritten(u8"standard output cannot be written",
                                         u8"die Standardausgabe kann nicht geschrieben werden");

}  // namespace makcheck::say
