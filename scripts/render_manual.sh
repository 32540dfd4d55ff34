#!/usr/bin/env bash
# Takes the pictures of docs/manual from the built chart desk, in a shown window of 1366 x 768. The results are checked
# in; run this after a window has changed. Needs xvfb, openbox, xdotool and imagemagick.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=$PWD/build/${PRESET:-dev}/bin
images=$PWD/docs/manual/images
if [ "${1:-}" != inside ]; then
  mkdir -p "$images"
  exec xvfb-run -a -s '-screen 0 1366x768x24' "$PWD/scripts/render_manual.sh" inside
fi

home=$(mktemp -d)
export HOME=$home XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home/config XDG_CACHE_HOME=$home/cache XDG_DATA_HOME=$home/data
export LC_ALL=C.UTF-8
day=1
chart() { # chart NAME PRESET …
  local folder=$home/charts/2026030${day}_180000 name=$1
  shift
  mkdir -p "$folder"
  "$bin/vdchart" new "${@/#/--preset=}" > "$folder/$name.json"
  "$bin/vdchart" render "$folder/$name.json" -o "$folder/$name.png"
  day=$((day + 1))
}
chart 'Colours' stage-192 bars
chart 'Pillars' portrait-1080p chess
chart 'Greys' uhd ramp-16
chart 'Banner' banner-128x256 numbering-bottom-left
chart 'Main stage' 1080p
echo 'stage, left' > "$home/charts/20260301_180000/tags.txt"

openbox > "$home/openbox" 2>&1 &
openbox=$!
cd "$home"
"$bin/chartdesk" --folder charts --language en > "$home/desk" 2>&1 &
desk=$!
trap 'kill $desk $openbox 2> /dev/null; wait; rm -rf "$home"' EXIT
window() { xdotool search --sync --onlyvisible --name "$1" > /dev/null; sleep 2; }
keys() { for key in "$@"; do xdotool key "$key"; sleep .5; done; }
picture() { import -window root -resize 860x -strip +dither -colors 255 "$images/$1.png"; } # as wide as the manual's window

window '^Test charts'
keys Right Left
picture library
keys ctrl+shift+n
window '^New from'
sleep 5 # the presets are drawn
picture newfrom
keys Escape F11
window '^Show on'
sleep 3 # the numbers go
picture show
keys Return
window '^Output'
keys h Right Right Right Right Right Down
picture walk
keys Escape Escape ctrl+e
sleep 3
picture editor
