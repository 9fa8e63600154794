"""The rules about includes hold for the sources, and each rule notices what breaks it."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import check_layering  # noqa: E402

SOURCE = pathlib.Path(__file__).resolve().parents[2] / "src"


class SourcesTest(unittest.TestCase):
    """One test for each rule, on the sources as they are."""


def _rule_test(rule):
    def test(self):
        tree = check_layering.Tree(SOURCE)
        self.assertIn("engine/verbs.cpp", tree.files)
        self.assertEqual(list(rule(tree)), [])

    return test


for _rule in check_layering.RULES:
    setattr(SourcesTest, "test_" + _rule.__name__.replace("_problems", "_rule"), _rule_test(_rule))


class BadTreeTest(unittest.TestCase):
    """Small trees, each with one mistake."""

    def problems(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = pathlib.Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return check_layering.problems(folder)

    def test_good_tree(self):
        files = {
            "runtime/text.h": "#include <string>\n",
            "runtime/text.cpp": '#include "runtime/text.h"\n',
            "platform/files.h": '#include "runtime/text.h"\n',
            "platform/win32/files.cpp": '#include <windows.h>\n#include "platform/files.h"\n',
            "engine/state.h": "#include <string>\n",
            "frame/log.h": '#include "environment/file_system.h"\n',
            "environment/file_system.h": '#include "platform/files.h"\n',
            "engine/verbs.h": '#include "engine/state.h"\n',
            "engine/verbs.cpp": '#include "engine/verbs.h"\n#include "input/mouse.h"\n',
            "input/mouse.h": "",
            "input/mouse.cpp": '#include "input/mouse.h"\n#include "engine/state.h"\n',
            "main.cpp": '#include "engine/verbs.h"\n',
        }
        self.assertEqual(self.problems(files), [])

    def test_lower_room_includes_upper_room(self):
        found = self.problems({"runtime/text.h": '#include "platform/files.h"\n', "platform/files.h": ""})
        self.assertEqual(found, ["runtime/text.h includes platform/files.h: runtime may not include platform"])

    def test_common_code_includes_a_platform(self):
        found = self.problems(
            {"forms/form.h": '#include "platform/simulated/desktop.h"\n', "platform/simulated/desktop.h": ""}
        )
        self.assertEqual(
            found,
            ["forms/form.h includes platform/simulated/desktop.h: forms may not include platform/simulated"],
        )

    def test_circle(self):
        found = self.problems({"input/a.h": '#include "input/b.h"\n', "input/b.h": '#include "a.h"\n'})
        self.assertEqual(found, ["circle: input/a.h -> input/b.h -> input/a.h"])

    def test_circle_through_two_rooms(self):
        found = self.problems(
            {"clients/a.h": '#include "environment/b.h"\n', "environment/b.h": '#include "clients/a.h"\n'}
        )
        self.assertEqual(found, ["circle: clients/a.h -> environment/b.h -> clients/a.h"])

    def test_header_of_the_engine_knows_a_handler(self):
        found = self.problems({
                "engine/state.h": "",
                "engine/run.h": '#include "input/mouse.h"\n',
                "input/mouse.h": '#include "engine/state.h"\n',
            })
        self.assertEqual(
            found, ["engine/run.h includes input/mouse.h: a header of engine may not include a handler"]
        )

    def test_handler_includes_no_leaf(self):
        found = self.problems(
            {
                "frame/main_form.h": '#include "clients/inputbox.h"\n',
                "clients/inputbox.h": '#include "frame/state.h"\n',
                "frame/state.h": "",
                "input/mouse.h": '#include "frame/main_form.h"\n',
            }
        )
        self.assertIn(
            "input/mouse.h includes frame/main_form.h, which is no leaf: it leads to clients/inputbox.h", found
        )

    def test_windows_header_outside_its_rooms(self):
        found = self.problems({"input/mouse.h": "#include <windows.h>\n"})
        self.assertEqual(found, ["input/mouse.h includes <windows.h> outside the Windows rooms"])

    def test_heavy_header(self):
        found = self.problems({"frame/log.h": "#  include <iostream>\n"})
        self.assertEqual(found, ["frame/log.h includes <iostream>, which the Windows program cannot afford"])

    def test_unknown_room(self):
        self.assertEqual(self.problems({"misc/a.h": ""}), ["misc/a.h stands in no known room"])

    def test_missing_file(self):
        self.assertEqual(
            self.problems({"input/a.h": '#include "input/b.h"\n'}),
            ["input/a.h includes input/b.h, which is not there"],
        )

    def test_source_without_header(self):
        found = self.problems({"input/a.cpp": '#include "runtime/text.h"\n', "runtime/text.h": ""})
        self.assertEqual(found, ["input/a.cpp begins with runtime/text.h, which is no header of its room"])

    def test_source_that_hides_what_its_header_lacks(self):
        found = self.problems({"input/a.cpp": '#include "input/b.h"\n', "input/a.h": "", "input/b.h": ""})
        self.assertEqual(found, ["input/a.cpp begins with input/b.h, not with its header"])


if __name__ == "__main__":
    unittest.main()
