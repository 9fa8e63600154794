"""Asks and tells Windows what keys, clicks and screenshots cannot: classes, handles, counts, messages."""

import contextlib
import dataclasses
import subprocess

from wine_desktop import CODE_PAGE, WINDOWS_BUILD, DesktopError, wait_until

WM_NULL = 0
WM_CLOSE = 16
WM_COMMAND = 273
BM_CLICK = 245


@dataclasses.dataclass(frozen=True)
class Window:
    handle: int
    process: int
    visible: bool
    enabled: bool
    class_name: str
    text: str
    place: tuple  # left, top, right, bottom

    @property
    def middle(self):
        left, top, right, bottom = self.place
        return (left + right) // 2, (top + bottom) // 2


@dataclasses.dataclass(frozen=True)
class Control:
    handle: int
    parent: int
    id: int
    visible: bool
    enabled: bool
    class_name: str
    text: str
    place: tuple

    @property
    def middle(self):
        left, top, right, bottom = self.place
        return (left + right) // 2, (top + bottom) // 2


@dataclasses.dataclass(frozen=True)
class Counts:
    handles: int
    windows: int
    gdi_objects: int
    processor_ms: int


class ProbeError(Exception):
    pass


def _escape(text):
    for character, letter in (("\\", "\\"), ("\t", "t"), ("\n", "n"), ("\r", "r"), ("\0", "0")):
        text = text.replace(character, "\\" + letter)
    return text


def _unescape(text):
    letters = {"t": "\t", "n": "\n", "r": "\r"}
    result, characters = [], iter(text)
    for character in characters:
        if character == "\\":
            character = next(characters)
            character = letters.get(character, character)
        result.append(character)
    return "".join(result)


class Probe:
    def __init__(self, desktop):
        self._process = desktop.program(
            WINDOWS_BUILD / "PROBE.EXE", stdin=subprocess.PIPE, stdout=subprocess.PIPE
        )

    def ask(self, command, *arguments):
        line = "\t".join([command, *(_escape(str(argument)) for argument in arguments)]) + "\n"
        self._process.stdin.write(line.encode(CODE_PAGE))
        self._process.stdin.flush()
        answers = []
        while (answer := self._line()) != ".":
            answers.append([_unescape(field) for field in answer.split("\t")])
        if answers and answers[-1][0] == "error":
            raise ProbeError(answers[-1][1])
        return answers

    def _line(self):
        line = self._process.stdout.readline()
        if not line:
            raise DesktopError("PROBE.EXE has ended unexpectedly.")
        return line.decode(CODE_PAGE).rstrip("\r\n")

    # Windows

    def windows(self, title=None, visible=True, process=None):
        """Top-level windows from the topmost down; of a whole title, of a process where given."""
        found = []
        for handle, owner, shown, enabled, class_name, text, *place in self.ask("windows"):
            window = Window(
                int(handle), int(owner), shown == "1", enabled == "1", class_name, text, tuple(map(int, place))
            )
            if visible and not window.visible:
                continue
            if title is not None and window.text != title:
                continue
            if process is not None and window.process != process:
                continue
            found.append(window)
        return found

    def window(self, title, where=lambda window: True):
        """Waits for a visible window of this whole title for which the condition holds."""

        def look():
            return [window for window in self.windows(title) if where(window)]

        return wait_until(look, f"the window {title!r}")[0]

    def wait_gone(self, window):
        handle = window.handle
        wait_until(lambda: all(other.handle != handle for other in self.windows()), f"the end of {window.text!r}")

    def controls(self, window):
        found = []
        for handle, parent, identity, shown, enabled, class_name, text, *place in self.ask("children", window.handle):
            found.append(
                Control(
                    int(handle),
                    int(parent),
                    int(identity),
                    shown == "1",
                    enabled == "1",
                    class_name,
                    text,
                    tuple(map(int, place)),
                )
            )
        return found

    def control(self, window, identity=None, text=None, class_name=None):
        for control in self.controls(window):
            if identity is not None and control.id != identity:
                continue
            if text is not None and control.text != text:
                continue
            if class_name is not None and control.class_name.upper() != class_name.upper():
                continue
            return control
        raise DesktopError(f"The window {window.text!r} has no control {identity or text or class_name!r}.")

    def texts(self, window):
        return [control.text for control in self.controls(window)]

    def foreground(self):
        return int(self.ask("foreground")[0][0])

    def focus(self, window):
        """Handle of the window that has the focus in the window's queue, or 0."""
        return int(self.ask("focus", window.handle)[0][0])

    def x_window(self, handle):
        """The window of the display that shows this top-level window, or 0."""
        return int(self.ask("xwindow", handle)[0][0])

    def style(self, window):
        return int(self.ask("style", window.handle)[0][0])

    def extent(self, text, width=0):
        """Width and height of a text in the dialog font; broken into lines of a width, or in one line with its '&'."""
        return tuple(map(int, self.ask("extent", width, text)[0]))

    # Messages

    def set_text(self, control, text):
        return int(self.ask("settext", control.handle, text)[0][0])

    def post(self, window, message, w_parameter=0, l_parameter=0):
        return self.ask("post", window.handle, message, w_parameter, l_parameter)[0][0] == "1"

    def send(self, window, message, w_parameter=0, l_parameter=0):
        return int(self.ask("send", window.handle, message, w_parameter, l_parameter)[0][0])

    def broadcast(self, name):
        """Posts the message of this name to all top-level windows."""
        self.ask("post", 0xFFFF, self.ask("registermessage", name)[0][0], 0, 0)

    def remove_icon(self, window, identity):
        self.ask("removeicon", window.handle, identity)

    def press(self, window, count):
        self.ask("press", window.handle, count)

    # Process and system

    def processes(self, name):
        """Ids of the running processes of this program file."""
        return [int(process) for process, file in self.ask("processes") if file.upper() == name.upper()]

    def counts(self, process):
        return Counts(*map(int, self.ask("counts", process)[0]))

    def put_on_clipboard(self, text):
        self.ask("putclipboard", text)

    @contextlib.contextmanager
    def holding_clipboard(self):
        """Meanwhile nobody else can open the clipboard."""
        self.ask("holdclipboard", 1)
        try:
            yield
        finally:
            self.ask("holdclipboard", 0)

    @contextlib.contextmanager
    def holding_file(self, path):
        """Meanwhile nobody else can open the file."""
        handle = self.ask("holdfile", path)[0][0]
        try:
            yield
        finally:
            self.ask("letgofile", handle)

    def set_registry(self, key, name, text):
        self.ask("setregistry", key, name, text)

    def registry(self, key, name):
        return self.ask("getregistry", key, name)[0][0]
