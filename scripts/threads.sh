#!/usr/bin/env bash
# Looks for races with ThreadSanitizer: draws and encodes on several cores, and writes batches. Ends with 1 where there
# is a report. What reports races of the system's libraries, which are built without it, is in tests/harness/tsan.supp.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh > /dev/null
cmake --preset tsan > /dev/null
cmake --build --preset tsan --target vdchart
vdchart=$PWD/build/tsan/bin/vdchart
export TSAN_OPTIONS="suppressions=$PWD/tests/harness/tsan.supp:exitcode=66:print_suppressions=1"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
{
  echo name,width,height,rows,columns
  for i in 1 2 3 4 5 6 7 8; do echo "wall$i,1920,1080,9,16"; done
} > walls.csv
"$vdchart" new > chart.json
for size in 320x180 3840x2160 6000x5000; do
  echo "== a chart of $size"
  "$vdchart" render chart.json -s width="${size%x*}" -s height="${size#*x}" -o chart.png
  "$vdchart" verify chart.png
done
echo '== a batch, and the rest of one'
"$vdchart" batch chart.json -w walls.csv -o batch
rm batch/wall3.png
"$vdchart" batch chart.json -w walls.csv -o batch --resume
echo '== a wall'
"$vdchart" wall new --cabinet 128x128 --size 15x9 > a.wall.json
"$vdchart" render a.wall.json -o wall.png
