#!/usr/bin/env bash
# Makes the icons' pictures of the usual sizes from their SVG. Run it when one of those changes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../packaging/icons"
. ../../tools/packages.sh
require_packages librsvg2-bin
for size in 16 24 32 48 64 128 256; do
  mkdir -p "$size"
  for icon in *.svg; do
    rsvg-convert --width "$size" --height "$size" "$icon" --output "$size/${icon%.svg}.png"
  done
done
