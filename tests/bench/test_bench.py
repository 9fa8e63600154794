"""The native benchmarks at their smallest size: they still run, and what they time still works."""

import json
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
NATIVE_BUILD = ROOT / "build" / "native"


class BenchTest(unittest.TestCase):
    def run_small(self, program, *options, status=0):
        """Runs a benchmark and yields the names that it has timed."""
        with tempfile.TemporaryDirectory() as folder:
            result = pathlib.Path(folder) / "result.json"
            command = [NATIVE_BUILD / program, "--small", f"--benchmark_out={result}", *options]
            done = subprocess.run(command, capture_output=True, text=True, timeout=300, check=False)
            self.assertEqual(done.returncode, status, done.stdout + done.stderr)
            if status:
                return []
            return [run["name"].partition("/iterations")[0] for run in json.loads(result.read_text())["benchmarks"]]

    def test_engine(self):
        sizes = {"messages": 10000, "variables": 2000, "jumps": 1000, "records": 10000, "years of a matrix": 100}
        expected = [f"{kind}/{part}/{size}" for kind, size in sizes.items() for part in ("load", "run")]
        self.assertEqual(self.run_small("engine_bench"), expected)

    def test_clipboard(self):
        expected = [f"{verb}/10000" for verb in ("SAVECLIPBOARD", "SAVECLIPBOARDZVK")]
        self.assertEqual(self.run_small("clipboard_bench"), expected)

    def test_checker(self):
        kinds = ["ordinary", "variables", "marks", "missing marks", "jumps to unknown places", "unknown verbs", "conditions",
                 "loose ends", "long line"]
        expected = [f"{kind}/check/1000" for kind in kinds] + ["ordinary/change/1000"]
        self.assertEqual(self.run_small("checker_bench"), expected)

    def test_an_option_that_does_not_exist_is_refused(self):
        self.run_small("engine_bench", "--gibtesnicht", status=64)


if __name__ == "__main__":
    unittest.main()
