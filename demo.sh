#!/bin/bash
# Shows one export from the press of the hot key to the finished files, on a display of its own. Installs and builds what
# is missing first. Screenshots of each step and the logs stay in build/demo/.
cd "$(dirname "$0")" || exit 1
scripts/setup.sh || exit 1
exec python3 demo/run_demo.py </dev/null
