#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Runs a command on an X server and with a window manager of its own, and ends both afterwards.
#
# usage: inwindow.sh COMMAND [ARGUMENT...]

set -eu

# By default a server starts again when its last client leaves, which the look for the window manager
# below may be, and then drops the window manager that is just connecting.
if [ "${RY_IN_WINDOW:-}" != started ]; then
    RY_IN_WINDOW=started exec xvfb-run -a -s '-screen 0 1280x1024x24 -nolisten tcp -noreset' "$0" "$@"
fi

# A window manager that is still starting does not activate the windows that it finds. Openbox runs
# this command once it is done with that.
openbox --sm-disable \
    --startup 'xprop -root -f RY_WINDOW_MANAGER 8s -set RY_WINDOW_MANAGER ready' &
manager=$!
trap 'kill "$manager" 2>/dev/null || true' EXIT

tries=0
until xprop -root RY_WINDOW_MANAGER 2>/dev/null | grep -q ready; do
    tries=$((tries + 1))
    [ "$tries" -lt 200 ] || { echo 'inwindow.sh: no window manager after 10 seconds' >&2; exit 1; }
    sleep 0.05
done

status=0
"$@" || status=$?
exit "$status"
