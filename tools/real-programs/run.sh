#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# run.sh LIBRARY OUTPUT_DIR QT PROGRAM...
#
# Checks the programs of that Qt, or only those named, with the library that attaches a kit, on an X
# server, with a window manager and a message bus of their own. Writes screenshots and the output of
# the programs to OUTPUT_DIR.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tour=$here/../../examples/texteditor/tour
. "$tour/session.sh"
RY_LIBRARY=$(realpath "$1")
mkdir -p "$2/log"
output=$(realpath "$2")
need Xvfb openbox xdotool xprop import
begin_session

start_desktop 1600x1200
export RY_LIBRARY PYTHONPATH=$tour
take_tour "$here/checkprograms.py" "$scratch" "$output" "${@:3}"
