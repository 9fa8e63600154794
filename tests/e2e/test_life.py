"""The life of the program as its user sees it: real keys and clicks, real windows, the log on disk."""

import datetime
import re
import shutil
import unittest

from harness import (
    CODE_PAGE,
    COMPLETED,
    DESTINATION,
    FOLDER,
    PROGRAM,
    REGISTRY_KEY,
    STARS,
    TITLE,
    WINDOWS_BUILD,
    WM_NULL,
    EndToEndTest,
    wait_until,
)
from probe import WM_CLOSE
from project import VERSION

STOPPED = "Die Verarbeitung wurde angehalten."
STARTED = "Tarven Datenexport wurde gestartet..."
MACRO_MISSING = "Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet."
HOT_KEY_TAKEN = "Fehler beim registrieren der Aktionstaste."
ENDLESS = "WAITFORWINDOW=Dieses Fenster gibt es nicht,1,,,0\n"
FOUND = "Warten auf Fenster war erfolgreich."
DISCOVERY = ["GetTeRuDestination (2. RegValue): C:\\TeRu", "Ausgabeverzeichnis erstellt: C:\\TeRu\\"]


class LogTest(EndToEndTest):
    """What the tests of this file expect of the log."""

    def header(self, makro_file="PROBE.MAK"):
        """The run header with the date left out; see without_date."""
        return ["", STARS, STARTED, "Datum:", "MakroFile: " + makro_file]

    def log_without_dates(self):
        return [re.sub(r"^Datum:.*", "Datum:", line) for line in self.log()]

    def assert_log(self, *lines):
        """The whole log: what the start leaves, and these lines."""
        self.assertEqual(self.log_without_dates(), [*DISCOVERY, *lines, ""])


class StartAndEndTest(LogTest):
    def test_start_leaves_one_icon_and_asks_nothing(self):
        process = self.start_program()
        wait_until(lambda: len(self.icons()) == 1, "the icon")
        self.assertEqual(self.probe.windows(process=process), [])
        self.assert_log()

    def test_unknown_destination_is_asked_for_once(self):
        self.probe.set_registry(REGISTRY_KEY, "Teru", "")
        (self.desktop.host_path(DESTINATION) / "tarven.exe").write_bytes(b"")
        self.start_program_asking()
        question = (
            "Das Ausgabeverzeichnis für den Datenexport konnte nicht ermittelt werden.\n"
            "Bitte wählen Sie das TeRu-Installationsverzeichnis aus!"
        )
        box = self.probe.window(TITLE)
        self.assertIn(question, [text.replace("\r\n", "\n") for text in self.probe.texts(box)])
        self.answer(TITLE, "Return")
        chooser = self.probe.window("TARVEN Datenexport - Bitte wählen Sie das TeRu-Installationsverzeichnis aus")
        self.answer(chooser.text, "ctrl+a")
        self.desktop.type("C:\\TeRu\\tarven.exe")
        self.desktop.key("Return")
        self.dialog("Das TeRu-Installationsverzeichnis wurde auf C:\\TeRu festgelegt.")
        self.answer(TITLE, "Return")
        wait_until(self.icons, "the icon")
        self.assertEqual(self.probe.registry(REGISTRY_KEY, "Teru"), "C:\\TeRu")
        self.assertEqual(
            self.log(),
            ["GetTeRuDestination (3. FolderSelect): C:\\TeRu", "Ausgabeverzeichnis erstellt: C:\\TeRu\\", ""],
        )

    def test_second_instance_says_so_and_ends(self):
        first = self.start_program()
        self.start_program_asking()
        self.dialog(HOT_KEY_TAKEN, "OK")
        self.assertEqual(len(self.probe.processes(PROGRAM)), 2)
        self.answer(TITLE, "Return")
        wait_until(lambda: self.probe.processes(PROGRAM) == [first], "the end of the second instance")
        wait_until(lambda: len(self.icons()) == 1, "the end of the second icon")
        self.lay_macro("MSG=noch da\n")
        self.start_teru()
        self.press()
        self.wait_run_ended()
        self.assertIn("MSG: noch da", self.log())

    def test_exit_during_a_run_leaves_no_icon(self):
        process = self.start_program()
        self.lay_macro(ENDLESS)
        self.start_teru()
        self.press()
        self.status_dialog()
        self.choose_from_menu("Beenden")
        wait_until(lambda: process not in self.probe.processes(PROGRAM), "the end of the program")
        wait_until(lambda: not self.icons(), "the end of the icon")
        self.assertEqual(self.probe.windows(TITLE), [])
        self.assert_log(*self.header())


