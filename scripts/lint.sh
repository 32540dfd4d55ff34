#!/usr/bin/env bash
# Runs clang-tidy with the project's allow-list.
#   scripts/lint.sh          the libraries and programs as the dev preset compiles them, in units of many sources: fast
#   scripts/lint.sh --each   every source by itself, tests too, which also tells what an include is missing for
#   scripts/lint.sh FILE …   these
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh clang-tidy

tidy() { xargs -0 -P "$(nproc)" -n "$1" clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option "${@:2}"; }

if [ $# -eq 0 ]; then
  cmake --preset dev >/dev/null
  cmake --build --preset dev # moc's output must be there
  find build/dev/{vdtranslate,vdwidget,vdpatterndesign,comparison,walls,apps} -path '*/Unity/*.cxx' -print0 |
    tidy 1 -p build/dev --checks=-bugprone-suspicious-include \
      --header-filter='/(vdtranslate|vdwidget|vdpatterndesign|comparison|walls|apps)/.*\.(h|cpp)$'
  exit
fi

cmake --preset lint >/dev/null
cmake --build --preset lint
if [ "$1" = --each ]; then
  mapfile -t files < <(git ls-files '*.cpp' ':!tests/consumer' ':!tests/fuzz' ':!benchmarks')
else
  files=("$@")
fi
printf '%s\0' "${files[@]}" | tidy 4 -p build/lint
