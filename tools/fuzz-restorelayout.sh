#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Passes the kept inputs, and then random bytes made from them, to RyToolBarKit::restoreLayout(),
# with the address and undefined behaviour sanitizers. After each input, checks what must be true for
# all bytes.
#
# usage: fuzz-restorelayout.sh [--qt 5|6] [SECONDS [JOBS]]
#
# The defaults are 60 SECONDS and 1 job. Inputs that reach new code are kept below build/ for the next
# run. So is an input that breaks something, and its name is printed.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
. tools/fuzz/bytes.sh
# Qt 5 leaks the first value of a JSON key that is there twice. tools/sanitize.sh replays the kept inputs and
# reports leaks.
# shellcheck disable=SC2034 # used by fuzz_bytes
leaks=0
fuzz_bytes restorelayout tests/kit/fuzz "$@"
