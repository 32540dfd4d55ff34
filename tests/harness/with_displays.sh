#!/bin/sh
# with_displays.sh COUNT COMMAND …: runs the command under an X server of its own with that many displays of
# 1920 x 1080 beside one another, DUMMY0, DUMMY1 …, which xrandr can unplug. Needs Xorg with its dummy driver.
set -eu
count=$1
shift
folder=$(mktemp -d)
cat > "$folder/xorg.conf" <<'CONF'
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "DontVTSwitch" "true"
EndSection
Section "Device"
  Identifier "device"
  Driver "dummy"
  VideoRam 262144
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5-1000
  VertRefresh 5-500
EndSection
Section "Screen"
  Identifier "screen"
  Device "device"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1920x1080"
    Virtual 8192 4320
  EndSubSection
EndSection
CONF
mkfifo "$folder/number"
Xorg -displayfd 3 -config "$folder/xorg.conf" -noreset -nolisten tcp -novtswitch -logfile "$folder/log" \
  3> "$folder/number" > "$folder/out" 2>&1 &
server=$!
trap 'kill $server 2> /dev/null || true; wait $server 2> /dev/null || true; rm -rf "$folder"' EXIT
read -r number < "$folder/number" || { cat "$folder/out" "$folder/log"; exit 1; }
DISPLAY=:$number
export DISPLAY
xrandr --output DUMMY0 --mode 1920x1080 --primary
last=1
while [ "$last" -lt "$count" ]; do
  xrandr --addmode "DUMMY$last" 1920x1080
  xrandr --output "DUMMY$last" --mode 1920x1080 --right-of "DUMMY$((last - 1))"
  last=$((last + 1))
done
xrandr > /dev/null # the server looks at its outputs again
"$@"
