#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# run.sh BUILD_DIR OUTPUT_DIR
#
# Runs the guided tour of the text editor built in BUILD_DIR: the real program, in a real window, with
# a real pointer and real keys. Needs no display: it starts an X server, a window manager and
# a message bus, and ends them again. Prints one line for each step. Writes to OUTPUT_DIR a
# screenshot of each step, tour.gif made from the first ones, and the output of the programs in log/.
# Fails if a step fails. In tools/packages.txt, the section "tour" lists the Debian packages.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/session.sh"
read_arguments "$@"
need Xvfb openbox xdotool xprop import
begin_session

start_desktop 1280x860
take_tour "$here/tour.py" "$editor" "$output"
"$here/animate.sh" "$output"
