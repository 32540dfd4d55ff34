#!/usr/bin/env bash
# Builds with counters, runs the functional tests, and prints how many lines they have run, for each folder of the
# sources: scripts/coverage.sh [--lines] [option of ctest …]. With --lines also those that they have not.
set -euo pipefail
cd "$(dirname "$0")/.."

lines=
[ "${1:-}" != --lines ] || { lines=1 && shift; }
scripts/setup.sh gcovr python3-minimal xvfb >&2
cmake --preset coverage >&2
cmake --build --preset coverage >&2
find build/coverage -name '*.gcda' -delete
ctest --preset coverage -j "$((2 * $(nproc)))" "$@" >&2 || true # those that fail have run lines, too
filters=()
for folder in apps comparison designer reading vdpatterndesign vdtranslate vdwidget walls; do
  filters+=(--filter "$folder/")
done
gcovr --root . "${filters[@]}" --gcov-ignore-parse-errors --json build/coverage/coverage.json build/coverage >&2
LINES_TOO=$lines python3 - build/coverage/coverage.json <<'END'
import collections, json, os, sys

files = json.load(open(sys.argv[1]))["files"]
folders = collections.defaultdict(lambda: [0, 0])
for file in files:
    lines = [line for line in file["lines"] if not line.get("gcovr/noncode")]
    missed = [line["line_number"] for line in lines if line["count"] == 0]
    for folder in (os.path.dirname(file["file"]), "all"):
        folders[folder][0] += len(lines) - len(missed)
        folders[folder][1] += len(lines)
    if missed and os.environ["LINES_TOO"]:
        print(f"{file['file']}: {' '.join(map(str, missed))}")
print("| folder | lines | run | % |\n| --- | --- | --- | --- |")
for folder, (run, count) in sorted(folders.items(), key=lambda item: (item[0] == "all", item[0])):
    print(f"| `{folder}` | {count} | {run} | {100 * run / max(count, 1):.1f} |")
END
