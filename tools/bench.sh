#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Compares the library with bare Qt code that does the same. Needs nothing but this folder on a Debian
# or Ubuntu system. Installs missing packages with apt; everything else stays in build/: the table as
# CSV and JSON, the curves as a picture.
#
# usage: bench.sh [--qt 5|6] [--seconds SECONDS] | bench.sh --update [--seconds SECONDS]
#   --seconds  how long each line of the table is measured; the default is 2
#   --update   measures with both Qts, and writes the table and the curves into docs/

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
choose_qt "$@"
set -- "${arguments[@]}"
update=
[ "${1-}" != --update ] || { update=$1 && shift; }
seconds=2
[ "${1-}" != --seconds ] || { seconds=${2-} && shift 2; }
[ $# -eq 0 ] || { echo "$0: unknown argument: $1" >&2; exit 2; }

measured=("$qt")
[ -z "$update" ] || measured=(5 6)
output=build/bench$suffix
start_log "$output.log"
figures=()
for qt in "${measured[@]}"; do
    choose_qt --qt "$qt"
    preset=benchmark$suffix
    program=build/$preset/benchmarks/benchmarks
    figures+=("build/bench$suffix.json")
    step 'Packages' tools/install-packages.sh bench "qt$qt"
    step "Configure with Qt $qt" cmake --preset "$preset"
    step 'Build' cmake --build --preset "$preset" --parallel "$(nproc)"
    step 'Both sides have the same results' "$program" --check
    step 'Measure' "$program" --seconds "$seconds" --json "build/bench$suffix.json"
done
# shellcheck disable=SC2086 # nothing, or the option
try 'Targets' tools/bench/report.py "$output" "${figures[@]}" $update
finish "all targets are met, or a miss is explained; see $output.csv, .json and .svg"
