"""The verbs for controls and message boxes, from a macro line to what the stand-in has heard."""

import re
import unittest

from client_record import (
    ACCOUNT_FRAME,
    ADDRESS,
    AUDIT,
    BANK_ACCOUNTS,
    CANCEL,
    CASH_BASIS,
    CHECK,
    CLOSED,
    DELETE,
    EXTENSION,
    FEATURES,
    FOLDER_BOX,
    FOUNDATION,
    LEGAL_FORM,
    MAIL_TO_CONSULTANT,
    MENU_CLEAR,
    MENU_FILL,
    MENU_RESET,
    MENU_SAVE,
    NAME,
    NOTE,
    NUMBER,
    PARTNERS,
    PARTNERSHIP,
    PAYROLL,
    PLACE,
    PROFIT,
    RECORD,
    SALES_TAX,
    SAVE,
    SOLE_TRADER,
    TAX_NUMBER,
    YEAR,
    YEAR_FRAME,
    ClientRecordTest,
)
from harness import TITLE, wait_until
from probe import WM_COMMAND

TEXT_BOX, BUTTON = "ThunderRT6Textbox", "ThunderRT6CommandButton"
CHECK_BOX, OPTION, FRAME = "ThunderRT6CheckBox", "ThunderRT6OptionButton", "ThunderRT6Frame"
# A control that the dialog does not have.
MISSING = 2999


def filled(text):
    return f"Das Textfeld wurde ausgefüllt ({text})"


def not_filled(answer):
    return f"Das Textfeld konnte nicht ausgefüllt werden. ({answer})"


# The words are the same when it could be read.
def read(text):
    return f"Das Textfeld konnte nicht gelesen werden. ({text})"


def chosen(state):
    return f"Das Optionsfeld konnte erfolgreich ausgewählt werden. ({state})"


def not_chosen(state):
    return f"Das Optionsfeld konnte nicht ausgewählt werden. ({state})"


class TextTest(ClientRecordTest):
    def test_texts_are_put_in_compared_and_read(self):
        long = "x" * 296 + "Ende"
        log = self.run_macro(f"""\
DIM Text
SETTEXT=Tischlerei Übel,{NAME},{RECORD},1,{TEXT_BOX}
SETTEXT=C:\\Ablage,{FOLDER_BOX},{RECORD},1
SETTEXT=zählt,{NOTE},{RECORD},1,{TEXT_BOX}
SETTEXT=151/815/08150,{TAX_NUMBER},{RECORD},1,{TEXT_BOX}
SETTEXT=15181508151,{TAX_NUMBER},{RECORD},1,{TEXT_BOX}
SETTEXT=0815,{NUMBER},{RECORD},1,{TEXT_BOX}
SETTEXT=,{MISSING},{RECORD},1,{TEXT_BOX}
SETTEXT=doch,{MISSING},{RECORD},1,{TEXT_BOX}
Text=READTEXT({NAME},{RECORD},1,{TEXT_BOX},{ADDRESS},{FRAME})
MSG=Text
Text=READTEXT({YEAR},{RECORD},1,ComboBox)
MSG=Text
SETTEXT={long},{NAME},{RECORD},1,{TEXT_BOX}
READTEXT={NAME},{RECORD},1,{TEXT_BOX}
READTEXT={MISSING},{RECORD},1,{TEXT_BOX}
IF GETTEXT=C:\\Ablage,{FOLDER_BOX},{RECORD},1
MSG=gleich
ENDIF
IF GETTEXT=C:\\ablage,{FOLDER_BOX},{RECORD},1
MSG=falscher Zweig
ELSE
MSG=anders
ENDIF
GETTEXT=C:\\Ablage\\,{FOLDER_BOX},{RECORD},1
GETPATHFROMCTL={FOLDER_BOX},{RECORD},1,{TEXT_BOX}
MSG=Pfad: $CTLPATH
GETPATHFROMCTL={MISSING},{RECORD},1,{TEXT_BOX}
""", failures=6)
        self.assertEqual(
            log,
            [
                filled("Tischlerei Übel"),
                filled("C:\\Ablage"),
                # The box answers with a length, or with a refusal, and shows the text all the same.
                filled("zählt"),
                filled("151/815/08150"),
                not_filled(0),
                CANCEL,
                not_filled(0),
                CANCEL,
                filled(""),
                not_filled(0),
                CANCEL,
                "ReadText: Tischlerei Übel",
                "MSG: Tischlerei Übel",
                "ReadText: 2005",
                "MSG: 2005",
                filled(long),
                "ReadText: " + long[:254],
                "ReadText konnte das Control nicht finden",
                CANCEL,
                read("C:\\Ablage"),
                "MSG: gleich",
                "MSG: anders",
                read("C:\\Ablage"),
                CANCEL,
                "GetPathFromCtl C:\\Ablage",
                "MSG: Pfad: C:\\Ablage",
                "Pfad konnte nicht ermittelt werden.",
                CANCEL,
            ],
        )
        self.assert_heard(
            [
                f"Text {ADDRESS}/{NAME}: Tischlerei Übel",
                f"Text {FOLDER_BOX}: C:\\Ablage",
                f"Text {ADDRESS}/{NOTE}: zählt",
                f"Text {ADDRESS}/{TAX_NUMBER}: 151/815/08150",
                f"Text {ADDRESS}/{TAX_NUMBER}: 151/815/08151",
                f"Text {ADDRESS}/{NUMBER} abgelehnt: 0815",
                f"Text {ADDRESS}/{NAME}: {long}",
            ],
        )


