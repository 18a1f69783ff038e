#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Counts the instructions of the operations of the library under callgrind and compares them with
# tools/check-counts/instructioncounts.txt. Fails if a count has grown by more than a tenth. Unlike
# times, counts are the same on a busy machine. With another Qt or compiler, nothing is compared.
#
# usage: check-counts.sh [--update]
#   --update  records the present counts

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/check-counts.log

step 'Packages' tools/install-packages.sh bench qt5
step 'Configure' cmake --preset benchmark
step 'Build' cmake --build --preset benchmark --parallel "$(nproc)"
try 'Instructions' tools/check-counts/counts.py build/benchmark/benchmarks/benchmarks build/counts "$@"
finish 'no growth was found'
