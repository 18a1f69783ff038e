#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Runs a command as root, with sudo if necessary.
#
# usage: as-root.sh COMMAND...

set -eu

if [ "$(id -u)" -eq 0 ]; then
    exec "$@"
elif ! command -v sudo >/dev/null; then
    echo "There is no sudo. As root, run: $*" >&2
    exit 1
elif (: </dev/tty) 2>/dev/null; then
    exec sudo "$@"
else
    exec sudo -n "$@"
fi
