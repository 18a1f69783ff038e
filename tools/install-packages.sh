#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Installs the missing packages of sections of packages.txt with apt, and prints which. Does not call
# apt if none is missing.
#
# usage: install-packages.sh SECTION...

set -eu

[ $# -gt 0 ] || { echo 'usage: install-packages.sh SECTION...' >&2; exit 2; }
list=${0%/*}/packages.txt
wanted=
for section; do
    packages=$(sed "1,/^\[$section\]\$/d; /^\[/,\$d; s/#.*//" "$list")
    [ -n "$packages" ] || { echo "$list has no section $section." >&2; exit 1; }
    wanted="$wanted $packages"
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no apt. The needed packages are in these sections of $list: $*"
    exit 0
fi

missing=
for package in $wanted; do
    case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null || true) in
        ?i*) ;;
        *) missing="$missing $package" ;;
    esac
done
if [ -z "$missing" ]; then
    echo 'All packages are installed.'
    exit 0
fi
echo "Installing:$missing"

apt_get() {
    "${0%/*}/as-root.sh" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -oDPkg::Lock::Timeout=300 -oDpkg::Use-Pty=0 "$@"
}

# An unrelated package source that does not answer must not stop us.
apt_get update || echo 'Continuing with the present package lists.'
# shellcheck disable=SC2086 # several words on purpose
apt_get install --yes --no-install-recommends $missing
