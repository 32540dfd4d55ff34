#!/usr/bin/env bash
# Measures vdchart, Pillow, pycairo, ImageMagick and ffmpeg, each as a whole process, drawing the same chart into a PNG
# file: a chessboard of 16 x 9 cabinets at 3840 x 2160 with a label in each, both diagonals, two circles and a border.
# Rounds are run in turn; prints medians of time, processor time and peak memory, and how long `vdchart --version` takes.
# benchmarks/compare_tools.sh [rounds]
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-7}
scripts/setup.sh imagemagick ffmpeg fontconfig libbenchmark-dev python3-cairo python3-pil time >&2
cmake --preset benchmarks >/dev/null
cmake --build --preset benchmarks --target vdchart >&2

width=3840 height=2160 columns=16 rows=9
cell=$((width / columns)) radius=$((height / 2)) text=74
font=$(fc-match -f '%{file}' 'DejaVu Sans')
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
vdchart=build/benchmarks/bin/vdchart

label() { printf "\\$(printf %03o $((65 + $1)))-\\$(printf %03o $((65 + $2)))"; }

# The chart for vdchart: one record.
$vdchart new --preset uhd --set inLineData.serialSize=100 --set inLineData.diagonalWidth=10 \
  --set inLineData.circleWidth=6 --set logoData.showLogo=false --set selfData.showSelfText=false \
  --set selfData.showResolution=false >"$folder/chart.json"

# For ImageMagick: drawing commands. For ffmpeg: a chain of filters; it has none for circles and slanted lines but the
# formula of a pixel, so that a third command leaves these out.
{
  for ((row = 0; row < rows; ++row)); do
    for ((column = 0; column < columns; ++column)); do
      x=$((column * cell)) y=$((row * cell))
      [ $(((row + column) % 2)) = 0 ] && echo "fill #ffaaff rectangle $x,$y $((x + cell - 1)),$((y + cell - 1))"
    done
  done
  echo "stroke #00ff00 stroke-width 10 fill none line 0,0 $width,$height line 0,$height $width,0"
  for centre in $radius $((width - radius)); do
    echo "stroke-width 6 circle $centre,$((height / 2)) $centre,$((height / 2 - radius + 3))"
  done
  echo "stroke #ffffff stroke-width 2 rectangle 1,1 $((width - 2)),$((height - 2))"
  echo "stroke none fill #000064 font-size $text"
  for ((row = 0; row < rows; ++row)); do
    for ((column = 0; column < columns; ++column)); do
      echo "text $((column * cell + 60)),$((row * cell + 145)) '$(label $row $column)'"
    done
  done
} >"$folder/draw.txt"

boxes= labels=
for ((row = 0; row < rows; ++row)); do
  for ((column = 0; column < columns; ++column)); do
    x=$((column * cell)) y=$((row * cell))
    [ $(((row + column) % 2)) = 0 ] && boxes+=",drawbox=$x:$y:$cell:$cell:0xffaaff:fill"
    labels+=",drawtext=fontfile=$font:fontsize=$text:fontcolor=0x000064:text=$(label $row $column):x=$((x + 60)):y=$((y + 90))"
  done
done
border=",drawbox=0:0:$width:$height:0xffffff:2"
slanted="abs(X*$height/$width-Y)"
line="lt(min($slanted\\,abs(($width-X)*$height/$width-Y))\\,6)"
for centre in $radius $((width - radius)); do
  line+="+lt(abs(hypot(X-$centre\\,Y-$height/2)-$radius+3)\\,3)"
done
circle=",format=gbrp,geq=r='if($line\\,0\\,r(X\\,Y))':g='if($line\\,255\\,g(X\\,Y))':b='if($line\\,0\\,b(X\\,Y))'"
source="color=0x55aaff:size=${width}x$height,format=rgb24"
echo "$source$boxes$circle$border$labels" >"$folder/whole.txt"
echo "$source$boxes$border$labels" >"$folder/part.txt"

vdchart_command=($vdchart render "$folder/chart.json" -o "$folder/vdchart.png")
pillow_command=(benchmarks/with_pillow.py "$font" "$folder/pillow.png")
cairo_command=(benchmarks/with_cairo.py "DejaVu Sans" "$folder/cairo.png")
imagemagick_command=(convert -size ${width}x$height xc:'#55aaff' -font "$font" -draw "$(cat "$folder/draw.txt")"
  "$folder/imagemagick.png")
ffmpeg_command=(ffmpeg -v error -y -f lavfi -i "$(cat "$folder/whole.txt")" -frames:v 1 "$folder/ffmpeg.png")
ffmpeg_without_lines_command=(ffmpeg -v error -y -f lavfi -i "$(cat "$folder/part.txt")" -frames:v 1
  "$folder/ffmpeg_without_lines.png")

tools="${TOOLS:-vdchart pillow cairo imagemagick ffmpeg ffmpeg_without_lines}"
for ((round = 0; round <= rounds; ++round)); do
  for tool in $tools; do
    declare -n command="${tool}_command"
    /usr/bin/time -o "$folder/time" -f '%e %U %S %M' "${command[@]}"
    # The first round warms up.
    [ $round = 0 ] || echo "$tool $(cat "$folder/time")"
  done
done | awk '
  function median(values, count,   i, j, kept) {
    for (i = 2; i <= count; ++i)
      for (j = i; j > 1 && values[j] < values[j - 1]; --j) { kept = values[j]; values[j] = values[j - 1]; values[j - 1] = kept }
    return values[int((count + 1) / 2)]
  }
  function middle(table, tool,   i, values) {
    for (i = 1; i <= count[tool]; ++i) values[i] = table[tool, i]
    return median(values, count[tool])
  }
  { n = ++count[$1]; wall[$1, n] = $2 * 1000; busy[$1, n] = ($3 + $4) * 1000; memory[$1, n] = $5 / 1024 }
  END {
    own = middle(busy, "vdchart")
    print "| program | ms | processor ms | times vdchart | peak MiB |"
    for (tool in count)
      printf "| %s | %d | %d | %.1f | %d |\n", tool, middle(wall, tool), middle(busy, tool), middle(busy, tool) / own,
        middle(memory, tool) | "sort -t \"|\" -k4n"
  }'
for tool in $tools; do
  echo "$tool: $(wc -c <"$folder/$tool.png") bytes"
done

for ((round = 0; round < 200; ++round)); do
  begin=$EPOCHREALTIME
  $vdchart --version >/dev/null
  end=$EPOCHREALTIME
  echo $((${end/[.,]/} - ${begin/[.,]/}))
done | sort -n | awk '{ time[NR] = $1 } END { printf "vdchart --version: median of %d %.1f ms\n", NR, time[int(NR / 2)] / 1000 }'
[ -z "${KEEP:-}" ] || cp "$folder"/*.png "$KEEP"
