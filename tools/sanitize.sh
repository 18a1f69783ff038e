#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the whole suite under the address, undefined behaviour and leak sanitizers.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/sanitize.log

cores=$(nproc)
step 'Packages' tools/install-packages.sh tools/packages-test.txt
step 'Configure' cmake --preset asan
step 'Build' cmake --build --preset asan --parallel "$cores"
try 'Tests without a display' \
    ctest --preset asan --label-exclude window --no-tests=error --parallel "$cores"
try 'Tests in real windows' \
    ctest --preset asan --label-regex window --no-tests=error --parallel $(((cores + 1) / 2))
finish 'no sanitizer reported anything'