class ChoiceTest(LogTest):
    def test_no_macro_fits_and_the_program_stays(self):
        process = self.start_program()
        self.lay_macro("MSG=doch\n", fragment="TERU -")
        self.start_teru()
        self.press()
        self.dialog(MACRO_MISSING, "OK")
        self.answer(TITLE, "Return")
        wait_until(lambda: not self.probe.windows(TITLE), "the end of the message box")
        self.assertEqual(self.probe.processes(PROGRAM), [process])
        self.assert_log()

    def test_changed_settings_take_effect_at_the_next_press(self):
        self.start_program()
        self.lay_macro("MSG=$WJ\n", Einkommensteuer={"Veranlagungsjahr": "1998"})
        self.start_teru()
        self.press()
        self.wait_run_ended()
        self.lay("ANDERE.MAK", "MSG=anders $WJ\n")
        self.lay_macro("MSG=anders $WJ\n", name="ANDERE.MAK", Einkommensteuer={"Veranlagungsjahr": "1999,2000"})
        self.press()
        self.wait_run_ended(runs=2)
        run = [COMPLETED, STARS]
        self.assert_log(
            *self.header(), "MSG: 1998", *run, *self.header("ANDERE.MAK"), "MSG: anders 1999", *run
        )

    def test_cancelled_client_dialog_leaves_a_header_with_no_run(self):
        self.start_program()
        self.lay_macro("MSG=nie\n", name="QUMAFIBU.MAK")
        self.start_teru()
        self.press()
        question = "Möchten Sie den Mandanten 4711 aus dem Wirtschaftsjahr 2005 übernehmen?"
        dialog = self.dialog("Mandant:", "Wirtschaftsjahr:", question, "4711", "2005")
        self.click_button(dialog, "Abbrechen")
        self.probe.wait_gone(dialog)
        self.assertEqual(self.probe.windows(TITLE), [])
        self.assert_log(*self.header("QUMAFIBU.MAK"))

    def test_typed_client_and_year_name_the_export_path(self):
        self.start_program()
        self.lay_macro("MSG=$GDPDUPATH\n", name="QUMAFIBU.MAK")
        self.start_teru(caption="TeRu - ohne Mandant")
        self.press("TeRu - ohne Mandant")
        self.dialog("Der Mandant und das Wirtschaftsjahr konnten nicht ermittelt werden.")
        # The first text box has the focus, Tab leads to the second, Enter presses OK.
        self.bring_to_front(TITLE)
        self.desktop.type("0815")
        self.desktop.key("Tab")
        self.desktop.type("2004")
        self.desktop.key("Return")
        self.wait_run_ended()
        path = "C:\\TeRu\\Extern\\0815\\FIBU\\2004\\GDPDU"
        self.assert_log(
            *self.header("QUMAFIBU.MAK"),
            "Mandant: 0815",
            "Wirtschaftsjahr: 2004",
            "",
            *DISCOVERY,
            f"Ausgabeverzeichnis erstellt: {path}\\",
            f"MSG: {path}",
            COMPLETED,
            STARS,
        )
        self.assertTrue(self.desktop.host_path(path).is_dir())


