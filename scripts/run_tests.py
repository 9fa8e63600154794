"""Builds the presets, runs every suite of tests and adds up what they report.

A suite that does not build, crashes, takes too long or reports no count is a failure by itself.
"""

import json
import os
import pathlib
import subprocess
import sys
import time
import unittest

from project import JOBS
from processes import Command, run, step_back, stop_on_signals
from wine_desktop import BUILD, ROOT, WINDOWS_BUILD, Desktop, DesktopError

RESULTS = BUILD / "test"


class Totals:
    def __init__(self):
        self.passed = self.failed = 0

    def add(self, suite, passed, failed, seconds):
        print(f"== {suite}: {passed} passed, {failed} failed ({seconds:.0f} s)", flush=True)
        self.passed += passed
        self.failed += failed


def build(preset, totals):
    start = time.monotonic()
    print(f"== building preset {preset}", flush=True)
    configured = run(["cmake", "--preset", preset], 300, stdout=subprocess.DEVNULL, cwd=ROOT) == 0
    # What can be built is built, so that one broken program does not hide the tests of the others.
    command = ["cmake", "--build", "--preset", preset, "--parallel", JOBS, "--", "-k", "0"]
    if not configured or run(command, 3000, cwd=ROOT, preexec_fn=step_back) != 0:
        totals.add(f"building preset {preset}", 0, 1, time.monotonic() - start)


class Suite:
    """A suite at work in a process of its own, which leaves its counts in a file."""

    def __init__(self, name, seconds, result_file, count, command, quiet=False, **options):
        self.name = name
        self._deadline = time.monotonic() + seconds
        self._start = time.monotonic()
        self._result_file = result_file
        self._count = count
        self._log = RESULTS / f"{name}.log" if quiet else None
        result_file.unlink(missing_ok=True)
        print(f"== {name}{' in the background' if quiet else ''}", flush=True)
        if quiet:
            with open(self._log, "wb") as output:
                self._command = Command(command, stdout=output, stderr=output, **options)
        else:
            self._command = Command(command, **options)

    def finish(self, totals):
        """Waits for the end and adds the counts; a suite that was to be quiet now shows its output."""
        code = self._command.wait(max(self._deadline - time.monotonic(), 0))
        self._command.stop()
        if self._log:
            print(self._log.read_text(errors="replace"), end="")
        try:
            passed, failed = self._count(json.loads(self._result_file.read_text()))
        except (OSError, ValueError, KeyError):
            passed, failed = 0, 1
        if code != 0 and failed == 0:
            failed = 1
        if passed + failed == 0:
            failed = 1
        totals.add(self.name, passed, failed, time.monotonic() - self._start)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._command.stop()


def run_suite(totals, *arguments, **options):
    name = arguments[0]
    try:
        with Suite(*arguments, **options) as suite:
            suite.finish(totals)
    except OSError as error:
        print(error)
        totals.add(name, 0, 1, 0)


def google_counts(result):
    bad = result["failures"] + result.get("errors", 0)
    run_tests = [test for suite in result["testsuites"] for test in suite["testsuite"] if test["result"] == "COMPLETED"]
    return len(run_tests) - bad, bad


def google_suite(program, totals):
    result = RESULTS / f"{program.name}.json"
    command = [str(program), "--gtest_brief=1", f"--gtest_output=json:{result}"]
    run_suite(totals, f"{program.name} (native)", 1500, result, google_counts, command, preexec_fn=step_back)


def google_suite_under_wine(program, totals, dpi=96, tests="*"):
    name = f"{program.name} (Wine, {dpi} dpi)"
    result = RESULTS / f"{program.name}-wine-{dpi}.json"
    output = f"--gtest_output=json:Z:{result}".replace("/", "\\")
    command = ["wine", str(program), "--gtest_brief=1", f"--gtest_filter={tests}", output]
    try:
        with Desktop(RESULTS / "prefix", dpi) as desktop:
            environment = desktop.environment
            run_suite(totals, name, 600, result, google_counts, command, env=environment, stdin=subprocess.DEVNULL)
    except DesktopError as error:
        print(error)
        totals.add(name, 0, 1, 0)


def python_suite(name, directory, seconds, quiet=False, pattern="test_*.py"):
    """Arguments of Suite for a folder of Python tests, or those of its files that fit the pattern."""
    result = RESULTS / f"{name}.json"
    command = [sys.executable, __file__, "--python-suite", str(directory), pattern, str(result)]
    return name, seconds, result, lambda counts: (counts["passed"], counts["failed"]), command, quiet


def run_python_suite(directory, pattern, result_file):
    """Runs a folder of Python tests in this process and leaves the counts in a file."""
    suite = unittest.defaultTestLoader.discover(directory, pattern)
    result = unittest.TextTestRunner(verbosity=2, stream=sys.stdout).run(suite)
    failed = len(result.failures) + len(result.errors) + len(result.unexpectedSuccesses)
    passed = result.testsRun - failed - len(result.skipped)
    pathlib.Path(result_file).write_text(json.dumps({"passed": max(passed, 0), "failed": failed}))
    return 0 if failed == 0 else 1


def main():
    start = time.monotonic()
    RESULTS.mkdir(parents=True, exist_ok=True)
    totals = Totals()
    build("windows", totals)
    contract_tests = WINDOWS_BUILD / "platform_contract_tests.exe"
    # Windows are drawn larger only on a screen of high resolution.
    google_suite_under_wine(contract_tests, totals, dpi=144, tests="*.Scale*")
    google_suite_under_wine(contract_tests, totals)
    # The end-to-end tests wait for windows most of their time, so two halves of them run beside the native build, each
    # on a desktop of its own.
    folder = ROOT / "tests" / "e2e"
    first = python_suite("end-to-end-1", folder, 1500, quiet=True, pattern="test_[a-i]*.py")
    second = python_suite("end-to-end-2", folder, 1500, quiet=True, pattern="test_[!a-i]*.py")
    other_prefix = {**os.environ, "E2E_PREFIX": "prefix-2"}
    with Suite(*first) as first_half, Suite(*second, env=other_prefix) as second_half:
        build("native", totals)
        # It reads the symbols of what has just been built.
        run_suite(totals, *python_suite("layering", ROOT / "tests" / "layering", 60))
        google_suite(BUILD / "native" / "qumaexp_tests", totals)
        google_suite(BUILD / "native" / "platform_contract_tests", totals)
        google_suite(BUILD / "native" / "makcheck_tests", totals)
        run_suite(totals, *python_suite("makrun", ROOT / "tests" / "makrun", 600))
        run_suite(totals, *python_suite("makcheck", ROOT / "tests" / "makcheck", 600))
        run_suite(totals, *python_suite("benchmarks", ROOT / "tests" / "bench", 600))
        run_suite(totals, *python_suite("editors", ROOT / "tests" / "editors", 1500))
        first_half.finish(totals)
        # It needs makrun of the native build, and the desktop that the first half has left.
        run_suite(totals, *python_suite("rehearsal", ROOT / "tests" / "rehearsal", 600))
        second_half.finish(totals)
    print(f"== {time.monotonic() - start:.0f} s in all")
    print(f"{totals.passed} passed, {totals.failed} failed", flush=True)
    return 0 if totals.failed == 0 else 1


if __name__ == "__main__":
    stop_on_signals()
    try:
        if sys.argv[1:2] == ["--python-suite"]:
            sys.exit(run_python_suite(*sys.argv[2:5]))
        sys.exit(main())
    except KeyboardInterrupt as interrupt:
        print(f"Interrupted by {interrupt}.", file=sys.stderr)
        sys.exit(1)
