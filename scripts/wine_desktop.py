"""A display, a window manager and a Windows prefix that belong to one run and end with it.

The demonstration and the end-to-end tests drive Windows programs through this module as a user does: with keys and
clicks that the X server makes, and with screenshots of what is seen. Nothing but the processes started here is ever
ended.
"""

import atexit
import ctypes
import fcntl
import os
import pathlib
import shutil
import signal
import subprocess
import time

from project import ROOT

BUILD = ROOT / "build"
WINDOWS_BUILD = BUILD / "windows"

CODE_PAGE = "cp1252"


class DesktopError(Exception):
    """Something that should be there is not; the text is a sentence for the user."""


# Seconds; a machine with other work is slow.
PATIENCE = 60


def wait_until(condition, what, seconds=PATIENCE, interval=0.05):
    """Returns the first true value of the condition, or raises with a sentence that names what was waited for."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise DesktopError(f"Waited {seconds} seconds in vain for {what}.")
        time.sleep(interval)


def wait_quietly(condition, seconds, interval=0.05):
    """The same, but the last value of the condition where the time is up."""
    deadline = time.monotonic() + seconds
    while not (value := condition()) and time.monotonic() < deadline:
        time.sleep(interval)
    return value


def _die_with_parent():
    # In a session of its own, the terminal's Ctrl-C reaches only the parent, which ends its children in order. Should
    # the parent be killed outright, the display goes with it, and with the display every program on it.
    os.setsid()
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)


class Desktop:
    """Use as a context manager, or call start() and rely on close() at the end of the Python program."""

    def __init__(self, prefix, dpi=96, screen=(1024, 768)):
        self.prefix = pathlib.Path(prefix)
        self.dpi = dpi
        self.screen = screen
        self.processes = []
        self.environment = dict(os.environ)
        self.environment.update(
            WINEPREFIX=str(self.prefix),
            WINEARCH="win32",
            WINEDEBUG="-all",
            # Neither the .NET nor the HTML engine is needed, and looking for them asks the user questions.
            WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=",
            LC_ALL="de_DE.UTF-8",
        )
        self.environment.pop("WAYLAND_DISPLAY", None)
        self._display_server = None
        self._window_manager = None
        self._lock = None

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        self.close()

    # Starting and ending

    def start(self):
        self._take_prefix()
        atexit.register(self.close)
        self._start_display()
        self._window_manager = self._background(["openbox"])
        self._make_prefix()
        self._set_resolution()

    def close(self):
        """Ends what was started here, and nothing else."""
        atexit.unregister(self.close)
        if self._display_server is None:
            return
        if self.prefix.exists():
            subprocess.run(["wineserver", "-k"], env=self.environment, check=False, stderr=subprocess.DEVNULL)
        for process in [*self.processes, self._window_manager, self._display_server]:
            if process is None:
                continue
            if process.poll() is None:
                process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.processes.clear()
        self._window_manager = self._display_server = None
        self._lock.close()

    def _background(self, command, **options):
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        return subprocess.Popen(command, env=self.environment, preexec_fn=_die_with_parent, **options)

    def _take_prefix(self):
        self.prefix.parent.mkdir(parents=True, exist_ok=True)
        self._lock = open(f"{self.prefix}.lock", "w")
        try:
            fcntl.flock(self._lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise DesktopError(f"Another run is using {self.prefix}.") from None

    def _start_display(self):
        # The server itself looks for a free number and tells it, so runs at the same time cannot meet.
        read_end, write_end = os.pipe()
        size = "{}x{}x24".format(*self.screen)
        command = ["Xvfb", "-displayfd", str(write_end), "-screen", "0", size, "-nolisten", "tcp"]
        self._display_server = self._background(command, pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            number = answer.readline().strip()
        if not number:
            raise DesktopError("No display could be started with Xvfb.")
        self.environment["DISPLAY"] = f":{number}"

    def _make_prefix(self):
        version = self.command(["wine", "--version"])
        made_by = self.prefix / "made-by"
        if made_by.is_file() and made_by.read_text() == version:
            return
        shutil.rmtree(self.prefix, ignore_errors=True)
        self.prefix.mkdir(parents=True)
        result = subprocess.run(
            ["wineboot", "-i"],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            check=False,
        )
        subprocess.run(["wineserver", "-w"], env=self.environment, check=False)
        if result.returncode != 0 or not (self.prefix / "system.reg").is_file():
            raise DesktopError("No Windows prefix could be made with wineboot.")
        made_by.write_text(version)

    def _set_resolution(self):
        told = self.prefix / "resolution"
        if told.is_file() and told.read_text() == str(self.dpi):
            return
        told.unlink(missing_ok=True)  # should the change be interrupted, the next run makes it again
        key = r"HKCU\Control Panel\Desktop"
        command = ["wine", "reg", "add", key, "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(self.dpi), "/f"]
        self.command(command)
        subprocess.run(["wineserver", "-w"], env=self.environment, check=False)
        told.write_text(str(self.dpi))

    # Programs and files

    def program(self, executable, *arguments, **options):
        """Starts a Windows program and does not wait for it."""
        process = self._background(["wine", str(executable), *arguments], **options)
        self.processes.append(process)
        return process

    def command(self, command):
        """Runs a command to its end and yields its output."""
        result = subprocess.run(
            command, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False
        )
        if result.returncode != 0:
            raise DesktopError(f"The command {' '.join(map(str, command))} failed: {result.stderr.strip()}")
        return result.stdout

    @property
    def drive(self):
        return self.prefix / "drive_c"

    def host_path(self, windows_path):
        """The file behind a path on the Windows drive C."""
        if windows_path[:2].upper() != "C:":
            raise ValueError(windows_path)
        return self.drive.joinpath(*windows_path[2:].strip("\\").split("\\"))

    # The user's hands and eyes

    def x_windows(self, title):
        """The X windows that are seen and whose title fits the regular expression."""
        return self._search("--name", title)

    def x_windows_of(self, program):
        """The X windows that are seen of programs whose file name fits the regular expression."""
        return self._search("--classname", program)

    def _search(self, *what):
        result = subprocess.run(
            ["xdotool", "search", "--onlyvisible", *what],
            env=self.environment,
            capture_output=True,
            text=True,
            check=False,
        )
        return [int(window) for window in result.stdout.split()]

    def x_window(self, title):
        return wait_until(lambda: self.x_windows(title), f"a window titled {title!r}")[0]

    def activate(self, title):
        self.command(["xdotool", "windowactivate", "--sync", str(self.x_window(title))])

    def focus(self):
        """The X window that gets the keys, or 0."""
        result = subprocess.run(
            ["xdotool", "getwindowfocus", "-f"], env=self.environment, capture_output=True, text=True, check=False
        )
        return int(result.stdout or 0)

    def key(self, *keys):
        self.command(["xdotool", "key", "--clearmodifiers", "--delay", "40", *keys])

    def type(self, text):
        self.command(["xdotool", "type", "--delay", "40", text])

    def click(self, x, y, button=1):
        """Moves the pointer there first, since an icon of the notification area hears of clicks only then."""
        self.command(["xdotool", "mousemove", "--sync", str(x), str(y)])
        self.command(["xdotool", "click", str(button)])

    def move(self, x, y):
        self.command(["xdotool", "mousemove", str(x), str(y)])

    def pointer(self):
        """The pixel of the screen that the pointer is on."""
        place = dict(field.split(":") for field in self.command(["xdotool", "getmouselocation"]).split())
        return int(place["x"]), int(place["y"])

    def screenshot(self, path):
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        self.command(["import", "-silent", "-window", "root", str(path)])
