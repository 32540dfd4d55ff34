#!/usr/bin/env bash
# Builds the release and opens the chart desk; its options may follow (--folder, --language). Without a display it
# confirms one default chart and prints the path of its image.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh fonts-noto-cjk
cmake --preset release -DVD_BUILD_TESTS=OFF -DVD_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build --preset release --target chartdesk

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/bin/chartdesk "$@"
fi
exec build/release/bin/chartdesk --headless "$@"
