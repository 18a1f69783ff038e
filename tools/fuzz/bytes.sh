# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# For the scripts that pass random bytes to a fuzzer: fuzz_bytes NAME SOURCES ARGUMENT..., where the fuzzer
# is called fuzz-NAME and its seeds, findings and dictionary are in the folder SOURCES. With leaks=0, leaks are
# not reported. To be sourced by bash after steps.sh.
#
# shellcheck disable=SC2154,SC2317 # choose_qt sets variables, and step calls the functions

replay() {
    mkdir -p "$corpus" "$found"
    "$fuzzer" "${options[@]}" -runs=0 "$corpus" "$sources/seeds" "$sources/findings" \
        >"$found/replay.log" 2>&1 || { tail -40 "$found/replay.log"; return 1; }
    grep -E '^#[0-9]+.*INITED' "$found/replay.log"
}

run_jobs() {
    local pids=() status=0 job pid
    for ((job = 1; job <= jobs; ++job)); do
        "$fuzzer" "${options[@]}" "-max_total_time=$seconds" -reload=1 -print_final_stats=1 \
            -entropic_scale_per_exec_time=1 "-dict=$sources/$name.dict" \
            "$corpus" "$sources/seeds" "$sources/findings" >"$found/job$job.log" 2>&1 &
        pids+=($!)
    done
    for pid in "${pids[@]}"; do
        wait "$pid" || status=1
    done
    for ((job = 1; job <= jobs; ++job)); do
        grep -hE 'BROKEN|ERROR:|runtime error:|Test unit written' "$found/job$job.log"
    done
    figures
    return "$status"
}

figures() {
    local job executions=0 coverage=0 one
    for ((job = 1; job <= jobs; ++job)); do
        one=$(sed -n 's/^stat::number_of_executed_units: *//p' "$found/job$job.log")
        executions=$((executions + ${one:-0}))
        one=$(sed -nE 's/^#[0-9]+.* cov: ([0-9]+) .*/\1/p' "$found/job$job.log" | tail -1)
        [ "${one:-0}" -le "$coverage" ] || coverage=$one
    done
    printf '%d executions, %d edges of the libraries covered, %d inputs in the corpus\n' \
        "$executions" "$coverage" \
        "$(find "$corpus" "$sources/seeds" "$sources/findings" -type f ! -name '*.md' | wc -l)"
}

fuzz_bytes() {
    name=$1
    sources=$2
    shift 2
    choose_qt "$@"
    start_log "build/fuzz-$name$suffix.log"
    seconds=${arguments[0]:-60}
    jobs=${arguments[1]:-1}
    preset=fuzz$suffix
    fuzzer=build/$preset/$sources/fuzz-$name
    corpus=build/$preset/corpus-$name
    found=build/$preset/found-$name

    export ASAN_OPTIONS=quarantine_size_mb=32:abort_on_error=1:detect_leaks=${leaks-1}
    export UBSAN_OPTIONS=print_stacktrace=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/support/qt-leaks.supp:print_suppressions=0

    # The fuzzer measures processor time and memory for each input. These limits of real time only end
    # endless loops, even on a busy machine.
    options=(-timeout=300 -report_slow_units=300 -malloc_limit_mb=64 -rss_limit_mb=1024 -max_len=4096 "-artifact_prefix=$found/")

    step 'Packages' tools/install-packages.sh fuzz-restorestate "qt$qt"
    step 'Configure' cmake --preset "$preset"
    step 'Build' cmake --build --preset "$preset" --parallel "$(nproc)"
    step 'Kept inputs' replay
    step "$seconds seconds of random bytes in $jobs jobs" run_jobs
    finish 'nothing broke'
}
