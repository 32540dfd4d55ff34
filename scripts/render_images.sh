#!/usr/bin/env bash
# Renders the library's pictures from their SVG sources, at one and two pixels per unit. The results are checked in;
# run this after a source has changed. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../vdpatterndesign/resources"
for source in svg/*.svg; do
  name=$(basename "$source" .svg)
  rsvg-convert "$source" -o "images/$name.png"
  rsvg-convert --zoom 2 "$source" -o "images/$name@2x.png"
done
rsvg-convert logo/logo_1025.svg -o logo/logo_1025.png
{
  echo '<RCC>'
  echo '  <qresource prefix="/resources">'
  for picture in images/*.png; do echo "    <file>$picture</file>"; done
  echo '  </qresource>'
  echo '</RCC>'
} >vdpatterndesign.qrc
