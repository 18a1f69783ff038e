#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the library and the examples and runs all tests, from nothing but this folder on a Debian
# or Ubuntu system. What is missing is installed with apt; everything else stays in build/.

cd "$(dirname "${BASH_SOURCE[0]}")" || exit
. tools/steps.sh
start_log build/test.log

cores=$(nproc)
step 'Packages' tools/install-packages.sh tools/packages-test.txt
step 'Configure' cmake --preset release
step 'Build' cmake --build --preset release --parallel "$cores"
try 'Tests without a display' \
    ctest --preset release --label-exclude window --no-tests=error --parallel "$cores"
# Each of these starts an X server and a window manager.
try 'Tests in real windows' \
    ctest --preset release --label-regex window --no-tests=error --parallel $(((cores + 1) / 2))
finish 'all tests passed'
