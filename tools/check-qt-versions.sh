#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Checks that the library and the kit use nothing newer than Qt 5.6 and Qt 6.2, and nothing that Qt 6 has
# removed or deprecated, or is going to. Lists each class, function, overload, value and macro of Qt that
# they use, and looks it up in tools/check-qt-versions/since.txt and deprecated.txt. First it checks that it
# finds the wrong things in two sample files.
#
# usage: check-qt-versions.sh [--update]
#   --update  writes since.txt from Qt's documentation; unknown versions are marked "?"

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
start_log build/qt-versions.log

build=build/qt-versions
checks=tools/check-qt-versions
list=$checks/since.txt
library=(dialog toolbarmanager toolbareditor ribbon)
declare -A oldest=([5]=5.6 [6]=6.2)
# Two lists, because the files of a list are read as one.
mapfile -t sources < <(git -c safe.directory="$PWD" ls-files -- "${library[@]/%//*.cpp}")
mapfile -t kit_sources < <(git -c safe.directory="$PWD" ls-files -- 'kit/*.cpp')

# What any later Qt 6 deprecates is as good as removed, if the installed Qt 6 already knows of it.
without_deprecated=(-DQT_DISABLE_DEPRECATED_BEFORE=0x06ffff -DQT_DISABLE_DEPRECATED_UP_TO=0x06ffff
    -DQT_DEPRECATED_WARNINGS_SINCE=0x06ffff -DQT_WARN_DEPRECATED_UP_TO=0x06ffff
    -Werror=deprecated-declarations)

# Generates the headers of the forms, with uic of the installed Qt, because sources include them.
generate() {
    choose_qt --qt "$1"
    cmake --preset "release$suffix" -B "$build-$qt" -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF \
        -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF &&
        ninja -C "$build-$qt" RyCustomizedDialogForms RyCustomizedDialog_autogen | tail -n 1
}

# flags QT: how the sources are read.
flags() {
    choose_qt --qt "$1"
    echo "$(qt_flags) ${library[*]/#/-I} -I$build-$qt -I$build-$qt/include/RyCustomizedDialog" \
        '-DQT_NO_KEYWORDS -DRYCUSTOMIZEDDIALOG_LIBRARY -DRYTOOLBARKIT_LIBRARY'
}

# uses QT FOLDER... -- SOURCE...
uses() {
    local flags
    read -ra flags < <(flags "$1")
    # The module of libclang is installed for the system's Python.
    /usr/bin/python3 -B "$checks/uses.py" "${@:2}" -- "${flags[@]}"
}

both_use() {
    local found=$build-uses-$1.txt
    uses "$1" "${library[@]}" -- "${sources[@]}" >"$found" &&
        uses "$1" kit -- "${kit_sources[@]}" >>"$found" && one_line_each "$found" >"$found.sorted" &&
        mv "$found.sorted" "$found"
}

one_line_each() {
    LC_ALL=C sort -u -t $'\t' -k 1,1 "$@"
}

since() {
    /usr/bin/python3 -B "$checks/since.py" "$@"
}

# Adds what Qt's documentation says; without that of Qt 6, versions of Qt 6 are written by hand.
update() {
    one_line_each "$build"-uses-[56].txt |
        since lookup /usr/share/qt5/doc "$list" >"$build-list.txt" && cp "$build-list.txt" "$list"
}

check_newer() {
    since check "$list" "${oldest[$1]}" <"$build-uses-$1.txt"
}

check_deprecated() {
    since deprecated "$checks/deprecated.txt" <"$build-uses-6.txt"
}

# compile SOURCE...: all at once, with what is deprecated left out of Qt's headers.
compile() {
    local flags
    read -ra flags < <(flags 6)
    printf '#include "%s"\n' "$@" |
        clang++ -fsyntax-only "${without_deprecated[@]}" "${flags[@]}" -x c++ -
}

compile_both() {
    compile "${sources[@]}" && compile "${kit_sources[@]}" &&
        echo "$((${#sources[@]} + ${#kit_sources[@]})) files compile without what is deprecated."
}

# find_wrong SAMPLE COMMAND...: the command has to print, for each line of the sample with a comment,
# what the comment says.
find_wrong() {
    local sample=$checks/$1 said=$build-sample.txt line wanted missed=0
    "${@:2}" "$sample" >"$said" 2>&1
    while IFS= read -r line; do
        wanted=${line##* // }
        if ! grep -F "$sample:${line%%:*}:" "$said" | grep -qF -- "$wanted"; then
            echo "Not found in line ${line%%:*}: $wanted"
            missed=1
        fi
    done < <(grep -nE '[^ /].* // ' "$sample")
    [ "$missed" -eq 0 ] && echo "All $(grep -cE '[^ /].* // ' "$sample") were found."
}

newer_in() {
    uses 5 "$checks" -- "$1" | since check "$list" "${oldest[5]}"
}

deprecated_in() {
    uses 6 "$checks" -- "$1" | since deprecated "$checks/deprecated.txt"
    compile "$1"
}

step 'Packages' tools/install-packages.sh check-qt-versions qt5 qt6
for qt in 5 6; do
    step "Generated sources for Qt $qt" generate "$qt"
    step "What is used of Qt $qt" both_use "$qt"
done
[ "${1-}" != --update ] || step 'Update' update
try 'Newer things are found' find_wrong newer.cpp newer_in
try 'Nothing is newer than Qt 5.6' check_newer 5
try 'Nothing is newer than Qt 6.2' check_newer 6
try 'Deprecated things are found' find_wrong deprecated.cpp deprecated_in
try 'Nothing is known to be deprecated' check_deprecated
try 'Without what Qt 6 deprecates' compile_both
finish 'the libraries need no newer Qt than 5.6 or 6.2, and nothing that a later Qt 6 deprecates'
