#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renders vector/*.svg to the images that are compiled into the library: 22 x 22 pixels, and two and
# three times that with the names that Qt looks for. The four arrows are 8-bit RGBA, plus and minus an
# 8-bit palette with a transparency chunk.
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

# to_rgba NAME FACTOR IMAGE: renders vector/NAME.svg without time stamps or other metadata.
to_rgba() {
    local pixels=$((22 * $2))
    rsvg-convert --width $pixels --height $pixels --format png "vector/$1.svg" >"$scratch/raw"
    convert "$scratch/raw" -strip -interlace none \
        -define png:exclude-chunks=all -define png:compression-level=9 \
        -define png:color-type=6 -define png:bit-depth=8 "$3"
}

# to_palette IMAGE: replaces the image by its palette form.
to_palette() {
    pngquant --strip --nofs --speed 1 --force --output "$1" 256 "$1"
}

# check IMAGE FACTOR COLOUR_TYPE: fails unless the header says this size, 8 bits, this type, no
# interlacing.
check() {
    local header wanted
    header=$(od -An -v -tu1 -w13 -j16 -N13 "$1" | tr -s ' ')
    wanted=" 0 0 0 $((22 * $2)) 0 0 0 $((22 * $2)) 8 $3 0 0 0"
    if [ "$header" != "$wanted" ]; then
        printf 'render.sh: %s has the header%s, wanted%s\n' "${1##*/}" "$header" "$wanted" >&2
        exit 1
    fi
    if [ "$3" = 3 ] && ! grep -qa tRNS "$1"; then
        printf 'render.sh: %s has no transparency chunk\n' "${1##*/}" >&2
        exit 1
    fi
}

mkdir "$scratch/images"
for factor in 1 2 3; do
    suffix=@${factor}x
    [ $factor -ne 1 ] || suffix=
    for name in up down back forward; do
        image=$scratch/images/$name$suffix.png
        to_rgba "$name" $factor "$image"
        check "$image" $factor 6
    done
    for name in plus minus; do
        image=$scratch/images/$name$suffix.png
        to_rgba "$name" $factor "$image"
        to_palette "$image"
        check "$image" $factor 3
    done
done

# Only a complete set replaces the old one.
mkdir -p images
cp "$scratch"/images/*.png images/
