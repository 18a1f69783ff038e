#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# run.sh BUILD_DIR OUTPUT_DIR
#
# Runs the tour of the text editor in a Wayland session without a screen: that of sway, with a pointer
# and a keyboard of our own. Takes pictures only of failures. Otherwise like examples/texteditor/tour/run.sh.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../examples/texteditor/tour/session.sh"
read_arguments "$@"
need sway grim
begin_session

# Sway refuses to run as root, so root gives it away.
as_user=()
mkdir -m 700 "$scratch/sway"
cp "$here/sway.conf" "$scratch/sway"
if [ "$(id -u)" -eq 0 ]; then
    as_user=(setpriv --reuid 65534 --regid 65534 --clear-groups --pdeathsig TERM)
    chown -R 65534:65534 "$scratch/sway"
    chmod 711 "$scratch"
fi
start sway.log "${as_user[@]}" env XDG_RUNTIME_DIR="$scratch/sway" \
    WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman sway -c "$scratch/sway/sway.conf"
WAYLAND_DISPLAY=$scratch/sway/$(answer "sway")
export WAYLAND_DISPLAY QT_QPA_PLATFORM=wayland
start_bus
take_tour "$here/waylandtour.py" "$editor" "$output"
