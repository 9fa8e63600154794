"""Each macro of the demonstration leaves the same log and the same files in a rehearsal as under the program."""

import difflib
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))

import test_merla  # noqa: E402
from harness import (  # noqa: E402
    BUILD,
    CAPTION,
    CODE_PAGE,
    COMPLETED,
    DESTINATION,
    PROGRAM,
    ROOT,
    STARS,
    TITLE,
    WINDOWS_BUILD,
    EndToEndTest,
    wait_until,
)
from probe import WM_COMMAND  # noqa: E402

DEMO = ROOT / "demo"
MAKRUN = BUILD / "native" / "makrun"
MENU_ASSETS, MENU_PAYMENTS, MENU_CLIENT_RECORD, MENU_CLIENTS, MENU_POSTINGS = 2102, 2105, 2201, 2202, 3202
ASSETS, RECORD, CLIENTS, POSTINGS = "Anlagenbuchhaltung", "Stammdaten", "Mandant öffnen", "Buchungsexport"
PAYMENTS = "TeRu Zahlungsverkehr [Stadtsparkasse 30060010 2005114 EUR]"
MERLA = "MERLA 2100 - Schreinerei Grünbärtl & Töchter GmbH"

# What is of the moment: handles of windows, and the folder for temporary files.
OF_THE_MOMENT = [
    (r"^(MainWindow: )\d+$", r"\1?"),
    (r"^(Schaltfläche wurde gedrückt\. \()\d+( \d+\))$", r"\1?\2"),
    (r"^(Select Combo-> HWNDCTL: )\d+(Parent: )\d+$", r"\1?\2?"),
    (r"^(Menu wurde ausgewählt \(\d+ )\d+(\))$", r"\1?\2"),
    (r"C:\\[^;)]*\\(QUMeFib\.csv)", r"?\\\1"),
    (r"^((?:Day|Month|Year) HWnd: )\d+$", r"\1?"),
    (r"^(Der Fokus wurde auf das Feld gesetzt\. \()\d+(\))$", r"\1?\2"),
]
# How often a growing file is seen, and at which sizes, is a matter of speed.
FILE_READ = re.compile(r"^Datei wird eingelesen \(\d+\) $")


def comparable(log):
    """The lines of a run without what differs from one to the next; the sizes of a growing file are one line."""
    lines = []
    for line in log:
        for pattern, replacement in OF_THE_MOMENT:
            line = re.sub(pattern, replacement, line)
        line = FILE_READ.sub("Datei wird eingelesen", line)
        if line != "Datei wird eingelesen" or lines[-1:] != [line]:
            lines.append(line)
    return lines


# Folders of the system on a drive C:.
SYSTEM_FOLDERS = {"windows", "users", "Program Files", "ProgramData"}


def files_below(folder, name):
    """What lies in a folder of this name on the drive: each path, and behind that of a file its lines."""
    lines = []
    for path in sorted(folder.iterdir()) if folder.is_dir() else []:
        inner = f"{name}/{path.name}"
        if path.is_dir():
            lines += [inner, *files_below(path, inner)]
        elif not is_found(inner, path):
            lines += [inner, *(repr(line) for line in path.read_bytes().decode(CODE_PAGE).split("\n"))]
    return lines


def is_found(name, path):
    """The programs, their logs, and what was laid beside them."""
    laid = DEMO / path.name
    of_programs = {"QUMA/" + program for program in (PROGRAM, "QUMAEXP.LOG", "teru.log")}
    return name in of_programs or (
        name == "QUMA/" + path.name and laid.is_file() and laid.read_bytes() == path.read_bytes()
    )


def left_by_run(drive, temporary_files):
    """What a run leaves on a drive, as lines."""
    lines = files_below(temporary_files, "TEMP")
    for folder in sorted(drive.iterdir()):
        if folder.name not in SYSTEM_FOLDERS and folder != temporary_files:
            lines += files_below(folder, folder.name)
    return lines


