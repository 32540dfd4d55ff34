#!/usr/bin/env bash
# Renders the sample charts of the README with vdchart.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh >&2
cmake --preset release -DVD_BUILD_TESTS=OFF -DVD_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build --preset release --target vdchart >&2

vdchart=build/release/bin/vdchart
folder=docs/images/samples
mkdir -p $folder

# sample NAME WIDTHxHEIGHT COLUMNSxROWS [option of "vdchart new" …]
sample() {
  local name=$1 size=$2 cabinets=$3
  shift 3
  $vdchart new "$@" --grid "$cabinets" --set width="${size%x*}" --set height="${size#*x}" |
    $vdchart render - --compression 9 -o "$folder/$name.png"
}

$vdchart render examples/walls/stage.wall.json --compression 9 -o $folder/wall.png
for show in festival:LED1 sides:'Both sides' belt:Center; do
  $vdchart render "examples/shows/${show%%:*}.show.json" --of "${show#*:}" --compression 9 -o "$folder/show-${show%%:*}.png"
done
sample default 640x360 10x6
sample numbering 640x360 10x5 --preset numbering-bottom-left --set inLineData.serialSize=22 \
  --set publicData.showOutBorder=true --set 'publicData.outBorderColor=[255,64,64,255]'
sample geometry 640x360 16x9 --preset chess --set basicData.oddColor=#000000 --set basicData.evenColor=#1c1c20 \
  --set inLineData.showCircle=true --set inLineData.circleSize=180 --set inLineData.circleWidth=3 \
  --set 'inLineData.circleColor=[255,255,255,255]' --set inLineData.showDiagonal=true --set inLineData.diagonalWidth=1 \
  --set 'inLineData.diagonalColor=[0,200,255,255]' --set publicData.showOutBorder=true
sample bars 640x360 8x1 --preset bars --set selfData.showResolution=true --set selfData.resolutionTextSize=26 \
  --set 'selfData.resolutionTextColor=[255,255,255,255]'
sample ramp 640x360 16x1 --preset ramp-16
sample stage 640x360 10x4 --set 'basicData.oddColor=[24,32,48,255]' --set 'basicData.evenColor=[40,52,76,255]' \
  --set inLineData.showCircle=false --set inLineData.showDiagonal=false --set inLineData.serialSize=14 \
  --set inLineData.serialPosition=0 --set inLineData.letterMode=false --set inLineData.combinationMode=true \
  --set 'inLineData.serialColor=[255,210,90,255]' --set logoData.pictureLogo=false --set logoData.textLogo=true \
  --set 'logoData.logoText=STAGE LEFT' --set logoData.textSize=44 --set logoData.offsetY=0 --set 'logoData.textColor=[255,255,255,255]' \
  --set selfData.showSelfText=false --set selfData.showResolution=false
