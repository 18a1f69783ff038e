#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Runs a command on an X server and with a window manager of its own, and ends both afterwards.
#
# usage: inwindow.sh COMMAND [ARGUMENT...]

set -eu

if [ "${RY_IN_WINDOW:-}" != started ]; then
    RY_IN_WINDOW=started exec xvfb-run -a -s '-screen 0 1280x1024x24 -nolisten tcp' "$0" "$@"
fi

openbox --sm-disable &
manager=$!
trap 'kill "$manager" 2>/dev/null || true' EXIT

# A window manager that is ready says so on the root window.
tries=0
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    tries=$((tries + 1))
    [ "$tries" -lt 200 ] || { echo 'inwindow.sh: no window manager after 10 seconds' >&2; exit 1; }
    sleep 0.05
done

status=0
"$@" || status=$?
exit "$status"