class ProgramStartTest(LogTest):
    def test_the_longest_beginning_that_is_a_program_is_started(self):
        (self.folder / "Mein Ordner").mkdir()
        for name in ("Mein.exe", "Mein Ordner/das Programm.exe"):
            shutil.copy(WINDOWS_BUILD / "TERU.EXE", self.folder / name)
        self.start_program()
        self.lay_macro(
            f'EXEC="{FOLDER}\\Mein Ordner\\das Programm.exe" --caption Gestartet\n'
            "WAITFORWINDOW=Gestartet,0,,,0\n"
            "EXEC=\n"
        )
        self.start_teru()
        self.press()
        self.status_dialog("Programm kann nicht ausgeführt werden: ")
        self.assertEqual(len(self.probe.processes("das Programm.exe")), 1)
        self.assertEqual(self.probe.processes("Mein.exe"), [])
        self.assert_log(
            *self.header(),
            f"Programm wird ausgeführt: {FOLDER}\\Mein Ordner\\das Programm.exe --caption Gestartet",
            FOUND,
            "Programm kann nicht ausgeführt werden: ",
        )
        self.probe.post(self.probe.window("Gestartet"), WM_CLOSE)
        wait_until(lambda: not self.probe.processes("das Programm.exe"), "the end of the program that was started")


class StatusDialogTest(LogTest):
    def test_cancel_ends_a_wait(self):
        self.start_program()
        self.lay_macro(ENDLESS + "MSG=nie\n")
        self.start_teru()
        self.press()
        status = self.status_dialog()
        self.assertFalse(self.probe.control(status, text="W&eiter").enabled)
        self.assertFalse(self.probe.control(status, text="&OK").enabled)
        self.click_button(status, "A&bbrechen")
        self.wait_run_ended()
        self.assertEqual(self.probe.windows(TITLE), [])
        self.assert_log(*self.header(), "<Cancel>", FOUND, STOPPED, STARS)

    def test_resume_goes_on_behind_the_failed_line(self):
        self.start_program()
        self.lay_macro("DIM x\nx=VALUE(bleibt)\nMSG=vorher\nGIBTESNICHT=1\nMSG=x\n")
        self.start_teru()
        self.press()
        status = self.status_dialog("Beim exportieren ist ein Fehler aufgetreten.", "Unknown Command: GIBTESNICHT")
        self.assertTrue(self.probe.control(status, text="W&eiter").enabled)
        self.assertFalse(self.probe.control(status, text="&OK").enabled)
        self.answer(TITLE, "alt+e")
        self.status_dialog(COMPLETED)
        self.wait_run_ended()
        self.answer(TITLE, "Return")
        self.probe.wait_gone(status)
        self.assert_log(
            *self.header(),
            "Variable wurde befüllt: bleibt",
            "MSG: vorher",
            "Unknown Command: GIBTESNICHT",
            "<Cancel>",
            "MSG: bleibt",
            COMPLETED,
            STARS,
        )

    def test_failure_in_the_last_line_resumes_to_the_end(self):
        self.start_program()
        self.lay_macro("RAISEERROR=Das Ende ist falsch.")
        self.start_teru()
        self.press()
        status = self.status_dialog("Das Ende ist falsch.")
        self.click_button(status, "W&eiter")
        self.wait_run_ended()
        self.assert_log(*self.header(), "Das Ende ist falsch.", "<Cancel>", COMPLETED, STARS)

    def test_cancel_after_a_failure_ends_the_frame_open(self):
        self.start_program()
        self.lay_macro("RAISEERROR=Nein.\nMSG=nie\n")
        self.start_teru()
        self.press()
        status = self.status_dialog("Nein.")
        self.click_button(status, "A&bbrechen")
        self.probe.wait_gone(status)
        self.assert_log(*self.header(), "Nein.", "<Cancel>")

    def test_second_press_during_a_wait_starts_a_nested_run(self):
        self.start_program()
        self.lay_macro(ENDLESS + "MSG=nie\n")
        self.start_teru()
        self.press()
        self.status_dialog()
        self.lay_macro("MSG=innen\n", name="INNEN.MAK")
        self.press()
        # The inner run is complete, and the outer one still waits.
        self.wait_log("MakroFile: INNEN.MAK")
        self.wait_log(COMPLETED)
        self.click_button(self.status_dialog(COMPLETED), "A&bbrechen")
        self.wait_log(STOPPED)
        self.wait_log(STARS, times=4)
        self.assert_log(
            *self.header(),
            *self.header("INNEN.MAK"),
            "MSG: innen",
            COMPLETED,
            STARS,
            "<Cancel>",
            FOUND,
            STOPPED,
            STARS,
        )


