#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the tests of the dialog, the manager, the editor and the ribbon page under valgrind's
# memcheck. Fails on any invalid access and on any block that is definitely lost.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/valgrind.log

# Left out: tests that need a display, and the hundreds of thousands of damaged states, which would
# take hours. Those run under the sanitizers, and other tests have their boundary cases.
find_programs() {
    ctest --preset dev -N -LE window -E _damage |
        sed -nE 's/^ *Test +#[0-9]+: (tst_\w+)$/\1/p' >build/valgrind/tests
    find build/dev/tests/{dialog,toolbarmanager,toolbareditor,ribbon} -maxdepth 1 -type f -executable |
        grep --extended-regexp "/($(paste --serial --delimiters='|' build/valgrind/tests))$" | sort
}

step 'Packages' tools/install-packages.sh test valgrind
step 'Configure' cmake --preset dev
step 'Build' cmake --build --preset dev --parallel "$(nproc)"
mkdir -p build/valgrind
find_programs >build/valgrind/programs
try 'Tests under valgrind' \
    xargs --arg-file build/valgrind/programs --max-procs "$(nproc)" -n 1 tools/valgrind/memcheck.sh
finish 'valgrind reported nothing'
