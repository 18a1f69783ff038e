#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Counts which lines and branches of the library and of the kit the tests run. Fails if one of them is below
# 98 % of the lines or 90 % of the branches. Prints the lines that no test runs; build/coverage/report and
# build/coverage/kit have the details.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/coverage.log

cores=$(nproc)
report=(gcovr --root . build/coverage)

# check_share LIBRARY FOLDERS DETAILS
check_share() {
    try "Lines of the $1" "${report[@]}" --filter "$2" --txt --fail-under-line 98
    try "Branches of the $1" "${report[@]}" --filter "$2" --txt --branches --fail-under-branch 90
    mkdir -p "$3"
    try "Report of the $1" "${report[@]}" --filter "$2" --html-details "$3/index.html"
}

step 'Packages' tools/install-packages.sh test qt5 coverage
step 'Configure' cmake --preset coverage
step 'Build' cmake --build --preset coverage --parallel "$cores"
find build/coverage -name '*.gcda' -delete
try 'Tests without a display' ctest --preset coverage --no-tests=error --parallel "$cores" \
    --label-exclude 'window|packaging'
try 'Tests in real windows' ctest --preset coverage --no-tests=error --label-regex window
check_share library '(dialog|toolbarmanager|toolbareditor|ribbon)/' build/coverage/report
check_share kit 'kit/' build/coverage/kit
finish 'at least 98 % of the lines and 90 % of the branches'