class OrderTest(LogTest):
    """What waits for the user must not be covered by the status dialog of a run that has ended."""

    def end_a_run(self):
        self.start_program()
        self.lay_macro("MSG=1\n")
        self.start_teru()
        self.press()
        self.wait_run_ended()
        return self.status_dialog()

    def assert_above(self, window, status):
        shown = [other.handle for other in self.probe.windows()]
        self.assertLess(shown.index(window.handle), shown.index(status.handle))

    def test_a_message_is_above_the_status_dialog(self):
        status = self.end_a_run()
        (self.folder / "PROBE.MAK").unlink()
        self.press()
        box = self.dialog("Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet.")
        self.assert_above(box, status)

    def test_a_dialog_of_the_menu_is_above_the_status_dialog(self):
        status = self.end_a_run()
        self.choose_from_menu("Info")
        self.assert_above(self.dialog("&Systeminfo...", title="Info"), status)


class ShellTest(LogTest):
    def test_a_shell_that_starts_anew_gets_the_icon_back(self):
        process = self.start_program()
        form = self.main_form(process)
        wait_until(self.icons, "the icon")
        self.probe.remove_icon(form, 1)
        wait_until(lambda: not self.icons(), "the end of the icon")
        self.probe.broadcast("TaskbarCreated")
        wait_until(self.icons, "the icon again")
        self.probe.broadcast("TaskbarCreated")
        self.probe.send(form, WM_NULL)
        self.assertEqual(len(self.icons()), 1)
        self.choose_from_menu("Beenden")
        wait_until(lambda: not self.probe.processes(PROGRAM), "the end of the program")


class MenuTest(LogTest):
    def test_menu_shows_the_log(self):
        self.start_program()
        self.lay_macro("MSG=für das Protokoll\n")
        self.start_teru()
        self.press()
        self.wait_run_ended()
        self.answer(TITLE, "Return")
        self.choose_from_menu("Protokoll anzeigen")
        form = self.probe.window("TARVEN Datenexport - Protokoll")
        shown = "\n".join(self.probe.texts(form)).replace("\r\n", "\n").replace("\r", "\n")
        self.assertIn("\n".join(self.log()).strip(), shown)
        self.answer(form.text, "alt+F4")
        self.probe.wait_gone(form)

    def test_menu_shows_the_about_dialog(self):
        self.start_program()
        self.choose_from_menu("Info")
        form = self.dialog("TARVEN Datenexport", "Version: " + VERSION, "OK", "&Systeminfo...", title="Info")
        self.answer("Info", "Return")
        self.probe.wait_gone(form)

    def test_menu_during_a_wait_lets_the_run_go_on(self):
        self.start_program()
        self.lay_macro("WAITFORWINDOW=TeRu - zweite,0,,,0\nMSG=weiter\n")
        self.start_teru()
        self.press()
        self.status_dialog()
        menu = self.open_menu()
        self.desktop.click(900, 300)
        self.probe.wait_gone(menu)
        self.start(WINDOWS_BUILD / "TERU.EXE", "--caption", "TeRu - zweite")
        self.wait_run_ended()
        self.assert_log(*self.header(), FOUND, "MSG: weiter", COMPLETED, STARS)


