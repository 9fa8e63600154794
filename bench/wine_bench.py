#!/usr/bin/env python3
"""Runs the benchmarks that need the windows of another process, under Wine, on a display of their own.

Build the preset "windows" before. The figures are printed; the program ends with 1 when a limit is passed.
"""

import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "scripts"))

from wine_desktop import BUILD, CODE_PAGE, WINDOWS_BUILD, Desktop, DesktopError  # noqa: E402


def main():
    program = WINDOWS_BUILD / "foreign_bench.exe"
    if not program.is_file():
        print("Build the preset windows first: cmake --preset windows && cmake --build --preset windows")
        return 1
    with Desktop(BUILD / "bench" / "prefix") as desktop:
        folder = desktop.drive / "bench"
        folder.mkdir(exist_ok=True)
        shutil.copy2(program, folder)
        result = subprocess.run(
            ["wine", r"C:\bench\foreign_bench.exe"],
            cwd=folder,
            env=desktop.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            check=False,
        )
    print(result.stdout.decode(CODE_PAGE), end="")
    return result.returncode


if __name__ == "__main__":
    try:
        sys.exit(main())
    except DesktopError as error:
        sys.exit(str(error))
