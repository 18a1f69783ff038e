#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes pictures of the dialog in each style, light and dark, at three scale factors, and in both
# directions. Puts them on one sheet for each style, in build/contact-sheet.
#
# shellcheck disable=SC2317 # step calls the functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/contact-sheet.log

build=build/contact-sheet
styles=(Fusion Windows Breeze)
unset "${!QT_@}"
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

picture() {
    local style=$1 colors=$2 scale=$3 direction=$4
    QT_SCALE_FACTOR=$scale "$build/tools/contactsheet/dialogpicture" "$style" "$colors" \
        "$direction" "$build/$style-$colors-$scale-$direction.png"
}

pictures() {
    local style colors scale direction
    for style in "${styles[@]}"; do
        for colors in light dark; do
            for scale in 1 1.5 2; do
                for direction in ltr rtl; do
                    picture "$style" "$colors" "$scale" "$direction" || return
                done
            done
        done
    done
}

sheet() {
    montage -label '%t' "$build/$1"-*-{ltr,rtl}.png -tile 3x -geometry '742x485>+8+8' \
        -background '#888888' "$build/sheet-$1.png"
}

sheets() {
    local style
    for style in "${styles[@]}"; do
        sheet "$style" || return
    done
}

step 'Packages' tools/install-packages.sh tools/packages-contact-sheet.txt
step 'Configure' cmake --preset release -B "$build" -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF \
    -DRYCUSTOMIZEDDIALOG_BUILD_CONTACT_SHEET=ON
step 'Build' cmake --build "$build" --parallel "$(nproc)" --target dialogpicture
step 'Pictures' pictures
step 'Sheets' sheets
finish "look at $build/sheet-*.png"
