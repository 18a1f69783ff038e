#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Takes pictures of the dialog in each language, with Qt's own translations: both tabs and the message
# box of the Help button. They are in build/translation-pictures.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/translation-pictures.log

pictures=build/translation-pictures
step 'Packages' tools/install-packages.sh tools/packages-test.txt tools/packages-pictures.txt
step 'Configure' cmake --preset release -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON
step 'Build' cmake --build --preset release --target translation-pictures --parallel "$(nproc)"
rm -rf "$pictures"
mkdir -p "$pictures"
export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=fusion LC_ALL=C.UTF-8
step 'Pictures' build/release/tests/translations/translation-pictures "$pictures"
finish "the pictures are in $pictures"
