#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes pictures of the dialog for people to look at.
#
# usage: pictures.sh looks|translations|guide [--qt 5|6]
#   looks         the dialog of the kit in each style, light and dark, at three scale factors and in
#                 both directions, on one sheet for each style, in build/pictures (build/pictures-qt6 with Qt 6)
#   translations  each language, with Qt's own translations: both tabs and the message box of the Help
#                 button, and the dialog of the kit and its help, in the same folder
#   guide         the pictures of the page for users, in docs/images

# shellcheck disable=SC2317 # step calls the functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
choose_qt "$@"
start_log "build/pictures$suffix.log"

programs=build/release$suffix/tests/pictures
pictures=build/pictures$suffix/${arguments[0]-}
styles=(Fusion Windows)
# Debian 12 has Breeze only for Qt 5.
[ "$qt" -eq 6 ] || styles+=(Breeze)

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
    step 'Packages' tools/install-packages.sh test "qt$qt" pictures
    step 'Configure' cmake --preset "release$suffix" -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
    step 'Build' cmake --build "build/release$suffix" --target "$1" --parallel "$(nproc)"
    unset "${!QT_@}"
    export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
    rm -rf "$pictures" && mkdir -p "$pictures"
}

case ${arguments[0]-} in
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
        echo 'usage: tools/pictures.sh looks|translations|guide [--qt 5|6]' >&2
        exit 2
        ;;
esac
