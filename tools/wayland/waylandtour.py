# SPDX-License-Identifier: MIT
"""The tour of the text editor in a Wayland session, started by run.sh."""

import sys
from pathlib import Path

sys.path.append(str(Path(__file__).parents[2] / "examples/texteditor/tour"))

import tour
from waylanddesktop import WaylandDesktop

sys.exit(tour.run(*sys.argv[1:], WaylandDesktop()))
