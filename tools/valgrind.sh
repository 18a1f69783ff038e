#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the tests of the dialog, the manager, the editor, the ribbon page and the kit under valgrind's
# memcheck. Fails on any invalid access and on any block that is definitely lost.
#
# usage: valgrind.sh [--qt 5|6]

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
choose_qt "$@"
preset=dev$suffix
folder=build/valgrind$suffix
start_log "build/valgrind$suffix.log"

# Left out: tests that need a display, and the hundreds of thousands of damaged states, which would
# take hours. Those run under the sanitizers, and other tests have their boundary cases.
find_programs() {
    ctest --preset "$preset" -N -LE window -E _damage |
        sed -nE 's/^ *Test +#[0-9]+: (tst_\w+)$/\1/p' >"$folder/tests"
    find "build/$preset/tests/"{dialog,toolbarmanager,toolbareditor,ribbon,kit} -maxdepth 1 -type f -executable |
        grep --extended-regexp "/($(paste --serial --delimiters='|' "$folder/tests"))$" | sort
}

step 'Packages' tools/install-packages.sh test "qt$qt" valgrind
step 'Configure' cmake --preset "$preset"
step 'Build' cmake --build --preset "$preset" --parallel "$(nproc)"
mkdir -p "$folder"
find_programs >"$folder/programs"
try 'Tests under valgrind' \
    xargs --arg-file "$folder/programs" --max-procs "$(nproc)" -n 1 \
    tools/valgrind/memcheck.sh "$folder"
finish 'valgrind reported nothing'
