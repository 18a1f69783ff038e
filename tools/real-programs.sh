#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tries the kit in programs of others: puts a library into each that attaches a kit to its main
# window, and customizes its toolbars as a user does. Nothing of the program's own may change.
# Writes pictures to build/real-programs.
#
# usage: real-programs.sh [--qt 5|6] [PROGRAM...]

# shellcheck disable=SC2317 # step calls the functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
choose_qt "$@"
build=build/release$suffix
output=build/real-programs$suffix
library=$output/libattachkit.so
start_log "$output.log"

build_library() {
    local flags
    read -ra flags <<<"$(qt_flags)"
    mkdir -p "$output"
    g++ -shared -O1 -Wall -Wextra "${flags[@]}" -std=c++17 -Ikit -Itoolbarmanager \
        -I"$build/include/RyToolBarKit" -I"$build/include/RyCustomizedDialog" \
        tools/real-programs/*.cpp -o "$library" \
        -L"$build/kit" -L"$build" "-lRyToolBarKit$suffix" "-lRyCustomizedDialog$suffix" \
        -Wl,-rpath,"$PWD/$build/kit:$PWD/$build" "-lQt${qt}Widgets" "-lQt${qt}Gui" "-lQt${qt}Core"
}

step 'Packages' tools/install-packages.sh test tour "qt$qt" "real-programs-qt$qt"
step 'Configure' cmake --preset "release$suffix" -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
step 'Build the kit' cmake --build "$build" --target RyToolBarKit --parallel "$(nproc)"
step 'Build the library for the programs' build_library
try "Programs of others with Qt $qt" \
    tools/real-programs/run.sh "$library" "$output" "$qt" "${arguments[@]}"
finish 'the kit holds in every program'
