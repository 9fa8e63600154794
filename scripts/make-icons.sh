#!/bin/sh
# Makes the icons of the program from their drawings: 16 and 24 pixels from drawings on a grid of so many pixels, the
# larger sizes from the full drawing. The results are kept beside the drawings, so that a build needs neither rsvg-convert nor icotool.
set -eu

cd "$(dirname "$0")/../src/resources/icons"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for name in ICOQUM ICOEXP ICOERR ICOQST; do
  for size in 16 24 32 48; do
    drawing="$name-$size.svg"
    [ -f "$drawing" ] || drawing="$name.svg"
    rsvg-convert --width="$size" --height="$size" --output="$work/$name-$size.png" "$drawing"
  done
  icotool --create --output="$name.ico" "$work/$name-16.png" "$work/$name-24.png" "$work/$name-32.png" \
    "$work/$name-48.png"
done
