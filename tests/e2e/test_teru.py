"""The stand-in by itself: what macros and the other tests rely on."""

import unittest

from harness import CAPTION, CODE_PAGE, FOLDER, EndToEndTest, wait_until
from probe import WM_CLOSE, WM_COMMAND

PATH_BOX, START, CLOSE, PROGRESS_TEXT = 2110, 2111, 2112, 2113
MENU_QUIT, MENU_EXPORT = 2001, 2101
MENU_CLIENT_RECORD, NAME, YEAR_FRAME, YEAR, PERIOD, PARTNERS = 2201, 2211, 2250, 2251, 2254, 2271
CB_SETCURSEL, CBN_SELCHANGE, CBN_SELENDOK, LVM_GETSELECTEDCOUNT = 334, 1, 9, 4146
FILES = {"Konten.csv": 38, "Debitoren.csv": 14, "Buchungen.csv": 480}


class TeruTest(EndToEndTest):
    def start_export(self, dialog, folder):
        self.assertEqual(self.probe.set_text(self.probe.control(dialog, PATH_BOX), folder), 1)
        start = self.probe.control(dialog, START)
        self.probe.post(dialog, WM_COMMAND, START, start.handle)

    def test_windows_are_those_that_macros_look_for(self):
        main, dialog = self.start_teru()
        self.assertEqual(main.text, "TeRu - 0012/4711/2005/Finanzbuchhaltung")
        self.assertEqual(main.class_name, "ThunderRT6FormDC")
        self.assertEqual(dialog.class_name, "ThunderRT6FormDC")
        self.assertEqual(self.probe.control(dialog, PATH_BOX).class_name, "ThunderRT6Textbox")
        self.assertEqual(self.probe.control(dialog, START).class_name, "ThunderRT6CommandButton")

    def test_caption_can_be_chosen(self):
        main, _ = self.start_teru(caption="TeRu - 0815 / 12 / 2004 / Lohnbuchführung")
        self.assertEqual(self.teru_log()[0], "Start: TeRu - 0815 / 12 / 2004 / Lohnbuchführung")
        self.assertEqual(self.probe.windows(main.text)[0].handle, main.handle)

    def test_export_writes_growing_files_and_tells_when_it_has_finished(self):
        _, dialog = self.start_teru()
        folder = self.folder / "Ausgabe für Prüfer"
        folder.mkdir()
        self.start_export(dialog, FOLDER + "\\Ausgabe für Prüfer")

        postings = folder / "Buchungen.csv"
        wait_until(postings.is_file, "the first rows of Buchungen.csv")
        early = postings.stat().st_size
        self.assertFalse(self.probe.control(dialog, START).enabled)

        box = self.probe.window("GDPdU-Export", where=lambda window: window.class_name == "#32770")
        texts = self.probe.texts(box)
        self.assertIn("OK", texts)
        self.assertIn("Der Export ist abgeschlossen. 3 Dateien wurden geschrieben.", texts)
        self.assertGreater(postings.stat().st_size, early)
        for name, rows in FILES.items():
            lines = (folder / name).read_bytes().decode(CODE_PAGE).split("\r\n")
            self.assertEqual(len(lines), 1 + rows + 1, name)
            self.assertEqual(lines[-1], "", name)
            fields = {line.count(";") for line in lines[:-1]}
            self.assertEqual(len(fields), 1, name)

        self.probe.post(box, WM_COMMAND, self.probe.control(box, text="OK").id)
        self.probe.wait_gone(box)
        self.wait_teru_log("Antwort: OK")
        expected = ["Start: " + CAPTION, "Text 2110: " + FOLDER + "\\Ausgabe für Prüfer"]
        expected += ["Schaltfläche: Export starten", "Export: " + FOLDER + "\\Ausgabe für Prüfer"]
        expected += [f"Datei: {name}, {(folder / name).stat().st_size} Bytes" for name in FILES]
        expected += ["Meldung: Der Export ist abgeschlossen. 3 Dateien wurden geschrieben.", "Antwort: OK"]
        self.assertEqual(self.teru_log(), expected)

    def test_missing_folder_is_reported(self):
        _, dialog = self.start_teru()
        self.start_export(dialog, FOLDER + "\\gibt es nicht")
        box = self.probe.window("GDPdU-Export", where=lambda window: window.class_name == "#32770")
        self.assertIn("Der Exportpfad ist nicht vorhanden: " + FOLDER + "\\gibt es nicht", self.probe.texts(box))
        self.desktop.key("Return")
        self.probe.wait_gone(box)

    def test_dialog_can_be_worked_by_hand(self):
        _, dialog = self.start_teru("--tick", "5")
        (self.folder / "hand").mkdir()
        self.desktop.click(*self.probe.control(dialog, PATH_BOX).middle)
        self.desktop.type(FOLDER + "\\hand")
        self.desktop.click(*self.probe.control(dialog, START).middle)
        box = self.probe.window("GDPdU-Export", where=lambda window: window.class_name == "#32770")
        self.desktop.key("Return")
        self.probe.wait_gone(box)
        self.assertEqual(sorted(path.name for path in (self.folder / "hand").iterdir()), sorted(FILES))

    def test_menu_opens_the_dialog_again(self):
        main, dialog = self.start_teru()
        self.probe.post(dialog, WM_COMMAND, CLOSE)
        self.probe.wait_gone(dialog)
        self.probe.post(main, WM_COMMAND, MENU_EXPORT)
        self.assertEqual(self.probe.window("GDPdU-Export").process, main.process)

    def test_ends_on_request_without_a_trace(self):
        main, _ = self.start_teru()
        self.probe.post(main, WM_CLOSE)
        wait_until(lambda: not self.probe.processes("TERU.EXE"), "the end of the stand-in")
        self.assertEqual(self.teru_log()[-1], "Ende")


class ClientRecordDialogTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        main, _ = self.start_teru()
        self.probe.post(main, WM_COMMAND, MENU_CLIENT_RECORD)
        self.record = self.probe.window("Stammdaten")

    def test_entries_selected_by_message_are_heard_of_by_notification_only(self):
        year, period = self.probe.control(self.record, YEAR), self.probe.control(self.record, PERIOD)
        self.assertEqual(self.probe.send(year, CB_SETCURSEL, 1), 1)
        self.assertEqual(self.probe.control(self.record, PERIOD), period)
        self.assertEqual([line for line in self.teru_log() if line.startswith("Auswahl")], [])
        frame = self.probe.control(self.record, YEAR_FRAME)
        for notification in (CBN_SELCHANGE, CBN_SELENDOK):
            self.probe.send(frame, WM_COMMAND, notification << 16 | YEAR, year.handle)
        self.assertEqual(self.probe.control(self.record, PERIOD).text, "01.01.2004 bis 31.12.2004")
        self.assertEqual(
            [line for line in self.teru_log() if line.startswith("Auswahl")],
            [f"Auswahl {YEAR}, Mitteilung 1: 2004", f"Auswahl {YEAR}, Mitteilung 9: 2004"],
        )

    def test_dialog_can_be_worked_by_keys(self):
        self.bring_to_front("Stammdaten")
        name = self.probe.control(self.record, NAME)
        self.desktop.click(*name.middle)
        wait_until(lambda: self.probe.focus(self.record) == name.handle, "the focus of the first text box")
        self.desktop.key(*["Tab"] * 27)
        order = ["2211", "2212", "2213", "2214", "2215", "2216", "2261", "2271", "2281"]

        def focus():
            return [line.split()[1] for line in self.teru_log() if line.startswith("Fokus")]

        wait_until(lambda: focus()[-len(order) :] == [*order[1:], order[0]], "the way round by the tab key")
        self.desktop.key(*["Tab"] * 20, "ctrl+a")
        self.wait_teru_log(f"Liste {PARTNERS}: Strg+A")
        self.assertEqual(self.probe.send(self.probe.control(self.record, PARTNERS), LVM_GETSELECTEDCOUNT), 5)
        self.desktop.key("Escape")
        self.probe.wait_gone(self.record)


if __name__ == "__main__":
    unittest.main()
