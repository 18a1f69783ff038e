# SPDX-License-Identifier: MIT
# shellcheck shell=sh
#
# The smallest example, from the package of the examples, in an empty folder: to be sourced by tests
# that build it there, each in its own way.

sources=$PWD
examples=/usr/share/doc/librycustomizeddialog-examples/examples
cp -r $examples/minimal "$AUTOPKGTEST_TMP"
cd "$AUTOPKGTEST_TMP/minimal" || exit

# visit_minimal: a user opens the dialog of the program and presses OK, and the layout is kept. The
# library is the one of the package.
visit_minimal() {
    # shellcheck disable=SC2046 # several words are meant
    g++ -std=c++17 -fPIC -shared -Wall -Werror "$sources/tools/package/visitor.cpp" \
        -o visitor.so $(pkg-config --cflags --libs Qt5Widgets)
    library=$(ldd ./minimal | sed -n 's/.*libRyCustomizedDialog.so.* => \(\S*\).*/\1/p')
    dpkg-query -S "$(realpath "$library")"
    # The offscreen platform always warns.
    HOME=$PWD/home XDG_CONFIG_HOME=$PWD/home QT_QPA_PLATFORM=offscreen LD_PRELOAD=$PWD/visitor.so \
        timeout 60 ./minimal 2>&1
    grep '^toolBars=' home/RyCustomizedDialog/Minimal.conf
}
