#!/usr/bin/env bash
# The promises of docs/reliability.md in full: hours. The tests have them in small, some with `ctest -C Thorough`.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh python3-minimal
cmake --preset dev > /dev/null
cmake --build --preset dev
tests/reliability/kills.py build/dev/bin 1000
tests/reliability/fulldisk.py build/dev/bin 512
tests/reliability/slowdisk.py build/dev/bin
tests/reliability/folders.py build/dev/bin
tests/reliability/bombs.py build/dev/bin
build/dev/bin/reliability_pictures 100000 1 tests/fuzz/corpus/logo/* -platform offscreen
build/dev/bin/reliability_idler 60 -platform offscreen
scripts/threads.sh
tests/mutation/run.py || true # what survives still is told by docs/reliability.md
cmake --preset asan > /dev/null
cmake --build --preset asan --target reliability_destroyer
LSAN_OPTIONS=suppressions=tests/harness/lsan.supp:print_suppressions=0 build/asan/bin/reliability_destroyer 1000
tests/reliability/marathon.py build/dev/bin # last: its memory is known to go beyond what is wanted
