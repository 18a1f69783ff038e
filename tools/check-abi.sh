#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Compares the binary contracts of the library and of the kit with the records in tools/check-abi/: exported
# symbols as GCC and as Clang build them, signals and slots, fields, functions and types. Except for signals
# and slots, each Qt has a record of its own.
#
# usage: check-abi.sh [--qt 5|6] [--update]
#   --update  updates the record after an intended change

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
choose_qt "$@"
start_log "build/abi$suffix.log"

cores=$(nproc)
contract=tools/check-abi
update=${arguments[0]-}
build=build/abi$suffix

build() {
    local said=$build-$1.txt
    if build_quietly "$1" >"$said" 2>&1; then
        tail -n 1 "$said"
    else
        cat "$said"
        return 1
    fi
}

build_quietly() {
    cmake --preset "release$suffix" -B "$build-$1" -DCMAKE_CXX_COMPILER="$1" -DCMAKE_CXX_FLAGS=-g \
        -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF \
        -DCMAKE_UNITY_BUILD=ON &&
        cmake --build "$build-$1" --parallel "$cores"
}

# compare FILE COMMAND...: compares the output of the command with the file.
compare() {
    local file=$contract/$1 now=$build-now.txt
    "${@:2}" >"$now" || return
    if [ "$update" = --update ]; then
        cp "$now" "$file"
    fi
    diff -u "$file" "$now" && echo "$(wc -l <"$file") lines are as recorded."
}

describe() {
    python3 "$contract/describe.py" "$qt" "$@"
}

# layouts FOLDER
layouts() {
    local flags
    read -ra flags < <(qt_flags)
    describe layouts "$1" "${flags[@]}"
}

# abi_description FOLDER LIBRARY: all functions and types of our own headers, without Qt's types: these
# would take most of the room and change with each version of Qt.
abi_description() {
    local headers=$build-headers
    rm -rf "$headers" && mkdir -p "$headers" && cp -L "$1"/*.h "$headers" || return
    abidw --suppressions "$contract/not-ours.abignore" --headers-dir "$headers" \
        --drop-private-types --drop-undefined-syms --no-corpus-path --no-comp-dir-path \
        --no-show-locs --no-elf-needed --no-parameter-names --no-architecture --type-id-style hash \
        "$2"
}

# compare_description FILE FOLDER LIBRARY
compare_description() {
    local file=$contract/$1 now=$build-now.abi
    abi_description "${@:2}" >"$now" || return
    if [ "$update" = --update ]; then
        sed "s|path='$PWD/|path='|" "$now" >"$file"
    fi
    abidiff --no-show-locs "$file" "$now"
}

# check_contract PREFIX HEADERS LIBRARY: the records begin with the prefix.
check_contract() {
    local headers=$build-g++/include/$2 library=$3$suffix.so compiler
    for compiler in g++ clang++; do
        try "Symbols of $2 by $compiler" compare "$1symbols$suffix.txt" \
            describe symbols "$build-$compiler/$library"
    done
    try "Signals and slots of $2" compare "$1metaobjects.txt" describe metaobjects "$headers"
    try "Fields of $2" compare "$1layouts$suffix.txt" layouts "$headers"
    try "Functions and types of $2" compare_description "$1library$suffix.abi" "$headers" \
        "$build-g++/$library"
}

step 'Packages' tools/install-packages.sh check-abi "qt$qt"
step 'Build with g++' build g++
step 'Build with clang++' build clang++
check_contract '' RyCustomizedDialog libRyCustomizedDialog
check_contract kit- RyToolBarKit kit/libRyToolBarKit
finish 'the binary contracts are kept'
