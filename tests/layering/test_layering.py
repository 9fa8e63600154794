"""The sources keep to the floor plan, each rule notices what breaks it, and ARCHITECTURE.md draws the same plan.

Needs the object files of the native build, or of the build that NATIVE_BUILD names.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import check_layering  # noqa: E402
import floor_plan  # noqa: E402

ROOT = check_layering.ROOT
BUILD = os.environ.get("NATIVE_BUILD", check_layering.BUILD)


class SourcesTest(unittest.TestCase):
    """One test for each rule, on the sources and object files as they are."""

    @classmethod
    def setUpClass(cls):
        cls.tree = check_layering.Tree(ROOT / "src", floor_plan.read())
        cls.symbols = check_layering.Symbols(cls.tree, BUILD)

    def test_everything_was_read(self):
        self.assertIn("engine/verbs.cpp", self.tree.files)
        # The verb table names the handlers, and nobody below it names the table.
        self.assertIn("input/mouse.cpp", self.symbols.calls["engine/verbs.cpp"])

    def test_largest_circle(self):
        largest = self.symbols.largest_circle()
        print(f"Largest set of sources that call each other: {largest}")
        self.assertLessEqual(largest, check_layering.LARGEST_CIRCLE)


def _rule_test(rule, subject):
    return lambda self: self.assertEqual(list(rule(getattr(self, subject))), [])


for _rules, _subject in ((check_layering.RULES, "tree"), (check_layering.SYMBOL_RULES, "symbols")):
    for _rule in _rules:
        setattr(SourcesTest, "test_" + _rule.__name__.replace("_problems", "_rule"), _rule_test(_rule, _subject))


class ArchitectureTest(unittest.TestCase):
    """The table of the floors in ARCHITECTURE.md: number, name, files, from the top down."""

    def test_table_is_the_plan(self):
        text = (ROOT / "ARCHITECTURE.md").read_text(encoding="utf-8")
        rows = re.findall(r"^\| (\d+) \| ([^|]+) \| ([^|]+) \|$", text, re.MULTILINE)
        plan = floor_plan.read()
        drawn = [(int(number), name.strip(), sorted(re.findall(r"`([^`]+)`", files))) for number, name, files in rows]
        expected = [
            (floor + 1, name, sorted(entry for entry in plan.entries() if plan.floor_of_entry(entry) == floor))
            for floor, name in enumerate(plan.floors)
        ]
        self.assertEqual(drawn, expected[::-1])

    def test_walk_goes_down_once_and_comes_back_once(self):
        text = (ROOT / "ARCHITECTURE.md").read_text(encoding="utf-8")
        section = text.split("## The road of one press\n")[1].split("\n## ")[0]
        walk = [int(number) for number in re.findall(r"\(floor (\d+)\)", section)]
        lowest = walk.index(min(walk))
        down, up = walk[: lowest + 1], walk[lowest:]
        self.assertGreater(len(down), 3)
        self.assertGreater(len(up), 1)
        self.assertEqual(down, sorted(down, reverse=True))
        self.assertEqual(up, sorted(up))

    def test_files_of_the_walk_stand_where_it_says(self):
        text = (ROOT / "ARCHITECTURE.md").read_text(encoding="utf-8")
        section = text.split("## The road of one press\n")[1].split("\n## ")[0]
        plan = floor_plan.read()
        named = re.findall(r"`([\w/.]+)` \(floor (\d+)\)", section)
        self.assertGreater(len(named), 5)
        for file, floor in named:
            self.assertTrue((ROOT / "src" / file).exists(), file)
            self.assertEqual(plan.floor_of(file) + 1, int(floor), file)


PLAN = """
# from the ground up
floor ground
  runtime/ platform/
floor states
  engine/state
floor handlers
  input/ clients/
floor engine
  engine/
floor program
  main
"""


class SmallTree(unittest.TestCase):
    """Small trees and the object files of their sources."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = pathlib.Path(folder.name) / "src"
        self.build = pathlib.Path(folder.name) / "build"

    def write(self, files):
        for name, text in files.items():
            path = self.source / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")

    def include_problems(self, files, plan=PLAN):
        """What the rules about sources find, but for entries of the plan that a small tree does without."""
        self.write(files)
        tree = check_layering.Tree(self.source, floor_plan.Plan(plan))
        found = [problem for rule in check_layering.RULES for problem in rule(tree)]
        return [problem for problem in found if not re.fullmatch(r"floors\.txt: \S+ is not there", problem)]

    def symbols(self, files, plan=PLAN):
        self.write(files)
        for name in files:
            path = self.build / "CMakeFiles" / "rooms.dir" / "src" / (name + ".o")
            path.parent.mkdir(parents=True, exist_ok=True)
            subprocess.run(["c++", "-c", str(self.source / name), "-o", str(path)], check=True)
        return check_layering.Symbols(check_layering.Tree(self.source, floor_plan.Plan(plan)), self.build)

    def symbol_problems(self, files, plan=PLAN):
        symbols = self.symbols(files, plan)
        return [problem for rule in check_layering.SYMBOL_RULES for problem in rule(symbols)]


