#!/usr/bin/env bash
# Takes pictures of every window and dialog of the chart desk, in every language and theme and on screens of four sizes,
# and puts those of a window side by side, to be looked at: scripts/render_windows.sh TARGET [SIZE[@SCALE] …]. LANGUAGES and
# THEMES in the environment are what is wanted of them. What is cut in the windows is printed. Needs xvfb, openbox,
# imagemagick and fonts-noto-cjk.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" = inside ]; then
  openbox > /dev/null 2>&1 &
  trap 'kill $!' EXIT
  shift
  "$@"
  exit
fi

bin=$PWD/build/${PRESET:-dev}/bin
target=$(realpath -m "${1:?the folder for the pictures}")
shift
sizes=("$@")
[ $# -gt 0 ] || sizes=(1024x600 1366x768 1920x1080 3840x2160 3840x2160@2)
read -ra languages <<< "${LANGUAGES:-en de es ja zh_CN}"
read -ra themes <<< "${THEMES:-dark light}"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home/config XDG_CACHE_HOME=$home/cache XDG_DATA_HOME=$home/data
export LC_ALL=C.UTF-8
day=1
for preset in '--preset=stage-192 --preset=bars' '--preset=portrait-1080p --preset=chess' '--preset=uhd --preset=ramp-16' \
  '--preset=1080p' '--preset=banner-128x256 --preset=numbering-bottom-left'; do
  folder=$home/charts/2026030${day}_180000
  mkdir -p "$folder"
  # shellcheck disable=SC2086 # two options
  "$bin/vdchart" new $preset > "$folder/Chart $day.json"
  "$bin/vdchart" render "$folder/Chart $day.json" -o "$folder/Chart $day.png"
  day=$((day + 1))
done
echo 'stage, left' > "$home/charts/20260301_180000/tags.txt"

cp examples/walls/{stage,ribbon}.wall.json "$home/charts"

for size in "${sizes[@]}"; do
  scale=1
  [[ $size != *@* ]] || scale=${size#*@}
  for theme in "${themes[@]}"; do
    shots=$target/$size-$theme
    QT_SCALE_FACTOR=$scale xvfb-run -a -s "-screen 0 ${size%@*}x24" "$bin/../../../scripts/render_windows.sh" inside \
      "$bin/deskshots" "$home/charts" "$shots" "$theme" "${languages[@]}"
    for picture in "$shots"/*-"${languages[0]}".png; do
      window=$(basename "$picture" "-${languages[0]}.png")
      montage "$shots/$window"-*.png -tile 2x -geometry '960x>+4+4' "$target/$window-$size-$theme.png"
    done
  done
done
