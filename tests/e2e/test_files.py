"""The verbs for files and folders, on the system's own files."""

import threading
import time
import unittest

from harness import CODE_PAGE, COMPLETED, PROGRAM, RESULTS, STARS, EndToEndTest, wait_until

DATA = "C:\\TeRu\\Büro"
STATUS_LABEL = 101
MADE = "Ausgabeverzeichnis erstellt: "


class FilesTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.data = self.desktop.host_path(DATA)
        self.data.mkdir()
        self.start_program()
        self.start_teru()

    def put(self, name, text="Inhalt äöüß€\r\n"):
        path = self.data.joinpath(*name.split("\\"))
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode(CODE_PAGE))
        return path

    def names(self, name=""):
        folder = self.data.joinpath(*name.split("\\"))
        return sorted(path.name for path in folder.iterdir())

    def begin_macro(self, *lines):
        self.lay_macro("\n".join(lines) + "\n")
        self.press()

    def lines_of_run(self):
        log = self.log()
        return log[log.index("MakroFile: PROBE.MAK") + 1 :]

    def run_macro(self, *lines):
        """Runs the lines to their end and yields what they have left in the log."""
        self.begin_macro(*lines)
        self.wait_run_ended()
        log = self.lines_of_run()
        self.assertEqual(log[-3:], [COMPLETED, STARS, ""])
        return log[:-3]

    def fail_macro(self, line):
        """Runs a line that fails, and yields what it has left in the log."""
        self.begin_macro(line, "MSG=nie")
        self.status_dialog("Beim exportieren ist ein Fehler aufgetreten.")
        return self.lines_of_run()[:-1]

    def picture(self, control):
        left, top, right, bottom = control.place
        path = RESULTS / "picture.ppm"
        place = f"{right - left}x{bottom - top}+{left}+{top}"
        self.desktop.command(["import", "-silent", "-window", "root", "-crop", place, str(path)])
        return path.read_bytes()

    # Whole files and folders

    def test_names_and_contents_with_umlauts_stay_as_they_are(self):
        text = "".join(chr(code) for code in range(160, 256)) + "€„“š\r\n"
        self.put("Übersicht Größe.txt", text)
        log = self.run_macro(
            f"COPYFILE={DATA}\\Übersicht Größe.txt,{DATA}\\Prüfer Ä\\",
            f"COPYFOLDER={DATA}\\Prüfer Ä,{DATA}\\Zweite Übergabe\\Öl",
            f"RENAMEPATH={DATA}\\Zweite Übergabe,{DATA}\\Dritte Übergabe",
            f"DELETEFILE={DATA}\\ÜBERSICHT GRößE.txt",
            f"DELETEFOLDER={DATA}\\Prüfer Ä",
        )
        self.assertEqual(
            log,
            [
                f"{MADE}{DATA}\\Prüfer Ä\\",
                f"CopyFile {DATA}\\Übersicht Größe.txt To {DATA}\\Prüfer Ä\\",
                f"CopyFolder: Source={DATA}\\Prüfer Ä Destination={DATA}\\Zweite Übergabe\\Öl",
                f"Ordner wird erstellt ({DATA}\\Zweite Übergabe\\Öl)",
                f"{MADE}{DATA}\\Zweite Übergabe\\Öl\\",
                f"RenamePath: Source={DATA}\\Zweite Übergabe Destination={DATA}\\Dritte Übergabe",
                f"Datei gelöscht: {DATA}\\ÜBERSICHT GRößE.txt",
                f"Ordner gelöscht:{DATA}\\Prüfer Ä",
            ],
        )
        self.assertEqual(self.names(), ["Dritte Übergabe"])
        copy = self.data / "Dritte Übergabe" / "Öl" / "Übersicht Größe.txt"
        self.assertEqual(copy.read_bytes(), text.encode(CODE_PAGE))

    def test_folders_are_merged_and_a_deleted_one_takes_read_only_files_along(self):
        self.put("neu\\unter\\a.txt", "neu")
        self.put("alt\\Unter\\A.TXT", "alt und länger")
        self.put("alt\\Unter\\b.txt", "bleibt")
        self.put("weg\\fest.txt").chmod(0o444)
        self.run_macro(f"COPYFOLDER={DATA}\\neu,{DATA}\\alt", f"DELETEFOLDER={DATA}\\weg")
        self.assertEqual(self.names(), ["alt", "neu"])
        self.assertEqual(self.names("alt"), ["Unter"])
        self.assertEqual(self.names("alt\\Unter"), ["A.TXT", "b.txt"])
        self.assertEqual((self.data / "alt" / "Unter" / "A.TXT").read_bytes(), b"neu")

    def test_only_star_dot_star_is_a_pattern_for_deleting(self):
        for name in ("a.txt", "b.doc", "ohne"):
            self.put(name)
        self.put("ordner\\c.txt")
        self.run_macro(f"DELETEFILE={DATA}\\*.txt")
        self.assertEqual(self.names(), ["a.txt", "b.doc", "ohne", "ordner"])
        self.begin_macro(f"DELETEFILE={DATA}\\*.*")
        self.wait_run_ended(2)
        self.assertEqual(self.names(), ["ordner"])

    def test_create_dir_takes_out_the_dots_and_leaves_the_backslashes(self):
        log = self.run_macro("DIM Ordner", f"Ordner=CREATEDIR({DATA},Dr. Öl,01.01.2003)", "MSG=Ordner")
        path = f"{DATA}\\Dr Öl\\01012003\\\\"
        self.assertEqual(log, [f"{MADE}{path}", f"CreateDir: {path}", f"MSG: {path}"])
        self.assertEqual(self.names("Dr Öl"), ["01012003"])

    def test_a_missing_source_costs_the_destination_of_a_rename(self):
        self.put("ziel\\a.txt")
        self.run_macro(f"RENAMEPATH={DATA}\\fehlt,{DATA}\\ziel")
        self.assertEqual(self.names(), [])

    def test_without_a_confirmed_client_a_copy_below_the_fibu_path_goes_to_the_root(self):
        self.put("a.txt")
        copy = self.desktop.host_path("C:\\a.txt")
        self.addCleanup(copy.unlink, missing_ok=True)
        log = self.run_macro(f"COPYFILE={DATA}\\a.txt,$FIBUPATH\\")
        self.assertEqual(log[-2:], [f"{MADE}\\", f"CopyFile {DATA}\\a.txt To \\"])
        self.assertTrue(copy.exists())

    # Names outside the code page. The wide backslash, U+FF3C, becomes a backslash in it.

    def lay_foreign(self):
        """A folder with a file and a folder whose names point out of it, and what they point to."""
        self.put("victim.txt")
        self.put("opfer\\a.txt")
        folder = self.data / "x"
        (folder / "..\uff3copfer").mkdir(parents=True)
        for path in (folder / "..\uff3cvictim.txt", folder / "..\uff3copfer" / "Łódź.txt"):
            path.write_text("x")
        return folder

    def assert_victims_stay(self):
        self.assertEqual(self.names("opfer"), ["a.txt"])
        self.assertIn("victim.txt", self.names())

    def test_what_is_deleted_lies_in_the_named_folder(self):
        folder = self.lay_foreign()
        log = self.run_macro(f"DELETEFILE={DATA}\\x\\*.*")
        self.assertEqual(log, [f"Dateien gelöscht: {DATA}\\x\\*.*"])
        self.assertEqual([path.name for path in folder.iterdir()], ["..\uff3copfer"])
        self.assert_victims_stay()
        self.begin_macro(f"DELETEFOLDER={DATA}\\x")
        self.wait_run_ended(2)
        self.assertFalse(folder.exists())
        self.assert_victims_stay()

    def test_copies_keep_names_that_the_code_page_lacks(self):
        self.lay_foreign()
        self.run_macro(f"COPYFOLDER={DATA}\\x,{DATA}\\y", f"COPYFILE={DATA}\\y\\..\\x\\*.*,{DATA}\\z\\",
                       f"RENAMEPATH={DATA}\\y,{DATA}\\neu")
        self.assertEqual(self.names("neu"), ["..\uff3copfer", "..\uff3cvictim.txt"])
        self.assertEqual(self.names("neu\\..\uff3copfer"), ["Łódź.txt"])
        self.assertEqual(self.names("z"), ["..\uff3cvictim.txt"])
        self.assert_victims_stay()

    def test_the_9x_family_refuses_a_folder_whose_names_lead_out_of_it(self):
        folder = self.lay_foreign()
        key = "HKCU\\Software\\Wine\\AppDefaults\\QUMA98.EXE"
        self.desktop.command(["wine", "reg", "add", key, "/v", "Version", "/d", "win98", "/f"])
        self.addCleanup(self.desktop.command, ["wine", "reg", "delete", key, "/f"])
        self._started[0].kill()
        wait_until(lambda: not self.probe.processes(PROGRAM), "the end of the program")
        self.start_program("QUMA98.EXE")
        log = self.fail_macro(f"DELETEFOLDER={DATA}\\x")
        self.assertEqual(log, [f"Fehler in Funktion DeleteFolder:Falscher Dateiname ({DATA}\\x)"])
        self.assertEqual(len(list(folder.iterdir())), 2)
        self.assert_victims_stay()

    # Files that are read

    def test_the_folder_in_mandanten_txt_takes_the_place_of_the_year(self):
        record = ";" * 17 + "Prüfung Ä;mehr"
        path = self.desktop.host_path("C:\\TeRu\\Extern\\4711\\2005\\Mandanten.txt")
        path.parent.mkdir(parents=True)
        path.write_bytes(f"Überschrift\r\n{record}\r\n".encode(CODE_PAGE))
        log = self.run_macro("MSG=$MANDANTPATH")
        self.assertEqual(
            log[-2:], [f"{MADE}C:\\TeRu\\Extern\\4711\\2005\\", "MSG: C:\\TeRu\\Extern\\4711\\Prüfung Ä"]
        )

    def test_the_records_of_a_file_are_walked_to_its_end(self):
        self.put("Mandanten Ä.csv", "Nummer;Name;\r\n1;Müller;\r\n2;Groß & Klein;")
        log = self.run_macro(
            f"OPENCSV={DATA}\\Mandanten Ä.csv,1,;", "DIM Name", "DO", "Name=CSVVALUE(1)", "LOOP UNTIL CSVFILE.EOF"
        )
        self.assertEqual(
            log,
            [
                f"CSV-Datei ({DATA}\\Mandanten Ä.csv) erfolgreich geöffnet",
                "GetCSVValue Line 1;Müller;",
                "GetCSVValue: Value=Müller",
                "isCSVFileEOF: EOF=False",
                "GetCSVValue Line 2;Groß & Klein;",
                "GetCSVValue: Value=Groß & Klein",
                "isCSVFileEOF: EOF=True",
            ],
        )
        (self.data / "Mandanten Ä.csv").unlink()
        self.begin_macro(f"OPENCSV={DATA}\\Mandanten Ä.csv,1,;")
        self.wait_log(f"CSV-Datei ({DATA}\\Mandanten Ä.csv) existiert nicht...")

    # What the system refuses

    def test_a_missing_source_fails_with_its_number(self):
        log = self.fail_macro(f"COPYFILE={DATA}\\fehlt.txt,{DATA}\\ziel\\")
        self.assertEqual(log[-1], "Fehler 53 beim Kopieren: Datei nicht gefunden")

    def test_a_destination_without_a_backslash_becomes_a_folder_and_fails(self):
        self.put("a.txt")
        log = self.fail_macro(f"COPYFILE={DATA}\\a.txt,{DATA}\\b.txt")
        self.assertEqual(log, [f"{MADE}{DATA}\\b.txt\\", "Fehler 70 beim Kopieren: Zugriff verweigert"])
        self.assertEqual(self.names("b.txt"), [])

    def test_a_full_disk_fails_with_its_number(self):
        self.put("a.txt")
        (self.data / "voll.txt").symlink_to("/dev/full")
        log = self.fail_macro(f"COPYFILE={DATA}\\a.txt,{DATA}\\voll.txt")
        self.assertEqual(log[-1], "Fehler 61 beim Kopieren: Datenträger voll")

    def test_an_empty_folder_has_no_files_to_delete(self):
        log = self.fail_macro(f"DELETEFILE={DATA}\\*.*")
        self.assertEqual(log, ["Fehler in Funktion DeleteFile:Datei nicht gefunden"])

    def test_a_path_of_300_characters_fails_without_a_crash(self):
        self.put("a.txt")
        long_path = f"{DATA}\\{'x' * 300}"
        lines = (f"COPYFILE={DATA}\\a.txt,{long_path}\\", f"COPYFOLDER={DATA},{long_path}")
        for number, line in enumerate(lines, 1):
            with self.subTest(line):
                self.lay_macro(line + "\nMSG=weiter\n")
                self.press()
                dialog = self.status_dialog("Beim exportieren ist ein Fehler aufgetreten.")
                self.click_button(dialog, "W&eiter")
                self.wait_log("MSG: weiter", times=number)

    # Waiting

    def test_a_file_that_another_process_writes_is_waited_for_until_its_size_stands_still(self):
        path = self.data / "Buchungen Ä.csv"

        def write():
            with open(path, "wb", buffering=0) as file:
                for _ in range(20):
                    file.write(b"1234567890")
                    time.sleep(0.25)

        writer = threading.Thread(target=write)
        self.begin_macro(f"WAITFORFILE={DATA}\\Buchungen Ä.csv", "MSG=fertig")
        label = self.probe.control(self.status_dialog(), STATUS_LABEL)
        writer.start()
        self.addCleanup(writer.join)
        # What is seen, since the program answers no message while it sleeps.
        shown = set()
        while STARS not in self.lines_of_run():
            shown.add(self.picture(label))
        self.assertFalse(writer.is_alive())
        log = self.lines_of_run()[:-3]
        self.assertEqual(log[-1], "MSG: fertig")
        sizes = [int(line.removeprefix("Datei wird eingelesen (").removesuffix(") ")) for line in log[:-1]]
        self.assertEqual(sizes, sorted(set(sizes)))
        self.assertEqual(sizes[-1], 200)
        self.assertGreaterEqual(len(sizes), 3)
        # Besides the empty label; a busy machine misses some.
        self.assertGreaterEqual(len(shown), 3)

    def test_cancel_ends_the_wait_for_a_growing_file(self):
        path = self.put("wächst.csv", "")
        stop = threading.Event()

        def write():
            with open(path, "ab", buffering=0) as file:
                while not stop.wait(0.1):
                    file.write(b"x")

        writer = threading.Thread(target=write)
        writer.start()
        self.addCleanup(writer.join)
        self.addCleanup(stop.set)
        self.begin_macro(f"WAITFORFILE={DATA}\\*.csv", "MSG=nie")
        wait_until(lambda: any("eingelesen" in line for line in self.log()), "the first size")
        self.click_button(self.status_dialog(), "A&bbrechen")
        self.wait_run_ended()
        log = self.lines_of_run()
        self.assertEqual(log[-3:], ["Die Verarbeitung wurde angehalten.", STARS, ""])
        self.assertNotIn("MSG: nie", log)

    def test_cancel_ends_the_wait_for_a_file_that_never_comes(self):
        self.begin_macro(f"WAITFORFILE={DATA}\\nie.csv", "MSG=nie")
        self.click_button(self.status_dialog(), "A&bbrechen")
        self.wait_run_ended()
        log = self.lines_of_run()
        expected = ["<Cancel>", f"Datei existiert nicht mehr: {DATA}\\nie.csv"]
        self.assertEqual(log, [*expected, "Die Verarbeitung wurde angehalten.", STARS, ""])


if __name__ == "__main__":
    unittest.main()
