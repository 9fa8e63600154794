"""makcheck from outside: its options, its exit statuses, desktop files and settings, and what its documents say."""

import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MAKCHECK = ROOT / "build" / "native" / "makcheck"
DEMO = ROOT / "demo"


class MakcheckCase(unittest.TestCase):
    """Macros, desktop files and settings in a folder of their own, and makcheck's answers."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, name, text, encoding="cp1252"):
        path = self.folder / name
        path.write_bytes(text.encode(encoding))
        return str(path)

    def macro(self, *lines, name="test.mak"):
        return self.file(name, "".join(line + "\r\n" for line in lines))

    def makcheck(self, *arguments, status=0, **environment):
        done = subprocess.run([str(MAKCHECK), *map(str, arguments)], capture_output=True, timeout=120, cwd=self.folder,
                              env={**os.environ, "LC_ALL": "C", **environment}, stdin=subprocess.DEVNULL)
        self.errors = done.stderr.decode()
        self.assertEqual(done.returncode, status, self.errors + done.stdout.decode())
        return done.stdout.decode()

    def found(self, *arguments):
        """What is found, as (line, name), and the texts by name."""
        done = json.loads(self.makcheck("--json", *arguments, status=1))
        self.texts = {finding["name"]: finding["text"] for finding in done["findings"]}
        return [(finding["line"], finding["name"]) for finding in done["findings"]]


class CommandLineTest(MakcheckCase):
    def test_a_macro_without_mistakes_is_passed_in_silence(self):
        self.assertEqual(self.makcheck(self.macro("MSG=a")), "")
        self.assertEqual(self.errors, "")

    def test_a_finding_names_file_line_column_weight_and_name(self):
        self.macro("MSG=a", "  BUTONCLICK=1,a")
        self.assertEqual(self.makcheck("test.mak", status=1),
                         'test.mak:2:3: error [misspelled-verb] "BUTONCLICK" is no verb; write BUTTONCLICK\n')
        self.macro("MSG=a, b")
        self.assertTrue(self.makcheck("test.mak", status=1).startswith("test.mak:1:7: warning [dropped-text] "))

    def test_several_files_are_checked_in_their_order(self):
        for name in ("b.mak", "a.mak", "c.mak"):
            self.macro("WAIT" if name != "c.mak" else "WAIT=1", name=name)
        lines = self.makcheck("b.mak", "c.mak", "a.mak", status=1).splitlines()
        self.assertEqual([line.partition(":")[0] for line in lines], ["b.mak", "a.mak"])

    def test_a_wrong_command_line_is_64(self):
        for arguments in ([], ["--gibtesnicht"], ["--explain"], ["--explain", "no-such-finding"], ["--lang", "fr", "a"],
                          ["--desktop"], ["--ini", ""]):
            with self.subTest(arguments):
                self.assertEqual(self.makcheck(*arguments, status=64), "")
                self.assertIn("makcheck", self.errors)

    def test_a_file_that_cannot_be_read_is_66(self):
        macro = self.macro("MSG=a")
        for arguments in (["fehlt.mak"], [macro, "fehlt.mak"], ["--desktop", "fehlt.desktop", macro],
                          ["--ini", "fehlt.ini", macro]):
            with self.subTest(arguments):
                self.makcheck(*arguments, status=66)
                self.assertIn("fehlt", self.errors)

    def test_a_mistake_in_a_desktop_file_is_told_with_its_line(self):
        desktop = self.file("test.desktop", 'window a "A"\n  blubb\n', "utf-8")
        self.makcheck("--desktop", desktop, self.macro("MSG=a"), status=66)
        self.assertIn("test.desktop:2", self.errors)

    def test_names_of_files_may_hold_umlauts(self):
        self.macro("WAIT", name="Prüfung Größe.mak")
        self.assertIn("Prüfung Größe.mak:1:1: error", self.makcheck("Prüfung Größe.mak", status=1, LC_ALL="C.UTF-8"))
        finding = json.loads(self.makcheck("--json", "Prüfung Größe.mak", status=1))["findings"][0]
        self.assertEqual(finding["file"], "Prüfung Größe.mak")

    def test_the_language_is_that_of_the_system_or_the_one_asked_for(self):
        macro = self.macro("WAIT")
        german = "WAIT braucht das Argument 1: Millisekunden"
        english = "WAIT needs argument 1: milliseconds"
        self.assertIn(english, self.makcheck(macro, status=1))
        self.assertIn(german, self.makcheck(macro, status=1, LC_ALL="de_DE.UTF-8"))
        self.assertIn(german, self.makcheck("--lang", "de", macro, status=1))
        self.assertIn(english, self.makcheck("--lang", "en", macro, status=1, LC_ALL="de_DE.UTF-8"))

    def test_json_gives_places_and_fixes(self):
        findings = json.loads(self.makcheck("--json", self.macro("MSG=ä", "BUTONCLICK=1,a"), status=1))["findings"]
        self.assertEqual(findings, [{
            "file": str(self.folder / "test.mak"), "line": 2, "column": 1, "endColumn": 11, "severity": "error",
            "name": "misspelled-verb", "text": '"BUTONCLICK" is no verb; write BUTTONCLICK',
            "fixes": [{"line": 2, "column": 1, "endColumn": 11, "text": "BUTTONCLICK"}]}])
        self.assertEqual(json.loads(self.makcheck("--json", self.macro("MSG=a"))), {"findings": []})

    def test_sarif_has_the_shape_of_its_standard(self):
        sarif = json.loads(self.makcheck("--sarif", self.macro("MSG(a)", "MSG=a, b"), status=1))
        self.assertEqual((sarif["version"], len(sarif["runs"])), ("2.1.0", 1))
        run = sarif["runs"][0]
        rules = {rule["id"]: rule for rule in run["tool"]["driver"]["rules"]}
        self.assertEqual(list(rules), self.makcheck("--findings").split())
        for rule in rules.values():
            self.assertTrue(rule["fullDescription"]["text"])
            self.assertIn(rule["defaultConfiguration"]["level"], ("error", "warning"))
        self.assertEqual([result["ruleId"] for result in run["results"]], ["parenthesised-command", "dropped-text"])
        for line, result in enumerate(run["results"], 1):
            self.assertEqual(result["level"], rules[result["ruleId"]]["defaultConfiguration"]["level"])
            self.assertTrue(result["message"]["text"])
            place = result["locations"][0]["physicalLocation"]
            self.assertTrue(place["artifactLocation"]["uri"].endswith("test.mak"))
            self.assertEqual(place["region"]["startLine"], line)
            self.assertLess(place["region"]["startColumn"], place["region"]["endColumn"])
            replacement = result["fixes"][0]["artifactChanges"][0]["replacements"][0]
            self.assertEqual(replacement["deletedRegion"]["startLine"], line)
            self.assertTrue(replacement["insertedContent"]["text"])
        empty = json.loads(self.makcheck("--sarif", self.macro("MSG=a")))
        self.assertEqual(empty["runs"][0]["results"], [])

    def test_every_finding_is_explained_in_both_languages(self):
        names = self.makcheck("--findings").split()
        self.assertGreater(len(names), 60)
        for name in names:
            with self.subTest(name):
                english, german = (self.makcheck("--lang", language, "--explain", name) for language in ("en", "de"))
                self.assertRegex(english, rf"^{name} \((error|warning)\)\n\n.+\n\nwrong:\n\n    .")
                self.assertIn("\nright:\n\n    ", english)
                self.assertIn("\nfalsch:\n\n    ", german)
                self.assertNotEqual(english, german)

    def test_the_verbs_are_listed_with_what_they_need(self):
        verbs = self.makcheck("--verbs").splitlines()[2:]
        self.assertEqual(len(verbs), 110)
        self.assertIn("SETCHECK=value,id,window,[exact],frame id or control text,(unused)", verbs)
        self.assertIn("MAXWINDOW", verbs)
        self.assertIn("SETFOCUS=[Fenster]", self.makcheck("--verbs", "--lang", "de").splitlines())
        table = json.loads(self.makcheck("--verbs", "--json"))
        self.assertEqual((len(table["verbs"]), len(table["variables"])), (110, 19))
        wait = next(verb for verb in table["verbs"] if verb["word"] == "WAIT")
        self.assertEqual(wait, {"word": "WAIT", "kind": "action",
                                "arguments": [{"name": "milliseconds", "needed": True, "read": True}]})


class EncodingTest(MakcheckCase):
    def test_what_is_no_ansi_is_told(self):
        for encoding, name in (("utf-8", "utf-8-file"), ("utf-16", "utf-16-file"), ("utf-16-be", "utf-16-file"),
                               ("utf-8-sig", "byte-order-mark")):
            with self.subTest(encoding):
                self.assertEqual(self.found(self.file("test.mak", "MSG=Größe\r\n", encoding)), [(1, name)])
        self.makcheck(self.file("test.mak", "MSG=Größe\r\n"))


class DemonstrationTest(MakcheckCase):
    """The shipped macros, and changed copies of them."""

    def pairs(self):
        return [(path.stem, path) for path in sorted((DEMO / "desktops").glob("*.desktop"))]

    def test_is_clean(self):
        macros = sorted(DEMO.glob("*.MAK"))
        self.assertEqual(len(macros), 8)
        self.makcheck(*macros)
        self.makcheck("--ini", DEMO / "QUMAEXP.INI", *macros)
        for name, desktop in self.pairs():
            with self.subTest(name):
                self.makcheck("--desktop", desktop, DEMO / f"{name}.MAK")

    def changed(self, name, old, new, desktop=None):
        """What is found in a shipped macro with one text changed, as (changed line or not, name)."""
        text = (DEMO / f"{name}.MAK").read_bytes().decode("cp1252")
        line = text[: text.index(old)].count("\n") + 1
        macro = self.file(f"{name}.MAK", text.replace(old, new, 1))
        found = self.found("--desktop", desktop or DEMO / "desktops" / f"{name}.desktop", macro)
        return [(number == line, finding) for number, finding in found]

    def assert_changed(self, name, old, new, finding, *says):
        self.assertEqual(self.changed(name, old, new), [(True, finding)])
        for text in says:
            self.assertIn(text, self.texts[finding])

    def test_a_wrong_id(self):
        self.assert_changed("QUMASTAMM", "9,2212,Dialog", "9,2219,Dialog", "unknown-control", "2219", "nearest: 221")
        self.assert_changed("QUMAFIBU", "BUTTONCLICK=2111", "BUTTONCLICK=2119", "unknown-control", "2119", "nearest: 211")

    def test_a_wrong_class(self):
        self.assert_changed("QUMAFIBU", "ExportDialog,1,,ThunderRT6CommandButton", "ExportDialog,1,,Button",
                            "unknown-control", "ThunderRT6CommandButton")

    def test_a_class_that_is_left_out(self):
        self.assert_changed("QUMAFIBU", "ExportDialog,1,,ThunderRT6CommandButton", "ExportDialog,1", "unknown-control")

    def test_a_wrong_frame(self):
        self.assert_changed("QUMASTAMM", "ThunderRT6OptionButton,2220,", "ThunderRT6OptionButton,2219,", "unknown-frame",
                            "2219", "2220")

    def test_a_wrong_entry(self):
        self.assert_changed("QUMASTAMM", "SELECTCOMBO=2003,", "SELECTCOMBO=2013,", "unknown-entry", "2013", "2003")

    def test_a_wrong_window(self):
        text = (DEMO / "QUMAFIBU.MAK").read_bytes().decode("cp1252")
        macro = self.file("a.mak", text.replace("VALUE(GDPdU-Export)", "VALUE(GDPDU-Export)"))
        found = self.found("--desktop", DEMO / "desktops" / "QUMAFIBU.desktop", macro)
        self.assertIn("unknown-window", {name for _, name in found})
        self.assertIn("GDPdU-Export", self.texts["unknown-window"])

    def test_a_wrong_box(self):
        self.assert_changed("QUMAFIBU", "Der Export ist abgeschlossen", "Der Export ist fertig", "unknown-box", "fertig")

    DESKTOP = ('window main "TeRu - 1"\n  on command 2101\n    open export\n\n'
               'window export "Export"\n  control ThunderRT6Frame 5 "A"\n    control Edit 7 "a"\n'
               '  control ThunderRT6Frame 6 "B"\n    control Edit 7 "b"\n  control Edit 8 "c"\n')

    def test_a_wrong_menu(self):
        desktop = self.file("a.desktop", self.DESKTOP, "utf-8")
        self.makcheck("--desktop", desktop, self.macro("MENUCLICK=2101,%MAINWINDOW%"))
        macro = self.macro("MSG=a", "MENUCLICK=2110,%MAINWINDOW%")
        self.assertEqual(self.found("--desktop", desktop, macro), [(2, "unknown-menu")])
        self.assertIn("2101", self.texts["unknown-menu"])

    def test_a_control_that_another_one_hides(self):
        desktop = self.file("a.desktop", self.DESKTOP, "utf-8")
        macro = self.macro("SETTEXT=x,7,Export,1,Edit")
        self.assertEqual(self.found("--desktop", desktop, macro), [(1, "shadowed-control")])
        self.makcheck("--desktop", desktop, self.macro("SETTEXT=x,8,Export,1,Edit"))


class SettingsTest(MakcheckCase):
    def settings(self, *lines):
        return ["--ini", self.file("QUMAEXP.INI", "".join(line + "\r\n" for line in lines))]

    def test_a_macro_of_the_table_that_is_missing(self):
        self.macro("MSG=a", name="DA.MAK")
        ini = self.settings("[Makro]", "Makro1='Export','FEHLT.MAK'", "Makro2='Import','da.mak'")
        self.assertEqual(self.found(*ini, self.folder / "DA.MAK"), [(2, "missing-macro")])
        self.assertIn("FEHLT.MAK", self.texts["missing-macro"])

    def test_a_key_that_nothing_reads(self):
        macro = self.macro("DIM x", "x=READINI(Export,Protokoll)", "MSG=x")
        ini = self.settings("[Allgemein]", "MandantDLG=1", "GDPDU=1", "[Export]", "Protokoll=ja", "Protokolle=ja")
        self.assertEqual(self.found(*ini, macro), [(2, "unread-key"), (6, "unread-key")])

    def test_a_control_path_that_does_not_parse(self):
        ini = self.settings("[MERLA]", "MatrixCheckIASIFRS=15;ThunderRT6CheckBox;13;ThunderRT6Frame",
                            "MatrixCheckKalkulation=15;ThunderRT6CheckBox", "MatrixCheckSteuerrecht=x;A;13;B",
                            "MatrixJahrVonBis=Jahr;Text;ThunderRT6Frame;61")
        self.assertEqual(self.found(*ini, self.macro("MSG=a")), [(3, "bad-control-path"), (4, "bad-control-path")])

    def test_a_path_that_needs_the_dialog_for_the_client(self):
        macro = self.macro("MSG='$FIBUPATH'", name="A.MAK")
        table = ["[Makro]", "Makro1='Export','A.MAK'"]
        self.assertEqual(self.found(*self.settings(*table), macro), [(1, "no-client-dialog")])
        self.makcheck(*self.settings(*table, "[Makro-Fibu]", "Files=1"), macro)
        off = self.settings(*table, "[Makro-Fibu]", "Files=1", "[Allgemein]", "MandantenDLG=0")
        self.assertEqual(self.found(*off, macro), [(1, "no-client-dialog")])


class DocumentsTest(MakcheckCase):
    GUIDE = (ROOT / "docs" / "makcheck.md").read_text()

    def test_the_table_holds_every_finding_as_makcheck_knows_it(self):
        rows = re.findall(r"^\| `([a-z0-9-]+)` \| (error|warning) \| (.+) \|$", self.GUIDE, re.M)
        rules = json.loads(self.makcheck("--sarif", self.macro("MSG=a")))["runs"][0]["tool"]["driver"]["rules"]
        expected = [(rule["id"], rule["defaultConfiguration"]["level"], rule["fullDescription"]["text"].replace("|", "\\|"))
                    for rule in rules]
        self.assertEqual(rows, expected)

    def test_the_examples_of_the_macro_guide_are_clean(self):
        guide = (ROOT / "docs" / "macros.md").read_text()
        blocks = re.findall(r"(?:^    [A-Z].*\n)+", guide, re.M)
        self.assertGreater(len(blocks), 3)
        for block in blocks:
            with self.subTest(block):
                self.makcheck(self.macro(*(line[4:] for line in block.splitlines())))

    # The ordinary mistakes of makrun's guide: what is found in each, and on which line. The desktop is that of its
    # example.
    MISTAKES = {
        1: [(2, "misspelled-verb")], 2: [(3, "open-quote")], 3: [(3, "not-an-id")], 4: [(1, "if-without-endif")],
        5: [(2, "blank-at-equals")], 6: [(1, "dollar-word-case")], 7: [(1, "undeclared-variable")],
        8: [(1, "missing-mark")], 9: [(3, "unknown-control")], 10: [(3, "unknown-control")], 11: [(2, "unknown-window")],
        12: [(3, "missing-argument")], 13: [(3, "loop-end-without-do")], 14: [(1, "utf-8-file")], 15: [(3, "wait-folder")],
    }

    def test_the_ordinary_mistakes_are_found(self):
        guide = (ROOT / "docs" / "makrun.md").read_text()
        desktop = self.file("export.desktop", re.search(r"## Example.*?```desktop\n(.*?)```", guide, re.S)[1], "utf-8")
        mistakes = re.findall(r"^### (\d+)\. .*?```mistake([^\n]*)\n(.*?)```", guide, re.S | re.M)
        self.assertEqual(len(mistakes), 15)
        for number, options, text in mistakes:
            with self.subTest(number):
                encoding = "utf-8" if "utf-8" in options else "cp1252"
                found = self.found("--desktop", desktop, self.file("mistake.mak", text.replace("\n", "\r\n"), encoding))
                errors = [finding for finding in found if finding in self.MISTAKES[int(number)]]
                self.assertEqual(errors, self.MISTAKES[int(number)], found)


if __name__ == "__main__":
    unittest.main()
