#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# animate.sh OUTPUT_DIR
#
# Makes OUTPUT_DIR/tour.gif, a short film of a user who finds and drags actions to a toolbar of their
# own, moves it, and starts the program again, from the screenshots of run.sh in that folder.
set -euo pipefail

if [ $# -ne 1 ]; then
    echo "usage: animate.sh OUTPUT_DIR" >&2
    exit 2
fi
cd "$1"

pictures=(01-* 02-* 03-* 04-* 05-* 06-* 07-* 09-* 11-* 13-* 14-*)
# The first one shows nothing but the text editor's window, on black.
window=$(convert "${pictures[0]}" -format '%@' info:)

# Without dithering, so that unchanged areas are the same in all pictures.
convert '(' -delay 160 "${pictures[@]}" ')' '(' -delay 400 17-* ')' \
    -crop "$window" +repage -resize 800x +dither -colors 96 -layers Optimize -loop 0 tour.gif
