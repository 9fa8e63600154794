"""makrun as a Windows program: what holds natively holds there as well."""

import subprocess

from harness import COMPLETED, ROOT, STARS, WINDOWS_BUILD, EndToEndTest


class MakrunTest(EndToEndTest):
    def makrun(self, *arguments):
        command = ["wine", str(WINDOWS_BUILD / "MAKRUN.EXE"), *arguments]
        return subprocess.run(
            command, env=self.desktop.environment, cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True,
            timeout=60,
        )

    def test_a_macro_with_umlauts_is_rehearsed_and_its_folder_stays_as_it_is(self):
        (self.folder / "Prüfung.mak").write_bytes("MSG=Größe\r\nRAISEERROR=Schluß\r\n".encode("cp1252"))
        before = sorted(self.folder.iterdir())
        done = self.makrun("Prüfung.mak")
        self.assertEqual(done.returncode, 1, done.stderr)
        self.assertEqual(done.stdout.decode("utf-8").splitlines(), ["MSG: Größe", "Schluß"])
        self.assertEqual(done.stderr.decode("utf-8").splitlines(), [
            "Prüfung.mak:2: RAISEERROR: Schluß", "  Zeile:      RAISEERROR=Schluß", '  ausgeführt: RAISEERROR "Schluß"'])
        self.assertEqual(sorted(self.folder.iterdir()), before)

    def test_a_kept_drive_holds_what_the_macro_has_made(self):
        (self.folder / "test.mak").write_bytes("CREATEDIR=C:\\Jahr,2005\r\n".encode("cp1252"))
        (self.folder / "Laufwerk").mkdir()
        done = self.makrun("--drive", "Laufwerk", "test.mak")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout.decode("utf-8").splitlines()[-2:], [COMPLETED, STARS])
        self.assertTrue((self.folder / "Laufwerk" / "Jahr" / "2005").is_dir())

    def test_macros_of_the_demonstration_are_rehearsed(self):
        # One with a blank at the end of folders' names, one with umlauts in those of copied files.
        for name in ("QUMAFIBU", "QUMAANL"):
            with self.subTest(name):
                desktop = ROOT / "demo" / "desktops" / f"{name}.desktop"
                done = self.makrun("--press", "--desktop", str(desktop), str(ROOT / "demo" / f"{name}.MAK"))
                self.assertEqual((done.returncode, done.stderr), (0, b""))
                self.assertEqual(done.stdout.decode("utf-8").splitlines()[-2:], [COMPLETED, STARS])

    def test_a_wrong_command_line_is_told_in_the_language_of_the_system(self):
        done = self.makrun("--größe")
        self.assertEqual(done.returncode, 64)
        self.assertIn("makrun: die Option --größe gibt es nicht", done.stderr.decode("utf-8"))
        self.assertIn("there is no option --größe", self.makrun("--größe", "--lang", "en").stderr.decode("utf-8"))

    def test_a_file_with_an_umlaut_that_is_not_there_is_named(self):
        done = self.makrun("Fehlt Größe.mak")
        self.assertEqual(done.returncode, 66)
        self.assertIn("makrun: Fehlt Größe.mak kann nicht gelesen werden", done.stderr.decode("utf-8"))
