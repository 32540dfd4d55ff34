#!/usr/bin/env bash
# Takes the pictures of the README from the built chart desk, in a shown window of 1600 x 900. The results are checked in;
# run this after a window has changed. Needs xvfb, openbox, xdotool and imagemagick.
set -euo pipefail
cd "$(dirname "$0")/.."
desk=$PWD/build/${PRESET:-dev}/bin/chartdesk
images=$PWD/docs/images
walls=$PWD/examples/walls
if [ "${1:-}" != inside ]; then
  exec xvfb-run -a -s '-screen 0 1600x900x24' "$PWD/scripts/render_readme.sh" inside
fi

home=$(mktemp -d)
export HOME=$home XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home/config XDG_CACHE_HOME=$home/cache XDG_DATA_HOME=$home/data
export LC_ALL=C.UTF-8
mkdir -p "$home/charts" "$home/config/chartdesk"
openbox >"$home/openbox" 2>&1 &
jobs=$!
trap 'kill $jobs 2>/dev/null; wait; rm -rf "$home"' EXIT
cd "$home"

open_editor() { # of a new chart
  "$desk" --folder charts --language en >"$home/desk" 2>&1 &
  process=$!
  jobs+=" $process"
  xdotool search --sync --onlyvisible --name '^Test charts' >/dev/null
  sleep 3
  xdotool key ctrl+n
  sleep 4
}
open_wall() { # some of whose cabinets are selected
  cp "$walls/stage.wall.json" charts
  "$desk" --folder charts --language en >"$home/desk" 2>&1 &
  process=$!
  jobs+=" $process"
  xdotool search --sync --onlyvisible --name '^Test charts' >/dev/null
  sleep 5
  xdotool key Home space
  sleep 1
  xdotool key ctrl+e
  window=$(xdotool search --sync --onlyvisible --name '^stage' | tail -1)
  sleep 3
  eval "$(xdotool getwindowgeometry --shell "$window")"
  xdotool mousemove $((X + 340)) $((Y + 420)) click 1 keydown shift mousemove $((X + 560)) $((Y + 520)) click 1 keyup shift
  sleep 2
  import -window "$window" -strip -define png:compression-level=9 "$images/$1.png"
  kill "$process"
  wait "$process" || true
  rm -rf charts data
  mkdir charts
}
picture() { import -window root -strip -define png:compression-level=9 "$images/$1.png"; }

open_wall wall-window
open_editor
picture editor
xdotool mousemove 1331 173 click 1 # the odd cabinets' color
sleep 3
picture picker
kill "$process"
wait "$process" || true
rm -rf data # no draft is offered
printf '[General]\ntheme=light\n' | tee config/settings.ini >config/chartdesk/settings.ini
open_wall wall-window-light
open_editor
picture editor-light