class CheckTest(ClientRecordTest):
    def test_options_and_check_boxes_are_clicked_and_asked(self):
        log = self.run_macro(f"""\
SETOPTION={SOLE_TRADER},{RECORD},1,{OPTION},{LEGAL_FORM},{FRAME}
SETOPTION={CASH_BASIS},{RECORD},1,Button,{PROFIT},{FRAME}
SETOPTION={PARTNERSHIP},{RECORD},1,{OPTION}
SETOPTION={FOUNDATION},{RECORD},1,{OPTION},{LEGAL_FORM},{FRAME}
SETOPTION={MISSING},{RECORD},1,{OPTION}
SETCHECK=1,{PAYROLL},{RECORD},1,{FEATURES}
SETCHECK=0,{SALES_TAX},{RECORD},1,{FEATURES}
SETCHECK=1,{EXTENSION},{RECORD},1,Dauerfristverlängerung
SETCHECK=1,{MAIL_TO_CONSULTANT},{RECORD},1,{MISSING}
SETCHECK=1,{PAYROLL},{RECORD},1,{FEATURES}
SETCHECK=1,{CLOSED},{RECORD},1,{FEATURES}
SETCHECK=1,{SALES_TAX},{RECORD},1
GETCHECK={EXTENSION},{RECORD},1,Button,{FEATURES},{FRAME}
GETCHECK={SALES_TAX},{RECORD},1,{CHECK_BOX},{FEATURES},{FRAME}
GETCHECK={AUDIT},{RECORD},1,{CHECK_BOX},{FEATURES},{FRAME}
GETCHECK={MISSING},{RECORD},1,{CHECK_BOX}
""", failures=8)
        self.assertEqual(
            log,
            [
                chosen(1),
                chosen(1),
                chosen(1),
                not_chosen(0),
                CANCEL,
                "SetOption konnte das Control nicht finden",
                CANCEL,
                chosen(1),
                chosen(0),
                chosen(1),
                # A frame that is not there is replaced by the first one.
                chosen(1),
                # A box that is set is cleared by the click.
                not_chosen(0),
                CANCEL,
                not_chosen(0),
                CANCEL,
                "Das Optionsfeld konnte nicht gefunden werden.",
                CANCEL,
                "Optionsfeld ist ausgewählt.",
                # A clear box fails the run with no text of its own.
                "Optionsfeld ist nicht ausgewählt.",
                "",
                CANCEL,
                "Fehler: Optionsfeld Status unbekannt.",
                CANCEL,
                "Optionsfeld konnte nicht gefunden werden.",
                "",
                CANCEL,
            ],
        )
        self.assert_heard(
            [
                f"Geklickt {SOLE_TRADER}: 1",
                f"Geklickt {CASH_BASIS}: 1",
                f"Geklickt {PARTNERSHIP}: 1",
                f"Geklickt {FOUNDATION}: 0",
                f"Geklickt {PAYROLL}: 1",
                f"Geklickt {EXTENSION}: 1",
                f"Geklickt {MAIL_TO_CONSULTANT}: 1",
                f"Geklickt {PAYROLL}: 0",
                f"Geklickt {CLOSED}: 0",
            ],
        )


