"""What the end-to-end tests share: one desktop for all of them, a clean drive for each, the program and its log."""

import os
import pathlib
import re
import shutil
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(ROOT / "scripts"), str(pathlib.Path(__file__).resolve().parent)]

from probe import WM_NULL, Probe, ProbeError  # noqa: E402
from wine_desktop import BUILD, CODE_PAGE, WINDOWS_BUILD, Desktop, DesktopError, PATIENCE, wait_until  # noqa: E402

RESULTS = BUILD / "test"
PROGRAM = "QUMAEXP.EXE"
FOLDER = "C:\\QUMA"
DESTINATION = "C:\\TeRu"
REGISTRY_KEY = "Software\\TARVEN\\Setup\\Destinations"
FORM_CLASS = "QumaForm"
TITLE = "TARVEN Datenexport"
STARS = "*" * 80
# Seconds; a run has its prescribed pauses besides.
RUN_PATIENCE = 3 * PATIENCE
COMPLETED = "Die Verarbeitung ist erfolgreich abgeschlossen."
CAPTION = "TeRu - 0012/4711/2005/Finanzbuchhaltung"
# The notification area and an icon in it, in Wine 8 and in Wine 10. The area's class in Wine 10 is that of Windows.
TRAY_CLASSES = {"__winex11_standalone_tray", "Shell_TrayWnd"}
ICON_CLASSES = {"__winex11_tray_icon", "__wine_tray_icon"}

_session = None


class Session:
    def __init__(self, dpi, screen):
        # A second run of tests at the same time needs a prefix of its own.
        self.desktop = Desktop(RESULTS / os.environ.get("E2E_PREFIX", "prefix"), dpi, screen)
        self.desktop.start()
        self.probe = Probe(self.desktop)


def session(dpi, screen):
    """The running desktop; another resolution or size of the screen needs a new one."""
    global _session
    if _session is not None and (_session.desktop.dpi, _session.desktop.screen) != (dpi, screen):
        _session.desktop.close()
        _session = None
    if _session is None:
        _session = Session(dpi, screen)
    return _session


def settings(sections):
    """Text of a settings file from a dictionary of dictionaries."""
    lines = []
    for section, keys in sections.items():
        lines.append(f"[{section}]")
        lines += [f"{key}={value}" for key, value in keys.items()]
    return "\n".join(lines) + "\n"


