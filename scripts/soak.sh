#!/usr/bin/env bash
# The promises about loss in full, which docs/reliability.md has the figures of: hours. `ctest -C Thorough` has them in
# small.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh python3-minimal
cmake --preset dev > /dev/null
cmake --build --preset dev
tests/reliability/kills.py build/dev/bin 1000
tests/reliability/fulldisk.py build/dev/bin 512