class BadTreeTest(SmallTree):
    """Small trees, each with one mistake in what is included."""

    def test_good_tree(self):
        files = {
            "runtime/text.h": "#include <string>\n",
            "runtime/text.cpp": '#include "runtime/text.h"\n',
            "platform/files.h": '#include "runtime/text.h"\n',
            "platform/win32/files.cpp": '#include <windows.h>\n#include "platform/files.h"\n',
            "engine/state.h": "#include <string>\n",
            "engine/verbs.h": '#include "engine/state.h"\n',
            "engine/verbs.cpp": '#include "engine/verbs.h"\n#include "input/mouse.h"\n',
            "input/mouse.h": "",
            "input/mouse.cpp": '#include "input/mouse.h"\n#include "engine/state.h"\n',
            "main.cpp": '#include "engine/verbs.h"\n',
        }
        self.write(files)
        tree = check_layering.Tree(self.source, floor_plan.Plan(PLAN.replace(" clients/", "")))
        self.assertEqual([problem for rule in check_layering.RULES for problem in rule(tree)], [])

    def test_include_upwards(self):
        found = self.include_problems({
            "input/mouse.h": "",
            "input/mouse.cpp": '#include "input/mouse.h"\n\n#include "engine/verbs.h"\n',
            "engine/verbs.h": "",
        })
        self.assertEqual(
            found,
            ["input/mouse.cpp:3 includes engine/verbs.h: upwards from floor 3 (handlers) to floor 4 (engine)"],
        )

    def test_include_upwards_within_a_folder(self):
        found = self.include_problems({"engine/state.h": '#include "verbs.h"\n', "engine/verbs.h": ""})
        self.assertEqual(
            found, ["engine/state.h:1 includes engine/verbs.h: upwards from floor 2 (states) to floor 4 (engine)"]
        )

    def test_common_code_includes_a_realization(self):
        found = self.include_problems({
            "input/mouse.h": '#include "platform/simulated/desktop.h"\n',
            "platform/simulated/desktop.h": "",
        })
        self.assertEqual(
            found,
            ["input/mouse.h:1 includes platform/simulated/desktop.h, which belongs to one realization only"],
        )

    def test_circle_of_includes(self):
        found = self.include_problems({"input/a.h": '#include "input/b.h"\n', "input/b.h": '#include "a.h"\n'})
        self.assertEqual(found, ["circle of includes: input/a.h -> input/b.h -> input/a.h"])

    def test_circle_of_includes_through_two_rooms(self):
        found = self.include_problems(
            {"clients/a.h": '#include "input/b.h"\n', "input/b.h": '#include "clients/a.h"\n'}
        )
        self.assertEqual(found, ["circle of includes: clients/a.h -> input/b.h -> clients/a.h"])

    def test_windows_header_outside_its_rooms(self):
        found = self.include_problems({"input/mouse.h": "#include <windows.h>\n"})
        self.assertEqual(found, ["input/mouse.h:1 includes <windows.h> outside the Windows rooms"])

    def test_heavy_header(self):
        found = self.include_problems({"engine/state.h": "\n#  include <iostream>\n"})
        self.assertEqual(found, ["engine/state.h:2 includes <iostream>, which the Windows program cannot afford"])

    def test_file_without_a_floor(self):
        self.assertEqual(self.include_problems({"misc/a.h": ""}), ["misc/a.h stands on no floor"])

    def test_missing_file(self):
        self.assertEqual(
            self.include_problems({"input/a.h": '#include "input/b.h"\n'}),
            ["input/a.h:1 includes input/b.h, which is not there"],
        )

    def test_source_without_header(self):
        found = self.include_problems({"input/a.cpp": '#include "runtime/text.h"\n', "runtime/text.h": ""})
        self.assertEqual(found, ["input/a.cpp begins with runtime/text.h, which is no header of its room"])

    def test_source_that_hides_what_its_header_lacks(self):
        found = self.include_problems({"input/a.cpp": '#include "input/b.h"\n', "input/a.h": "", "input/b.h": ""})
        self.assertEqual(found, ["input/a.cpp begins with input/b.h, not with its header"])


class BadPlanTest(SmallTree):
    def test_entry_without_a_file(self):
        self.write({"runtime/text.h": ""})
        tree = check_layering.Tree(self.source, floor_plan.Plan("floor ground\n  runtime/ runtime/dates\n"))
        self.assertEqual(list(check_layering.plan_problems(tree)), ["floors.txt: runtime/dates is not there"])

    def test_entry_that_stands_there_twice(self):
        plan = floor_plan.Plan("floor ground\n  runtime/\nfloor engine\n  runtime/\n")
        self.assertEqual(plan.mistakes, ["floors.txt:4: runtime/ stands there twice"])

    def test_line_of_no_kind(self):
        plan = floor_plan.Plan("  runtime/\nfloor\ncircle\n")
        self.assertEqual(
            plan.mistakes, [f"floors.txt:{line}: neither a floor nor a circle with its reason" for line in (1, 2, 3)]
        )

    def test_a_file_stands_where_its_own_name_is(self):
        plan = floor_plan.Plan(PLAN)
        self.assertEqual(plan.label(plan.floor_of("engine/state.cpp")), "floor 2 (states)")
        self.assertEqual(plan.label(plan.floor_of("engine/state_of_lines.cpp")), "floor 4 (engine)")


