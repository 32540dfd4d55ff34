#!/usr/bin/env bash
# Runs clang-tidy with the project's allow-list over the sources: scripts/lint.sh [file …], all of them by default. The
# build for it is without precompiled headers, which clang-tidy cannot read, and so tells what an include is missing for.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh clang-tidy
cmake --preset lint >/dev/null
cmake --build --preset lint # moc's output must be there
if [ $# -eq 0 ]; then
  mapfile -t files < <(git ls-files '*.cpp' ':!tests/consumer' ':!tests/fuzz' ':!benchmarks')
else
  files=("$@")
fi
printf '%s\0' "${files[@]}" |
  xargs -0 -P "$(nproc)" -n 4 clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p build/lint
