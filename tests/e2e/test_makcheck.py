"""makcheck as a Windows program: one file that needs nothing but the system, and speaks its language."""

import shutil
import subprocess
import sys

# Debian's packages for Python, where another Python stands in front of the system's.
sys.path.append("/usr/lib/python3/dist-packages")

import pefile  # noqa: E402
from harness import ROOT, WINDOWS_BUILD, EndToEndTest  # noqa: E402

SYSTEM_LIBRARIES = {"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
                    "shell32.dll", "user32.dll"}


class MakcheckTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.program = self.folder / "MAKCHECK.EXE"
        shutil.copy(WINDOWS_BUILD / "MAKCHECK.EXE", self.program)

    def makcheck(self, *arguments):
        return subprocess.run(["wine", str(self.program), *arguments], env=self.desktop.environment, cwd=self.folder,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=120)

    def test_needs_no_library_beside_those_of_the_system(self):
        with pefile.PE(self.program) as program:
            libraries = {entry.dll.decode().lower() for entry in program.DIRECTORY_ENTRY_IMPORT}
        self.assertLessEqual(libraries, SYSTEM_LIBRARIES)

    def test_a_mistake_is_told_in_german(self):
        (self.folder / "Prüfung.mak").write_bytes("MSG=Größe\r\nBUTTONCLICK=8\r\n".encode("cp1252"))
        done = self.makcheck("Prüfung.mak")
        self.assertEqual((done.returncode, done.stderr), (1, b""))
        self.assertEqual(done.stdout.decode("utf-8").splitlines(), [
            "Prüfung.mak:2:1: error [missing-argument] BUTTONCLICK braucht das Argument 2: Fenster"])

    def test_the_exit_status_tells_what_has_happened(self):
        (self.folder / "gut.mak").write_bytes(b"MSG=a\r\n")
        done = self.makcheck("gut.mak")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
        self.assertEqual(self.makcheck("--größe").returncode, 64)
        done = self.makcheck("Fehlt Größe.mak")
        self.assertEqual(done.returncode, 66)
        self.assertIn("Fehlt Größe.mak", done.stderr.decode("utf-8"))

    def test_a_macro_of_the_demonstration_is_clean_against_its_desktop(self):
        desktop = ROOT / "demo" / "desktops" / "QUMASTAMM.desktop"
        done = self.makcheck("--desktop", str(desktop), str(ROOT / "demo" / "QUMASTAMM.MAK"))
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
