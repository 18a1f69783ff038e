# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# For scripts that run something in a Wayland session without a screen: that of sway. To be sourced by bash,
# after the tour's session.sh.

# start_sway FOLDER: starts it with the configuration in the folder, and a message bus.
start_sway() {
    # Sway refuses to run as root, so root gives it away.
    local as_user=()
    mkdir -m 700 "$scratch/sway"
    cp "$1/sway.conf" "$scratch/sway"
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
}
