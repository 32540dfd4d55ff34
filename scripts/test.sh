#!/usr/bin/env bash
# Builds the project and runs every test: with shared libraries, then with static ones under AddressSanitizer and
# UndefinedBehaviorSanitizer. At last each fuzz target runs for half a minute.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh xvfb xauth clang-format fonts-noto-cjk
scripts/format.sh --check
for preset in dev asan; do
  cmake --preset "$preset"
  cmake --build --preset "$preset"
  # A second chance: the window tests wait for events, and the machine may be busy with something else.
  ctest --preset "$preset" -j "$(nproc)" --repeat until-pass:2
done
scripts/fuzz.sh 30
