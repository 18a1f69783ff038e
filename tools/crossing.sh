#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Checks that what is saved with one Qt restores with the other, through a file of QSettings: golden
# layouts, 2,000 random layouts, damaged bytes of all of these, and what the main window itself saves.

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/crossing.log
export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=fusion LC_ALL=C.UTF-8

states=build/crossing
mkdir -p "$states"

# crossing QT ARGUMENT...: runs the program of that Qt.
crossing() {
    choose_qt --qt "$1"
    "build/release$suffix/tests/crossing/crossing" "${@:2}"
}

save() {
    rm -f "$states/saved-$1.ini"
    crossing "$1" save "$states/saved-$1.ini"
}

# restore QT OTHER: restores with one Qt what was saved with the other.
restore() {
    crossing "$1" restore "$states/saved-$2.ini" >"$states/restored-$1.txt"
}

# A state is the first line, and what has become of it is below.
compare() {
    diff --show-function-line='^[a-z0-9-]*$' --unified=1 "$states/restored-5.txt" \
        "$states/restored-6.txt" | cut -c 1-500 | head -n 50
    [ "${PIPESTATUS[0]}" -eq 0 ] && echo 'Results, warnings, toolbars and bytes are the same.'
}

step 'Packages' tools/install-packages.sh test qt5 qt6
for qt in 5 6; do
    choose_qt --qt "$qt"
    step "Configure with Qt $qt" cmake --preset "release$suffix" -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
    step "Build with Qt $qt" cmake --build --preset "release$suffix" --target crossing --parallel "$(nproc)"
    step "Save with Qt $qt" save "$qt"
done
try 'Qt 5 restores what Qt 6 saved' restore 5 6
try 'Qt 6 restores what Qt 5 saved' restore 6 5
try 'Both have the same results' compare
finish 'what one Qt saved restores with the other'
