"""The macro QUMASTAMM.MAK of the demonstration, which works through the whole dialog "Stammdaten"."""

import re
import shutil
import unittest

from client_record import BROWSE, COPY, CURRENCY, MENU_SAVE, PLACE, RECORD, YEAR, YEAR_FRAME, ClientRecordTest
from harness import COMPLETED, ROOT, STARS, wait_until
from probe import WM_COMMAND

FIRM = "Schreinerei Grünbärtl & Töchter GmbH"
FILLED = "Das Textfeld wurde ausgefüllt"
CHOSEN = "Das Optionsfeld konnte erfolgreich ausgewählt werden."
SELECTED = "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden."
PRESSED = "Schaltfläche wurde gedrückt."
ASKED = f"ConfirmDialog: {RECORD} / Zwischenablage kopiert"
QUESTION = "Sollen die Gesellschafter in die Zwischenablage kopiert werden?"
PARTNERS = {
    "Grünbärtl, Xaver": "Geschäftsführer",
    "Grünbärtl, Veronika": "Prokuristin",
    "Grünbärtl, Änne": "Gesellschafterin",
    "Erbengemeinschaft Balthasar Grünbärtl, Tölz": "Gesellschafter",
    "Rößler, Ludwig": "Stiller Gesellschafter",
}


class DemoMacroTest(ClientRecordTest):
    def setUp(self):
        super().setUp()
        for name in ("QUMAEXP.INI", "QUMASTAMM.MAK"):
            shutil.copy(ROOT / "demo" / name, self.folder)

    def fill_clipboard(self):
        """So that the macro would not wait for it had it not cleared it."""
        self.probe.post(self.record, WM_COMMAND, COPY)
        box = self.probe.window(RECORD, where=lambda window: window.handle != self.record.handle)
        self.probe.post(box, WM_COMMAND, self.probe.control(box, text="Ja").id)
        wait_until(lambda: any(line.startswith("Zwischenablage: ") for line in self.teru_log()), "the filled clipboard")
        self.heard_before = len(self.teru_log())

    def test_macro_works_through_the_dialog(self):
        self.fill_clipboard()
        self.press(RECORD)
        self.wait_run_ended()
        log = self.log()
        log = log[log.index("MakroFile: QUMASTAMM.MAK") + 1 :]
        frame, year, currency, browse, copy, place = map(
            self.handle, (YEAR_FRAME, YEAR, CURRENCY, BROWSE, COPY, PLACE)
        )
        walk = []
        for row, position in enumerate(PARTNERS.values()):
            walk += ["VJ True", f"SelectList {row + 1}", f"GetListItemText {position}({row})", position, "NextYear"]
            walk += ["Loop: YearCount=0 CurrYear=1"]
        self.assertEqual(
            # The browser's button is gone, and its handle with it.
            [re.sub(r"\(\d+ 1\)", "(? 1)", line) for line in log],
            [
                "Variable wurde befüllt: Stammdaten",
                "Variable wurde befüllt: Verzeichnis auswählen",
                "Die Anschrift wird eingetragen...",
                f"{FILLED} (Hobelgasse 9)",
                f"{FILLED} (Umzug zum Jahreswechsel, siehe Schreiben vom 12.12.)",
                f"{FILLED} (C:\\)",
                f"ReadText: {FIRM}",
                f"Die Stammdaten von {FIRM} werden bearbeitet...",
                "Das Textfeld konnte nicht gelesen werden. (C:\\)",
                "MSG: Die Ablage ist noch nicht gewählt.",
                "Die Merkmale werden gesetzt...",
                f"{CHOSEN} (1)",
                f"{CHOSEN} (1)",
                f"{CHOSEN} (1)",
                f"{CHOSEN} (0)",
                f"{CHOSEN} (1)",
                "Optionsfeld ist ausgewählt.",
                "Das Wirtschaftsjahr wird gewählt...",
                f"{SELECTED} 2005;2004;2004 Rumpfjahr;2003;2002;...",
                f"Select Combo-> HWNDCTL: {year}Parent: {frame}",
                f"{SELECTED} Sel: 2003",
                "Der Text aus der Combobox wurde erfolgreich gelesen. 2003",
                "Das Wirtschaftsjahr 2003 ist gewählt...",
                f"Select Combo-> HWNDCTL: {currency}Parent: {frame}",
                f"{SELECTED} Sel: 2",
                "MSG: Die Währung ist gewählt.",
                "Die Gesellschafter werden gelesen...",
                *walk,
                "Der Wert Rößler, Ludwig wurde in der Liste gefunden.",
                "MSG: Der stille Gesellschafter ist eingetragen.",
                "Der Fokus wurde gesetzt.",
                "Die Liste wurde ausgewählt (5)",
                "Die Liste wurde ausgewählt (3)",
                "Die Ablage wird gewählt...",
                f"{PRESSED} ({browse} {BROWSE})",
                "Warten auf Fenster war erfolgreich.",
                "C:\\windows",
                f"{PRESSED} (? 1)",
                "GetPathFromCtl C:\\windows",
                "MSG: Die Ablage ist C:\\windows",
                "Die Gesellschafter werden kopiert...",
                "Die Zwischenablage wurde gelöscht.",
                ASKED,
                f"{PRESSED} ({copy} {COPY})",
                # Three seconds later, since the clipboard is still empty.
                ASKED,
                f"Dialog {RECORD} / {QUESTION} wurde mit Ja bestätigt.",
                "Die Zwischenablage wurde gefüllt.",
                "Der Fokus wurde gesetzt.",
                f"Der Fokus wurde auf das Feld gesetzt. ({place})",
                f"MainWindow: {self.record.handle}",
                f"Menu wurde ausgewählt ({MENU_SAVE} {self.record.handle})",
                f"WaitForDialog: {RECORD} / wurden gespeichert",
                f"Dialog {RECORD} / Die Stammdaten wurden gespeichert. wurde mit OK bestätigt.",
                "Die Stammdaten sind bearbeitet.",
                COMPLETED,
                STARS,
                "",
            ],
        )
        self.assert_dialog_was_worked_through()

    def assert_dialog_was_worked_through(self):
        self.wait_teru_log("Antwort: OK")
        # Ctrl+A selects the rows that are not selected yet; the lists' tests look at that.
        heard = [line for line in self.heard() if not re.match(r"Liste \d+: Strg|Liste 2281|Ordner: C:\\$", line)]
        copied = next(line for line in heard if line.startswith("Zwischenablage: "))
        self.assertEqual(
            heard,
            [
                "Text 2210/2212: Hobelgasse 9",
                "Text 2210/2215: Umzug zum Jahreswechsel, siehe Schreiben vom 12.12.",
                "Text 2261: C:\\",
                "Geklickt 2222: 1",
                "Geklickt 2232: 1",
                "Geklickt 2242: 1",
                "Geklickt 2245: 1",
                "Auswahl 2251, Mitteilung 1: 2003",
                "Auswahl 2251, Mitteilung 9: 2003",
                "Auswahl 2252, Mitteilung 1: DEM",
                "Auswahl 2252, Mitteilung 9: DEM",
                *[f"Liste 2271: {name}" for name in PARTNERS],
                "Schaltfläche: Auswählen, mit Steuerelement",
                "Ordner: C:\\windows",
                "Schaltfläche: Kopieren, mit Steuerelement",
                "Meldung: " + QUESTION,
                "Antwort: Ja",
                copied,
                "Menü: Speichern",
                "Meldung: Die Stammdaten wurden gespeichert.",
                "Antwort: OK",
            ],
        )


if __name__ == "__main__":
    unittest.main()
