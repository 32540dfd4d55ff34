#!/bin/sh
# with_screen.sh COMMAND …: runs the command under an X server of its own with one screen of 1920 x 1080. Unlike
# xvfb-run it lets the server choose its number, so that several of them may start at once. Needs Xvfb.
set -eu
folder=$(mktemp -d)
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1920x1080x24 -noreset -nolisten tcp 3> "$folder/number" > "$folder/out" 2>&1 &
server=$!
trap 'kill $server 2> /dev/null || true; wait $server 2> /dev/null || true; rm -rf "$folder"' EXIT
read -r number < "$folder/number" || { cat "$folder/out"; exit 1; }
DISPLAY=:$number
export DISPLAY
"$@"
