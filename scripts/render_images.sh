#!/usr/bin/env bash
# Renders the library's pictures from their SVG sources, at one and two pixels per unit, and the icon of the programs in
# the usual sizes. The results are checked in; run this after a source has changed. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
export LC_ALL=C
cd "$(dirname "$0")/../vdpatterndesign/resources"

# Calm and hover keep a contrast of 3:1 (rounded) to the dark panels and to light ones, so one set serves both.
calm='color:#8b8b99'
dimmed="$calm;opacity:.45"
hover='color:#458cee'
pressed='color:#356cb8'
accent='color:#3d7dd4'
bright='color:#3abcf0'
track='color:#636474'

# A shape is drawn once, in currentColor. Its looks are "<ending of the picture's name>=<style>".
looks() {
  case $1 in
    icon_pop_pin_enable) echo "_nor=$hover _hover=$bright _pressed=$pressed" ;;
    icon_pop_*) echo "_nor=$calm _hover=$hover _pressed=$pressed" ;;
    icon_zuo | icon_you) echo "_nor=$calm _dis=$dimmed _hov=$hover _pre=$pressed" ;;
    radioBtn_selected) echo "_normal=$accent _hover=$hover _disabled=$dimmed _pressed=$pressed" ;;
    radioBtn_unselected) echo "_normal=$calm _hover=$hover _disabled=$dimmed _pressed=$pressed" ;;
    Switch_on) echo "=$accent _dis=$accent;opacity:.45" ;;
    Switch_off) echo "=$track _dis=$track;opacity:.45" ;;
    Switch_off_focus) echo "=$track" ;;
    radioBtn_checked | Switch_on_focus | icon_ask) echo "=$accent" ;;
    icon_checked) echo "=$hover" ;;
    icon_input_clear) echo "_normal=$calm _dis=$dimmed" ;;
    icon_reset | icon_spin_* | icon_combo_down) echo "=$calm _dis=$dimmed" ;;
    *) echo "=$calm" ;;
  esac
}

rm -f images/*.png
for source in svg/*.svg; do
  shape=$(basename "$source" .svg)
  for look in $(looks "$shape"); do
    picture=images/$shape${look%%=*}
    rsvg-convert -s <(echo "svg {${look#*=}}") "$source" -o "$picture.png"
    rsvg-convert -s <(echo "svg {${look#*=}}") --zoom 2 "$source" -o "$picture@2x.png"
  done
done
rsvg-convert logo/logo_1025.svg -o logo/logo_1025.png
{
  echo '<RCC>'
  echo '  <qresource prefix="/resources">'
  for picture in images/*.png; do echo "    <file>$picture</file>"; done
  echo '  </qresource>'
  echo '</RCC>'
} >vdpatterndesign.qrc

cd ../../packaging/icons
for size in 16 24 32 48 64 128 256 512; do
  mkdir -p "$size"
  rsvg-convert -w "$size" -h "$size" chartdesk.svg -o "$size/chartdesk.png"
done
