#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Runs the tour of the text editor, and the drags of the kit's dialog, with Qt 6 in a Wayland session. Takes
# pictures only of failures of the tour, in build/wayland.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/wayland.log

build=build/release-qt6
step 'Packages' tools/install-packages.sh test qt6 wayland
step 'Configure' cmake --preset release-qt6 -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
step 'Build' cmake --build "$build" --target texteditor waylanddrags --parallel "$(nproc)"
step 'Tour' tools/wayland/run.sh "$build" build/wayland
step 'Drags' tools/wayland/drags.sh "$build" build/wayland
finish 'every step of the tour and every drag passed in a Wayland session'
