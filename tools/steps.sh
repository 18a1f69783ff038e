# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# For scripts with steps: prints the title and the output of each step, also to a log file. At the end,
# prints how long each step took, and the result in the last line. To be sourced by bash.

# choose_qt ARGUMENT...: takes "--qt 5" or "--qt 6" off the arguments of a script, wherever it is. Sets qt
# to the number, suffix to "" or "-qt6", and arguments to the rest.
choose_qt() {
    qt=5 arguments=()
    while [ $# -gt 0 ]; do
        case $1 in
            --qt) qt=${2-} && shift ;;
            *) arguments+=("$1") ;;
        esac
        shift
    done
    case $qt in
        5) suffix= ;;
        6) suffix=-qt6 ;;
        *) echo "$0: after --qt comes 5 or 6" >&2; exit 2 ;;
    esac
}

# qt_flags: how a compiler is to read the sources of the library with the chosen Qt.
qt_flags() {
    local standard=11
    [ "$qt" -eq 5 ] || standard=17
    printf '%s ' "-std=c++$standard" -fPIC
    pkg-config --cflags "Qt${qt}Widgets" | sed 's/-I/-isystem/g'
}

# start_log FILE: begins a new log.
start_log() {
    log=$1
    failed=
    times=()
    mkdir -p "$(dirname "$log")"
    : >"$log"
    SECONDS=0
}

# try TITLE COMMAND...: runs a step and returns its exit code.
try() {
    local title=$1 status=0 start=$SECONDS
    shift
    { printf '\n== %s\n' "$title" && "$@" </dev/null; } 2>&1 | tee -a "$log"
    status=${PIPESTATUS[0]}
    times+=("$(minutes $((SECONDS - start)))  $title")
    [ "$status" -eq 0 ] || failed=${failed:+$failed, }$title
    return "$status"
}

# step TITLE COMMAND...: runs a step and ends the script if it fails.
step() {
    try "$@" || finish ''
}

# minutes SECONDS: as 3:05.
minutes() {
    printf '%3d:%02d' $(($1 / 60)) $(($1 % 60))
}

# finish TEXT: ends the script with one line and with 0, or with 1 if a step failed.
finish() {
    local status=0 result=$1
    [ -z "$failed" ] || { status=1 result="FAILED: $failed"; }
    {
        printf '\n'
        printf '%s\n' "${times[@]}"
        printf '%s: %s (after %d min %02d s; the log is %s)\n' \
            "$0" "$result" $((SECONDS / 60)) $((SECONDS % 60)) "$log"
    } | tee -a "$log"
    exit "$status"
}

# test_preset PRESET: builds everything with a preset for the chosen Qt and runs all its tests.
test_preset() {
    local cores preset=$1$suffix
    cores=$(nproc)
    step 'Packages' tools/install-packages.sh test "qt$qt"
    step 'Configure' cmake --preset "$preset" -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
    step 'Build' cmake --build --preset "$preset" --parallel "$cores"
    try 'Tests without a display' \
        ctest --preset "$preset" --label-exclude window --no-tests=error --parallel "$cores"
    # Each of these starts an X server and a window manager.
    try 'Tests in real windows' \
        ctest --preset "$preset" --label-regex window --no-tests=error --parallel $(((cores + 1) / 2))
}
