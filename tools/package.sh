#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Builds the Debian packages in build/packages, on a Debian or Ubuntu system, from the files that
# git knows. What is missing is installed with apt; everything else stays in build/.
#
# usage: package.sh [--check | --update-symbols]
#   --check           also builds them a second time and compares, and looks at them with lintian;
#                     installs them, runs the tests in debian/tests, and removes them again
#   --update-symbols  writes new symbols into the lists of exported symbols, with this version

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
set -o pipefail
start_log build/package.log

packages=$PWD/build/packages
work=$PWD/build/package

# copy_sources FOLDER: the files that git knows, all with the time of the newest change.
copy_sources() (
    umask 022
    mkdir -p "$1" &&
        git -c safe.directory="$PWD" ls-files -z | tar -c --null --files-from=- \
            --mtime="@$(dpkg-parsechangelog -STimestamp)" |
        tar -x -C "$1" --no-same-owner --no-same-permissions
)

# build FOLDER [OPTION...]: the packages, from a copy of the sources in there.
build() {
    local folder=$1
    shift
    rm -rf "$folder" && copy_sources "$folder/sources" &&
        (cd "$folder/sources" && DEB_BUILD_OPTIONS=terse dpkg-buildpackage --no-sign "$@")
}

pack() {
    rm -rf "$packages" && mkdir -p "$packages" && mv "$work"/*.* "$packages" &&
        ls -s --block-size=1 "$packages"
}

update_symbols() {
    local list package version
    version=$(dpkg-parsechangelog -SVersion)
    for list in debian/*.symbols; do
        package=$(basename "$list" .symbols)
        dpkg-gensymbols -q -t -c0 "-p$package" "-v$version" "-P$work/sources/debian/$package" \
            "-I$list" "-O$list" && echo "$list: $(grep -c '@Base' "$list") symbols" || return
    done
}

# Another folder, time, time zone and umask give the same bits. The symbols for debuggers have to be
# there.
same_again() {
    local folder=$work/in/another/folder file status=0
    (umask 027 && TZ=Asia/Kathmandu build "$folder") || return
    for file in "$packages"/*.{dsc,tar.xz,deb} "$packages"/*-dbgsym_*.deb; do
        cmp "$file" "$folder/${file##*/}" || status=1
    done
    [ "$status" -eq 0 ] && echo 'All files are the same.'
}

look_at_packages() {
    lintian --allow-root --info --display-info --pedantic \
        --fail-on error,warning,info,pedantic "$packages"/*.changes
}

none_is_installed() {
    local there
    there=$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "${names[@]}" 2>/dev/null |
        grep '^.[^n]')
    [ -z "$there" ] || { echo "Remove these first: $there"; return 1; }
}

# All paths where packages put files, without the lists of apt and dpkg about other packages.
list_files() {
    tools/as-root.sh find /etc /opt /usr /var/lib \
        \( -path /var/lib/apt -o -path /var/lib/dpkg \) -prune -o -print >"$1.unsorted" &&
        find /var/lib/dpkg/info -name '*rycustomizeddialog*' -o -name '*rytoolbarkit*' \
            >>"$1.unsorted" &&
        sort "$1.unsorted" >"$1" && echo "$(wc -l <"$1") files and folders"
}

apt_get() {
    tools/as-root.sh env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -oDPkg::Lock::Timeout=300 -oDpkg::Use-Pty=0 --yes "$@"
}

install_packages() {
    apt_get --no-install-recommends install "$packages"/*.deb && dpkg-query -W "${names[@]}"
}

# The packages are there already, which is what makes them those that are tested.
test_packages() {
    tools/as-root.sh autopkgtest --no-built-binaries "$packages"/*.dsc -- null
}

remove_packages() {
    apt_get purge "${names[@]}"
}

# What other packages brought or took in between is theirs.
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
    ! ldconfig -p | grep -E 'RyCustomizedDialog|RyToolBarKit' && [ "$left" -eq 0 ] &&
        echo 'Nothing is left behind.'
}

step 'Packages' tools/install-packages.sh package
if [ "${1-}" = --update-symbols ]; then
    export DPKG_GENSYMBOLS_CHECK_LEVEL=0
    step 'Build' build "$work" --build=any
    step 'Symbols' update_symbols
    finish 'the lists of symbols are written'
fi
step 'Build' build "$work"
step 'Pack' pack
[ "${1-}" = --check ] || finish "the packages are in $packages"

mapfile -t names < <(for file in "$packages"/*.deb; do dpkg-deb -f "$file" Package; done)
try 'Build again' same_again
try 'Lintian' look_at_packages
step 'None is installed' none_is_installed
step 'Files before' list_files "$work/before.txt"
try 'Install' install_packages && try 'Tests' test_packages
try 'Remove' remove_packages
try 'Files afterwards' no_trace_is_left
finish "the packages in $packages are what they promise, and nothing is left of them"
