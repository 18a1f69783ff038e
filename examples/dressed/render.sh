#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renders the library's icons at twice their size, 44 x 44 pixels, to images/*@2x.png.
# Needs rsvg-convert and ImageMagick's convert. Running it again with the same versions of these tools
# gives the same bytes.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"

missing=()
command -v rsvg-convert >/dev/null || missing+=("rsvg-convert (Debian: librsvg2-bin)")
command -v convert >/dev/null || missing+=("convert (Debian: imagemagick)")
if [ ${#missing[@]} -gt 0 ]; then
    printf 'render.sh: missing %s\n' "${missing[@]}" >&2
    exit 1
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for name in up down back forward plus minus; do
    rsvg-convert --width 44 --height 44 --format png "../../resources/vector/$name.svg" \
        >"$scratch/$name.raw.png"
    convert "$scratch/$name.raw.png" -strip -interlace none \
        -define png:exclude-chunks=all -define png:compression-level=9 \
        -define png:color-type=6 -define png:bit-depth=8 "$scratch/$name@2x.png"
done

# Only a complete set replaces the old one.
mkdir -p images
cp "$scratch"/*@2x.png images/
printf 'render.sh: %s images of 44 x 44 pixels\n' "$(find images -name '*@2x.png' | wc -l)"
