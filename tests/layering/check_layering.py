"""Who may include whom.

Each room of src/ may include the rooms listed for it, the system's headers have their own places, and no include runs
in a circle. Run by itself it prints what breaks these rules.
"""

import pathlib
import re
import sys

GROUND = {"runtime", "platform", "forms", "resources"}
HANDLERS = {"automation", "clients", "environment", "input"}
CORE = {"engine", "frame"}

MAY_INCLUDE = {
    "runtime": set(),
    "resources": {"runtime"},
    "platform": {"runtime"},
    "platform/win32": {"runtime", "platform"},
    "platform/simulated": {"runtime", "platform"},
    "forms": {"runtime", "platform"},
    "forms/win32": {"runtime", "platform", "forms", "platform/win32"},
    "forms/simulated": {"runtime", "platform", "forms", "platform/simulated"},
    # Of engine and frame the handlers see the leaves only; see leaf_problems.
    **{room: GROUND | HANDLERS | CORE for room in HANDLERS},
    **{room: GROUND | HANDLERS | CORE for room in CORE},
}

# A room may always include itself. The program's start, and what takes the place of a library in it, stand in none.
START = {"main.cpp", "one_thread.cpp"}

# System headers that only some places may use.
WINDOWS_HEADERS = {"windows.h", "commctrl.h", "shellapi.h", "commdlg.h", "richedit.h", "winuser.h", "winreg.h"}
WINDOWS_ROOMS = {"platform/win32", "forms/win32"}
# They make the Windows program far larger than it may be.
HEAVY_HEADERS = {"iostream", "fstream", "sstream", "format", "regex", "locale", "filesystem"}
HEAVY_ROOMS = {"platform/simulated", "forms/simulated"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


class Tree:
    def __init__(self, source):
        self.source = pathlib.Path(source)
        self.files = {}
        for path in sorted(self.source.rglob("*")):
            if path.suffix in (".h", ".cpp"):
                name = path.relative_to(self.source).as_posix()
                self.files[name] = INCLUDE.findall(path.read_text(encoding="utf-8"))

    def own_includes(self, name):
        """The files of the tree that a file includes, found from src/ or from the file's own folder."""
        for mark, included in self.files[name]:
            if mark == '"':
                beside = (pathlib.PurePosixPath(name).parent / included).as_posix()
                yield included if included in self.files or beside not in self.files else beside


def room_of(name):
    parts = name.split("/")
    if len(parts) > 2 and "/".join(parts[:2]) in MAY_INCLUDE:
        return "/".join(parts[:2])
    return parts[0] if len(parts) > 1 else ""


def room_problems(tree):
    for name in tree.files:
        room = room_of(name)
        if name in START:
            continue
        if room not in MAY_INCLUDE:
            yield f"{name} stands in no known room"
            continue
        for included in tree.own_includes(name):
            if included not in tree.files:
                yield f"{name} includes {included}, which is not there"
            elif room_of(included) != room and room_of(included) not in MAY_INCLUDE[room]:
                yield f"{name} includes {included}: {room} may not include {room_of(included)}"


def reached(tree, name, seen=None):
    seen = set() if seen is None else seen
    for included in tree.own_includes(name):
        if included in tree.files and included not in seen:
            seen.add(included)
            reached(tree, included, seen)
    return seen


def stands_on_ground(tree, name):
    """True for a header from which no engine, frame or handler is reached."""
    return all(room_of(further) in GROUND for further in reached(tree, name))


def leaf_problems(tree):
    """What handlers include of engine and frame must not lead back to the handlers, but for their plain tools."""
    for name in tree.files:
        if room_of(name) not in HANDLERS:
            continue
        for included in tree.own_includes(name):
            if room_of(included) not in CORE or included not in tree.files:
                continue
            for further in sorted(reached(tree, included)):
                if room_of(further) in HANDLERS and not stands_on_ground(tree, further):
                    yield f"{name} includes {included}, which is no leaf: it leads to {further}"


def core_header_problems(tree):
    """Sources of engine and frame meet the handlers; their headers must not, but for the handlers' plain tools."""
    for name in tree.files:
        if room_of(name) not in CORE or not name.endswith(".h"):
            continue
        for included in tree.own_includes(name):
            if room_of(included) in HANDLERS and included in tree.files and not stands_on_ground(tree, included):
                yield f"{name} includes {included}: a header of {room_of(name)} may not include a handler"


def circle_problems(tree):
    done, path = set(), []

    def walk(name):
        if name in path:
            yield "circle: " + " -> ".join(path[path.index(name) :] + [name])
            return
        if name in done or name not in tree.files:
            return
        path.append(name)
        for included in tree.own_includes(name):
            yield from walk(included)
        path.pop()
        done.add(name)

    for name in tree.files:
        yield from walk(name)


def system_header_problems(tree):
    for name, includes in tree.files.items():
        room = room_of(name)
        for mark, included in includes:
            if mark != "<":
                continue
            if included.lower() in WINDOWS_HEADERS and room not in WINDOWS_ROOMS:
                yield f"{name} includes <{included}> outside the Windows rooms"
            if included in HEAVY_HEADERS and room not in HEAVY_ROOMS:
                yield f"{name} includes <{included}>, which the Windows program cannot afford"


def header_problems(tree):
    """A source begins with the header that it implements: its own, or one of its room; a platform's may be above."""
    for name in tree.files:
        room = room_of(name)
        if not name.endswith(".cpp") or name in START:
            continue
        first = next(tree.own_includes(name), "nothing")
        own = name[:-4] + ".h"
        if own in tree.files and first != own:
            yield f"{name} begins with {first}, not with its header"
        elif room_of(first) != room and room not in WINDOWS_ROOMS | HEAVY_ROOMS:
            yield f"{name} begins with {first}, which is no header of its room"


RULES = [room_problems, leaf_problems, core_header_problems, circle_problems, system_header_problems, header_problems]


def problems(source):
    tree = Tree(source)
    return [problem for rule in RULES for problem in rule(tree)]


if __name__ == "__main__":
    found = problems(pathlib.Path(__file__).resolve().parents[2] / "src")
    print("\n".join(found) or "No problem found.")
    sys.exit(1 if found else 0)
