"""The floor plan, floors.txt: which file stands on which floor, and which circles are agreed on.

A line that begins with "floor" opens a floor, from the ground up; the indented lines behind it name folders (with a
slash at the end) and files (without their ending, so that a header and its source go together). A file stands where
its own name or the innermost of its folders is named. A line that begins with "circle" gives a reason, and the indented
lines behind it name the sources that may call each other because of it.
"""

import pathlib

FILE = pathlib.Path(__file__).resolve().parent / "floors.txt"


class Plan:
    def __init__(self, text):
        self.floors = []  # names, from the ground up
        self.circles = {}  # sources that may call each other, without endings, and the reason
        self.mistakes = []
        self._floor_of_entry = {}
        files = None  # of the circle that is open
        for number, line in enumerate(text.splitlines(), 1):
            kind, _, rest = line.partition(" ")
            words = line.split()
            if not words or kind.startswith("#"):
                continue
            if line[0].isspace() and files is not None:
                files.update(words)
            elif line[0].isspace() and self.floors:
                for entry in words:
                    if entry in self._floor_of_entry:
                        self.mistakes.append(f"floors.txt:{number}: {entry} stands there twice")
                    self._floor_of_entry[entry] = len(self.floors) - 1
            elif kind == "floor" and rest.strip():
                self.floors.append(rest.strip())
                files = None
            elif kind == "circle" and rest.strip():
                files = _Circle(self.circles, rest.strip())
            else:
                self.mistakes.append(f"floors.txt:{number}: neither a floor nor a circle with its reason")

    def entry_of(self, name):
        """The entry by which a file has its floor; None for a file that is not in the plan."""
        path = pathlib.PurePosixPath(name)
        candidates = [path.with_suffix("").as_posix()] + [folder.as_posix() + "/" for folder in path.parents]
        return next((entry for entry in candidates if entry in self._floor_of_entry), None)

    def floor_of(self, name):
        """The number of a file's floor, 0 for the ground; None for a file that is not in the plan."""
        return self._floor_of_entry.get(self.entry_of(name))

    def entries(self):
        return list(self._floor_of_entry)

    def floor_of_entry(self, entry):
        return self._floor_of_entry[entry]

    def label(self, floor):
        return f"floor {floor + 1} ({self.floors[floor]})"


class _Circle:
    """Grows with each line that names files of it."""

    def __init__(self, circles, reason):
        self._circles = circles
        self._reason = reason
        self._files = frozenset()

    def update(self, files):
        self._circles.pop(self._files, None)
        self._files |= set(files)
        self._circles[self._files] = self._reason


def read(path=FILE):
    return Plan(pathlib.Path(path).read_text(encoding="utf-8"))
