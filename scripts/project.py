"""What scripts and tests know of the project and of the machine that builds it."""

import os
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
VERSION = re.search(r"^project\(\w+ VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(), re.MULTILINE)[1]
JOBS = str(len(os.sched_getaffinity(0)))  # builds that run at the same time
