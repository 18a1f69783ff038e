#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Compares the binary contract of the library with the record in tools/check-abi/: exported symbols
# as GCC and as Clang build them, signals and slots, fields, functions and types. Except for signals and
# slots, each Qt has a record of its own.
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
library=libRyCustomizedDialog$suffix.so

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
        -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF &&
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

layouts() {
    local flags
    read -ra flags < <(qt_flags)
    describe layouts "${flags[@]}" -Idialog -Itoolbarmanager -Itoolbareditor -Iribbon
}

# A description of all functions and types of our own headers, without Qt's types: these would take
# most of the room and change with each version of Qt.
abi_description() {
    local headers=$build-headers
    mkdir -p "$headers"
    cp {dialog,toolbarmanager,toolbareditor,ribbon}/ry*.h "$headers"
    abidw --suppressions "$contract/qt-types.abignore" --headers-dir "$headers" \
        --drop-private-types --drop-undefined-syms --no-corpus-path --no-comp-dir-path \
        --no-show-locs --no-elf-needed --no-parameter-names --no-architecture --type-id-style hash \
        "$build-g++/$library"
}

compare_description() {
    local now=$build-now.abi
    abi_description >"$now" || return
    if [ "$update" = --update ]; then
        cp "$now" "$contract/library$suffix.abi"
    fi
    abidiff --no-show-locs "$contract/library$suffix.abi" "$now"
}

step 'Packages' tools/install-packages.sh check-abi "qt$qt"
for compiler in g++ clang++; do
    step "Build with $compiler" build "$compiler"
    try "Symbols by $compiler" compare "symbols$suffix.txt" \
        describe symbols "$build-$compiler/$library"
done
try 'Signals and slots' compare metaobjects.txt describe metaobjects
try 'Fields' compare "layouts$suffix.txt" layouts
try 'Functions and types' compare_description
finish 'the binary contract is kept'
