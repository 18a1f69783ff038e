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
. "$here/sway.sh"
read_arguments "$@"
need sway grim
begin_session

start_sway "$here"
take_tour "$here/waylandtour.py" "$editor" "$output"