class RehearsalTest(EndToEndTest):
    maxDiff = None

    def setUp(self):
        super().setUp()
        [self.temporary_files] = self.desktop.drive.glob("users/*/Temp")
        shutil.rmtree(self.temporary_files)
        self.temporary_files.mkdir()
        self.start_program()
        self.lines_before = len(self.log()) - 1

    def open_in_teru(self, menu, caption):
        """Starts the stand-in and opens a window from its menu."""
        main, _ = self.start_teru("--tick", "20")
        self.probe.post(main, WM_COMMAND, menu)
        self.probe.window(caption)

    def start_merla(self, version="2100"):
        self.start(WINDOWS_BUILD / "MERLA.EXE", "--version", version, "--tick", "20")
        return self.probe.window(MERLA.replace("2100", version))

    def lay_settings(self, old="", new=""):
        """The settings of the demonstration, with a change for this test."""
        settings = (DEMO / "QUMAEXP.INI").read_bytes().decode(CODE_PAGE).replace("\r\n", "\n")
        self.assertIn(old, settings)
        self.lay("QUMAEXP.INI", settings.replace(old, new, 1))

    def assert_same(self, pressed, rehearsed):
        self.assertEqual("\n".join(difflib.unified_diff(pressed, rehearsed, "pressed", "rehearsed", lineterm="")), "")

    def compare(self, macro, caption, *answers, confirm=None):
        """Runs a macro by the key, rehearses it with the same settings and clock, and compares what both leave."""
        shutil.copy(DEMO / macro, self.folder)
        if not (self.folder / "QUMAEXP.INI").exists():
            self.lay_settings()
        self.press(caption)
        if confirm:
            confirm()
        self.wait_run_ended()
        pressed = self.log()[self.lines_before : -1]
        self.assertEqual(pressed[-2:], [COMPLETED, STARS])
        with tempfile.TemporaryDirectory() as drive:
            rehearsed = self.rehearsed(macro, drive, self.clock_of(pressed), answers)
            self.assert_same(comparable(pressed), comparable(rehearsed))
            drive = pathlib.Path(drive)
            left = left_by_run(self.desktop.drive, self.temporary_files), left_by_run(drive, drive / "TEMP")
            self.assert_same(*left)

    def clock_of(self, log):
        """When the key was pressed, by the head of the run."""
        [date] = [line for line in log if line.startswith("Datum:")]
        day, month, year, time = re.fullmatch(r"Datum:(\d+)\.(\d+)\.(\d+) (.*)", date).groups()
        return f"{year}-{month}-{day} {time}"

    def rehearsed(self, macro, drive, clock, answers):
        """The lines of the rehearsal."""
        desktop = (DEMO / "desktops" / macro).with_suffix(".desktop")
        command = [str(MAKRUN), "--press", "--desktop", str(desktop), "--ini", str(self.folder / "QUMAEXP.INI")]
        command += ["--drive", drive, "--now", clock]
        for answer in answers:
            command += ["--answer", answer]
        done = subprocess.run([*command, str(DEMO / macro)], capture_output=True, timeout=300, check=False)
        self.assertEqual((done.returncode, done.stderr.decode()), (0, ""))
        return done.stdout.decode().split("\n")[:-1]

    def test_the_export_of_the_books(self):
        self.start_teru("--tick", "20")
        self.compare("QUMAFIBU.MAK", CAPTION, "frmInputbox.cmdOK", confirm=lambda: self.answer(TITLE, "Return"))

    def test_the_export_of_the_assets(self):
        template = self.desktop.host_path("C:\\TeRu\\Import\\anl")
        template.mkdir(parents=True)
        shutil.copy(DEMO / "kanzrewe.cfg", template)
        self.open_in_teru(MENU_ASSETS, ASSETS)
        caption = CAPTION.replace("Finanzbuchhaltung", ASSETS)
        wait_until(lambda: self.probe.windows(caption), "the caption of the module")
        self.compare("QUMAANL.MAK", caption)

    def test_the_clients_record(self):
        self.open_in_teru(MENU_CLIENT_RECORD, RECORD)
        self.compare("QUMASTAMM.MAK", RECORD)

    def test_the_payments(self):
        self.open_in_teru(MENU_PAYMENTS, PAYMENTS)
        self.compare("QUMAZVK.MAK", PAYMENTS)

    def test_the_income_tax_of_the_marked_client(self):
        self.lay_settings("Veranlagungsjahr=2003,2004,2005", "Veranlagungsjahr=2004,2005")
        self.open_in_teru(MENU_CLIENTS, CLIENTS)

        def confirm():
            dialog = self.dialog("alle Mandanten")
            self.click_button(dialog, "zuletzt bearbeiteter Mandant")
            self.click_button(dialog, "OK")

        self.compare("QUMAEST.MAK", CLIENTS, "frmInputEST.optCurrent", confirm=confirm)

    def compare_assets_of_the_second_application(self, version):
        self.start_merla(version)
        self.compare(
            f"MERLA{version}.MAK",
            MERLA.replace("2100", version),
            "frmInputMerANL.lstViewJahr=01.01.2001",
            confirm=lambda: test_merla.MerlaTest.choose_years_from(self, 0),
        )

    def test_the_assets_of_the_second_application(self):
        self.compare_assets_of_the_second_application("2100")

    def test_the_assets_of_an_older_version_of_the_second_application(self):
        # Without the control paths, which belong to version 2100.
        settings = (DEMO / "QUMAEXP.INI").read_bytes().decode(CODE_PAGE).replace("\r\n", "\n")
        lines = [line for line in settings.split("\n") if not line.startswith("Matrix")]
        self.lay("QUMAEXP.INI", "\n".join(lines).replace("Version=2100", "Version=280"))
        self.compare_assets_of_the_second_application("280")

    def test_the_postings_of_the_second_application(self):
        self.lay_settings("WirtschaftsjahrBis=2005", "WirtschaftsjahrBis=2003")
        # The same file of clients as in the desktop file.
        desktop = (DEMO / "desktops" / "MERLAFIB2100.desktop").read_text("utf-8")
        line = next(line for line in desktop.splitlines() if "MandantenFibu.txt" in line)
        _, *clients = re.findall(r'"([^"]*)"', line)
        extern = self.desktop.host_path(DESTINATION + "\\Extern")
        extern.mkdir()
        (extern / "MandantenFibu.txt").write_bytes("".join(f"{client}\r\n" for client in clients).encode(CODE_PAGE))
        self.probe.post(self.start_merla(), WM_COMMAND, MENU_POSTINGS)
        self.probe.window(POSTINGS)

        def confirm():
            dialog = self.dialog("Bitte wählen Sie die Mandanten und den Zeitraum.")
            self.click_button(dialog, "OK")

        self.compare("MERLAFIB2100.MAK", POSTINGS, "frmInputMerFib.cmdOK", confirm=confirm)


if __name__ == "__main__":
    unittest.main()
