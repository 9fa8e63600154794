"""The editors: the language server with the protocol's own library, with Neovim and with a VS Code workbench in a browser,
and the files that are made from the verb table. Pictures of the workbench stay in build/test/editors/."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
HERE = ROOT / "tests" / "editors"
MAKCHECK = ROOT / "build" / "native" / "makcheck"
VSCODE = ROOT / "editors" / "vscode"
NODE_FOLDER = ROOT / "build" / "node"
PICTURES = ROOT / "build" / "test" / "editors"


def run(command, cwd=ROOT, seconds=300, **environment):
    """The output of a command that has to succeed."""
    result = subprocess.run(
        list(map(str, command)),
        cwd=cwd,
        env={**os.environ, **{name: str(value) for name, value in environment.items()}},
        stdin=subprocess.DEVNULL,
        capture_output=True,
        text=True,
        timeout=seconds,
        check=False,
    )
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}{result.stderr}")
    return result.stdout


def install():
    """The packages beside the lock file that they were installed for, and the bundles of the extension."""
    lock = (VSCODE / "package-lock.json").read_text(encoding="utf-8")
    made_for = NODE_FOLDER / "made-for"
    if not made_for.is_file() or made_for.read_text(encoding="utf-8") != lock:
        shutil.rmtree(NODE_FOLDER, ignore_errors=True)
        NODE_FOLDER.mkdir(parents=True)
        for name in ("package.json", "package-lock.json"):
            shutil.copy(VSCODE / name, NODE_FOLDER)
        run(["npm", "ci", "--no-audit", "--no-fund"], cwd=NODE_FOLDER, seconds=900)
        made_for.write_text(lock, encoding="utf-8")
    for path in VSCODE.iterdir():
        if path.name in ("node_modules", "package-lock.json", "dist"):
            continue
        target = NODE_FOLDER / path.name
        if path.is_dir():
            shutil.copytree(path, target, dirs_exist_ok=True)
        else:
            shutil.copy(path, target)


class Editors(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        install()
        run(["npm", "run", "build"], cwd=NODE_FOLDER)

    def test_protocol_library(self):
        run(
            ["node", "--test", HERE / "protocol.test.mjs"],
            MAKCHECK=MAKCHECK,
            NODE_MODULES=NODE_FOLDER,
        )

    def test_generated_files_are_up_to_date(self):
        run([sys.executable, ROOT / "editors" / "generate.py", MAKCHECK, "--check"])

    def test_grammar(self):
        run(["npm", "run", "test-grammar"], cwd=NODE_FOLDER)

    def test_package(self):
        package = ROOT / "build" / "tarven-mak.vsix"
        package.unlink(missing_ok=True)
        run(["npx", "vsce", "package", "--no-dependencies", "--allow-missing-repository", "--skip-license", "-o", package],
            cwd=NODE_FOLDER)
        with zipfile.ZipFile(package) as archive:
            names = set(archive.namelist())
        wanted = {"dist/extension.js", "dist/browser.js", "package.json", "syntaxes/tarven-mak.tmLanguage.json",
                  "snippets/tarven-mak.json", "language-configuration.json"}
        self.assertLessEqual({f"extension/{name}" for name in wanted}, names)

    def test_problem_matcher_reads_what_the_checker_prints(self):
        import re

        matchers = {m["name"]: m for m in json.loads((VSCODE / "package.json").read_text())["contributes"]["problemMatchers"]}
        pattern = matchers["makcheck"]["pattern"]
        with tempfile.TemporaryDirectory() as folder:
            macro = pathlib.Path(folder) / "A.MAK"
            macro.write_bytes(b"BUTONCLICK=1,a")
            result = subprocess.run([MAKCHECK, macro], capture_output=True, text=True, check=False)
        match = re.match(pattern["regexp"], result.stdout)
        fields = {name: match[number] for name, number in pattern.items() if name != "regexp"}
        self.assertEqual(
            {"file": str(macro), "line": "1", "column": "1", "severity": "error", "code": "misspelled-verb"},
            {name: fields[name] for name in ("file", "line", "column", "severity", "code")},
        )

    def test_neovim(self):
        with tempfile.TemporaryDirectory() as folder:
            macro = pathlib.Path(folder) / "EXPORT.MAK"
            macro.write_bytes("BUTONCLICK=2111,Export,1\r\nMSG=Gr\xfcn\r\n".encode("cp1252"))
            seen_file = pathlib.Path(folder) / "seen.json"
            plugin = ROOT / "editors" / "neovim" / "tarven-mak.lua"
            command = ["nvim", "--headless", "-u", "NONE", "--cmd", f"let g:makcheck='{MAKCHECK}'",
                       "--cmd", f"luafile {plugin}", macro, "-c", f"luafile {HERE / 'neovim_session.lua'}"]
            run(command, SEEN=seen_file, XDG_STATE_HOME=folder, XDG_DATA_HOME=folder, XDG_CONFIG_HOME=folder)
            seen = json.loads(seen_file.read_text())
            self.assertNotIn("error", seen)
            self.assertEqual([(0, 0)], [(f["line"], f["column"]) for f in seen["findings"]])
            self.assertIn("BUTTONCLICK", seen["findings"][0]["message"])
            self.assertEqual("cp1252", seen["encoding"])
            self.assertEqual("BUTTONCLICK=2111,Export,1", seen["mended"])
            self.assertIn("SELECTCOMBOINDEX", seen["completion"])
            self.assertEqual("SELECTCOMBO=", seen["completed"])
            self.assertIn("MSG=Gr\xfcn".encode("cp1252"), macro.read_bytes())

    def test_workbench(self):
        chromium = shutil.which("chromium")
        self.assertIsNotNone(chromium, "chromium is missing")
        seen = json.loads(
            run(
                ["node", HERE / "workbench.mjs"],
                MAKCHECK=MAKCHECK,
                NODE_MODULES=NODE_FOLDER,
                EXTENSION=NODE_FOLDER,
                CHROMIUM=chromium,
                PICTURES=PICTURES,
            )
        )
        self.assertNotIn("error", seen)
        self.assertIn("BUTTONCLICK", seen["finding"])
        self.assertGreater(seen["colours"], 1, "the grammar colours nothing")
        lines = [line.replace("\xa0", " ") for line in seen["lines"]]
        self.assertEqual("BUTTONCLICK=2111,Export,1", lines[0])
        self.assertTrue(lines[2].startswith("SELECTCOMBO"), lines)


if __name__ == "__main__":
    unittest.main()
