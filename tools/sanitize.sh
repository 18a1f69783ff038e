#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the whole suite under the address, undefined behaviour and leak sanitizers.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/sanitize.log

test_preset asan
finish 'no sanitizer reported anything'