class ButtonTest(ClientRecordTest):
    def test_buttons_and_menus_open_boxes_that_are_answered(self):
        handles = {identity: self.handle(identity) for identity in (SAVE, DELETE, CHECK)}
        self.begin_macro(f"""\
MENUCLICK={MENU_CLEAR},{RECORD},1
MENUCLICK={MENU_FILL},{RECORD},1,{FRAME},{YEAR_FRAME}
CONFIRMDIALOG={RECORD},wirklich aus dem
IF CONFIRMDIALOG={RECORD},wirklich aus dem
MSG=falscher Zweig
ELSE
MSG=nichts zu bestätigen
ENDIF
BUTTONCLICK={SAVE},{RECORD},1,,{BUTTON}
WAITFORDIALOG=Stamm,GESPEICHERT
BUTTONCLICK={DELETE},{RECORD},1
WAITFORWINDOW={RECORD},1,Ja,{BUTTON},0
CONFIRMDIALOG={RECORD},wirklich aus dem
IF BUTTONCLICK={CHECK},{RECORD},1,prüfen,{BUTTON}
WAITFORWINDOW={RECORD},1,Abbrechen,{BUTTON},0
ENDIF
IF CONFIRMDIALOG={RECORD},nicht erreichbar
MSG=angeblich bestätigt
ENDIF
BUTTONCLICK=2902,{RECORD},1,Abbrechen,{BUTTON}
MENUCLICK={MENU_RESET},%MAINWINDOW%
WAITFORWINDOW={RECORD},1,&Nein,Button,0
CONFIRMDIALOG={RECORD},verworfen
BUTTONCLICK=7,{RECORD},1,&Nein
IF MENUCLICK={MENU_SAVE},%mainwindow%,1
MSG=falscher Zweig
ELSE
MSG=kein Fenster
ENDIF
MENUCLICK={MENU_SAVE},{RECORD},1,{FRAME},{MISSING}
BUTTONCLICK={MISSING},{RECORD},1,,{BUTTON}
""")
        log = self.end_macro(failures=2)
        pressed, found = "Schaltfläche wurde gedrückt. ", "Warten auf Fenster war erfolgreich."
        expected = [
            f"Menu wurde ausgewählt ({MENU_CLEAR} {self.record.handle})",
            f"Menu wurde ausgewählt ({MENU_FILL} {self.record.handle})",
            "ConfirmDialog: Stammdaten / wirklich aus dem",
            "ConfirmDialog: Stammdaten / wirklich aus dem",
            "MSG: nichts zu bestätigen",
            f"{pressed}({handles[SAVE]} {SAVE})",
            "WaitForDialog: Stamm / GESPEICHERT",
            "Dialog Stammdaten / Die Stammdaten wurden gespeichert. wurde mit OK bestätigt.",
            f"{pressed}({handles[DELETE]} {DELETE})",
            found,
            "ConfirmDialog: Stammdaten / wirklich aus dem",
            "Dialog Stammdaten / Soll der Mandant wirklich aus dem Bestand gelöscht werden? wurde mit Ja bestätigt.",
            f"{pressed}({handles[CHECK]} {CHECK})",
            found,
            "ConfirmDialog: Stammdaten / nicht erreichbar",
            "Dialog Stammdaten / Die Ablage ist nicht erreichbar. wurde mit Ja bestätigt.",
            "MSG: angeblich bestätigt",
            f"{pressed}(? 2902)",
            f"MainWindow: {self.record.handle}",
            f"Menu wurde ausgewählt ({MENU_RESET} {self.record.handle})",
            found,
            "ConfirmDialog: Stammdaten / verworfen",
            "Dialog Stammdaten / Sollen alle Eingaben verworfen werden? wurde mit Ja bestätigt.",
            f"{pressed}(? 7)",
            "MSG: kein Fenster",
            "Das Menu konnte nicht gefunden werden.",
            CANCEL,
            "Die Schaltfläche konnte nicht ausgewählt werden.",
            CANCEL,
        ]
        # The boxes' own buttons are gone by now, and their handles with them.
        self.assertEqual([re.sub(r"\(\d+ (2902|7)\)", r"(? \1)", line) for line in log], expected)
        self.assert_heard(
            [
                "Menü: Listen leeren",
                f"Rahmen {YEAR_FRAME}: Befehl {MENU_FILL}",
                "Menü: Listen füllen",
                # A button of another class than "Button" is named by its handle too.
                "Schaltfläche: Speichern, mit Steuerelement",
                "Meldung: Die Stammdaten wurden gespeichert.",
                "Antwort: OK",
                "Schaltfläche: Löschen",
                "Meldung: Soll der Mandant wirklich aus dem Bestand gelöscht werden?",
                "Antwort: Ja",
                "Schaltfläche: Prüfen, mit Steuerelement",
                "Meldung: Die Ablage ist nicht erreichbar.",
                # The box has neither "OK" nor "Ja".
                "Befehl ohne Schaltfläche: 0",
                "Antwort: Abbrechen",
                "Menü: Zurücksetzen",
                "Meldung: Sollen alle Eingaben verworfen werden?",
                # The system's button is "&Ja", which is another text.
                "Antwort: Nein",
            ],
        )


