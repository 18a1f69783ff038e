#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Looks for mistakes in the sources: Clang with all its warnings, clang-tidy, clazy and cppcheck.
# First it checks that they find the mistakes in a sample file.
#
# usage: analyze.sh [--qt 5|6] [--all]
#   --all  clang-tidy and clazy also read the examples and the tests, which takes many minutes

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
choose_qt "$@"
start_log "build/analyze$suffix.log"

cores=$(nproc)
build=build/analyze$suffix
# The libraries with several sources as one, where clang-tidy reads the headers of Qt less often.
units=$build/units
library=(dialog toolbarmanager toolbareditor ribbon kit)
sample=tools/analyze/wrong.cpp
others=OFF
[ "${arguments[0]-}" != --all ] || others=ON

# Checks of clazy. old-style-connect checks the signatures of connections by string, which the library
# uses on purpose. Left out:
#   qmap-with-pointer-key  the editor and the saved state use the order by address
#   const-signal-or-slot   which functions are slots is part of the binary contract
clazy_checks=level0,level1,old-style-connect,no-qmap-with-pointer-key,no-const-signal-or-slot
# The containers of Qt 6 take a const_iterator where those of Qt 5 take an iterator.
[ "$qt" -eq 5 ] || clazy_checks+=,no-strict-iterators

# Warnings of Clang that are left out: those about older standards, about gaps in objects, and
# about the semicolon after Q_UNUSED().
all_warnings=(-Weverything -Wno-c++98-compat -Wno-c++98-compat-pedantic -Wno-padded
    -Wno-extra-semi-stmt)

# Prints each finding in the output of a tool once, and fails if there is one.
findings() {
    ! grep -E '(error|warning|style|performance|portability): ' |
        grep -vE ': (Old Style Connect|FixIt failed, .* Too many overloads .*) \[' | sed "s|$PWD/||g" | sort -u | grep .
}

# Runs a command for many files, several at a time. Fails if the command fails or finds something, or
# if there are no files.
over() {
    local files said=$build/said.txt status=0
    files=$(grep .) || return
    xargs -P "$cores" -I{} "$@" <<<"$files" >"$said" 2>&1 || status=1
    findings <"$said" || return
    [ "$status" -eq 0 ] || cat "$said"
    return "$status"
}

# sources FOLDER...: the files that git keeps and that are built with the rest.
sources() {
    git -c safe.directory="$PWD" ls-files -- "$@" | grep '\.cpp$' | grep -v '^tests/packaging/'
}

configure() {
    configure_in "$build" "$others" OFF && configure_in "$units" OFF ON
}

# configure_in FOLDER ON|OFF ON|OFF: with examples and tests or not, file by file or several as one.
configure_in() {
    cmake --preset "clang$suffix" -B "$1" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
        -DRYCUSTOMIZEDDIALOG_BUILD_TESTS="$2" -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES="$2" \
        -DCMAKE_UNITY_BUILD="$3"
}

generate() {
    generate_in "$build" && generate_in "$units"
}

# Only runs moc and uic; compiles nothing.
generate_in() {
    local targets
    mapfile -t targets < <(ninja -C "$1" -t targets all | sed -n 's|^\([^/]*_autogen\): .*|\1|p')
    ninja -C "$1" RyCustomizedDialogForms "${targets[@]}" | tail -n 1
}

every_warning() {
    local flags
    read -ra flags < <(qt_flags)
    # With -I for the library's folders, so that its headers are checked too.
    sources "${library[@]}" |
        over clang++ -fsyntax-only "${all_warnings[@]}" "${flags[@]}" \
            "${library[@]/#/-I}" -isystem "$build" -isystem "$build/include/RyCustomizedDialog" \
            -DRYCUSTOMIZEDDIALOG_LIBRARY -DRYTOOLBARKIT_LIBRARY {}
}

tidy() {
    sources "$@" | over clang-tidy --quiet -p "$build" {}
}

tidy_units() {
    find "$units" -path '*Resources.dir*' -prune -o -name 'unity_*.cxx' -print |
        over clang-tidy --quiet -p "$units" --checks=-bugprone-suspicious-include,-clang-analyzer-* {}
}

# Clang's analyzer skips what another source includes, so it reads file by file.
follow_paths() {
    sources "${library[@]}" | over clang-tidy --quiet -p "$build" --checks=-*,clang-analyzer-* {}
}

clazy() {
    sources "$@" | over clazy-standalone -p "$build" -checks="$clazy_checks" \
        -extra-arg=-Wno-error \
        -header-filter="^$PWD/(dialog|toolbarmanager|toolbareditor|ribbon|kit|tests|examples)/.*" {}
}

check_with_cppcheck() {
    # Without style checks for the tests.
    {
        run_cppcheck warning,style,performance,portability "${library[@]}" examples &&
            run_cppcheck warning,performance,portability tests tools/pictures
    } 2>&1 | findings
}

run_cppcheck() {
    cppcheck --quiet -j "$cores" --library=qt --std=c++17 -DQ_OBJECT= --enable="$1" \
        --suppressions-list=tools/analyze/cppcheck-suppressions.txt "${@:2}"
}

# Checks that every mistake of the sample is found in its line.
find_mistakes() {
    local flags said=$build/sample.txt line number wanted missed=0
    read -ra flags < <(qt_flags)
    {
        clang++ -fsyntax-only "${all_warnings[@]}" "${flags[@]}" "$sample"
        clang-tidy --quiet "$sample" -- "${flags[@]}"
        clazy-standalone -checks="$clazy_checks" "$sample" -- "${flags[@]}"
        cppcheck --quiet --library=qt --enable=warning "$sample"
    } >"$said" 2>&1
    while IFS= read -r line; do
        number=${line%%:*} wanted=${line##* // }
        if ! grep -F "$sample:$number:" "$said" | grep -qF -- "$wanted"; then
            echo "Not found in line $number: $wanted"
            missed=1
        fi
    done < <(grep -nE '[^ /].* // ' "$sample")
    [ "$missed" -eq 0 ] && echo "All $(grep -cE '[^ /].* // ' "$sample") mistakes were found."
}

step 'Packages' tools/install-packages.sh analyze "qt$qt"
step 'Configure' configure
step 'Generated sources' generate
try 'Mistakes are found' find_mistakes
try 'Clang with every warning' every_warning
try 'cppcheck' check_with_cppcheck
try 'clazy' clazy "${library[@]}"
try 'clang-tidy' tidy_units
try "Clang's analyzer" follow_paths
if [ "$others" = ON ]; then
    try 'clazy over the examples and tests' clazy examples tests tools/pictures
    try 'clang-tidy over the examples and tests' tidy examples tests tools/pictures
fi
finish 'nothing was found'
