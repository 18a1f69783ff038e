#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the library with optimization and runs random operations on it and on a model of it.
#
# usage: fuzz-operations.sh [--qt 5|6] [SEQUENCES [JOBS [FIRST_SEED]]]
#
# Each sequence has 200 steps. Without FIRST_SEED, each run uses other seeds. A failure prints its seed
# and the shortest script of steps that shows it.
#
# shellcheck disable=SC2317 # steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh

choose_qt "$@"

sequences=${arguments[0]:-100000}
jobs=${arguments[1]:-$(nproc)}
first_seed=${arguments[2]:-$(date +%s)000000}
steps=200
preset=release$suffix
program=build/$preset/tests/model/operations
logs=build/fuzz-operations$suffix

# run_job NUMBER: runs its share of the sequences; the last job also runs the remainder.
run_job() {
    local share=$((sequences / jobs)) first=$((first_seed + $1 * (sequences / jobs)))
    [ "$1" -lt $((jobs - 1)) ] || share=$((sequences - share * (jobs - 1)))
    nice "$program" --sequences "$share" --steps "$steps" --first-seed "$first" \
        >"$logs/job$1.log" 2>&1
}

run_jobs() {
    local job pids=() status=0
    rm -rf "$logs" && mkdir -p "$logs" || return
    for ((job = 0; job < jobs; ++job)); do
        run_job "$job" &
        pids+=($!)
    done
    for job in "${pids[@]}"; do
        wait "$job" || status=1
    done
    tail -n +1 "$logs"/job*.log
    return "$status"
}

# show_sum: prints the total of all jobs.
show_sum() {
    awk '/^passed: / { passed += $2 }
         /^FAILED: --seed / { failed += 1; passed += $(NF - 1) }
         END { printf "%d sequences of %d steps passed, %d failed\n", passed, steps, failed }' \
        steps="$steps" "$logs"/job*.log
    echo "$jobs jobs, seeds from $first_seed on, $SECONDS s in all"
}

start_log "build/fuzz-operations$suffix.log"
step 'Packages' tools/install-packages.sh test "qt$qt"
step 'Configure' cmake --preset "$preset"
step 'Build' cmake --build --preset "$preset" --target operations --parallel "$jobs"
try 'Run' run_jobs
try 'Sum' show_sum
finish 'no operation differed from the model'
