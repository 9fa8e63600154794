"""Plays the user of one export: opens the client, presses Alt+F12, confirms, watches, and reads the result."""

import pathlib
import shutil
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "scripts"))

from project import JOBS  # noqa: E402
from processes import run, stop_on_signals  # noqa: E402
from wine_desktop import BUILD, CODE_PAGE, WINDOWS_BUILD, Desktop, DesktopError, wait_until  # noqa: E402

RESULTS = BUILD / "demo"
STARS = "*" * 80
# The program's dialogs share one title; the stand-in's dialog and its message box do too.
DIALOG = "^TARVEN Datenexport$"
EXPORT = "^GDPdU-Export$"
TERU = "^TeRu - "
FILES = ["Konten.csv", "Debitoren.csv", "Buchungen.csv"]


class Demo:
    def __init__(self, desktop):
        self.desktop = desktop
        self.program = desktop.drive / "QUMA"
        self.destination = desktop.drive / "TeRu"
        self.shots = 0

    def run(self):
        self.lay_files()
        self.start_programs()
        self.press_and_confirm()
        self.watch()
        self.report()
        self.check()

    def lay_files(self):
        for folder in (self.program, self.destination):
            shutil.rmtree(folder, ignore_errors=True)
            folder.mkdir()
        shutil.copy(WINDOWS_BUILD / "QUMAEXP.EXE", self.program)
        shutil.copy(WINDOWS_BUILD / "TERU.EXE", self.destination)
        for name in ("QUMAEXP.INI", "QUMAFIBU.MAK", "QUMAANL.MAK"):
            shutil.copy(ROOT / "demo" / name, self.program)
        template = self.destination / "Import" / "anl"
        template.mkdir(parents=True)
        shutil.copy(ROOT / "demo" / "kanzrewe.cfg", template)
        # With the place of the suite's data known, the program has nothing to ask at its start.
        key = r"HKLM\Software\TARVEN\Setup\Destinations"
        self.desktop.command(["wine", "reg", "add", key, "/v", "Teru", "/t", "REG_SZ", "/d", r"C:\TeRu", "/f"])

    def start_programs(self):
        self.desktop.program(self.program / "QUMAEXP.EXE", cwd=self.program)
        self.desktop.x_window("^Wine System Tray$")
        self.desktop.program(self.destination / "TERU.EXE", cwd=self.destination)
        self.desktop.x_window(EXPORT)
        self.desktop.activate(TERU)
        self.shot("client-open", "The client is open; the program waits in the notification area.")

    def press_and_confirm(self):
        self.desktop.key("alt+F12")
        self.desktop.activate(DIALOG)
        self.shot("client-dialog", "Alt+F12 was pressed; the program asks for client and year.")
        self.desktop.key("Return")

    def watch(self):
        wait_until(lambda: any(self.destination.rglob(FILES[-1])), "the start of the export")
        self.shot("export-running", "Confirmed; the macro has started the export and waits for its file.")
        wait_until(lambda: len(self.desktop.x_windows(EXPORT)) > 1 or self.ended(), "the end of the export")
        self.shot("export-finished", "The suite reports the end; the macro will answer its message.")
        wait_until(self.ended, "the end of the run")
        self.desktop.activate(DIALOG)
        self.shot("run-finished", "The run is finished.")
        self.desktop.key("Return")
        wait_until(lambda: not self.desktop.x_windows(DIALOG), "the status dialog to close")
        self.shot("idle-again", "The status dialog is closed; the program waits for the next press.")

    def report(self):
        print("\nExported files:")
        for path in sorted(self.destination.rglob("*")):
            if path.is_file() and path.suffix not in (".EXE", ".cfg"):
                windows_path = "C:\\" + "\\".join(path.relative_to(self.desktop.drive).parts)
                print(f"{path.stat().st_size:9,d} bytes  {windows_path}")
        print("\nLog of the run (QUMAEXP.LOG):")
        print(self.log())
        (RESULTS / "QUMAEXP.LOG").write_bytes((self.program / "QUMAEXP.LOG").read_bytes())
        print(f"Screenshots: {RESULTS.relative_to(ROOT)}/*.png")

    def check(self):
        for name in FILES:
            found = list(self.destination.rglob(name))
            if not found or found[0].stat().st_size == 0:
                raise DesktopError(f"The run has not exported {name}.")
        if not self.ended():
            raise DesktopError("The log does not end in the closing line of stars.")

    # Helpers

    def log(self):
        path = self.program / "QUMAEXP.LOG"
        return path.read_bytes().decode(CODE_PAGE).replace("\r\n", "\n") if path.is_file() else ""

    def ended(self):
        lines = self.log().splitlines()
        return lines.count(STARS) == 2 and lines[-1] == STARS

    def shot(self, name, sentence):
        self.shots += 1
        time.sleep(0.3)  # a window that has just come up is painted
        self.desktop.screenshot(RESULTS / f"{self.shots}-{name}.png")
        print(f"{self.shots}. {sentence}", flush=True)


def build():
    print("Building QUMAEXP.EXE and the stand-in for the accounting suite...", flush=True)
    log = RESULTS / "build.log"
    configure = ["cmake", "--preset", "windows"]
    compile_ = ["cmake", "--build", "--preset", "windows", "--parallel", JOBS, "--target", "QUMAEXP", "teru"]
    with open(log, "wb") as output:
        for command in (configure, compile_):
            if run(command, 1200, cwd=ROOT, stdout=output, stderr=output) != 0:
                raise DesktopError(f"The programs cannot be built; {log.relative_to(ROOT)} tells why.")


def main():
    stop_on_signals()
    RESULTS.mkdir(parents=True, exist_ok=True)
    try:
        build()
        with Desktop(RESULTS / "prefix") as desktop:
            for old in RESULTS.glob("*.png"):
                old.unlink()
            demo = Demo(desktop)
            try:
                demo.run()
            except DesktopError as error:
                desktop.screenshot(RESULTS / "failed.png")
                log = demo.log().rstrip("\n")
                raise DesktopError(f"{error} The log ends in: {log.splitlines()[-1]}" if log else error) from None
    except (DesktopError, OSError) as error:
        print(f"demo: {error}", file=sys.stderr)
        return 1
    except KeyboardInterrupt as interrupt:
        print(f"demo: interrupted by {interrupt}.", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
