#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs one test program under valgrind's memcheck and prints the result in one line.
#
# usage: memcheck.sh FOLDER PROGRAM
#
# Writes its log into the folder.

name=$(basename "$2")
log=$1/$name.log
# The JIT code of regular expressions reads past the ends of strings on purpose.
export QT_ENABLE_REGEXP_JIT=0
# Valgrind is about twenty times slower, so Qt Test's watchdog must wait longer.
export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=fusion LC_ALL=C.UTF-8
export QTEST_FUNCTION_TIMEOUT=3600000
# Tests that replace the allocation functions keep their own.
if valgrind --quiet --soname-synonyms=somalloc=nouserintercepts --leak-check=full --show-leak-kinds=definite \
    --errors-for-leak-kinds=definite --error-exitcode=99 --num-callers=30 \
    --suppressions=tests/support/qt-valgrind.supp "$2" >"$log" 2>&1; then
    echo "clean: $name ($(grep '^Totals' "$log"))"
else
    echo "FAILED: $name"
    cat "$log"
    # Only 255 would end xargs at once; with any other code the other programs still run.
    exit 1
fi
