#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Checks that the library uses nothing newer than Qt 5.6: lists each class, function, overload, value
# and macro of Qt that it uses, and looks up its version in tools/check-old-qt/since.txt. First it
# checks that it finds the newer things in a sample file.
#
# usage: check-old-qt.sh [--update]
#   --update  writes the list from Qt's documentation; unknown versions are marked "?"

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
start_log build/old-qt.log

build=build/old-qt
checks=tools/check-old-qt
list=$checks/since.txt
sample=$checks/newer.cpp
library=(dialog toolbarmanager toolbareditor ribbon)

# Generates the headers of the forms, with uic of the installed Qt, because sources include them.
generate() {
    cmake --preset release -B "$build" -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF \
        -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF &&
        ninja -C "$build" RyCustomizedDialogForms RyCustomizedDialog_autogen | tail -n 1
}

# uses FOLDER... -- SOURCE...
uses() {
    local flags
    read -ra flags < <(pkg-config --cflags Qt5Widgets | sed 's/-I/-isystem/g')
    # The module of libclang is installed for the system's Python.
    /usr/bin/python3 -B "$checks/uses.py" "$@" -- -std=c++11 -fPIC "${flags[@]}" \
        "${library[@]/#/-I}" "-I$build" -DQT_NO_KEYWORDS \
        -DRYCUSTOMIZEDDIALOG_LIBRARY
}

library_uses() {
    local sources
    mapfile -t sources < <(git -c safe.directory="$PWD" ls-files -- "${library[@]/%//*.cpp}")
    uses "${library[@]}" -- "${sources[@]}" >build/old-qt-uses.txt
}

since() {
    /usr/bin/python3 -B "$checks/since.py" "$@"
}

check_library() {
    since check "$list" <build/old-qt-uses.txt
}

find_newer() {
    local said=build/old-qt-sample.txt line wanted missed=0
    if uses "$checks" -- "$sample" | since check "$list" >"$said"; then
        echo 'Nothing was found.'
        return 1
    fi
    while IFS= read -r line; do
        wanted=${line##* // }
        if ! grep -F "$sample:${line%%:*}: " "$said" | grep -qF -- "$wanted"; then
            echo "Not found in line ${line%%:*}: $wanted"
            missed=1
        fi
    done < <(grep -nE '[^ /].* // ' "$sample")
    [ "$missed" -eq 0 ] && echo "All $(grep -cE '[^ /].* // ' "$sample") were found."
}

update() {
    since lookup /usr/share/qt5/doc "$list" <build/old-qt-uses.txt >build/old-qt-list.txt &&
        cp build/old-qt-list.txt "$list"
}

step 'Packages' tools/install-packages.sh check-old-qt
step 'Generated sources' generate
step 'What the library uses' library_uses
[ "${1-}" != --update ] || step 'Update' update
try 'Newer things are found' find_newer
try 'Nothing is newer than Qt 5.6' check_library
finish 'the library needs no newer Qt than 5.6'
