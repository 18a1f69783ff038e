#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Installs the Debian packages of package.sh, builds the examples in an empty folder from what they
# contain, runs the smallest one, and removes the packages again. Needs root, through sudo.
#
# usage: check-packages.sh FOLDER

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
start_log build/check-packages.log

folder=${1:?the folder of the packages}
work=$PWD/build/packages-check
examples=/usr/share/doc/librycustomizeddialog-examples/examples
rm -rf "$work" && mkdir -p "$work/home" || exit
mapfile -t names < <(for file in "$folder"/*.deb; do dpkg-deb -f "$file" Package; done)

# What the packages are for is no bug report of Debian's.
look_at_packages() {
    lintian --allow-root --info --display-info --pedantic --fail-on error,warning \
        --suppress-tags initial-upload-closes-no-bugs "$folder"/*.deb
}

# What is installed without packages is in one of them.
nothing_is_forgotten() {
    DESTDIR=$work/tree cmake --install build/package >"$work/install.txt" &&
        (cd "$work/tree" && find . ! -type d) | sort >"$work/tree.txt" &&
        for file in "$folder"/*.deb; do
            dpkg-deb --fsys-tarfile "$file" | tar -t || return
        done | grep -v '/$' | sort >"$work/packed.txt" &&
        diff "$work/tree.txt" "$work/packed.txt" && echo "$(wc -l <"$work/packed.txt") files"
}

none_is_installed() {
    local there
    there=$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "${names[@]}" 2>/dev/null | grep '^.[^n]')
    [ -z "$there" ] || { echo "Remove these first: $there"; return 1; }
}

# All paths where packages put files, without the lists of apt and dpkg about other packages.
list_files() {
    tools/as-root.sh find /etc /opt /usr /var/lib \( -path /var/lib/apt -o -path /var/lib/dpkg \) -prune \
        -o -print >"$1.unsorted" &&
        find /var/lib/dpkg/info -name '*rycustomizeddialog*' >>"$1.unsorted" &&
        sort "$1.unsorted" >"$1" && echo "$(wc -l <"$1") files and folders"
}

install_packages() {
    realpath "$folder"/*.deb >"$work/packages.txt" &&
        tools/install-packages.sh "$work/packages.txt" &&
        dpkg-query -W -f='${db:Status-Abbrev} ${Package} ${Version}: ${Installed-Size} KB\n' "${names[@]}"
}

remove_packages() {
    tools/as-root.sh env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -oDPkg::Lock::Timeout=300 -oDpkg::Use-Pty=0 purge --yes "${names[@]}"
}

# copy_example NAME FOLDER: an example, as it is installed, in a folder of its own.
copy_example() {
    rm -rf "${work:?}/$2" && cp -r "$examples/$1" "$work/$2"
}

# run_minimal FOLDER: the program works, and with the library of the package.
run_minimal() {
    local program=$work/$1/minimal library
    library=$(ldd "$program" | sed -n 's/.*libRyCustomizedDialog.so.* => \(\S*\).*/\1/p')
    dpkg-query -S "$(realpath "$library")" &&
        HOME=$work/home XDG_CONFIG_HOME=$work/home/.config QT_QPA_PLATFORM=offscreen \
            LD_PRELOAD=$work/visitor.so timeout 60 "$program" &&
        grep -q '^toolBars=' "$work/home/.config/RyCustomizedDialog/Minimal.conf" &&
        rm -r "$work/home/.config" && echo 'It has kept its layout.'
}

build_visitor() {
    local flags
    read -ra flags < <(pkg-config --cflags --libs Qt5Widgets)
    g++ -std=c++17 -fPIC -shared -Wall -Werror tests/packaging/packages/visitor.cpp \
        -o "$work/visitor.so" "${flags[@]}"
}

# build_with_cmake FOLDER
build_with_cmake() {
    cmake -S "$work/$1" -B "$work/$1" && cmake --build "$work/$1" --parallel "$(nproc)"
}

with_cmake() {
    copy_example minimal cmake && build_with_cmake cmake && run_minimal cmake
}

with_pkg_config() {
    local flags
    copy_example minimal pkg-config || return
    read -ra flags < <(pkg-config --cflags --libs RyCustomizedDialog)
    (cd "$work/pkg-config" && g++ -std=c++11 -fPIC main.cpp -o minimal "${flags[@]}") &&
        run_minimal pkg-config
}

with_qmake() {
    local qmake
    qmake=$(pkg-config --variable=host_bins Qt5Core)/qmake
    copy_example minimal qmake &&
        (cd "$work/qmake" && "$qmake" && make) &&
        run_minimal qmake
}

other_examples() {
    local path name
    for path in "$examples"/*/CMakeLists.txt; do
        name=$(basename "$(dirname "$path")")
        [ "$name" = minimal ] && continue
        copy_example "$name" "example-$name" && build_with_cmake "example-$name" || return
    done
}

# What a package of an application would depend on.
dependencies_of_a_host() {
    mkdir -p "$work/host/debian" && printf 'Source: host\n\nPackage: host\nArchitecture: any\n' \
        >"$work/host/debian/control" || return
    (cd "$work/host" && dpkg-shlibdeps -O "$work/cmake/minimal") | tee "$work/depends.txt" &&
        grep -q 'librycustomizeddialog1 (>= [0-9.]*)' "$work/depends.txt"
}

reference_is_there() {
    ls -s --block-size=1 /usr/share/qt5/doc/RyCustomizedDialog.qch \
        /usr/share/doc/librycustomizeddialog-doc/html/index.html
}

# Hosts that run need them, and not only those that are built.
translations_are_there() {
    local runtime
    runtime=$(printf '%s\n' "${names[@]}" | grep '^librycustomizeddialog[0-9]*$')
    [ "$(dpkg -L "$runtime" | grep -c '\.qm$')" -eq "$(find translations -name '*.ts' | wc -l)" ] &&
        echo "$runtime has them all."
}

# What other packages brought or took meanwhile is theirs.
no_trace_is_left() {
    local path left=0
    list_files "$work/after.txt" || return
    while read -r path; do
        dpkg-query -S "$path" >/dev/null 2>&1 && continue
        echo "left behind: $path"
        left=1
    done < <(comm -13 "$work/before.txt" "$work/after.txt")
    while read -r path; do
        echo "taken away: $path"
        left=1
    done < <(comm -23 "$work/before.txt" "$work/after.txt")
    ! ldconfig -p | grep RyCustomizedDialog && [ "$left" -eq 0 ] && echo 'Nothing is left behind.'
}

try 'Lintian' look_at_packages
try 'Files of the packages' nothing_is_forgotten
step 'None is installed' none_is_installed
step 'Files before' list_files "$work/before.txt"
if try 'Install' install_packages && try 'User of the example' build_visitor; then
    try 'CMake' with_cmake
    try 'pkg-config' with_pkg_config
    try 'qmake' with_qmake
    try 'Other examples' other_examples
    try 'Dependencies of a host' dependencies_of_a_host
    try 'Reference' reference_is_there
    try 'Translations' translations_are_there
fi
try 'Remove' remove_packages
try 'Files afterwards' no_trace_is_left
finish "hosts build and run with the packages in $folder, and nothing is left of them"
