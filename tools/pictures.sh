#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes pictures of the dialog for people to look at.
#
# usage: pictures.sh looks|translations|guide
#   looks         each style, light and dark, at three scale factors and in both directions, on one
#                 sheet for each style, in build/pictures
#   translations  each language, with Qt's own translations: both tabs and the message box of the Help
#                 button, in build/pictures
#   guide         the pictures of the page for users, in docs/images

# shellcheck disable=SC2317 # step calls the functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/pictures.log

programs=build/release/tests/pictures
pictures=build/pictures/${1-}
styles=(Fusion Windows Breeze)

looks() {
    local style colors scale direction
    for style in "${styles[@]}"; do
        for colors in light dark; do
            for scale in 1 1.5 2; do
                for direction in ltr rtl; do
                    QT_SCALE_FACTOR=$scale "$programs/dialogpicture" "$style" "$colors" \
                        "$direction" "$pictures/$style-$colors-$scale-$direction.png" || return
                done
            done
        done
    done
}

sheets() {
    local style
    for style in "${styles[@]}"; do
        montage -label '%t' "$pictures/$style"-*-{ltr,rtl}.png -tile 3x -geometry '742x485>+8+8' \
            -background '#888888' "$pictures/sheet-$style.png" || return
    done
}

# build TARGET
build() {
    step 'Packages' tools/install-packages.sh test pictures
    step 'Configure' cmake --preset release -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
    step 'Build' cmake --build --preset release --target "$1" --parallel "$(nproc)"
    unset "${!QT_@}"
    export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
    rm -rf "$pictures" && mkdir -p "$pictures"
}

case ${1-} in
    looks)
        build dialogpicture
        step 'Pictures' looks
        step 'Sheets' sheets
        finish "look at $pictures/sheet-*.png"
        ;;
    translations)
        build translationpictures
        step 'Pictures' env QT_STYLE_OVERRIDE=fusion "$programs/translationpictures" "$pictures"
        finish "the pictures are in $pictures"
        ;;
    guide)
        build tst_guide_pictures
        step 'Pictures' env QT_STYLE_OVERRIDE=fusion GUIDE_PICTURES="$PWD/docs/images" \
            "$programs/tst_guide_pictures"
        finish 'the pictures are in docs/images'
        ;;
    *)
        echo 'usage: tools/pictures.sh looks|translations|guide' >&2
        exit 2
        ;;
esac
