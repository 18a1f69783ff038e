#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the whole suite under the address, undefined behaviour and leak sanitizers.
#
# usage: sanitize.sh [--qt 5|6]

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
choose_qt "$@"
start_log "build/sanitize$suffix.log"

test_preset asan
finish 'no sanitizer reported anything'
