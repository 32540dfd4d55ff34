#!/usr/bin/env bash
# Builds the release and runs the benchmarks; options of Google Benchmark may follow.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh libbenchmark-dev
cmake --preset release -DVD_BUILD_BENCHMARKS=ON
cmake --build --preset release --target chartbench
QT_QPA_PLATFORM=offscreen exec build/release/bin/chartbench "$@"
