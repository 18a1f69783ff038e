#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs one test program under valgrind's memcheck and says in one line how it went.
#
# usage: memcheck.sh PROGRAM

name=$(basename "$1")
log=build/valgrind/$name.log
# Machine code that regular expressions write for themselves reads past the ends of texts on purpose.
export QT_ENABLE_REGEXP_JIT=0
# Twenty times slower than usual, so that Qt Test's watchdog has to wait.
export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=fusion LC_ALL=C.UTF-8
export QTEST_FUNCTION_TIMEOUT=3600000
# A test that allocates with functions of its own keeps them.
if valgrind --quiet --soname-synonyms=somalloc=nouserintercepts --leak-check=full --show-leak-kinds=definite \
    --errors-for-leak-kinds=definite --error-exitcode=99 --num-callers=30 \
    --suppressions=tests/support/qt-valgrind.supp "$1" >"$log" 2>&1; then
    echo "clean: $name ($(grep '^Totals' "$log"))"
else
    echo "FAILED: $name"
    cat "$log"
    # Ends xargs at once only with 255; any other lets the other programs run.
    exit 1
fi
