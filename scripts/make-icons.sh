#!/bin/sh
# Makes the icons of the program from their drawings: 16, 20 and 24 pixels from drawings on a grid of so many pixels, 40
# from the grid of 20, the other sizes from the full drawing. 256 pixels are kept as a PNG, the only form in which they
# are small; the systems that cannot read it never ask for that size. The results are kept beside the drawings, so that a
# build needs neither rsvg-convert nor icotool.
set -eu

cd "$(dirname "$0")/../src/resources/icons"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# draw NAME GRID SIZE
draw() {
  drawing="$1-$2.svg"
  [ -f "$drawing" ] || drawing="$1.svg"
  rsvg-convert --width="$3" --height="$3" --output="$work/$1-$3.png" "$drawing"
}

for name in ICOQUM ICOEXP ICOERR ICOQST; do
  for size in 16 20 24 32 48 256; do draw "$name" "$size" "$size"; done
  draw "$name" 20 40
  icotool --create --output="$name.ico" "$work/$name-16.png" "$work/$name-20.png" "$work/$name-24.png" \
    "$work/$name-32.png" "$work/$name-40.png" "$work/$name-48.png" --raw="$work/$name-256.png"
done
