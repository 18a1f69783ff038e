#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Compares the library with bare Qt code that does the same. Needs nothing but this folder on a Debian
# or Ubuntu system. Installs missing packages with apt; everything else stays in build/: the table as
# CSV and JSON, the curves as a picture.
#
# usage: bench.sh [--update]
#   --update  also writes the table and the curves into docs/

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/bench.log

program=build/benchmark/benchmarks/benchmarks

step 'Packages' tools/install-packages.sh bench
step 'Configure' cmake --preset benchmark
step 'Build' cmake --build --preset benchmark --parallel "$(nproc)"
step 'Both sides have the same results' "$program" --check
step 'Measure' "$program" --seconds 2 --json build/bench.json
try 'Targets' tools/bench/report.py build/bench.json build/bench "$@"
finish 'all targets are met, or a miss is explained; see build/bench.csv, .json and .svg'