class FocusTest(ClientRecordTest):
    def test_focus_goes_to_windows_controls_and_lists(self):
        place = self.handle(PLACE)
        log = self.run_macro(f"""\
SETFOCUS=TeRu -
IF ACTIVEWINDOW=TeRu -
MSG=falscher Zweig
ELSE
MSG=gestartet über einem anderen Fenster
ENDIF
WAIT=1000
SETFOCUS=
IF ACTIVEWINDOW={RECORD},TRUE
MSG=der Dialog ist vorn
ENDIF
WAIT=1000
SETFOCUS={RECORD}
WAIT=500
SETFOCUSCTL={TEXT_BOX},,{PLACE}
SELECTALL={PARTNERS},{RECORD},1
IF SELECTALL={BANK_ACCOUNTS},{RECORD},1,{ACCOUNT_FRAME}
MSG=alle Konten
ENDIF
SELECTALL={MISSING},{RECORD},1
MENUCLICK={MENU_CLEAR},{RECORD},1
WAIT=500
SELECTALL={PARTNERS},{RECORD},1
SETFOCUSCTL=
""", failures=3)
        no_list = "Die Liste konnte nicht ausgewählt werden."
        no_entries = "In der Liste sind keine Einträge vorhanden."
        self.assertEqual(
            log,
            [
                "Der Fokus wurde gesetzt.",
                "MSG: gestartet über einem anderen Fenster",
                "Der Fokus wurde gesetzt.",
                "MSG: der Dialog ist vorn",
                # The status dialog, which has been hidden and shown, comes to the front again some time later: hence the
                # waits before the focus is set. Windows changes the window in front at once, Wine in its own time: hence
                # the wait behind.
                "Der Fokus wurde gesetzt.",
                f"Der Fokus wurde auf das Feld gesetzt. ({place})",
                "Die Liste wurde ausgewählt (5)",
                "Die Liste wurde ausgewählt (3)",
                "MSG: alle Konten",
                no_list,
                CANCEL,
                f"Menu wurde ausgewählt ({MENU_CLEAR} {self.record.handle})",
                "Die Liste wurde ausgewählt (0)",
                no_entries,
                CANCEL,
                "",
                CANCEL,
            ],
        )
        focus = self.heard_focus()
        for identity in (PLACE, PARTNERS, BANK_ACCOUNTS):
            self.assertIn(f"Fokus {identity}", focus)
        self.assertLess(focus.index(f"Fokus {PLACE}"), focus.index(f"Fokus {PARTNERS}"))
        self.assertIn(f"Liste {PARTNERS}: Strg+A", self.heard())
        self.assertIn(f"Liste {BANK_ACCOUNTS}: Strg+A", self.heard())

    def test_a_window_is_closed_by_its_whole_title(self):
        log = self.run_macro(f"CLOSEWINDOW={RECORD[1:]},1\nCLOSEWINDOW={RECORD},1\n")
        self.assertEqual(log, ["Fenster wurde geschlossen."] * 2)
        wait_until(lambda: not self.probe.windows(RECORD), "the closed dialog")

    def test_status_dialog_is_hidden_and_shown(self):
        self.begin_macro(f"""\
HIDEDIALOG
WAITFORDIALOG={RECORD},gespeichert
SHOWDIALOG
WAITFORDIALOG={RECORD},gespeichert
""")
        self.wait_log(f"WaitForDialog: {RECORD} / gespeichert")
        wait_until(lambda: not self.probe.windows(TITLE), "the hidden status dialog")
        self.probe.post(self.record, WM_COMMAND, MENU_SAVE)
        self.wait_teru_log("Antwort: OK")
        self.status_dialog()
        self.probe.post(self.record, WM_COMMAND, MENU_SAVE)
        self.end_macro()


if __name__ == "__main__":
    unittest.main()
