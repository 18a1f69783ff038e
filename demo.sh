#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# usage: demo.sh [--qt 5|6]
#
# Shows the dialog in the text editor example. With a display, it opens a window. Without one, it runs
# a tour that checks each step and takes pictures. Installs missing packages with apt; everything else
# stays in build/.

cd "$(dirname "${BASH_SOURCE[0]}")" || exit
. tools/steps.sh
choose_qt "$@"
start_log "build/demo$suffix.log"

has_display=${DISPLAY:-}${WAYLAND_DISPLAY:-}
tour=examples/texteditor/tour
packages=(demo "qt$qt")
[ -n "$has_display" ] || packages+=(tour)
step 'Packages' tools/install-packages.sh "${packages[@]}"

# A separate build, because the tests need more packages.
build=build/demo-release$suffix
step 'Configure' cmake --preset "release$suffix" -B "$build" -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF
step 'Build' cmake --build "$build" --parallel "$(nproc)"

if [ -n "$has_display" ]; then
    step 'Text editor' "$build/examples/texteditor/texteditor" examples/texteditor/sample.html
    finish 'the text editor was closed'
else
    step 'Tour' "$tour/run.sh" "$build" "build/demo$suffix"
    finish "every step of the tour passed; its pictures and tour.gif are in build/demo$suffix"
fi
