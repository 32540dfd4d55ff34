#!/usr/bin/env bash
# Formats all C++ sources; with --check only tells which are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."
mode=(-i)
[ "${1:-}" = --check ] && mode=(--dry-run --Werror)
find apps benchmarks comparison examples reading tests vdpatterndesign vdtranslate vdwidget walls \( -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null |
  xargs -0 clang-format "${mode[@]}"
