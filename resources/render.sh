#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renders vector/*.svg to the images that are compiled into the library: 22 x 22 pixels, the four
# arrows as 8-bit RGBA, plus and minus as an 8-bit palette with a transparency chunk.
# Needs rsvg-convert, ImageMagick's convert and pngquant. The same versions of these tools give the
# same bytes.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"

missing=()
command -v rsvg-convert >/dev/null || missing+=("rsvg-convert (Debian: librsvg2-bin)")
command -v convert >/dev/null || missing+=("convert (Debian: imagemagick)")
command -v pngquant >/dev/null || missing+=("pngquant (Debian: pngquant)")
if [ ${#missing[@]} -gt 0 ]; then
    printf 'render.sh: missing %s\n' "${missing[@]}" >&2
    exit 1
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# to_rgba NAME: renders vector/NAME.svg to $scratch/NAME.png without time stamps or other metadata.
to_rgba() {
    rsvg-convert --width 22 --height 22 --format png "vector/$1.svg" >"$scratch/$1.raw.png"
    convert "$scratch/$1.raw.png" -strip -interlace none \
        -define png:exclude-chunks=all -define png:compression-level=9 \
        -define png:color-type=6 -define png:bit-depth=8 "$scratch/$1.png"
}

# to_palette NAME: replaces $scratch/NAME.png by its palette form.
to_palette() {
    pngquant --strip --nofs --speed 1 --force --output "$scratch/$1.png" 256 "$scratch/$1.png"
}

# check NAME COLOUR_TYPE: fails unless the header says 22 x 22, 8 bits, this type, no interlacing.
check() {
    local header wanted
    header=$(od -An -v -tu1 -w13 -j16 -N13 "$scratch/$1.png" | tr -s ' ')
    wanted=" 0 0 0 22 0 0 0 22 8 $2 0 0 0"
    if [ "$header" != "$wanted" ]; then
        printf 'render.sh: %s.png has the header%s, wanted%s\n' "$1" "$header" "$wanted" >&2
        exit 1
    fi
    if [ "$2" = 3 ] && ! grep -qa tRNS "$scratch/$1.png"; then
        printf 'render.sh: %s.png has no transparency chunk\n' "$1" >&2
        exit 1
    fi
}

for name in up down back forward; do
    to_rgba "$name"
    check "$name" 6
done
for name in plus minus; do
    to_rgba "$name"
    to_palette "$name"
    check "$name" 3
done

# Only a complete set replaces the old one.
mkdir -p images
for name in up down back forward plus minus; do
    cp "$scratch/$name.png" "images/$name.png"
done
