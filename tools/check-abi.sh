#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Compares the binary contract of the library with the record in tools/check-abi/: exported symbols
# as GCC and as Clang build them, signals and slots, fields, functions and types.
#
# usage: check-abi.sh [--update]
#   --update  updates the record after an intended change

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
start_log build/abi.log

cores=$(nproc)
contract=tools/check-abi
update=${1-}

build() {
    local said=build/abi-$1.txt
    if build_quietly "$1" >"$said" 2>&1; then
        tail -n 1 "$said"
    else
        cat "$said"
        return 1
    fi
}

build_quietly() {
    cmake --preset release -B "build/abi-$1" -DCMAKE_CXX_COMPILER="$1" -DCMAKE_CXX_FLAGS=-g \
        -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF &&
        cmake --build "build/abi-$1" --parallel "$cores"
}

# compare FILE COMMAND...: compares the output of the command with the file.
compare() {
    local file=$contract/$1 now=build/abi-now.txt
    "${@:2}" >"$now" || return
    if [ "$update" = --update ]; then
        cp "$now" "$file"
    fi
    diff -u "$file" "$now" && echo "$(wc -l <"$file") lines are as recorded."
}

describe() {
    python3 "$contract/describe.py" "$@"
}

layouts() {
    local flags
    read -ra flags < <(pkg-config --cflags Qt5Widgets)
    describe layouts "${flags[@]}" -Idialog -Itoolbarmanager -Itoolbareditor -Iribbon
}

# A description of all functions and types of our own headers, without Qt's types: these would take
# most of the room and change with each version of Qt.
abi_description() {
    local headers=build/abi-headers
    mkdir -p "$headers"
    cp {dialog,toolbarmanager,toolbareditor,ribbon}/ry*.h "$headers"
    abidw --suppressions "$contract/qt-types.abignore" --headers-dir "$headers" \
        --drop-private-types --drop-undefined-syms --no-corpus-path --no-comp-dir-path \
        --no-show-locs --no-elf-needed --no-parameter-names --no-architecture --type-id-style hash \
        build/abi-g++/libRyCustomizedDialog.so
}

compare_description() {
    local now=build/abi-now.abi
    abi_description >"$now" || return
    if [ "$update" = --update ]; then
        cp "$now" "$contract/library.abi"
    fi
    abidiff --no-show-locs "$contract/library.abi" "$now"
}

step 'Packages' tools/install-packages.sh check-abi
for compiler in g++ clang++; do
    step "Build with $compiler" build "$compiler"
    try "Symbols by $compiler" compare symbols.txt \
        describe symbols "build/abi-$compiler/libRyCustomizedDialog.so"
done
try 'Signals and slots' compare metaobjects.txt describe metaobjects
try 'Fields' compare layouts.txt layouts
try 'Functions and types' compare_description
finish 'the binary contract is kept'
