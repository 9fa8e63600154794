"""Each macro of the demonstration, rehearsed to its end on the desktop that its desktop file describes."""

import configparser
import pathlib
import re
import resource
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DEMO = ROOT / "demo"
DESKTOPS = DEMO / "desktops"
MAKRUN = ROOT / "build" / "native" / "makrun"
STARS = "*" * 80
COMPLETED = "Die Verarbeitung ist erfolgreich abgeschlossen."

ALL_YEARS = "frmInputMerANL.lstViewJahr=01.01.2001"

# Each macro by its name, with what the user answers in the dialogs.
MACROS = {
    "MERLA2100": ["--answer", ALL_YEARS],
    "MERLA280": ["--answer", ALL_YEARS],
    "MERLAFIB2100": [],
    "QUMAANL": [],
    "QUMAEST": ["--answer", "frmInputEST.optAll"],
    "QUMAFIBU": ["--answer", "frmInputbox.cmdOK"],
    "QUMASTAMM": [],
    "QUMAZVK": [],
}

# What names a window or control in a desktop file.
ACTIONS = {"text", "when", "select", "check", "uncheck", "items", "row", "clear", "select-all", "show", "hide", "close"}

# The business years of the second application's client.
YEARS = [
    ("01.01.2001", "31.12.2001"),
    ("01.01.2002", "31.12.2002"),
    ("01.01.2003", "31.12.2003"),
    ("01.01.2004", "30.06.2004"),
    ("01.07.2004", "30.06.2005"),
]


def settings_of_version_280():
    """The settings of the demonstration without the control paths, which belong to version 2100."""
    lines = (DEMO / "QUMAEXP.INI").read_bytes().decode("cp1252").splitlines()
    kept = ["Version=280" if line == "Version=2100" else line for line in lines if not line.startswith("Matrix")]
    return "\r\n".join(kept).encode("cp1252")


def child_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


class ShippedMacrosTest(unittest.TestCase):
    def test_every_shipped_macro_has_a_desktop_file_and_is_rehearsed(self):
        self.assertEqual({path.stem for path in DEMO.glob("*.[Mm][Aa][Kk]")}, set(MACROS))
        self.assertEqual({path.name for path in DESKTOPS.glob("*.desktop")}, {name + ".desktop" for name in MACROS})

    def rehearse(self, name, folder, *more):
        options = [*MACROS[name], *more]
        if name == "MERLA280":
            settings = pathlib.Path(folder, "280.INI")
            settings.write_bytes(settings_of_version_280())
            options += ["--ini", str(settings)]
        desktop = DESKTOPS / (name + ".desktop")
        command = [str(MAKRUN), "--press", *options, "--desktop", str(desktop), str(DEMO / (name + ".MAK"))]
        return subprocess.run(command, capture_output=True, timeout=300)

    def test_each_completes_in_under_a_second(self):
        for name in MACROS:
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                before = child_seconds()
                done = self.rehearse(name, folder)
                # The child's own time: what else the machine does is not the rehearsal's fault.
                self.assertLess(child_seconds() - before, 1)
                self.assertEqual((done.returncode, done.stderr.decode()), (0, ""))
                log = done.stdout.decode().splitlines()
                self.assertEqual(log[-2:], [COMPLETED, STARS])
                self.assertIn(f"MakroFile: {name}.MAK", log)

    def test_each_year_of_the_assets_ends_on_its_own_day(self):
        for name in ("MERLA280", "MERLA2100"):
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                drive = pathlib.Path(folder, "drive")
                drive.mkdir()
                self.assertEqual(self.rehearse(name, folder, "--drive", str(drive)).returncode, 0)
                settings = configparser.ConfigParser()
                text = (drive / "TeRu" / "Extern" / "4711" / "ANL" / "export.cfg").read_text("cp1252")
                settings.read_string(text)
                client = settings["Mandantendaten"]
                years = [(client[f"{number}WJ Beginn"], client[f"{number}WJ Ende"]) for number in range(1, 6)]
                self.assertEqual(years, YEARS)

    def test_a_changed_target_is_refused_with_its_line(self):
        # Of each desktop file the first line of each kind.
        for desktop in DESKTOPS.glob("*.desktop"):
            lines = desktop.read_text("utf-8").splitlines()
            targets = {}
            for number, line in enumerate(lines, 1):
                if match := re.fullmatch(r"( +)([a-z-]+) ([a-z]+(?:\.[\d.]+)?)( .*|)", line):
                    if match[2] in ACTIONS:
                        targets.setdefault(match[2], (number, match))
            self.assertTrue(targets, desktop.name)
            for number, match in targets.values():
                for changed in (f"x{match[3]}", f"{match[3]}.999"):
                    with self.subTest(desktop=desktop.name, line=number, changed=changed):
                        refusal = self.refusal(desktop, lines, number, match, changed)
                        self.assertIn(f".desktop:{number}: expected the name of a window of this file", refusal)

    def refusal(self, desktop, lines, number, match, changed):
        """What is said about the desktop file with this target in a line."""
        text = [*lines[: number - 1], f"{match[1]}{match[2]} {changed}{match[4]}", *lines[number:]]
        with tempfile.TemporaryDirectory() as folder:
            for beside in DESKTOPS.iterdir():
                if beside.is_dir():
                    shutil.copytree(beside, pathlib.Path(folder, beside.name))
            path = pathlib.Path(folder, desktop.name)
            path.write_text("\n".join(text), "utf-8")
            macro = str(DEMO / (desktop.stem + ".MAK"))
            done = subprocess.run([str(MAKRUN), "--desktop", str(path), macro], capture_output=True, timeout=300)
        self.assertEqual((done.returncode, done.stdout), (66, b""))
        return done.stderr.decode()


if __name__ == "__main__":
    unittest.main()
