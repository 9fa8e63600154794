// What makrun expects in a desktop file where something else stands.
#pragma once

#include "common/texts.h"

namespace makrun::say {

using tools::Text;

constexpr Text kExpected(u8"expected %1", u8"erwartet: %1");
constexpr Text kInsteadOf(u8"%1 instead of \"%2\"", u8"%1 statt \"%2\"");
constexpr Text kInsteadOfTarget(u8"%1, instead of \"%2\"", u8"%1, statt \"%2\"");
constexpr Text kOneAction(u8"one of the actions %1after, when instead of \"%2\"",
                          u8"eine der Aktionen %1after, when statt \"%2\"");
constexpr Text kNothingBelow(u8"nothing below \"%1\"", u8"nichts unter \"%1\"");
constexpr Text kReference(
    u8"{NAME.ID} or {NAME.ID/COLUMN} for what a window of this file shows, instead of \"{%1}\"",
    u8"{NAME.ID} oder {NAME.ID/SPALTE} für das, was ein Fenster dieser Datei zeigt, statt \"{%1}\"");
constexpr Text kEndOfLine(u8"the end of the line instead of \"%1\"", u8"das Ende der Zeile statt \"%1\"");
constexpr Text kDrivePath(u8"a path of a drive that there is", u8"ein Pfad eines Laufwerks, das es gibt");
constexpr Text kNameBehind(u8"a name and a text behind %1", u8"ein Name und ein Text hinter %1");
constexpr Text kProperty(u8"a property of the window, a control or a reaction instead of \"%1\"",
                         u8"eine Eigenschaft des Fensters, ein Steuerelement oder eine Reaktion statt \"%1\"");
constexpr Text kTopLevel(
    u8"window, dialog, box, file, folder, registry, environment, missing-program, refuses-blockinput or after instead "
    u8"of \"%1\"",
    u8"window, dialog, box, file, folder, registry, environment, missing-program, refuses-blockinput oder after statt "
    u8"\"%1\"");
constexpr Text kKeyCode(u8"the code of the key, a number", u8"der Code der Taste, eine Zahl");
constexpr Text kCharacterCode(u8"the code of the character, a number", u8"der Code des Zeichens, eine Zahl");
constexpr Text kCopiedBytes(u8"the bytes that are copied, of %1", u8"die Bytes, die kopiert werden, von %1");
constexpr Text kActionsBelow(u8"indented actions below this line", u8"eingerückte Aktionen unter dieser Zeile");
constexpr Text kNewText(u8"the new text in double quotes", u8"der neue Text in doppelten Anführungszeichen");
constexpr Text kEntries(u8"the entries in double quotes", u8"die Einträge in doppelten Anführungszeichen");
constexpr Text kRowNumber(u8"the number of a row, from 0", u8"die Nummer einer Zeile, ab 0");
constexpr Text kEntryNumber(u8"the number of an entry, from 0", u8"die Nummer eines Eintrags, ab 0");
constexpr Text kCells(u8"the row's cells in double quotes", u8"die Zellen der Zeile in doppelten Anführungszeichen");
constexpr Text kLines(u8"the lines in double quotes", u8"die Zeilen in doppelten Anführungszeichen");
constexpr Text kFilePath(u8"the file's path in double quotes", u8"der Pfad der Datei in doppelten Anführungszeichen");
constexpr Text kFileLines(u8"the file's lines in double quotes",
                          u8"die Zeilen der Datei in doppelten Anführungszeichen");
constexpr Text kGrowth(u8"the bytes by which the file grows", u8"die Bytes, um die die Datei wächst");
constexpr Text kFileName(u8"the name of a file, from this file's folder on, in double quotes",
                         u8"der Name einer Datei, vom Ordner dieser Datei aus, in doppelten Anführungszeichen");
constexpr Text kNewFilePath(u8"the new file's path in double quotes",
                            u8"der Pfad der neuen Datei in doppelten Anführungszeichen");
constexpr Text kMilliseconds(u8"milliseconds", u8"Millisekunden");
constexpr Text kStates(u8"selected and a number, checked, unchecked, or text and texts",
                       u8"selected und eine Zahl, checked, unchecked oder text und Texte");
constexpr Text kSomeText(u8"a text in double quotes", u8"ein Text in doppelten Anführungszeichen");
constexpr Text kOtherText(u8"another text in double quotes", u8"ein weiterer Text in doppelten Anführungszeichen");
constexpr Text kWindowName(u8"the name of a window of this file", u8"der Name eines Fensters dieser Datei");
constexpr Text kTargetName(u8"the name of a window of this file, or NAME.ID for a control of it",
                           u8"der Name eines Fensters dieser Datei oder NAME.ID für ein Steuerelement davon");
constexpr Text kNotIndented(u8"a first statement that is not indented", u8"eine erste Anweisung ohne Einrückung");
constexpr Text kNoTabs(u8"an indentation of blanks, without tabs",
                       u8"eine Einrückung aus Leerzeichen, ohne Tabulatoren");
constexpr Text kClosingQuote(u8"a double quote at the end of the text",
                             u8"ein doppeltes Anführungszeichen am Ende des Textes");
constexpr Text kBlankBehind(u8"a blank behind the text", u8"ein Leerzeichen hinter dem Text");
constexpr Text kIndentationAbove(u8"the indentation of one of the lines above",
                                 u8"die Einrückung einer der Zeilen darüber");
constexpr Text kTitle(u8"the window's title in double quotes",
                      u8"der Titel des Fensters in doppelten Anführungszeichen");
constexpr Text kFolderPath(u8"the folder's path in double quotes",
                           u8"der Pfad des Ordners in doppelten Anführungszeichen");
constexpr Text kRegistryKey(u8"a key of the registry in double quotes",
                            u8"ein Schlüssel der Registrierung in doppelten Anführungszeichen");
constexpr Text kValueName(u8"the value's name in double quotes", u8"der Name des Werts in doppelten Anführungszeichen");
constexpr Text kValueText(u8"the value's text in double quotes", u8"der Text des Werts in doppelten Anführungszeichen");
constexpr Text kVariableName(u8"the variable's name in double quotes",
                             u8"der Name der Variablen in doppelten Anführungszeichen");
constexpr Text kVariableText(u8"the variable's text in double quotes",
                             u8"der Text der Variablen in doppelten Anführungszeichen");
constexpr Text kMissingProgram(u8"the command that starts no program, in double quotes",
                               u8"der Befehl, der kein Programm startet, in doppelten Anführungszeichen");
constexpr Text kNewName(u8"a name that no other window has", u8"ein Name, den kein anderes Fenster hat");
constexpr Text kBoxTitle(u8"the box's title in double quotes",
                         u8"der Titel der Meldung in doppelten Anführungszeichen");
constexpr Text kBoxText(u8"the box's text in double quotes", u8"der Text der Meldung in doppelten Anführungszeichen");
constexpr Text kCaptions(u8"the captions of the buttons in double quotes",
                         u8"die Aufschriften der Schaltflächen in doppelten Anführungszeichen");
constexpr Text kControlWords(u8"a class, an id and a text", u8"eine Klasse, eine Nummer und ein Text");
constexpr Text kControlId(u8"the control's id, a number", u8"die Nummer des Steuerelements");
constexpr Text kControlText(u8"the control's text in double quotes",
                            u8"der Text des Steuerelements in doppelten Anführungszeichen");
constexpr Text kClassName(u8"a class", u8"eine Klasse");
constexpr Text kWindowId(u8"an id, a number", u8"eine Nummer");
constexpr Text kProcessName(u8"the name of a process", u8"der Name eines Prozesses");
constexpr Text kPlace(u8"left, top, width and height in pixels", u8"links, oben, Breite und Höhe in Bildpunkten");
constexpr Text kStyles(u8"checkbox, option, frame or single-selection",
                       u8"checkbox, option, frame oder single-selection");
constexpr Text kChildId(u8"the id of a child", u8"die Nummer eines untergeordneten Steuerelements");
constexpr Text kEvents(u8"command, notification, key, character, text or close",
                       u8"command, notification, key, character, text oder close");
constexpr Text kCommandId(u8"the id of the command, a number", u8"die Nummer des Befehls");
constexpr Text kSender(
    u8"the id of a child, which sends the notification to this window or control",
    u8"die Nummer eines untergeordneten Steuerelements, das die Benachrichtigung an dieses Fenster oder "
    u8"Steuerelement sendet");
constexpr Text kNotificationCode(u8"the code of the notification, a number",
                                 u8"der Code der Benachrichtigung, eine Zahl");

}  // namespace makrun::say
