#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Counts which lines and branches of the library the tests run. Fails below 98 % of the lines or 90 %
# of the branches. Prints the lines that no test runs; build/coverage/report has the details.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/coverage.log

cores=$(nproc)
# Without branches that only an exception takes: the library throws and catches none.
report=(gcovr --root . --filter '(dialog|toolbarmanager|toolbareditor|ribbon)/'
    --exclude-throw-branches --exclude-unreachable-branches build/coverage)

step 'Packages' tools/install-packages.sh test qt5 coverage
step 'Configure' cmake --preset coverage
step 'Build' cmake --build --preset coverage --parallel "$cores"
find build/coverage -name '*.gcda' -delete
try 'Tests without a display' ctest --preset coverage --no-tests=error --parallel "$cores" \
    --label-exclude 'window|packaging'
try 'Tests in real windows' ctest --preset coverage --no-tests=error --label-regex window
mkdir -p build/coverage/report
try 'Lines' "${report[@]}" --txt --fail-under-line 98
try 'Branches' "${report[@]}" --txt --branches --fail-under-branch 90
try 'Report' "${report[@]}" --html-details build/coverage/report/index.html
finish 'at least 98 % of the lines and 90 % of the branches'
