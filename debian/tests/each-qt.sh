# SPDX-License-Identifier: MIT
# shellcheck shell=sh
#
# To be sourced by tests that use both libraries, each with its Qt.

sources=$PWD
examples=/usr/share/doc/librycustomizeddialog-examples/examples

# with_each_qt FUNCTION: calls it in an empty folder, once with each Qt. These are set:
#   qt        5 or 6
#   name      of the library for CMake, pkg-config and linkers
#   package   of the library
#   kit, kit_package  the same of the kit
#   standard  the oldest C++ of hosts
# shellcheck disable=SC2034 # not every test uses all of them
with_each_qt() {
    for qt in 5 6; do
        case $qt in
            5) name=RyCustomizedDialog package=librycustomizeddialog1
               kit=RyToolBarKit kit_package=librytoolbarkit1 standard=c++11 ;;
            6) name=RyCustomizedDialog-qt6 package=librycustomizeddialog-qt6-1
               kit=RyToolBarKit-qt6 kit_package=librytoolbarkit-qt6-1 standard=c++17 ;;
        esac
        mkdir "$AUTOPKGTEST_TMP/$1-qt$qt"
        cd "$AUTOPKGTEST_TMP/$1-qt$qt" || exit
        "$1"
    done
}

# build_with_cmake EXAMPLE: into the present folder.
build_with_cmake() {
    # Examples take the library for Qt 5 if both are there.
    cmake -S "$examples/$1" -B . \
        "-DRyCustomizedDialog_DIR=$(pkg-config --variable=libdir "$name")/cmake/$name"
    cmake --build . --parallel "$(nproc)"
}

# library_is_from PACKAGE PROGRAM NAME
library_is_from() {
    library=$(ldd "./$2" | sed -n "s/.*lib$3\.so.* => \(\S*\).*/\1/p")
    dpkg-query -S "$(realpath "$library")" | grep "^$1:"
}

# visit_minimal: a user changes a toolbar of the smallest example, which uses the kit, and the layout is
# kept. The libraries are those of the packages.
visit_minimal() {
    # shellcheck disable=SC2046 # several words are meant
    g++ -std=c++17 -fPIC -shared -Wall -Werror "$sources/tools/package/visitor.cpp" \
        -o visitor.so $(pkg-config --cflags --libs "Qt${qt}Widgets")
    library_is_from "$kit_package" minimal "$kit"
    library_is_from "$package" minimal "$name"
    # The offscreen platform always warns.
    HOME=$PWD/home XDG_CONFIG_HOME=$PWD/home QT_QPA_PLATFORM=offscreen LD_PRELOAD=$PWD/visitor.so \
        timeout 60 ./minimal 2>&1
    grep '^editor=' home/RyCustomizedDialog/Minimal.conf
}

# visit_host: a host without the kit that has a user of its own, who reads German.
visit_host() {
    library_is_from "$package" host "$name"
    QT_QPA_PLATFORM=offscreen timeout 60 ./host translated 2>&1
}
