#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Installs those packages of the lists that are missing, with apt, and says which. Calls apt for
# nothing else.
#
# usage: install-packages.sh LIST...

set -eu

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no apt. What is needed is listed in: $*"
    exit 0
fi

wanted=$(sed 's/#.*//' "$@")
missing=
for package in $wanted; do
    case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null || true) in
        ?i*) ;;
        *) missing="$missing $package" ;;
    esac
done
if [ -z "$missing" ]; then
    echo 'All packages are there.'
    exit 0
fi
echo "Installing:$missing"

apt_get() {
    "${0%/*}/as-root.sh" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -oDPkg::Lock::Timeout=300 -oDpkg::Use-Pty=0 "$@"
}

# A package source of somebody else's that does not answer must not stop us.
apt_get update || echo 'Going on with the package lists that are there.'
# shellcheck disable=SC2086 # several words are meant
apt_get install --yes --no-install-recommends $missing
