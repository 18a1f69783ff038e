# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# For scripts that run the tour: a session with a message bus, a home folder and programs that end with
# the script. To be sourced by bash.

# read_arguments BUILD_DIR OUTPUT_DIR: sets editor to the program of that build, and output to the
# folder, which need not exist yet.
read_arguments() {
    if [ $# -ne 2 ]; then
        echo "usage: ${0##*/} BUILD_DIR OUTPUT_DIR" >&2
        exit 2
    fi
    editor=$(realpath "$1")/examples/texteditor/texteditor
    if [ ! -x "$editor" ]; then
        echo "${0##*/}: there is no $editor; build the examples first" >&2
        exit 2
    fi
    mkdir -p "$2/log"
    output=$(realpath "$2")
}

# need TOOL...: ends the script if the tools, or what Python needs for the tour, are missing.
need() {
    local tool missing=()
    for tool in dbus-daemon convert setpriv "$@"; do
        command -v "$tool" >/dev/null || missing+=("$tool")
    done
    # Debian's own Python has the bindings.
    python=/usr/bin/python3
    "$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null \
        || missing+=("the AT-SPI bindings of $python")
    if [ ${#missing[@]} -ne 0 ]; then
        printf "${0##*/}: not found: %s\n" "${missing[@]}" >&2
        echo "${0##*/}: tools/packages.txt lists the packages" >&2
        exit 2
    fi
}

# begin_session: removes old files from the folder output, and sets scratch to another folder.
begin_session() {
    local variable
    rm -f "$output"/[0-9][0-9]-*.png "$output"/{dialog,window}.png "$output"/tour.gif \
        "$output"/log/{texteditor.log,widgets.txt}
    scratch=$(mktemp -d)
    started=()
    trap end_session EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM

    # The tour does not use or change the user's desktop and settings.
    for variable in "${!QT_@}" "${!XDG_@}" "${!AT_SPI_@}" "${!DBUS_@}" "${!LC_@}" LANGUAGE DISPLAY \
        WAYLAND_DISPLAY; do
        unset "$variable"
    done
    export LC_ALL=C.UTF-8 HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime"
    mkdir "$HOME"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    mkfifo "$scratch/ready"
    exec 3<>"$scratch/ready"
}

end_session() {
    local index
    for ((index = ${#started[@]} - 1; index >= 0; --index)); do
        kill "${started[index]}" 2>/dev/null || true
        wait "${started[index]}" 2>/dev/null || true
    done
    rm -rf "$scratch" || true
}

# start LOG COMMAND...: starts a program that ends with this script, even when the script is killed.
start() {
    local log=$1
    shift
    setpriv --pdeathsig TERM "$@" >"$output/log/$log" 2>&1 &
    started+=($!)
}

# answer WHAT: prints the line that the program writes to descriptor 3 when it is ready.
answer() {
    local line
    if ! read -r -t 30 -u 3 line; then
        echo "${0##*/}: $1 does not start; see $output/log" >&2
        exit 1
    fi
    printf '%s' "$line"
}

start_bus() {
    start bus.log dbus-daemon --session --nofork --nopidfile --print-address=3
    DBUS_SESSION_BUS_ADDRESS=$(answer "the message bus")
    export DBUS_SESSION_BUS_ADDRESS
    exec 3>&-
}

# start_desktop SIZE: an X server with a screen of that size, a message bus and a window manager.
start_desktop() {
    start xserver.log Xvfb -displayfd 3 -screen 0 "$1x24" -dpi 96 -nolisten tcp
    DISPLAY=:$(answer "the X server")
    export DISPLAY
    start_bus
    start windowmanager.log openbox --sm-disable
}

# take_tour PROGRAM ARGUMENT...: runs the tour in Python, in the background, so that an interrupt is
# taken at once.
take_tour() {
    setpriv --pdeathsig TERM "$python" -B "$@" &
    started+=($!)
    wait $!
}
