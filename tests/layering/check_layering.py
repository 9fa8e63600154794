"""Who may include and call whom.

The floor plan, floors.txt, says which file stands on which floor. A file includes its own floor and lower ones, calls
its own floor and lower ones, and no sources call each other in a circle, but for those that the plan agrees on. What is
called is read from the object files of the native build. Run by itself it prints what breaks these rules, and the
largest set of sources that call each other; an argument names the folder of another native build.
"""

import pathlib
import re
import subprocess
import sys

import floor_plan

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "native"

# The implementations of the platform and of the forms: what is common knows neither.
REALIZATIONS = {"win32", "simulated"}
# The floors with an implementation behind them, whose sources are one machine. Above them no circle may be larger.
GROUND = {"runtime", "resources", "platform", "forms"}
LARGEST_CIRCLE = 4

# The program's start, and what takes the place of a library in it, begin with no header and are built for Windows only.
START = {"main.cpp", "one_thread.cpp"}

# Where the state of the program is reset.
RESET = "engine/reset.cpp"

# System headers that only some places may use.
WINDOWS_HEADERS = {"windows.h", "commctrl.h", "shellapi.h", "commdlg.h", "richedit.h", "winuser.h", "winreg.h"}
# They make the Windows program far larger than it may be.
HEAVY_HEADERS = {"iostream", "fstream", "sstream", "format", "regex", "locale", "filesystem"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


class Tree:
    """The sources of a folder, what they include and where they stand."""

    def __init__(self, source, plan):
        self.source = pathlib.Path(source)
        self.plan = plan
        self.files = {}  # for each its includes: line, mark and name
        for path in sorted(self.source.rglob("*")):
            if path.suffix in (".h", ".cpp"):
                lines = path.read_text(encoding="utf-8").splitlines()
                found = [(number, INCLUDE.match(line)) for number, line in enumerate(lines, 1)]
                name = path.relative_to(self.source).as_posix()
                self.files[name] = [(number, *match.groups()) for number, match in found if match]

    def own_includes(self, name):
        """Line and file for what is included of the tree, found from src/ or from the file's own folder."""
        for number, mark, included in self.files[name]:
            if mark == '"':
                beside = (pathlib.PurePosixPath(name).parent / included).as_posix()
                yield number, included if included in self.files or beside not in self.files else beside

    def stands_higher(self, name, other):
        """True when a file stands on a higher floor than another one; false when one of them is not in the plan."""
        floor, of_other = self.plan.floor_of(name), self.plan.floor_of(other)
        return floor is not None and of_other is not None and floor > of_other

    def label(self, name):
        return self.plan.label(self.plan.floor_of(name))


def room_of(name):
    return pathlib.PurePosixPath(name).parent.as_posix()


def realization_of(name):
    return next((part for part in name.split("/")[:-1] if part in REALIZATIONS), None)


def plan_problems(tree):
    """The plan and the tree speak of the same files."""
    yield from tree.plan.mistakes
    used = {tree.plan.entry_of(name) for name in tree.files}
    for entry in tree.plan.entries():
        if entry not in used:
            yield f"floors.txt: {entry} is not there"
    for name in tree.files:
        if tree.plan.floor_of(name) is None:
            yield f"{name} stands on no floor"


def include_problems(tree):
    for name in tree.files:
        for line, included in tree.own_includes(name):
            where = f"{name}:{line} includes {included}"
            if included not in tree.files:
                yield f"{where}, which is not there"
            elif tree.stands_higher(included, name):
                yield f"{where}: upwards from {tree.label(name)} to {tree.label(included)}"
            elif realization_of(included) not in (None, realization_of(name)):
                yield f"{where}, which belongs to one realization only"


def include_circle_problems(tree):
    done, path = set(), []

    def walk(name):
        if name in path:
            yield "circle of includes: " + " -> ".join(path[path.index(name) :] + [name])
            return
        if name in done or name not in tree.files:
            return
        path.append(name)
        for _, included in tree.own_includes(name):
            yield from walk(included)
        path.pop()
        done.add(name)

    for name in tree.files:
        yield from walk(name)


def system_header_problems(tree):
    for name, includes in tree.files.items():
        for line, mark, included in includes:
            if mark != "<":
                continue
            if included.lower() in WINDOWS_HEADERS and realization_of(name) != "win32":
                yield f"{name}:{line} includes <{included}> outside the Windows rooms"
            if included in HEAVY_HEADERS and realization_of(name) != "simulated":
                yield f"{name}:{line} includes <{included}>, which the Windows program cannot afford"


def header_problems(tree):
    """A source begins with the header that it implements: its own, or one of its room; a platform's may be above."""
    for name in tree.files:
        if not name.endswith(".cpp") or name in START:
            continue
        _, first = next(tree.own_includes(name), (0, "nothing"))
        own = name[:-4] + ".h"
        if own in tree.files and first != own:
            yield f"{name} begins with {first}, not with its header"
        elif room_of(first) != room_of(name) and realization_of(name) is None:
            yield f"{name} begins with {first}, which is no header of its room"


RULES = [plan_problems, include_problems, include_circle_problems, system_header_problems, header_problems]


class Symbols:
    """Which source calls which, by the object files of a build."""

    def __init__(self, tree, build):
        self.tree = tree
        self.build = pathlib.Path(build)
        objects = {}
        for path in sorted(self.build.glob("**/*.dir/src/**/*.o")):
            name = path.as_posix().split(".dir/src/")[1].removesuffix(".o")
            if name in tree.files:
                objects[path.as_posix()] = name
        self.missing = [
            name
            for name in tree.files
            if name.endswith(".cpp")
            and name not in START
            and realization_of(name) != "win32"
            and name not in objects.values()
        ]
        defined, wanted = {}, []
        self.variables = {}  # those that can be written to, by the source that holds them
        for line in self._names(objects):
            path, rest = line.split(": ", 1)
            symbol, kind = rest.split()[:2]
            # What several objects may hold, such as a template's instance, belongs to none of them.
            if kind in "TDBRSGC":
                defined.setdefault(symbol, objects[path])
                if kind in "DBSGC":
                    self.variables[symbol] = objects[path]
            elif kind == "U":
                wanted.append((objects[path], symbol))
        self.wanted = set(wanted)
        self.calls = {}  # caller to called to one of the symbols
        for name, symbol in wanted:
            if defined.get(symbol, name) != name:
                self.calls.setdefault(name, {}).setdefault(defined[symbol], symbol)

    @staticmethod
    def _names(objects):
        if not objects:
            return []
        command = ["nm", "-A", "-P", *objects]
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()

    def circles(self):
        """The sets of sources, without their endings, that call each other in circles: Tarjan's algorithm."""
        number, low, stack, found = {}, {}, [], []

        def visit(name):
            number[name] = low[name] = len(number)
            stack.append(name)
            for called in self.calls.get(name, ()):
                if called not in number:
                    visit(called)
                    low[name] = min(low[name], low[called])
                elif called in stack:
                    low[name] = min(low[name], number[called])
            if low[name] == number[name]:
                at = stack.index(name)
                if len(stack) - at > 1:
                    found.append(frozenset(file.removesuffix(".cpp") for file in stack[at:]))
                del stack[at:]

        for name in sorted(self.calls):
            if name not in number:
                visit(name)
        return found

    def largest_circle(self):
        """Number of sources in the largest set above the ground; 1 when none call each other."""
        return max((len(circle) for circle in self.circles() if not _on_ground(circle)), default=1)


def _on_ground(circle):
    return all(name.split("/")[0] in GROUND for name in circle)


def _covers(agreed, circle):
    return all(any(name == entry or entry.endswith("/") and name.startswith(entry) for entry in agreed) for name in circle)


def _readable(symbol):
    return subprocess.run(["c++filt", symbol], check=True, capture_output=True, text=True).stdout.strip()


def object_problems(symbols):
    for name in symbols.missing:
        yield f"{name} has no object file in {symbols.build}: build the preset native first"


def symbol_problems(symbols):
    tree = symbols.tree
    for name, called in sorted(symbols.calls.items()):
        for other, symbol in sorted(called.items()):
            if tree.stands_higher(other, name):
                yield (
                    f"{name} calls {_readable(symbol)} of {other}: "
                    f"upwards from {tree.label(name)} to {tree.label(other)}"
                )


def symbol_circle_problems(symbols):
    circles = symbols.circles()
    agreed = symbols.tree.plan.circles
    for circle in circles:
        told = " ".join(sorted(circle))
        if not any(_covers(entry, circle) for entry in agreed):
            yield f"sources that call each other: {told}"
        elif not _on_ground(circle) and len(circle) > LARGEST_CIRCLE:
            yield f"more than {LARGEST_CIRCLE} sources that call each other: {told}"
    for entry in agreed:
        if not any(_covers(entry, circle) for circle in circles):
            yield f"floors.txt: no circle among {' '.join(sorted(entry))}"


def state_problems(symbols):
    """What rooms above the ground keep, but for forms and constants, is reset by the one place for it."""
    for symbol, name in sorted(symbols.variables.items()):
        variable = _readable(symbol).split("[")[0].split("::")[-1]
        if name.split("/")[0] in GROUND or re.match(r"frm|k[A-Z]|__", variable):
            continue
        if name != RESET and (RESET, symbol) not in symbols.wanted:
            yield f"{name} keeps {variable}, which {RESET} does not reset"


SYMBOL_RULES = [object_problems, symbol_problems, symbol_circle_problems, state_problems]


def problems(source, plan, build):
    tree = Tree(source, plan)
    symbols = Symbols(tree, build)
    found = [problem for rule in RULES for problem in rule(tree)]
    return found + [problem for rule in SYMBOL_RULES for problem in rule(symbols)]


def main(build=BUILD):
    plan = floor_plan.read()
    found = problems(ROOT / "src", plan, build)
    print("\n".join(found) or "No problem found.")
    print(f"Largest set of sources that call each other: {Symbols(Tree(ROOT / 'src', plan), build).largest_circle()}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:2]))
