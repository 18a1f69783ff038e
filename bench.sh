#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Measures the library beside bare Qt that does the same, from nothing but this folder on a Debian
# or Ubuntu system, in less than five minutes. What is missing is installed with apt; everything
# else stays in build/: the table as CSV and JSON, the curves as a picture.
#
# usage: bench.sh [--update]
#   --update  writes table and curves into docs/ as well

cd "$(dirname "${BASH_SOURCE[0]}")" || exit
. tools/steps.sh
start_log build/bench.log

program=build/benchmark/benchmarks/benchmarks

step 'Packages' tools/install-packages.sh tools/packages-benchmark.txt
step 'Configure' cmake --preset benchmark
step 'Build' cmake --build --preset benchmark --parallel "$(nproc)"
step 'Both sides give the same' "$program" --check
step 'Measure' "$program" --seconds 2 --json build/bench.json
try 'Targets' benchmarks/report.py build/bench.json build/bench "$@"
finish 'all targets are met, or a miss is explained; see build/bench.csv, .json and .svg'
