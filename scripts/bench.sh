#!/usr/bin/env bash
# Builds the release and measures it against the straightforward reference; prints the table of benchmarks/README.md.
# With options of Google Benchmark it runs the benchmarks with these instead.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh libbenchmark-dev >&2
cmake --preset release -DVD_BUILD_BENCHMARKS=ON >&2
cmake --build --preset release --target chartbench peakmemory >&2
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false'
bin=build/release/bin
[ $# -eq 0 ] || exec $bin/chartbench "$@"

echo '| what | chart | ms | reference, ms | faster | times a memcpy |'
echo '| --- | --- | --- | --- | --- | --- |'
# Medians of interleaved repetitions: what else the machine does hits both sides alike.
$bin/chartbench --benchmark_repetitions=7 --benchmark_enable_random_interleaving=true --benchmark_min_time=0.2 \
  --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null |
  awk -F, '
    $1 ~ /_median"?$/ {
      gsub(/"/, "", $1); sub(/_median$/, "", $1)
      size = $1; sub(/^[^\/]*\/width:/, "", size); sub(/\/rows.*/, "", size); sub(/\/height:/, " x ", size)
      name = $1; sub(/\/.*/, "", name); side = name; sub(/<.*/, "", name)
      if (side ~ /<Reference>/) reference[name, size] = $4
      else { time[name, size] = $4; order[++count] = name SUBSEP size }
      if (name == "warmMemcpy") memcpy[size] = $4
    }
    END {
      for (i = 1; i <= count; ++i) {
        split(order[i], key, SUBSEP); ms = time[order[i]]; slow = reference[order[i]]
        printf "| `%s` | %s | %.1f | %s | %s | %.1f |\n", key[1], key[2], ms, slow ? sprintf("%.0f", slow) : "", \
          slow ? sprintf("%.1f", slow / ms) : "", ms / memcpy[key[2]]
      }
    }' | sort
echo
for what in editor reference; do
  echo "peak memory of the $what at 4320 x 4320: $($bin/peakmemory $what 4320 4320 2>/dev/null)"
done