class ExportTest(LogTest):
    MACRO = """\
REM Der ganze Weg durch den Exportdialog
DIM Fenster
Fenster=VALUE(GDPdU-Export)
\tDISPLAYSTATUS=Schritt %1 von 3,1
WAITFORWINDOW=Fenster,1,,,0
SETTEXT='$GDPDUPATH',2110,Fenster,1,ThunderRT6Textbox
BUTTONCLICK=2111,Fenster,1,,ThunderRT6CommandButton
DISPLAYSTATUS=Schritt %1 von 3,2
WAITFORDIALOG=Fenster,ABGESCHLOSSEN
WAITFORFILE='$GDPDUPATH\\Konten.csv'
IF STRCOMP=Fenster,GDPdU-Export
CREATEPROTOCOL='$GDPDUPATH\\Prüfung.txt'
ADDPROTOCOL='Buchungen, Debitoren und Konten für den Prüfer'
CLOSEPROTOCOL
ELSE
MSG=falscher Zweig
ENDIF
GOTO=Ende
MSG=übersprungen
MARK=Ende
CONFIRMDIALOG=Fenster,Hinweis
MSG=Schluß am $DATE
"""

    def test_the_log_of_an_export_byte_for_byte(self):
        self.start_program()
        self.lay_macro(self.MACRO, name="QUMAFIBU.MAK")
        caption = "TeRu - 0012 / 4711 / 2005 / Finanzbuchhaltung"  # its blanks get into the path
        _, export = self.start_teru(caption=caption)
        handle = self.probe.control(export, 2111).handle
        before = datetime.datetime.now().replace(microsecond=0)
        self.press(caption)
        self.dialog("Mandant:")
        self.answer(TITLE, "Return")
        self.wait_run_ended()
        after = datetime.datetime.now()

        log = self.log_bytes()
        date = re.search(rb"\r\nDatum:([^\r]*)\r\n", log).group(1).decode(CODE_PAGE)
        self.assertTrue(before <= datetime.datetime.strptime(date, "%d.%m.%Y %H:%M:%S") <= after, date)

        path = "C:\\TeRu\\Extern\\ 4711 \\FIBU\\ 2005\\GDPDU"
        folder = self.desktop.host_path(path)
        path_lines = [*DISCOVERY, f"Ausgabeverzeichnis erstellt: {path}\\"]
        expected = [
            *DISCOVERY,
            "",
            STARS,
            STARTED,
            f"Datum:{date}",
            "MakroFile: QUMAFIBU.MAK",
            "Mandant:  4711 ",
            "Wirtschaftsjahr:  2005 ",
            "",
            "Variable wurde befüllt: GDPdU-Export",
            "Schritt 1 von 3",
            FOUND,
            *path_lines,
            f"Das Textfeld wurde ausgefüllt ({path})",
            f"Schaltfläche wurde gedrückt. ({handle} 2111)",
            "Schritt 2 von 3",
            "WaitForDialog: GDPdU-Export / ABGESCHLOSSEN",
            "Dialog GDPdU-Export / Der Export ist abgeschlossen. 3 Dateien wurden geschrieben. wurde mit OK bestätigt.",
            *path_lines,
            f"Datei wird eingelesen ({(folder / 'Konten.csv').stat().st_size}) ",
            "STRCOMP: GDPdU-Export, GDPdU-Export = True",
            *path_lines,
            "Sprungmarke (MARK=ENDE) gefunden: 19",
            "ConfirmDialog: GDPdU-Export / Hinweis",
            f"MSG: Schluß am {date[:10]}",
            COMPLETED,
            STARS,
            "",
        ]
        self.assertEqual(log, "\r\n".join(expected).encode(CODE_PAGE))
        self.assertEqual(
            (folder / "Prüfung.txt").read_bytes(),
            "Buchungen, Debitoren und Konten für den Prüfer\r\n".encode(CODE_PAGE),
        )
        self.assertEqual(
            self.teru_log(),
            [
                "Start: " + caption,
                "Text 2110: " + path,
                "Schaltfläche: Export starten",
                "Export: " + path,
                *[
                    f"Datei: {name}, {(folder / name).stat().st_size} Bytes"
                    for name in ("Konten.csv", "Debitoren.csv", "Buchungen.csv")
                ],
                "Meldung: Der Export ist abgeschlossen. 3 Dateien wurden geschrieben.",
                "Antwort: OK",
            ],
        )


if __name__ == "__main__":
    unittest.main()
