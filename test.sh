#!/bin/bash
# Installs what is missing, builds, and runs all tests. The last line is "N passed, N failed".
cd "$(dirname "$0")" || exit 1
if ! scripts/setup.sh; then
  echo "0 passed, 1 failed"
  exit 1
fi
exec python3 scripts/run_tests.py "$@" </dev/null
