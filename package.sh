#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the Debian packages in build/packages, on a Debian or Ubuntu system. What is missing is
# installed with apt; everything else stays in build/.
#
# usage: package.sh [--check | --update-symbols]
#   --check           also installs them, builds the examples from them alone, and removes them again
#   --update-symbols  writes new symbols into the list of exported symbols, with this version

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")" || exit
. tools/steps.sh
start_log build/package.log

# CPack packs the folders as it finds them.
umask 022
build=build/package
packages=build/packages

configure() {
    # The flags of Debian's own packages; CMake reads no CPPFLAGS.
    local flags
    flags=$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh) && eval "$flags"
    CXXFLAGS="$CXXFLAGS $CPPFLAGS" cmake -G Ninja -B "$build" -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_INSTALL_PREFIX=/usr \
        -DCMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)" \
        -DRYCUSTOMIZEDDIALOG_BUILD_PACKAGES=ON -DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=ON \
        -DRYCUSTOMIZEDDIALOG_BUILD_TESTS=OFF -DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF
}

update_symbols() {
    local major version list
    IFS=. read -r major _ <VERSION
    read -r version <VERSION
    list=packaging/debian/librycustomizeddialog$major.symbols
    touch "$list"
    dpkg-gensymbols -q -t -c0 "-plibrycustomizeddialog$major" "-v$version" "-I$list" "-O$list" \
        "-e$build/libRyCustomizedDialog.so.$major" &&
        echo "$(grep -c '@Base' "$list") symbols"
}

pack() {
    rm -rf "$packages" && mkdir -p "$packages" &&
        (cd "$build" && cpack -B "$OLDPWD/$packages") &&
        rm -r "$packages/_CPack_Packages" && ls -s --block-size=1 "$packages"
}

step 'Packages' tools/install-packages.sh tools/packages-package.txt
step 'Configure' configure
if [ "${1-}" = --update-symbols ]; then
    step 'Library' cmake --build "$build" --target RyCustomizedDialog --parallel "$(nproc)"
    step 'Symbols' update_symbols
    finish 'the list of symbols is written'
fi
step 'Build' cmake --build "$build" --parallel "$(nproc)"
step 'Pack' pack
if [ "${1-}" = --check ]; then
    step 'Check' tools/check-packages.sh "$packages"
fi
finish "the packages are in $packages"
