#!/usr/bin/env bash
# Fuzzes the readers of files from the kept corpora, which it leaves as they are: scripts/fuzz.sh [seconds for each].
# An input that fails is left in build/fuzz/findings/. A corpus is renewed from the folder of a longer run by the target
# itself: -merge=1 -use_counters=0 CORPUS FOLDER keeps the smallest inputs that reach all the code.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-30}

scripts/setup.sh clang libclang-rt-dev
# Freed memory is given back soon, so that the limit below is one on what the reader needs.
export ASAN_OPTIONS=quarantine_size_mb=8
cmake --preset fuzz
cmake --build --preset fuzz
mkdir -p build/fuzz/findings
for fuzzer in build/fuzz/bin/fuzz_*; do
  name=${fuzzer##*/fuzz_}
  found=$(mktemp -d)
  trap 'rm -rf "$found"' EXIT
  # No input may take longer than five seconds or the process more than 200 MiB.
  "$fuzzer" "$found" "tests/fuzz/corpus/$name" -dict="tests/fuzz/$name.dict" -max_total_time="$seconds" \
    -max_len=65536 -rss_limit_mb=200 -timeout=5 -print_final_stats=1 -artifact_prefix=build/fuzz/findings/
  rm -rf "$found"
done
