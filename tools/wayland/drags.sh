#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# drags.sh BUILD_DIR OUTPUT_DIR
#
# Drags actions and entries in the kit's dialog in a Wayland session without a screen, with a pointer of our
# own.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../examples/texteditor/tour/session.sh"
. "$here/sway.sh"
[ $# -eq 2 ] || { echo "usage: ${0##*/} BUILD_DIR OUTPUT_DIR" >&2; exit 2; }
program=$(realpath "$1")/tests/kit/waylanddrags
mkdir -p "$2/log"
output=$(realpath "$2")
need sway
begin_session
start_sway "$here"
take_tour "$here/drags.py" "$program"
