#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Runs a command in a session with a message bus and a home folder of its own.
#
# usage: insession.sh COMMAND [ARGUMENT...]

set -eu

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -m 700 "$scratch/home" "$scratch/runtime"
unset DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
export HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime"

status=0
dbus-run-session -- "$@" || status=$?
exit "$status"
