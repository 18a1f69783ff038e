#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# run.sh BUILD_DIR OUTPUT_DIR
#
# Runs the guided tour of the text editor built in BUILD_DIR: the real program, in a real window, with
# a real pointer and real keys. Needs no display: it starts an X server, a window manager and
# a message bus, and ends them again. Prints one line for each step. Writes to OUTPUT_DIR a
# screenshot of each step, tour.gif made from the first ones, and the output of the programs in log/.
# Fails if a step fails. In tools/packages.txt, the section "tour" lists the Debian packages.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: run.sh BUILD_DIR OUTPUT_DIR" >&2
    exit 2
fi
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
editor=$(realpath "$1")/examples/texteditor/texteditor
if [ ! -x "$editor" ]; then
    echo "run.sh: there is no $editor; build the examples first" >&2
    exit 2
fi
missing=()
for tool in Xvfb openbox dbus-daemon xdotool xprop import convert setpriv; do
    command -v "$tool" >/dev/null || missing+=("$tool")
done
# Debian's own Python has the bindings.
python=/usr/bin/python3
"$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null \
    || missing+=("the AT-SPI bindings of $python")
if [ ${#missing[@]} -ne 0 ]; then
    printf 'run.sh: not found: %s\n' "${missing[@]}" >&2
    echo "run.sh: the section \"tour\" of tools/packages.txt lists the packages that it needs" >&2
    exit 2
fi

mkdir -p "$2/log"
output=$(realpath "$2")
rm -f "$output"/[0-9][0-9]-*.png "$output"/{dialog,window}.png "$output"/tour.gif \
    "$output"/log/{texteditor.log,widgets.txt}
scratch=$(mktemp -d)
started=()

end_all() {
    local index
    for ((index = ${#started[@]} - 1; index >= 0; --index)); do
        kill "${started[index]}" 2>/dev/null || true
        wait "${started[index]}" 2>/dev/null || true
    done
    rm -rf "$scratch" || true
}
trap end_all EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# Starts a program that ends with this script, even when the script is killed.
start() {
    local log=$1
    shift
    setpriv --pdeathsig TERM "$@" >"$output/log/$log" 2>&1 &
    started+=($!)
}

# Reads from descriptor 3 what the program prints when it is ready.
answer() {
    local line
    if ! read -r -t 30 -u 3 line; then
        echo "run.sh: $1 does not start; see $output/log" >&2
        exit 1
    fi
    printf '%s' "$line"
}

# The tour does not use or change the user's desktop and settings.
for variable in "${!QT_@}" "${!XDG_@}" "${!AT_SPI_@}" "${!DBUS_@}" "${!LC_@}" LANGUAGE \
    WAYLAND_DISPLAY; do
    unset "$variable"
done
export LC_ALL=C.UTF-8 HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime"
mkdir "$HOME"
mkdir -m 700 "$XDG_RUNTIME_DIR"
mkfifo "$scratch/ready"
exec 3<>"$scratch/ready"

start xserver.log Xvfb -displayfd 3 -screen 0 1280x860x24 -dpi 96 -nolisten tcp
DISPLAY=:$(answer "the X server")
export DISPLAY
start bus.log dbus-daemon --session --nofork --nopidfile --print-address=3
DBUS_SESSION_BUS_ADDRESS=$(answer "the message bus")
export DBUS_SESSION_BUS_ADDRESS
exec 3>&-
start windowmanager.log openbox

# In the background, so that an interrupt is taken at once.
setpriv --pdeathsig TERM "$python" -B "$here/tour.py" "$editor" "$output" &
started+=($!)
wait $!
"$here/animate.sh" "$output"
