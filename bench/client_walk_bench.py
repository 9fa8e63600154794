#!/usr/bin/env python3
"""Times the walk over a list of 30,000 clients, row by row, in another process under Wine.

    bench/client_walk_bench.py [ROWS]      the rows to walk, 500 where nothing is said

Build the preset "windows" before. The figures are printed: what a row costs in all, and what of it is the program's own
work. The rest are the pauses of 10 ms for each window with a title that each search for the list passes.
"""

import os
import pathlib
import sys
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from client_walk import ClientWalkTest  # noqa: E402

CLIENTS = 30_000
ROWS = min(int(sys.argv.pop()) if len(sys.argv) > 1 else 500, CLIENTS)


def processor_milliseconds(process):
    """Time of the processor that a program has taken so far, from the host: Wine itself tells 0 of another process."""
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
    return 1000 * (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class ClientWalkBenchmark(ClientWalkTest):
    def test_walk(self):
        start = time.monotonic()
        dialog = self.ask_for_clients(CLIENTS)
        print(f"{CLIENTS} clients laid and asked for: {time.monotonic() - start:.1f} s")
        program = self._started[-1]
        work = processor_milliseconds(program)
        start = time.monotonic()
        self.walk_all(dialog)
        self.wait_log(f"SelectList {ROWS}", seconds=60 + ROWS)
        milliseconds = 1000 * (time.monotonic() - start)
        work = processor_milliseconds(program) - work
        print(f"{ROWS} clients walked: {milliseconds / 1000:.1f} s")
        print(f"each: {milliseconds / ROWS:.1f} ms, of which {work / ROWS:.2f} ms of the processor")
        print(f"{CLIENTS} clients at this pace: {milliseconds / ROWS * CLIENTS / 60_000:.0f} min")


if __name__ == "__main__":
    unittest.main()
