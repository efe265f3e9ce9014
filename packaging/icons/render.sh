#!/usr/bin/env bash
# Draws the PNG sizes of the icons anew from the SVG pictures. Wants rsvg-convert (librsvg2-bin).
set -eu
cd "$(dirname "$(readlink -f "$0")")"
rm -rf png
for size in 16 22 24 32 48 64 128 256; do
    mkdir -p "png/${size}x${size}/apps" "png/${size}x${size}/mimetypes"
    picture=brindlex.svg
    [ "$size" -gt 24 ] || picture=brindlex-small.svg
    rsvg-convert -w "$size" -h "$size" "$picture" -o "png/${size}x${size}/apps/brindlex.png"
    for kind in mimetypes/*.svg; do
        rsvg-convert -w "$size" -h "$size" "$kind" -o "png/${size}x${size}/${kind%.svg}.png"
    done
done
