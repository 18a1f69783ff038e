#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the library and the examples and runs all tests. Needs nothing but this folder on a Debian or
# Ubuntu system. Installs missing packages with apt; everything else stays in build/.
#
# usage: test.sh [--qt 5|6]

cd "$(dirname "${BASH_SOURCE[0]}")" || exit
. tools/steps.sh
choose_qt "$@"
start_log "build/test$suffix.log"

test_preset release
finish "all tests with Qt $qt passed"