class EndToEndTest(unittest.TestCase):
    """Each test starts with an empty C:\\TeRu and a C:\\QUMA that holds the program alone, and leaves no program."""

    dpi = 96
    screen = (1024, 768)

    def setUp(self):
        current = session(self.dpi, self.screen)
        self.desktop, self.probe = current.desktop, current.probe
        self._started = []
        self.folder = self.desktop.host_path(FOLDER)
        for path in (self.folder, self.desktop.host_path(DESTINATION)):
            shutil.rmtree(path, ignore_errors=True)
            path.mkdir()
        self.probe.set_registry(REGISTRY_KEY, "Teru", DESTINATION)
        self.desktop.move(1000, 10)

    def tearDown(self):
        outcome = self._outcome.result
        if any(test is self for test, _ in outcome.failures + outcome.errors):
            self.desktop.screenshot(RESULTS / "failed" / f"{self.id()}.png")
        for process in self._started:
            if process.poll() is None:
                process.kill()
            process.wait()

    # Programs

    def start(self, executable, *arguments):
        process = self.desktop.program(executable, *arguments, cwd=self.folder)
        self._started.append(process)
        return process

    def start_teru(self, *arguments, caption=CAPTION, program=WINDOWS_BUILD / "TERU.EXE"):
        """Starts the stand-in and yields its main window and its export dialog."""
        self.start(program, "--caption", caption, "--log", FOLDER + "\\teru.log", *arguments)
        main = self.probe.window(caption)
        return main, self.probe.window("GDPdU-Export", where=lambda window: window.process == main.process)

    def start_program_asking(self, name=PROGRAM):
        """Starts the program, which is going to show a message box before it waits."""
        if not (self.folder / name).exists():
            shutil.copy(WINDOWS_BUILD / PROGRAM, self.folder / name)
        self.start(self.folder / name)

    def start_program(self, name=PROGRAM):
        """Starts the program, waits until it waits for the hot key, and yields its process id."""
        before = self.probe.processes(name)
        self.start_program_asking(name)

        def new():
            return [process for process in self.probe.processes(name) if process not in before]

        process = wait_until(new, "the start of the program")[0]
        # It answers a message when it has come to wait for messages, behind the registration of the hot key.
        self.probe.send(self.main_form(process), WM_NULL)
        return process

    def main_form(self, process):
        """The window that owns icon and hot key; it is never seen."""

        def look():
            windows = self.probe.windows("", visible=False, process=process)
            return [window for window in windows if window.class_name == FORM_CLASS]

        return wait_until(look, "the main form")[0]

    def press(self, caption=CAPTION):
        """Puts the window in front and presses the hot key."""
        try:
            self.bring_to_front(caption, 2)
        except DesktopError:
            # Windows hears nothing where the window manager had the window in front before.
            left, top, _, _ = self._windows_of(caption)[0].place
            self.desktop.click(left + 8, top + 60)  # the empty margin
            self._wait_for_foreground(lambda: self._windows_of(caption), caption)
        self.desktop.key("alt+F12")

    def bring_to_front(self, caption, seconds=PATIENCE):
        """Activates a window whose caption begins so, and waits until keys reach it."""
        self.desktop.activate("^" + re.sub(r"([][().])", r"\\\1", caption))
        self._wait_for_foreground(lambda: self._windows_of(caption), caption, seconds)

    def wait_in_front(self, window):
        """Waits until keys reach a window that comes to the front by itself."""
        self._wait_for_foreground(lambda: [window], window.text)

    def _wait_for_foreground(self, windows, caption, seconds=PATIENCE):
        """Both the focus of the display, which keys follow, and Windows lag behind the window manager."""

        def in_front():
            front = self.probe.foreground()
            if front not in [window.handle for window in windows()]:
                return False
            return self.desktop.focus() == self.probe.x_window(front) != 0

        wait_until(in_front, f"{caption!r} in front", seconds)

    def _windows_of(self, caption):
        return [window for window in self.probe.windows() if window.text.startswith(caption)]

    # Windows of the program

    def as_it_is(self, window):
        """A window with its present place and text."""
        return next(shown for shown in self.probe.windows() if shown.handle == window.handle)

    def dialog(self, *texts, title=TITLE):
        """Waits for a window of this title that shows these texts; the program's dialogs share one title."""

        def shows(window):
            try:
                shown = self.probe.texts(window)
            except ProbeError:
                return False  # it has closed meanwhile
            return all(text in shown for text in texts)

        return self.probe.window(title, shows)

    def status_dialog(self, *texts):
        return self.dialog("W&eiter", "&OK", "A&bbrechen", *texts)

    def click_button(self, window, text):
        """Clicks a button with the mouse once it can be clicked."""

        def enabled():
            button = self.probe.control(window, text=text)
            return button if button.enabled else None

        button = wait_until(enabled, f"the button {text!r}")
        wait_until(lambda: self.probe.x_window(window.handle) in self.desktop.x_windows("."), f"{window.text!r} to be seen")
        self.desktop.click(*button.middle)

    def icons(self):
        """The icons in the notification area."""
        areas = [window for window in self.probe.windows() if window.class_name in TRAY_CLASSES]
        return [icon for area in areas for icon in self.probe.controls(area) if icon.class_name in ICON_CLASSES]

    def open_menu(self):
        """Opens the icon's menu by a right click and yields its window."""
        icon = wait_until(self.icons, "the icon in the notification area")[0]
        self.desktop.click(*icon.middle, button=3)

        def menus():
            return [window for window in self.probe.windows() if window.class_name == "#32768"]

        return wait_until(menus, "the icon's menu")[0]

    def choose_from_menu(self, entry):
        """Clicks an entry of the icon's menu: three entries, and a separator of half their height above the last."""
        left, top, right, bottom = self.open_menu().place
        height = (bottom - top) / 3.5
        middle = {"Protokoll anzeigen": top + 0.5 * height, "Info": top + 1.5 * height, "Beenden": top + 3 * height}
        self.desktop.click((left + right) // 2, round(middle[entry]))

    def answer(self, title, *keys):
        """Presses keys in the window of this title."""
        self.bring_to_front(title)
        self.desktop.key(*keys)

    # Files

    def lay(self, name, text):
        """Writes a text file beside the program."""
        (self.folder / name).write_bytes(text.replace("\n", "\r\n").encode(CODE_PAGE))

    def lay_macro(self, text, name="PROBE.MAK", fragment="TeRu -", **sections):
        """Lays a macro and settings that choose it for windows whose caption holds the fragment."""
        self.lay(name, text)
        self.lay("QUMAEXP.INI", settings({"Makro": {"Makro1": f"'{fragment}','{name}'"}, **sections}))

    def log_bytes(self):
        path = self.folder / "QUMAEXP.LOG"
        return path.read_bytes() if path.is_file() else b""

    def log(self):
        return self.log_bytes().decode(CODE_PAGE).replace("\r\n", "\n").split("\n")

    def wait_log(self, line, times=1, seconds=PATIENCE):
        wait_until(lambda: self.log().count(line) >= times, f"the log line {line!r}", seconds)

    def wait_run_ended(self, runs=1):
        """Each run is framed by two lines of stars."""
        self.wait_log(STARS, 2 * runs, RUN_PATIENCE)

    def teru_log(self):
        path = self.folder / "teru.log"
        return path.read_bytes().decode(CODE_PAGE).splitlines() if path.is_file() else []

    def wait_teru_log(self, line):
        wait_until(lambda: line in self.teru_log(), f"the stand-in's line {line!r}")
