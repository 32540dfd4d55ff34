#!/usr/bin/env bash
# Builds the project and runs every functional test once. With --sanitizers also: the tests under AddressSanitizer and
# UndefinedBehaviorSanitizer, each fuzz target for a quarter of a minute, and the reading of photographs, which needs OpenCV.
# With --all also: everything with Qt 6, an optimised build with the benchmarks (which scripts/bench.sh runs), the Debian
# packages, hosts with the sources in their tree, the reference of the headers, and clang-tidy over the libraries and
# programs.
set -euo pipefail
cd "$(dirname "$0")/.."

all=
sanitizers=
case "${1:-}" in
  --all) all=1 sanitizers=1 ;;
  --sanitizers) sanitizers=1 ;;
  '') ;;
  *) echo "usage: scripts/test.sh [--sanitizers | --all]" >&2 && exit 2 ;;
esac

step() { printf '\n== %s (after %d s)\n' "$1" "$SECONDS"; }

# run_tests PRESET [option of ctest …]: a test that fails is run again, alone, to tell a mishap from a mistake. Either
# way it is printed; those that are known to need it are listed in tests/README.md. Twice as many at once as there are
# processors, for more than half of their time they wait for timers.
run_tests() {
  local preset=$1
  shift
  ctest --preset "$preset" -j "$((2 * $(nproc)))" "$@" && return
  step "again, alone: what failed"
  local log="build/$preset/Testing/Temporary/LastTestsFailed.log" failed
  failed=$(cut -d: -f2 "$log" | sort -u)
  ctest --preset "$preset" "$@" --rerun-failed || exit 1
  for test in $failed; do
    flaky+=("$preset: $test")
    grep -q "^| \`$test\` |" tests/README.md || unlisted+=("$test")
  done
}

flaky=()
unlisted=()
step 'Set-up'
packages=(mold python3-minimal xvfb clang-format fonts-noto-cjk xserver-xorg-core xserver-xorg-video-dummy
  x11-xserver-utils)
[ -z "$sanitizers" ] || packages+=(clang libclang-rt-dev
  libopencv-core-dev libopencv-imgproc-dev libopencv-features2d-dev libopencv-calib3d-dev
  libopencv-contrib-dev)
[ -z "$all" ] || packages+=(qt6-base-dev qt6-qpa-plugins qt6-translations-l10n libbenchmark-dev clang-tidy qttools5-dev)
scripts/setup.sh "${packages[@]}"
scripts/format.sh --check
step 'Build'
cmake --preset dev -DVD_SYMBOLS=OFF # -DVD_SYMBOLS=ON brings back what debuggers read
cmake --build --preset dev
step 'Tests'
run_tests dev

if [ -n "$sanitizers" ]; then
  step 'Sanitizers'
  cmake --preset asan
  cmake --build --preset asan
  run_tests asan
  step 'Fuzzing'
  scripts/fuzz.sh 15
fi

if [ -n "$all" ]; then
  step 'Qt 6'
  cmake --preset qt6
  cmake --build --preset qt6
  run_tests qt6 -E '^tst_(colorrouting|heldarrow)$' # which tests/README.md names
  step 'Release build with benchmarks'
  cmake --preset benchmarks
  cmake --build --preset benchmarks
  step 'Packages'
  scripts/package.sh
  step 'Hosts, kills and full disks'
  ctest --preset dev -C Thorough -R '^(hosts|kills|fulldisk)$'
  step 'Binary interface'
  scripts/abi.sh
  step 'Reference'
  scripts/reference.sh
  step 'clang-tidy'
  scripts/lint.sh
fi

step 'Done'
for test in "${flaky[@]}"; do echo "passed only at the second go: $test"; done
for test in "${unlisted[@]}"; do echo "not listed in tests/README.md: $test"; done
