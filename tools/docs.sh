#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Writes the reference of the public headers: build/docs/docs/html, for browsers, and
# build/docs/docs/RyCustomizedDialog.qch, for Qt Assistant and Qt Creator. Fails if a public name has no
# comment, and if Qt's help viewers do not find every class. Installs missing packages with apt.

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/docs.log
export QT_QPA_PLATFORM=offscreen

build=build/docs
pages=$build/docs/html
help_file=$build/docs/RyCustomizedDialog.qch

# Each class, and each function that a class declares for its hosts.
read_help() {
    local names flags
    # A class of a library has a header of its name.
    mapfile -t names < <(find "$build/include" -type f -name 'Ry*' -printf '%f\n')
    names+=(RyToolBarManager::restoreState RyCustomizedDialog::okButton RyTreeWidget::performDrag
        RyToolBarKit::restoreLayout)
    read -ra flags < <(pkg-config --cflags --libs Qt5Help)
    g++ -std=c++17 -fPIC -Wall -Werror tools/docs/readhelp.cpp -o "$build/readhelp" \
        "${flags[@]}" &&
        rm -f "$build/reader.qhc" &&
        "$build/readhelp" "$PWD/$help_file" "$PWD/$build/reader.qhc" "${names[@]}"
}

# Qt Assistant itself, with separate settings. It can unregister only a file that it has registered.
register_help() {
    local file home
    file=$PWD/$help_file home=$PWD/$build/home
    rm -rf "$home" && mkdir "$home" &&
        HOME=$home assistant -register "$file" -quiet &&
        HOME=$home assistant -unregister "$file" -quiet &&
        echo 'Qt Assistant has registered and unregistered the help file.'
}

step 'Packages' tools/install-packages.sh docs
step 'Configure' cmake -G Ninja -B "$build" -DRYCUSTOMIZEDDIALOG_BUILD_DOCS=ON \
    -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF
step 'Reference' cmake --build "$build" --target RyCustomizedDialogDocs
try 'Qt Help' read_help
try 'Qt Assistant' register_help
finish "the reference is in $pages and $help_file"
