#!/usr/bin/env bash
# Draws the application icon's PNG sizes from its SVG (needs rsvg-convert, from
# librsvg2-bin). The PNGs are kept in the tree, so a build needs no converter.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
svg="$here/packaging/icons/bancomisuratore.svg"
for size in 16 32 48 64 128 256; do
  rsvg-convert -w "$size" -h "$size" "$svg" -o "$here/packaging/icons/bancomisuratore-$size.png"
done