class BadSymbolsTest(SmallTree):
    """Small trees that include nothing, each with one mistake in what its sources call."""

    DOWN = {
        "engine/verbs.cpp": "void Click();\nvoid Verbs() { Click(); }\n",
        "input/mouse.cpp": "void Click() {}\n",
    }

    def test_good_symbols(self):
        self.assertEqual(self.symbol_problems(self.DOWN), [])
        self.assertEqual(self.symbols(self.DOWN).largest_circle(), 1)

    def test_symbol_upwards(self):
        found = self.symbol_problems({
            "engine/verbs.cpp": "void Verbs(int) {}\n",
            "input/mouse.cpp": "void Verbs(int);\nvoid Click() { Verbs(1); }\n",
        })
        self.assertEqual(
            found,
            ["input/mouse.cpp calls Verbs(int) of engine/verbs.cpp: upwards from floor 3 (handlers) to floor 4 (engine)"],
        )

    def test_variable_upwards(self):
        found = self.symbol_problems({
            "engine/verbs.cpp": "extern const int kTable;\nconst int kTable = 1;\n",
            "input/mouse.cpp": "extern const int kTable;\nint Click() { return kTable; }\n",
        })
        self.assertEqual(
            found,
            ["input/mouse.cpp calls kTable of engine/verbs.cpp: upwards from floor 3 (handlers) to floor 4 (engine)"],
        )

    def test_what_every_object_holds_calls_nobody(self):
        text = "inline int Twice(int n) { return 2 * n; }\nint {}() {{ return Twice(1); }}\n"
        text = text.replace("{ return 2 * n; }", "{{ return 2 * n; }}")
        found = self.symbol_problems({
            "engine/verbs.cpp": text.format("Verbs"),
            "input/mouse.cpp": text.format("Click"),
        })
        self.assertEqual(found, [])

    CIRCLE = {
        "input/keys.cpp": "void Click();\nvoid Press() { Click(); }\n",
        "input/mouse.cpp": "void Press();\nvoid Click() { Press(); }\n",
    }
    AGREED = PLAN + "circle They take turns.\n  input/keys\n  input/mouse\n"

    def test_circle_within_a_floor(self):
        found = self.symbol_problems(self.CIRCLE)
        self.assertEqual(found, ["sources that call each other: input/keys input/mouse"])
        self.assertEqual(self.symbols(self.CIRCLE).largest_circle(), 2)

    def test_circle_through_a_third(self):
        found = self.symbol_problems({
            "clients/list.cpp": "void Press();\nvoid Walk() { Press(); }\n",
            "input/keys.cpp": "void Click();\nvoid Press() { Click(); }\n",
            "input/mouse.cpp": "void Walk();\nvoid Click() { Walk(); }\n",
        })
        self.assertEqual(found, ["sources that call each other: clients/list input/keys input/mouse"])

    def test_agreed_circle(self):
        self.assertEqual(self.symbol_problems(self.CIRCLE, self.AGREED), [])

    def test_agreed_circle_that_is_cut(self):
        found = self.symbol_problems(self.DOWN, self.AGREED)
        self.assertEqual(found, ["floors.txt: no circle among input/keys input/mouse"])

    def test_agreed_circle_that_is_too_large(self):
        files = {
            f"input/f{i}.cpp": f"void F{(i + 1) % 5}();\nvoid F{i}() {{ F{(i + 1) % 5}(); }}\n" for i in range(5)
        }
        found = self.symbol_problems(files, PLAN + "circle They take turns.\n  input/\n")
        self.assertEqual(
            found,
            ["more than 4 sources that call each other: input/f0 input/f1 input/f2 input/f3 input/f4"],
        )

    def test_state_that_is_not_reset(self):
        found = self.symbol_problems({
            "engine/reset.cpp": "extern int state;\nvoid Reset() { state = 0; }\n",
            "engine/state.cpp": "int state = 1;\n",
            "input/mouse.cpp": "int lastButton = 1;\nint kNone = 2;\nint frmMouse = 3;\n",
            "runtime/text.cpp": "int reserve = 1;\n",
        })
        self.assertEqual(found, ["input/mouse.cpp keeps lastButton, which engine/reset.cpp does not reset"])

    def test_source_that_was_not_built(self):
        self.write({"input/a.cpp": ""})
        symbols = check_layering.Symbols(check_layering.Tree(self.source, floor_plan.Plan(PLAN)), self.build)
        self.assertEqual(
            list(check_layering.object_problems(symbols)),
            [f"input/a.cpp has no object file in {self.build}: build the preset native first"],
        )


if __name__ == "__main__":
    unittest.main()
